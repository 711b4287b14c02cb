// A camera as a device: its clock, link, faults, states and recordings.
#include "simulator/device/Rig.h"
#include "viewer/cameras/CommandKeys.h"

#include <QSignalSpy>
#include <QtTest>

class CameraBodyTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Rig> m_rig;
    SimulatedBody* m_body = nullptr;
    SimulatedHead* m_head = nullptr;

    qint64 nowMs() { return m_rig->clock().now() / 1000000; }

    // The error of a command that must fail.
    template <class Action>
    CameraError errorOf(Action action) {
        try {
            action();
        } catch (const CameraError& error) {
            return error;
        }
        return {CameraError::Kind::BadValue, QStringLiteral("none"), QString(),
                QStringLiteral("nothing was thrown")};
    }

    void record(int ringMs) {
        m_body->recordReady().result();
        m_rig->clock().advanceMs(m_body->model().readyTimeMs + ringMs);
        m_body->triggerIn().result();
    }

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_body = m_rig->findName(QStringLiteral("Marlin"));
        m_head = m_body->head();
    }

    void aSteppedClockRunsWhatFallsDueInOrder() {
        Clock clock(Clock::Mode::Stepped);
        QList<QPair<int, qint64>> ran;
        clock.after(20, this, [&] { ran << qMakePair(2, clock.now()); });
        clock.after(10, this, [&] {
            ran << qMakePair(1, clock.now());
            clock.after(5, this, [&] { ran << qMakePair(3, clock.now()); });
        });
        auto gone = std::make_unique<QObject>();
        clock.after(1, gone.get(), [&] { ran << qMakePair(9, clock.now()); });
        gone.reset();
        clock.wait(15);
        QCOMPARE(ran, (QList<QPair<int, qint64>>{{1, 10000000}, {3, 15000000}}));
        clock.advanceMs(100);
        QCOMPARE(ran.last(), qMakePair(2, qint64(20000000)));
        QCOMPARE(clock.now(), qint64(115000000));
    }

    void aRealClockRunsByItself() {
        Clock clock;
        const qint64 before = clock.now();
        clock.wait(3);
        QVERIFY(clock.now() - before >= 3000000);
        bool ran = false;
        clock.after(1, this, [&] { ran = true; });
        QTRY_VERIFY(ran);
    }

    // A trigger that comes before the ring is full finds fewer frames, so one wants to see how far it is.
    void tellsHowFarAShotHasCome() {
        m_head->setRate(1000).result();
        m_head->setTrigger(TriggerCenter, 0, 0, 0).result();
        QCOMPARE(m_head->shotProgress().wantedBefore, 0); // live
        m_body->recordReady().result();
        m_rig->clock().advanceMs(m_body->model().readyTimeMs + 100);
        const ShotProgress early = m_head->shotProgress();
        QCOMPARE(early.wantedBefore, m_head->totalFrames() / 2);
        QVERIFY2(early.before >= 90 && early.before <= 110, qPrintable(QString::number(early.before)));
        m_rig->clock().advanceMs(m_head->totalFrames());
        QCOMPARE(m_head->shotProgress().before, early.wantedBefore);
        QCOMPARE(m_head->shotProgress().restMs, 0.0);
        m_body->triggerIn().result();
        const double rest = m_head->shotProgress().restMs;
        QVERIFY2(rest > 0 && rest <= m_head->totalFrames(), qPrintable(QString::number(rest)));
        QCOMPARE(m_head->shotProgress().wantedBefore, 0);
        m_rig->clock().advanceMs(500);
        QVERIFY(qAbs(m_head->shotProgress().restMs - (rest - 500)) < 2);
        m_rig->clock().advanceMs(m_head->totalFrames());
        QCOMPARE(m_head->shotProgress().restMs, 0.0);
        // Of two frames that pass only one is kept.
        m_body->goLive().result();
        m_head->setTrigger(TriggerTwoStageHalf, 0, 0, 0).result();
        m_body->recordReady().result();
        m_rig->clock().advanceMs(m_body->model().readyTimeMs + 100);
        const int kept = m_head->shotProgress().before;
        QVERIFY2(kept >= 45 && kept <= 55, qPrintable(QString::number(kept)));
    }

    void readsCostNothingAndCommandsTheirTime() {
        const quint64 commands = m_body->commandCount();
        m_head->rateList();
        m_head->shutterList();
        m_head->liveFrame(QSize(64, 64));
        m_body->stateJson();
        QCOMPARE(nowMs(), qint64(0));
        QCOMPARE(m_body->commandCount(), commands);
        m_head->setRate(500).result();
        QCOMPARE(nowMs(), qint64(5));
        m_body->faults().delayMs = 100;
        m_head->setRate(1000).result();
        QCOMPARE(nowMs(), qint64(110));
        QCOMPARE(m_body->commandCount(), commands + 2);
    }

    void refusesSoManyCommands() {
        const QJsonObject before = m_head->state();
        m_body->faults().refuseNext(2, QStringLiteral("busy"));
        for (int i = 0; i < 2; ++i) {
            const CameraError error = errorOf([&] { m_head->setShutter(2000).result(); });
            QCOMPARE(error.kind(), CameraError::Kind::Refused);
            QCOMPARE(error.function(), QStringLiteral("KVC_SetShutterSpeedFps"));
            QCOMPARE(error.camera(), QStringLiteral("Marlin"));
            QCOMPARE(error.reason().english(), QStringLiteral("busy"));
        }
        QCOMPARE(m_head->state(), before);
        QCOMPARE(m_head->setShutter(2000).result(), CommandResult::Ok);

        m_body->faults().refuseNext(1, QStringLiteral("no"), QStringLiteral("KVC_SetRecordRate"));
        QCOMPARE(m_head->setShutter(4000).result(), CommandResult::Ok);
        QCOMPARE(errorOf([&] { m_head->setRate(500).result(); }).reason().english(), QStringLiteral("no"));
    }

    void losesTheLinkInTheMiddle() {
        QSignalSpy link(m_rig.get(), &Rig::linkChanged);
        const QJsonObject before = m_head->state();
        m_body->faults().unplugDuringNext = true;
        QCOMPARE(errorOf([&] { m_head->setRate(500).result(); }).kind(), CameraError::Kind::LinkLost);
        QCOMPARE(m_rig->clock().now(), qint64(2500000));
        QCOMPARE(m_head->state(), before);
        QCOMPARE(link.count(), 1);
        QVERIFY(m_head->liveFrame().isNull());
        QVERIFY_EXCEPTION_THROWN(m_body->connectLink().result(), CameraError);
        m_body->plug();
        QVERIFY(!m_body->isConnected());
        m_body->connectLink().result();
        QCOMPARE(link.count(), 2);
        QCOMPARE(m_head->setRate(500).result(), CommandResult::Ok);
    }

    void aCableCanGoWhileACommandWaits() {
        m_rig->clock().after(2, this, [this] { m_body->unplug(); });
        QCOMPARE(errorOf([&] { m_head->setRate(500).result(); }).kind(), CameraError::Kind::LinkLost);
    }

    // One after the other, but what concerns a shot passes the rest, in its own order.
    void commandsWaitForEachOther() {
        QSignalSpy ran(m_body, &SimulatedBody::commandRun);
        const Answer shutter = m_head->setShutter(4000);
        const Answer rate = m_head->setRate(500);
        const Answer ready = m_body->recordReady();
        const Answer stop = m_body->stopRecording();
        const Answer late = m_head->setRate(250).then([this](CommandResult) { return m_head->setRate(125); });
        QVERIFY(!shutter.isThere() && !late.isThere());
        QCOMPARE(late.result(), CommandResult::Ok);
        QCOMPARE(nowMs(), qint64(30));
        QStringList functions;
        for (const QList<QVariant>& each : ran) {
            functions.append(each.first().toString().mid(4));
        }
        QCOMPARE(functions.join(QLatin1Char(' ')),
                 QStringLiteral("SetShutterSpeedFps SetRecReady SetStatus SetRecordRate SetRecordRate "
                                "SetRecordRate"));
        QCOMPARE(m_head->settings().rate, 125U);
        // A camera that goes takes its commands with it, what would have followed them too.
        bool followed = false;
        const Answer lost = m_head->setRate(500).then([&followed](CommandResult) {
            followed = true;
            return Answer(CommandResult::Ok);
        });
        m_body->unplug();
        QVERIFY(lost.isThere() && !followed);
        QCOMPARE(errorOf([&] { lost.result(); }).kind(), CameraError::Kind::LinkLost);
    }

    void aTriggerPassesWhatWaitsForASlowCamera() {
        m_body->recordReady().result();
        m_rig->clock().advanceMs(m_body->model().readyTimeMs);
        QSignalSpy ran(m_body, &SimulatedBody::commandRun);
        const Answer running = m_body->setNetwork(m_body->address(), m_body->mask(), m_body->gateway());
        const Answer waiting = m_body->setNetwork(m_body->address(), m_body->mask(), m_body->gateway());
        const Answer trigger = m_body->triggerIn();
        const Answer stop = m_body->stopRecording();
        while (!waiting.isThere()) {
            waiting.spend(-1);
        }
        QCOMPARE(ran.size(), 4);
        QCOMPARE(ran.at(1).first().toString(), CommandKey::TriggerIn);
        QCOMPARE(ran.at(2).first().toString(), CommandKey::SetState);
        QCOMPARE(m_body->state(), CameraState::Memory); // of a shot that was stopped
    }

    void bootsAfterPowerOn() {
        record(100);
        m_body->stopRecording().result();
        QVERIFY(!m_head->recording().isEmpty());
        m_body->powerOff();
        QCOMPARE(m_body->state(), CameraState::Off);
        QVERIFY(!m_body->isConnected());
        m_body->powerOn();
        QVERIFY_EXCEPTION_THROWN(m_body->connectLink().result(), CameraError);
        m_rig->clock().advanceMs(m_body->model().bootTimeMs / 2);
        m_body->powerOff(); // and on again: the first boot must not end the second
        m_body->powerOn();
        m_rig->clock().advanceMs(m_body->model().bootTimeMs * 0.75);
        QCOMPARE(m_body->state(), CameraState::Booting);
        m_rig->clock().advanceMs(m_body->model().bootTimeMs);
        QCOMPARE(m_body->state(), CameraState::Live);
        m_body->connectLink().result();
        QVERIFY(m_head->recording().isEmpty()); // the memory went with the power
    }

    void theFanFollowsTheHeat() {
        const auto state = [this](double degrees) {
            m_body->set(QStringLiteral("temperature"), degrees);
            return m_body->fanState();
        };
        m_body->setFan(false).result();
        QCOMPARE(state(49), FanStopped);
        QCOMPARE(state(50), FanStoppedWhileReady);
        QCOMPARE(state(60), FanForced);
        m_body->setFan(true).result();
        QCOMPARE(state(59), FanSpinning);
    }

    void recordsRoundTheTrigger_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("ringMs");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("triggerIndex");
        // Per frame 1 ms; the command itself takes 5. The frame that is exposed at the trigger counts as
        // before.
        const int total = 16384; // of 512 x 512 samples of two bytes in 8 GB
        QTest::newRow("start") << int(TriggerStart) << 100 << total << 0;
        QTest::newRow("center, full ring") << int(TriggerCenter) << total << total << total / 2;
        QTest::newRow("center, short ring") << int(TriggerCenter) << 95 << total / 2 + 101 << 101;
        QTest::newRow("end") << int(TriggerEnd) << 95 << 101 << 101;
        QTest::newRow("manual") << int(TriggerManual) << 95 << 101 + 50 << 101;
    }

    void recordsRoundTheTrigger() {
        QFETCH(int, mode);
        QFETCH(int, ringMs);
        QFETCH(int, frames);
        QFETCH(int, triggerIndex);
        m_head->setResolution(QSize(512, 512)).result();
        m_head->setTrigger(mode, 50).result();
        QCOMPARE(m_head->totalFrames(), 16384);
        record(ringMs);
        QCOMPARE(m_body->state(), CameraState::Recording);
        QVERIFY(m_head->recording().isEmpty());
        m_rig->clock().advanceMs(20000);
        QCOMPARE(m_body->state(), CameraState::Memory);

        const Recording& recording = m_head->recording();
        QCOMPARE(recording.frames, frames);
        QCOMPARE(recording.triggerIndex(), triggerIndex);
        // Each frame carries its own number, and they follow each other.
        for (const int index : {0, 1, triggerIndex / 2, frames - 1}) {
            const Frame frame = m_head->memoryFrame(index, QSize(128, 128));
            QCOMPARE(FrameStamp::read(frame.image).value_or(0),
                     quint32(recording.firstNumber()) + quint32(index));
            QCOMPARE(frame.time, qint64(frame.number) * 1000000);
        }
        QVERIFY(m_head->memoryFrame(frames).isNull());
        QVERIFY(m_head->memoryFrame(-1).isNull());
    }

    void aRecordedFrameIsWhatLiveShowed() {
        record(100);
        const Frame live = m_head->liveFrame(QSize(320, 256));
        m_rig->clock().advanceMs(20);
        m_body->stopRecording().result();
        QCOMPARE(m_body->state(), CameraState::Memory);
        const int index = int(live.number - m_head->recording().firstNumber());
        m_body->goLive().result();
        m_head->setShutter(50000).result(); // later settings don't reach what is recorded
        QCOMPARE(m_head->memoryFrame(index, QSize(320, 256)).image, live.image);
        m_body->goMemory().result();
        QCOMPARE(m_body->state(), CameraState::Memory);

        // What still lies in the memory is not the recording that was just given up.
        m_body->goLive().result();
        m_body->recordReady().result();
        QCOMPARE(m_body->state(), CameraState::WaitingReady);
        m_body->stopRecording().result();
        QCOMPARE(m_body->state(), CameraState::Live);
    }

    void commandsNeedTheRightState() {
        QCOMPARE(errorOf([&] { m_body->triggerIn().result(); }).function(), QStringLiteral("KVC_TriggerIn"));
        QCOMPARE(errorOf([&] { m_body->goMemory().result(); }).kind(), CameraError::Kind::Refused);
        m_body->storePreset(1).result();
        m_body->recordReady().result();
        QCOMPARE(m_body->state(), CameraState::WaitingReady);
        QCOMPARE(errorOf([&] { m_head->setRate(500).result(); }).kind(), CameraError::Kind::Refused);
        QCOMPARE(errorOf([&] { m_body->loadPreset(1).result(); }).kind(), CameraError::Kind::Refused);
        QCOMPARE(errorOf([&] { m_body->adjustLink().result(); }).kind(), CameraError::Kind::Refused);
        QVERIFY_EXCEPTION_THROWN(m_head->changeFromOutside(QStringLiteral("rate"), 500), CameraError);
        m_rig->clock().advanceMs(100);
        QCOMPARE(m_body->state(), CameraState::Ready);
        m_body->stopRecording().result();
        QCOMPARE(m_body->state(), CameraState::Live);
        QVERIFY(m_head->recording().isEmpty());
        m_head->setRate(500).result();
    }

    void headsOfABodyShareItsStateOnly() {
        SimulatedBody* const twin = m_rig->findName(QStringLiteral("Gemini"));
        QCOMPARE(twin->heads().size(), 2);
        QCOMPARE(twin->head(1)->fullName(), QStringLiteral("Gemini Right"));
        twin->head(0)->setRate(500).result();
        QCOMPARE(twin->head(1)->settings().rate, quint32(1000));
        QCOMPARE(errorOf([&] { twin->head(1)->setResolutionLock(true).result(); }).camera(),
                 QStringLiteral("Gemini Right"));
        // The slower head decides when the recording ends.
        twin->recordReady().result();
        m_rig->clock().advanceMs(100);
        twin->triggerIn().result();
        const double slower = twin->head(0)->totalFrames() * 1000.0 / 500;
        m_rig->clock().advanceMs(slower - 10);
        QCOMPARE(twin->state(), CameraState::Recording);
        m_rig->clock().advanceMs(20);
        QCOMPARE(twin->state(), CameraState::Memory);
        QCOMPARE(twin->head(1)->recording().frames, twin->head(1)->totalFrames());
    }

    void aDummyHasNothing() {
        SimulatedBody* const dummy = m_rig->findName(QStringLiteral("Spare"));
        QVERIFY(dummy->isDummy());
        QVERIFY(dummy->head()->rateList().isEmpty() && dummy->head()->shutterList().isEmpty());
        QVERIFY(dummy->head()->resolutionList().isEmpty());
        QCOMPARE(dummy->head()->totalFrames(), 0);
        QVERIFY(dummy->head()->liveFrame().isNull());
        dummy->plug();
        dummy->powerOn();
        QVERIFY_EXCEPTION_THROWN(dummy->connectLink().result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(dummy->head()->setRate(100).result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(dummy->head()->changeFromOutside(QStringLiteral("rate"), 100), CameraError);
    }

    void aRigTellsWhatHappens() {
        QSignalSpy added(m_rig.get(), &Rig::bodyAdded);
        QSignalSpy removed(m_rig.get(), &Rig::bodyRemoved);
        QSignalSpy outside(m_rig.get(), &Rig::changedOutside);
        QVERIFY_EXCEPTION_THROWN(m_rig->addDummy(QStringLiteral("Marlin"), QStringLiteral("1.1.1.1")),
                                 CameraError);
        QVERIFY_EXCEPTION_THROWN(m_rig->addDummy(QStringLiteral("New"), QStringLiteral("192.168.0.10")),
                                 CameraError);
        QCOMPARE(added.count(), 0);
        SimulatedBody* const dummy = m_rig->addDummy(QStringLiteral("New"), QStringLiteral("999.999.999.9"));
        QCOMPARE(added.count(), 1);
        m_rig->removeBody(dummy);
        m_rig->removeBody(dummy);
        QCOMPARE(removed.count(), 1);
        m_head->changeFromOutside(QStringLiteral("aperture"), 0.5);
        QCOMPARE(outside.count(), 1);
        m_body->set(QStringLiteral("temperature"), 71.5);
        QCOMPARE(m_body->stateJson().value(QStringLiteral("temperature")).toDouble(), 71.5);
        QVERIFY_EXCEPTION_THROWN(m_body->set(QStringLiteral("temperature"), QStringLiteral("hot")),
                                 CameraError);
    }
};

QTEST_GUILESS_MAIN(CameraBodyTest)
#include "tst_camera_body.moc"
