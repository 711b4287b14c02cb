#pragma once

#include "viewer/cameras/Reason.h"
#include "viewer/export/ExportRequest.h"
#include "viewer/export/writers/FrameSink.h"

#include <QMutex>

#include <atomic>

/// Saves one recording. Frames are read, composed and encoded by several threads at a time, and written in
/// their order by the one that calls run(); only a few are in memory.
class ExportJob {
public:
    enum class State { Waiting, Running, Finishing, Done, Canceled, Failed };

    explicit ExportJob(const ExportRequest& request);

    /// Without source and drawing once it has ended.
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
    void runOnce();
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
