#pragma once

#include "viewer/cameras/Reason.h"
#include "viewer/export/ExportFormat.h"
#include "viewer/export/writers/FrameSink.h"
#include "viewer/recordings/FrameSource.h"

#include <QMutex>

#include <atomic>
#include <functional>

/// What is to be saved, and how. Plain values, so that it can go to another thread.
struct ExportRequest {
    FrameSourcePtr source;
    std::optional<RecordingInfo> info; // what is told of it, in place of what the source knows
    int first = 0;                     // of the source's frames
    int last = 0;
    int step = 1; // every step-th frame is saved
    ExportFormat format = ExportFormat::Rchx;
    MovieCodec codec = MovieCodec::H264;
    QString path; // with suffix
    UnfinishedFile::Existing existing = UnfinishedFile::Existing::Refuse;
    int quality = 90;
    double playRate = 30; // fps of a movie
    /// What is drawn into the pictures; empty for nothing. Any thread, several at a time. All results have
    /// the same size and depth. A container never asks for it.
    std::function<Frame(const Frame& frame, int index)> compose;

    int count() const { return step > 0 && last >= first ? (last - first) / step + 1 : 0; }
    int indexOf(int n) const { return first + n * step; }
};

/// Saves one recording. Frames are read, composed and encoded by several threads at a time, and written in
/// their order by the one that calls run(); only a few are in memory.
class ExportJob {
public:
    enum class State { Waiting, Running, Finishing, Done, Canceled, Failed };

    explicit ExportJob(const ExportRequest& request);

    const ExportRequest& request() const { return m_request; }
    /// On a worker; returns when the job has ended, without an exception.
    void run();
    /// Any thread. It is canceled from then on, unless it is finishing or has ended; what threads it has come
    /// to an end with the frames that they are at.
    void cancel();

    State state() const { return m_state; }
    int done() const { return m_done; } // frames
    int total() const { return m_request.count(); }
    /// Seconds that it has run.
    double seconds() const;
    /// File and reason of a failure; empty without one.
    QString failedPath() const;
    Reason failure() const;

private:
    void save();
    void saveFrames(const std::shared_ptr<FrameSink>& sink);
    void fail(const QString& path, const Reason& why);
    bool advance(State from, State to);

    ExportRequest m_request;
    std::atomic<State> m_state{State::Waiting};
    std::atomic<int> m_done{0};
    std::atomic<qint64> m_started{0}; // ms of a steady clock; 0: not yet
    std::atomic<qint64> m_ended{0};
    mutable QMutex m_mutex;
    QString m_failedPath;
    Reason m_failure;
};
