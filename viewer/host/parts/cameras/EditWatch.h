#pragma once

#include <QHash>
#include <QObject>

#include "livecontrol/interface/types.h"
#include "viewer/cameras/settings/HeadSettings.h"

#include <optional>

class CameraHead;
class Document;
class DocumentList;

/// Watches an edit on a page of the panel: what it changed at the cameras, told apart from what was changed
/// at a camera by hand meanwhile.
class EditWatch : public QObject {
    Q_OBJECT

public:
    /// The settings of a head.
    struct Change {
        HeadSettings before;
        HeadSettings now;
    };

    explicit EditWatch(DocumentList& documents);

    /// Of the cameras that setters reach now.
    void begin();
    void end() { m_edits.clear(); }
    /// The edit breaks off: keeps what it changed at the cameras that have no link.
    void keepLost();
    /// That, once such a camera is back: its state now, and the same without what the edit changed. What was
    /// changed by hand since is in both.
    std::optional<Change> takeLost(const Document& document);

private:
    struct Edit {
        HeadSettings before;   // with what was changed by hand since
        HeadSettings previous; // before the change that is under way
        HeadSettings now;
    };

    Edit* editOf(CameraHead* head);
    void onSettingsChanged(CameraHead* head);
    void onChangedOutside(CameraHead* head);

    DocumentList& m_documents;
    QHash<DOCKEY, Edit> m_edits;
    QHash<DOCKEY, Change> m_lost;
};
