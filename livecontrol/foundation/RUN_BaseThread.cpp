#include "livecontrol/foundation/RUN_BaseThread.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/HostObject.h"

#include <QCoreApplication>
#include <QDebug>

namespace {
constexpr int kTimedWaitRounds = 1000; // of a millisecond each
}

RUN_BaseThread::RUN_BaseThread(HostObject* host, QObject* parent) : QThread(parent), m_host(host) {}

void RUN_BaseThread::stopAndWait() {
    if (isRunning()) {
        pause(false, true);
        store(m_stopRequested, true);
        resume();
    }
    wait(); // a job that has ended may still be on its way out of its thread
}

void RUN_BaseThread::cancel(bool wait) {
    if (!isRunning()) {
        return;
    }
    pause(false, true);
    {
        const QMutexLocker locker(&m_mutex);
        m_cancelRequested = true;
        m_cancelWait = wait;
    }
    resume();
    if (wait) {
        QThread::wait();
    }
}

void RUN_BaseThread::pause(bool option, bool wait) {
    if (!isRunning() || isPausedOrFinished()) {
        return;
    }
    {
        const QMutexLocker locker(&m_mutex);
        m_pauseOption = option;
        m_pauseRequested = true;
    }
    if (wait) {
        waitForPaused();
    }
}

void RUN_BaseThread::resume() {
    {
        // Test and change in one step: a job that falls asleep in between would never be woken.
        const QMutexLocker locker(&m_mutex);
        if (!m_paused || !isRunning()) {
            m_pauseRequested = false;
            m_paused = false;
            return;
        }
        m_resumed = false;
        m_condition.wakeAll();
    }
    while (!isResumed() && !isFinished()) {
        msleep(1);
    }
}

bool RUN_BaseThread::isResumed() { return locked(m_resumed); }

bool RUN_BaseThread::isPausedOrFinished() { return isFinished() || locked(m_paused); }

bool RUN_BaseThread::isStopRequested() { return locked(m_stopRequested); }

bool RUN_BaseThread::isPauseRequested() { return locked(m_pauseRequested); }

bool RUN_BaseThread::isCancelRequested() { return locked(m_cancelRequested); }

QString RUN_BaseThread::getMessage1() { return locked(m_message1); }

void RUN_BaseThread::setMessage1(const QString& message) { store(m_message1, message); }

void RUN_BaseThread::clearMessage1() { store(m_message1, QString()); }

QString RUN_BaseThread::getMessage2() { return locked(m_message2); }

void RUN_BaseThread::setMessage2(const QString& message) { store(m_message2, message); }

void RUN_BaseThread::clearMessage2() { store(m_message2, QString()); }

int RUN_BaseThread::getResult() { return locked(m_result); }

void RUN_BaseThread::setResult(int result) { store(m_result, result); }

void RUN_BaseThread::clearResult() { store(m_result, 0); }

void RUN_BaseThread::waitForPaused() {
    const int interval = eventPumpInterval();
    int sincePump = 0;
    int rounds = 0;
    while (isRunning() && !isPausedOrFinished()) {
        if (interval >= 1 && sincePump >= interval) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            sincePump = 0;
        }
        msleep(1);
        ++sincePump;
        if (++rounds > kTimedWaitRounds && locked(m_timedWait)) {
            qWarning("waitForPaused Timeout");
            return;
        }
    }
}

int RUN_BaseThread::eventPumpInterval() {
    try {
        return m_host->getEventPumpInterval();
    } catch (std::exception& error) { // a job has to be stopped all the same
        reportFailure(m_host, error);
        return 0;
    }
}

void RUN_BaseThread::clearStopRequest() { store(m_stopRequested, false); }

void RUN_BaseThread::clearCancelRequest() { store(m_cancelRequested, false); }

void RUN_BaseThread::logStart(const QString& text) {
    if (!locked(m_quietLog)) {
        qInfo() << "[START]" << metaObject()->className() << text;
    }
}

void RUN_BaseThread::logEnd(const QString& text) {
    if (!locked(m_quietLog)) {
        qInfo() << "[END]" << metaObject()->className() << text;
    }
}

bool RUN_BaseThread::safePoint() {
    const QMutexLocker locker(&m_mutex);
    if (m_pauseRequested) {
        m_paused = true;
        m_condition.wait(&m_mutex);
        m_resumed = true;
        m_paused = false;
        m_pauseRequested = false;
    }
    return !m_stopRequested && !m_cancelRequested;
}
