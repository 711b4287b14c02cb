#pragma once

#include <QtGlobal>

class HostObject;
class QMutex;

/// A scope around a camera change that has to stop or pause the live stream.
///
/// Tries the host's document mutex for one millisecond and goes on without it, so that a busy paint thread
/// never stalls the GUI thread. GUI thread only. The constructor throws what the host throws; a failure at
/// the end goes to its `handleError`.
class LiveSuspendGuard {
public:
    /// With `refreshSettings` all documents read their settings anew at the end; with `restartTransfer` the
    /// selected cameras restart their transfer, if the change needs it.
    LiveSuspendGuard(HostObject* host, bool refreshSettings, bool restartTransfer);
    ~LiveSuspendGuard();
    Q_DISABLE_COPY(LiveSuspendGuard)

private:
    void suspend();
    void resume();
    void restartSelected();

    HostObject* m_host; ///< Not owned.
    bool m_refreshSettings;
    bool m_restartTransfer;
    QMutex* m_mutex = nullptr; ///< Set while it is held.
};
