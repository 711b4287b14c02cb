#pragma once

#include <QObject>

class DocumentList;

/// In what the selected cameras differ, for the panel's page, where it stands as the script object
/// `selected_cameras`: the getters of a plug-in answer for the current camera alone.
class SelectedValues : public QObject {
    Q_OBJECT

public:
    /// The list is not owned and outlives it.
    explicit SelectedValues(const DocumentList& documents) : m_documents(documents) {}

public slots:
    /// One object as JSON: of "rate", "shutter" and "resolution" those that are not the same at all cameras
    /// that a setter reaches, each a list of {camera, text}, the current camera first. Texts are those of the
    /// select boxes, but for the digits' grouping.
    QString differing() const;
    /// The key of the camera whose values the panel shows, where several are selected; empty with one or
    /// none.
    QString currentKey() const;

private:
    const DocumentList& m_documents;
};
