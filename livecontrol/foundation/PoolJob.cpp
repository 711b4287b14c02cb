#include "livecontrol/foundation/PoolJob.h"

#include "livecontrol/foundation/APP_Exception.h"
#include "livecontrol/interface/HostApplication.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QtConcurrent>

namespace {

/// Between the threads any other exception would lose its text.
void runCarried(const std::function<void()>& job) {
    try {
        job();
    } catch (const APP_Exception& error) {
        throw APP_ConcurrentException(error);
    } catch (const std::exception& error) {
        throw APP_ConcurrentException(APP_Exception(QString::fromUtf8(error.what()), 0));
    }
}

/// Waits for the end of a watched job. Events run meanwhile, since the job may wait for this thread itself;
/// the user can't begin anything else. The event that tells the watcher of the end wakes this thread.
struct JobEnd {
    const QFutureWatcher<void>& watcher;

    ~JobEnd() {
        const QFuture<void> job = watcher.future();
        while (!job.isFinished()) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                            QEventLoop::WaitForMoreEvents);
        }
    }
};

} // namespace

void runOnPool(HostApplication& host, const QString& text, const std::function<void()>& job) {
    QFutureWatcher<void> watcher;
    watcher.setFuture(QtConcurrent::run(&runCarried, job));
    const JobEnd end{watcher};
    try {
        host.runWithProgress(text, watcher);
    } catch (const APP_ConcurrentException& carrier) {
        throw APP_Exception(carrier.exception());
    }
}
