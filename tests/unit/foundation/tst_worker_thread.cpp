#include "livecontrol/foundation/RUN_BaseThread.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QAbstractEventDispatcher>
#include <QtTest>

#include <atomic>
#include <memory>
#include <stdexcept>

namespace {

const QString kWork = QStringLiteral("work");
const QString kPumpInterval = QStringLiteral("HostApplication.getEventPumpInterval");

/// Works in steps, with a safe point after each. What it works on isn't guarded: others may look at it only
/// while the job is paused or has ended.
class SteppingJob : public RUN_BaseThread {
    Q_OBJECT

public:
    explicit SteppingJob(HostObject* host, int stepMs = 1) : RUN_BaseThread(host), m_stepMs(stepMs) {}

    void run() override {
        logStart(kWork);
        clearStopRequest();
        clearCancelRequest();
        do {
            ++begun;
            ++counter;
            msleep(static_cast<unsigned long>(m_stepMs));
            ++ended;
        } while (safePoint());
        setMessage1(isCancelRequested() ? QStringLiteral("cancelled") : QStringLiteral("stopped"));
        setResult(ended);
        logEnd(kWork);
    }

    void beQuiet() { m_quietLog = true; }
    bool pauseOption() {
        const QMutexLocker locker(&m_mutex);
        return m_pauseOption;
    }
    bool cancelWait() {
        const QMutexLocker locker(&m_mutex);
        return m_cancelWait;
    }

    int begun = 0;
    int ended = 0;
    std::atomic<int> counter = 0; ///< For those who look while it works.

private:
    const int m_stepMs;
};

/// One long step without a safe point.
class LongJob : public RUN_BaseThread {
    Q_OBJECT

public:
    LongJob(HostObject* host, int ms) : RUN_BaseThread(host), m_ms(ms) { m_timedWait = ms > 1000; }

    void run() override { msleep(static_cast<unsigned long>(m_ms)); }

private:
    const int m_ms;
};

/// Notes with which flags a thread has its events handled.
class NotingDispatcher : public QAbstractEventDispatcher {
public:
    explicit NotingDispatcher(QList<QEventLoop::ProcessEventsFlags>& flags) : m_flags(flags) {}

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override {
        m_flags.append(flags);
        return false;
    }
    bool hasPendingEvents() override { return false; }
    void registerSocketNotifier(QSocketNotifier*) override {}
    void unregisterSocketNotifier(QSocketNotifier*) override {}
    void registerTimer(int, int, Qt::TimerType, QObject*) override {}
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject*) override { return false; }
    QList<TimerInfo> registeredTimers(QObject*) const override { return {}; }
    int remainingTime(int) override { return -1; }
    void wakeUp() override {}
    void interrupt() override {}
    void flush() override {}

private:
    QList<QEventLoop::ProcessEventsFlags>& m_flags;
};

/// Ends the job before its destructor begins, also when a check fails.
class EndAtExit {
public:
    explicit EndAtExit(RUN_BaseThread& job) : m_job(job) {}
    ~EndAtExit() { m_job.stopAndWait(); }
    Q_DISABLE_COPY(EndAtExit)

private:
    RUN_BaseThread& m_job;
};

} // namespace

class tst_WorkerThread : public QObject {
    Q_OBJECT

private slots:
    void pausesBetweenTwoStepsAndGoesOn() {
        TestRig rig;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        job.start();
        QTRY_VERIFY(job.counter > 2);
        job.pause(true, true);
        QVERIFY(job.isPausedOrFinished() && !job.isFinished() && job.isPauseRequested());
        QVERIFY(job.pauseOption());
        const int steps = job.ended;
        QCOMPARE(job.begun, steps);
        job.pause(false, true); // again: nothing happens
        QVERIFY(job.pauseOption());
        QTest::qSleep(30);
        QCOMPARE(job.begun, steps);
        job.resume();
        QVERIFY(job.isResumed() && !job.isPausedOrFinished() && !job.isPauseRequested());
        QTRY_VERIFY(job.counter > steps + 2);
    }

    void stopsBetweenTwoSteps() {
        TestRig rig;
        SteppingJob job(&rig.host, 20);
        const EndAtExit end(job);
        job.start();
        QTRY_VERIFY(job.counter > 1);
        job.stopAndWait();
        QVERIFY(job.isFinished() && job.isStopRequested());
        QCOMPARE(job.ended, job.begun);
        QCOMPARE(job.getResult(), job.ended);
        QCOMPARE(job.getMessage1(), QStringLiteral("stopped"));
        job.clearResult();
        job.clearMessage1();
        QCOMPARE(job.getResult(), 0);
        QVERIFY(job.getMessage1().isEmpty());
    }

    void stopsWhilePausedAndStartsAgain() {
        TestRig rig;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        job.start();
        job.pause(false, true);
        job.stopAndWait();
        QVERIFY(job.isFinished() && !job.isPauseRequested());
        const int steps = job.counter;
        job.start();
        QTRY_VERIFY(job.counter > steps + 2);
        QVERIFY(!job.isStopRequested());
    }

    void cancelsWithAndWithoutAWait() {
        TestRig rig;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        job.start();
        job.cancel(true);
        QVERIFY(job.isFinished() && job.isCancelRequested() && job.cancelWait());
        QCOMPARE(job.getMessage1(), QStringLiteral("cancelled"));
        QVERIFY(!job.isStopRequested());
        job.start();
        job.cancel(false);
        QVERIFY(job.isCancelRequested() && !job.cancelWait());
        QVERIFY(job.wait(5000));
    }

    void asksNothingOfAJobThatDoesNotRun() {
        TestRig rig;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        for (const bool finished : {false, true}) {
            if (finished) {
                job.start();
                job.stopAndWait();
                job.clearMessage1();
            }
            const bool wasStopped = job.isStopRequested();
            rig.host.calls.clear();
            job.stopAndWait();
            job.cancel(true);
            job.pause(true, true);
            job.waitForPaused();
            QCOMPARE(job.isStopRequested(), wasStopped);
            QVERIFY(!job.isCancelRequested() && !job.isPauseRequested() && !job.pauseOption());
            QCOMPARE(job.isPausedOrFinished(), finished);
            job.resume();
            QVERIFY(!job.isPauseRequested());
        }
    }

    void takesBackAPauseThatTheJobHasNotReached() {
        TestRig rig;
        SteppingJob job(&rig.host, 50);
        const EndAtExit end(job);
        job.start();
        job.pause(false, false);
        QVERIFY(job.isPauseRequested());
        job.resume();
        QVERIFY(!job.isPauseRequested());
        const int steps = job.counter;
        QTRY_VERIFY(job.counter > steps + 1);
    }

    void survivesRequestsAtAnyMoment() {
        TestRig rig;
        LogCapture log;
        SteppingJob job(&rig.host, 0);
        const EndAtExit end(job);
        for (int round = 0; round < 100; ++round) {
            job.start();
            for (int i = 0; i < 10; ++i) {
                job.pause(false, i % 3 == 0);
                if (i % 2 == 0) {
                    QThread::usleep(static_cast<unsigned long>(7 * i));
                }
                job.resume();
                QVERIFY(!job.isPauseRequested());
            }
            if (round % 2 == 0) {
                job.stopAndWait();
            } else {
                job.cancel(true);
            }
            QVERIFY(job.isFinished());
            QCOMPARE(job.ended, job.begun);
        }
    }

    void pausesAJobWithoutSafePointsWhenItEnds() {
        TestRig rig;
        LongJob job(&rig.host, 100);
        const EndAtExit end(job);
        job.start();
        job.pause(false, true);
        QVERIFY(job.isFinished() && job.isPausedOrFinished());
        job.resume();
        QVERIFY(!job.isPauseRequested() && !job.isResumed());
        job.start();
        job.stopAndWait();
        QVERIFY(job.isFinished());
    }

    void keepsTheInterfaceAliveWhileItWaits_data() {
        QTest::addColumn<int>("interval");
        QTest::addColumn<bool>("pumps");
        QTest::newRow("each 5 ms") << 5 << true;
        QTest::newRow("never") << 0 << false;
        QTest::newRow("below") << -1 << false;
        QTest::newRow("longer than the wait") << 100000 << false;
    }
    void keepsTheInterfaceAliveWhileItWaits() {
        QFETCH(int, interval);
        TestRig rig;
        rig.host.onGetEventPumpInterval = [interval] { return interval; };
        LongJob job(&rig.host, 150);
        const EndAtExit end(job);
        bool handled = false;
        QMetaObject::invokeMethod(
            this, [&handled] { handled = true; }, Qt::QueuedConnection);
        job.start();
        job.pause(false, true);
        const bool handledMeanwhile = handled;
        QCoreApplication::processEvents();
        QVERIFY(handled && job.isFinished());
        QTEST(handledMeanwhile, "pumps");
    }

    // A click that got through would enter once more what waits.
    void leavesTheUsersInputUntilTheWaitIsOver() {
        TestRig rig;
        rig.host.onGetEventPumpInterval = [] { return 1; };
        LongJob job(&rig.host, 50);
        const EndAtExit end(job);
        QList<QEventLoop::ProcessEventsFlags> handled;
        const std::unique_ptr<QThread> waiting(QThread::create([&job] {
            job.start();
            job.pause(false, true);
        }));
        waiting->setEventDispatcher(new NotingDispatcher(handled));
        waiting->start();
        QVERIFY(waiting->wait(5000));
        QVERIFY(!handled.isEmpty());
        for (const QEventLoop::ProcessEventsFlags flags : qAsConst(handled)) {
            QVERIFY(flags.testFlag(QEventLoop::ExcludeUserInputEvents));
        }
    }

    void stopsEvenIfTheHostFails() {
        TestRig rig;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        job.start();
        rig.host.calls.failNext(kPumpInterval, throwing(std::runtime_error("x")));
        job.stopAndWait();
        QVERIFY(job.isFinished());
        QCOMPARE(rig.host.calls.names(),
                 QStringList({kPumpInterval, QStringLiteral("HostApplication.handleError")}));
    }

    void givesUpATimedWait() {
        TestRig rig;
        LogCapture log;
        LongJob job(&rig.host, 4000);
        const EndAtExit end(job);
        job.start();
        QElapsedTimer clock;
        clock.start();
        job.pause(false, true);
        QVERIFY(!job.isFinished());
        QVERIFY2(clock.elapsed() >= 1000 && clock.elapsed() < 3500,
                 qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(log.with(QStringLiteral("waitForPaused Timeout")).size(), 1);
        QCOMPARE(log.lines().last().type, QtWarningMsg);
    }

    void logsStartAndEndUnlessQuiet() {
        TestRig rig;
        LogCapture log;
        SteppingJob job(&rig.host);
        const EndAtExit end(job);
        job.start();
        job.stopAndWait();
        QCOMPARE(log.lines().size(), 2);
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral("[START] %1 \"work\"").arg(QLatin1String(job.metaObject()->className())));
        QVERIFY(log.lines().at(1).text.startsWith(QStringLiteral("[END] ")));
        QCOMPARE(log.lines().at(1).type, QtInfoMsg);
        log.clear();
        job.beQuiet();
        job.start();
        job.stopAndWait();
        QVERIFY(log.lines().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_WorkerThread)
#include "tst_worker_thread.moc"
