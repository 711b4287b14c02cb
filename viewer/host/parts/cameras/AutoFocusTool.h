#pragma once

#include "livecontrol/interface/types.h"
#include "viewer/host/parts/cameras/AutoFocus.h"

class DocumentList;
class Messages;
class HostWindow;
class TargetCameras;
class UpdateGate;

/// The autofocus, a tool of the viewer's own that pages open like a plug-in: focuses the current camera, says
/// so on its view, and tells a failure.
class AutoFocusTool : public QObject {
    Q_OBJECT

public:
    /// None is owned; all outlive it.
    struct Surroundings {
        DocumentList& documents;
        TargetCameras& cameras;
        UpdateGate& updates;
        Messages& messages;
        HostWindow& shell;
    };
    explicit AutoFocusTool(const Surroundings& around);

    /// Whether the current camera's lens can be focused.
    bool isAvailable() const;
    /// Whether one of the selected cameras is being focused.
    bool isFocusing() const;
    /// Throws CameraFailure.
    void start();

private:
    void releaseViews();

    Surroundings m_around;
    AutoFocus m_autoFocus;
    DOCKEY m_key = kInvalidDockey; // of the view that says so
};
