#include "livecontrol/foundation/PoolJob.h"

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/HostApplication.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QtConcurrent>
#include <exception>

namespace {

/// A future carries a copy of the base class alone: what was thrown is kept beside it, with all that it
/// knows.
void runCarried(const std::function<void()>& job, std::exception_ptr& thrown) {
    try {
        job();
    } catch (const std::exception& error) {
        thrown = std::current_exception();
        const auto* const known = dynamic_cast<const APP_Exception*>(&error);
        throw APP_ConcurrentException(known ? *known : APP_Exception(QString::fromUtf8(error.what()), 0));
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
    std::exception_ptr thrown; // written before the job ends, read after it
    QFutureWatcher<void> watcher;
    watcher.setFuture(QtConcurrent::run([&] { runCarried(job, thrown); }));
    const JobEnd end{watcher};
    try {
        host.runWithProgress(text, watcher);
    } catch (const APP_ConcurrentException&) {
        std::rethrow_exception(thrown ? thrown : std::current_exception());
    }
}
