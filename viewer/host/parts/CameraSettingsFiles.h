#pragma once

#include <QObject>
#include <QStringList>

class DocumentList;
struct BodyRecord;

/// The settings of all connected cameras in files, written and brought back.
class CameraSettingsFiles : public QObject {
    Q_OBJECT

public:
    /// The list is not owned and outlives it.
    explicit CameraSettingsFiles(DocumentList& documents) : m_documents(documents) {}

    /// Writes them beside the old file and puts that in its place when it is whole. Any thread. Throws
    /// DOC_FileException.
    void save(const QString& path);
    /// Brings them back, each camera its own or those of its name. The file is checked from end to end before
    /// the first camera is touched. Throws DOC_FileException.
    void load(const QString& path);

    /// What the cameras did not take of the files that were loaded, a line each.
    const QStringList& missed() const { return m_missed; }
    void forgetMissed() { m_missed.clear(); }

private:
    QByteArray text();
    QByteArray gathered() const;

    DocumentList& m_documents;
    QStringList m_missed;
};
