#pragma once

#include <QThread>

/// A host's thread that watches the links to the cameras and tells when they have to be adjusted. The host
/// owns it; a plug-in connects the signal by name, since the class may be compiled into both.
class RUN_ObservePhaseAdjustWarningThread : public QThread {
    Q_OBJECT

public:
    using QThread::QThread;

signals:
    /// True: the links of a camera are out of phase; false: they are well again.
    void signalWarning(bool isWarn);
};
