#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <atomic>
#include <exception>
#include <functional>

class QThreadPool;

/// Work on another thread that somebody watches, and may end. Lives on the GUI thread; the work gets the job
/// to tell how far it is.
class BackgroundJob : public QObject {
    Q_OBJECT

public:
    using Work = std::function<void(BackgroundJob& job)>;

    /// `title`: what it does, for the user. `total`: frames that it has before it.
    /// `id`: tells it from others.
    BackgroundJob(int id, const QString& title, int total, QObject* parent = nullptr);

    /// Once. What the work throws is kept; ended() comes in any case, on the GUI thread. The pool is waited
    /// for before this object goes.
    void start(QThreadPool& pool, const Work& work);

    int id() const { return m_id; }
    /// Since its start.
    double seconds() const { return double(m_clock.elapsed()) / 1000; }
    const QString& title() const { return m_title; }
    int total() const { return m_total; }
    // Any thread.
    int done() const { return m_done; }
    void setDone(int frames) { m_done = frames; }
    bool isCancelled() const { return m_cancelled; }
    void cancel() { m_cancelled = true; }

    // After its end.
    bool hasEnded() const { return m_hasEnded; }
    /// Null if all went well.
    std::exception_ptr failure() const { return m_failure; }

signals:
    void ended(BackgroundJob* job);

private:
    int m_id;
    QString m_title;
    int m_total;
    QElapsedTimer m_clock;
    std::atomic<int> m_done{0};
    std::atomic<bool> m_cancelled{false};
    std::exception_ptr m_failure;
    bool m_hasEnded = false;
};
