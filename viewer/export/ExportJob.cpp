#include "viewer/export/ExportJob.h"

#include "viewer/export/SinkFactory.h"
#include "viewer/recordings/RecordingError.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QFuture>
#include <QMutexLocker>
#include <QThread>
#include <QThreadPool>
#include <QtConcurrent>

#include <deque>
#include <malloc.h>

namespace {

qint64 now() {
    QElapsedTimer clock;
    clock.start();
    return clock.msecsSinceReference();
}

/// A frame on its way: what became of it, or the failure.
struct Encoded {
    QByteArray bytes;
    FrameMark mark;
    std::exception_ptr failure;
};

Frame composed(const ExportRequest& request, int index, const Frame& frame) {
    const bool isPlain = !request.compose || ExportFormats::isContainer(request.format);
    return isPlain ? frame : request.compose(frame, index);
}

Encoded encoded(const ExportRequest& request, const FrameSink& sink, int index) {
    Encoded result;
    try {
        if (sink.copy(index, result.bytes, result.mark)) {
            return result;
        }
        const Frame frame = request.source->frame(index);
        result.mark = {index, frame.number, frame.time};
        result.bytes = sink.encode(composed(request, index, frame));
    } catch (...) {
        result.failure = std::current_exception();
    }
    return result;
}

} // namespace

ExportJob::ExportJob(const ExportRequest& request) : m_request(request) {}

double ExportJob::seconds() const {
    const qint64 started = m_started;
    const qint64 ended = m_ended;
    return started == 0 ? 0 : double((ended ? ended : now()) - started) / 1000;
}

QString ExportJob::failedPath() const {
    const QMutexLocker lock(&m_mutex);
    return m_failedPath;
}

Reason ExportJob::failure() const {
    const QMutexLocker lock(&m_mutex);
    return m_failure;
}

void ExportJob::fail(const QString& path, const Reason& why) {
    qCritical().noquote() << QStringLiteral("%1: %2").arg(path, why.english());
    {
        const QMutexLocker lock(&m_mutex);
        m_failedPath = path;
        m_failure = why;
    }
    m_ended = now();
    if (!advance(State::Running, State::Failed)) {
        advance(State::Finishing, State::Failed);
    }
}

bool ExportJob::advance(State from, State to) { return m_state.compare_exchange_strong(from, to); }

void ExportJob::cancel() {
    if (advance(State::Waiting, State::Canceled) || advance(State::Running, State::Canceled)) {
        m_ended = now();
    }
}

// A job stays in the list after its end; what it has read from and drawn with does not.
void ExportJob::run() {
    runOnce();
    m_request.source = nullptr;
    m_request.compose = nullptr;
    // What codecs had lies in the heaps of threads that have ended, and would stay there.
    malloc_trim(0);
}

void ExportJob::runOnce() {
    m_started = now();
    if (!advance(State::Waiting, State::Running)) {
        return;
    }
    try {
        save();
    } catch (const RecordingError& error) {
        fail(error.path(), error.why());
    } catch (const std::exception& error) {
        fail(m_request.path, QString::fromUtf8(error.what()));
    }
}

void ExportJob::save() {
    m_request.check();
    const Frame first = m_request.source->frame(m_request.first);
    saveFrames(makeSink(m_request, composed(m_request, m_request.first, first)));
}

// A frame that takes long to encode is not waited for once the job is canceled; the sink lives until the last
// one of them is ready.
void ExportJob::saveFrames(const std::shared_ptr<FrameSink>& sink) {
    QThreadPool pool;
    pool.setMaxThreadCount(QThread::idealThreadCount());
    const int ahead = 2 * pool.maxThreadCount();
    std::deque<QFuture<Encoded>> coming;
    const int count = m_request.count();
    int next = 0;
    for (int n = 0; n < count; ++n) {
        for (; next < count && next < n + ahead; ++next) {
            coming.push_back(
                QtConcurrent::run(&pool, [request = m_request, sink, index = m_request.indexOf(next)] {
                    return encoded(request, *sink, index);
                }));
        }
        Encoded frame = coming.front().result();
        coming.pop_front();
        if (frame.failure) {
            std::rethrow_exception(frame.failure);
        }
        if (m_state == State::Canceled) {
            return;
        }
        sink->append(frame.bytes, frame.mark);
        m_done = n + 1;
    }
    if (advance(State::Running, State::Finishing)) {
        sink->finish();
        m_ended = now();
        m_state = State::Done;
    }
}
