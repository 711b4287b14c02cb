#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

class HostObject;

/// Base of background jobs: a thread that can be paused, resumed, stopped and cancelled without freezing the
/// GUI thread.
///
/// The control operations are called on the GUI thread. A job runs on its own thread, in `run`, and looks at
/// safePoint() between two of its steps; a job without safe points pauses when it ends. A request goes
/// through a pause, so that it never overtakes a job in the middle of a step. A job must not call the host's
/// widget operations.
///
/// Whoever owns a job calls stopAndWait() before it goes: the base's destructor is too late for that.
class RUN_BaseThread : public QThread {
    Q_OBJECT

public:
    /// `host` is not owned and outlives the thread.
    explicit RUN_BaseThread(HostObject* host, QObject* parent = nullptr);

    /// Asks the job to end and waits, without limit, until it has.
    virtual void stopAndWait();
    /// Asks the job to break off; with `wait` waits, without limit, until it has.
    virtual void cancel(bool wait);
    /// Asks the job to pause; with `wait` returns when it has paused or ended. `option` is for the job.
    virtual void pause(bool option, bool wait);
    /// Lets a paused job go on and returns when it does; takes back a pause that the job hasn't reached yet.
    virtual void resume();
    virtual bool isResumed();
    virtual bool isPausedOrFinished();
    virtual bool isStopRequested();
    virtual bool isPauseRequested();
    // Free slots for texts and a number between the job and its owner.
    virtual QString getMessage1();
    virtual void setMessage1(const QString& message);
    virtual void clearMessage1();
    virtual QString getMessage2();
    virtual void setMessage2(const QString& message);
    virtual void clearMessage2();
    virtual int getResult();
    virtual void setResult(int result);
    virtual void clearResult();
    /// Waits until the job has paused or ended; handles events meanwhile, except the user's, as often as the
    /// host wants. With the timed wait at most about a second, which leaves a warning in the log.
    virtual void waitForPaused();

    bool isCancelRequested();

signals:
    void signalInfoMessage(const QString& message);
    void signalWarnMessage(const QString& message);
    void signalErrorMessage(const QString& message);

protected:
    // For jobs. A job clears both requests at the start of `run`, so that it can be started again.
    void clearStopRequest();
    void clearCancelRequest();
    /// "[START]", the job's class and `text` at info level, unless the log is to be quiet.
    void logStart(const QString& text);
    void logEnd(const QString& text);
    /// Called by the job on its own thread: sleeps while a pause is asked for. False if the job is to end.
    bool safePoint();

    HostObject* m_host;             ///< Not owned.
    QMutex m_mutex;                 ///< Guards all below; held for single changes only.
    QWaitCondition m_condition;     ///< A paused job sleeps on it.
    bool m_stopRequested = false;   ///< By stopAndWait().
    bool m_cancelRequested = false; ///< By cancel().
    bool m_cancelWait = false;      ///< The argument of the last cancel().
    bool m_pauseRequested = false;  ///< By pause().
    bool m_paused = false;          ///< The job sleeps at a safe point.
    bool m_resumed = false;         ///< The job woke up after a resume().
    bool m_pauseOption = false;     ///< The first argument of the last pause().
    QString m_message1;
    QString m_message2;
    int m_result = 0;
    bool m_quietLog = false;  ///< No start and end lines.
    bool m_timedWait = false; ///< Limits waitForPaused().

private:
    template <class T>
    T locked(const T& field) {
        const QMutexLocker locker(&m_mutex);
        return field;
    }
    template <class T>
    void store(T& field, const T& value) {
        const QMutexLocker locker(&m_mutex);
        field = value;
    }
    int eventPumpInterval();
};
