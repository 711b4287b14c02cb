#include "viewer/documents/BackgroundJob.h"

#include "viewer/recordings/BackgroundThread.h"

#include <QRunnable>
#include <QThreadPool>

namespace {

class Runner : public QRunnable {
public:
    explicit Runner(std::function<void()> run) : m_run(std::move(run)) {}
    void run() override {
        enterBackground();
        m_run();
    }

private:
    std::function<void()> m_run;
};

} // namespace

BackgroundJob::BackgroundJob(int id, const QString& title, int total, QObject* parent)
    : QObject(parent), m_id(id), m_title(title), m_total(total) {}

void BackgroundJob::start(QThreadPool& pool, const Work& work) {
    m_clock.start();
    pool.start(new Runner([this, work] {
        std::exception_ptr failure;
        try {
            work(*this);
        } catch (...) {
            failure = std::current_exception();
        }
        QMetaObject::invokeMethod(
            this,
            [this, failure] {
                m_failure = failure;
                m_hasEnded = true;
                emit ended(this);
            },
            Qt::QueuedConnection);
    }));
}
