#include "livecontrol/foundation/PoolJob.h"

#include "livecontrol/foundation/APP_Exception.h"
#include "livecontrol/plugin/host/HostApplication.h"

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

struct JobEnd {
    QFuture<void> job;

    ~JobEnd() {
        try {
            job.waitForFinished();
        } catch (const std::exception&) {
            // Thrown already to who waited for the job.
        }
    }
};

} // namespace

void runOnPool(HostApplication& host, const QString& text, const std::function<void()>& job) {
    const JobEnd end{QtConcurrent::run(&runCarried, job)};
    QFutureWatcher<void> watcher;
    watcher.setFuture(end.job);
    try {
        host.runWithProgress(text, watcher);
    } catch (const APP_ConcurrentException& carrier) {
        throw APP_Exception(carrier.exception());
    }
}
