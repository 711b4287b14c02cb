// What each trigger mode leaves in the memory of a head, and how its values clamp.
#include "simulator/device/Rig.h"
#include "viewer/cameras/FrameTime.h"
#include "viewer/cameras/settings/TriggerRules.h"

#include <QtTest>

namespace {
// 512 x 512 samples of two bytes in 8 GB; a random recording costs four frames on top of its own.
constexpr int Total = 16384;
constexpr int RingMs = 95; // and 5 for the command: a frame each, and the one that is exposed

QString text(const QVector<Shot>& shots) {
    QStringList parts;
    for (const Shot& shot : shots) {
        parts << QStringLiteral("%1+%2").arg(shot.before).arg(shot.after);
    }
    return parts.join(QLatin1Char(' '));
}
} // namespace

class TriggerTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Rig> m_rig;
    SimulatedBody* m_body = nullptr;
    SimulatedHead* m_head = nullptr;

    void ready() {
        m_body->recordReady().result();
        m_rig->clock().advanceMs(m_body->model().readyTimeMs);
    }

    void shoot(int ringMs, double recordMs) {
        m_rig->clock().advanceMs(ringMs);
        m_body->triggerIn().result();
        m_rig->clock().advanceMs(recordMs);
    }

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_body = m_rig->findName(QStringLiteral("Marlin"));
        m_head = m_body->head();
        m_head->setResolution(QSize(512, 512)).result();
        m_head->setRate(1000).result();
        QCOMPARE(m_head->totalFrames(), Total);
    }

    void sharesOutAsTheLockSays() {
        using namespace TriggerRules;
        QCOMPARE(framesAfter(101, LockBefore, 30, 5, 0), 71);
        QCOMPARE(framesAfter(101, LockBefore, 200, 5, 0), 1); // never none
        QCOMPARE(framesAfter(101, LockAfter, 30, 5, 0), 5);
        QCOMPARE(framesAfter(101, LockPercent, 30, 5, 50), 50); // the half frame lies before, as on the page
        QCOMPARE(sharedAnew(50, LockAfter, 100, 80), 50);
        QCOMPARE(sharedAnew(50, LockBefore, 100, 80), 30);
        QCOMPARE(sharedAnew(50, LockPercent, 100, 80), 40);
        QCOMPARE(TriggerRules::limit(TriggerRandomManual, 7, 100), 7);
        QCOMPARE(TriggerRules::limit(TriggerRandomManual, 0, 100), 100);
        QCOMPARE(TriggerRules::limit(TriggerManual, 7, 100), 100);
    }

    void fillsTheMemoryOnce_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("ringMs");
        QTest::addColumn<QString>("shots");
        const int half = Total / 2;
        const auto row = [](const char* name, int mode, int ringMs, int before, int after) {
            QTest::newRow(name) << mode << ringMs << QStringLiteral("%1+%2").arg(before).arg(after);
        };
        row("start", TriggerStart, RingMs, 0, Total);
        row("center", TriggerCenter, Total, half, half);
        row("center, short ring", TriggerCenter, RingMs, 101, half);
        row("end", TriggerEnd, Total + 100, Total, 0);
        row("manual", TriggerManual, Total, Total - 30, 30);
        row("two stage", TriggerTwoStage, RingMs, 101, half);
        row("half", TriggerTwoStageHalf, RingMs, 50, half);
        row("quarter", TriggerTwoStageQuarter, RingMs, 25, half);
        row("eighth", TriggerTwoStageEighth, RingMs, 12, half);
        row("reset", TriggerReset, RingMs, 0, Total);
        row("on command, to the end", TriggerRecordOnCommand, RingMs, 0, Total);
    }

    void fillsTheMemoryOnce() {
        QFETCH(int, mode);
        QFETCH(int, ringMs);
        QFETCH(QString, shots);
        m_head->setTrigger(mode, 30, 100, 3).result();
        ready();
        shoot(ringMs, Total + 10);
        QCOMPARE(m_body->state(), CameraState::Memory);
        QCOMPARE(text(m_head->recording().shots), shots);
        const Shot shot = m_head->recording().shots.first();
        QCOMPARE(m_head->recording().frames, shot.frames());
        QCOMPARE(m_head->recording().triggerIndex(), shot.before);
        // Each frame bears its number and its time; before the trigger of two stages some are left out.
        for (const int index : {0, shot.before / 2, shot.frames() - 1}) {
            const Frame frame = m_head->memoryFrame(index, QSize(128, 128));
            QCOMPARE(FrameStamp::read(frame.image).value_or(0), quint32(shot.numberOf(index)));
            QCOMPARE(frame.time, shot.origin + FrameTime::startOf(shot.numberOf(index), 1000));
        }
        QVERIFY(m_head->memoryFrame(shot.frames()).isNull());
    }

    void stagesLeaveFramesOutBeforeTheTriggerOnly() {
        m_head->setTrigger(TriggerTwoStageQuarter, 1).result();
        ready();
        shoot(RingMs, Total);
        const Shot shot = m_head->recording().shots.first();
        QCOMPARE(shot.numberOf(1) - shot.numberOf(0), quint64(4));
        QCOMPARE(shot.numberOf(shot.before) - shot.numberOf(shot.before - 1), quint64(4));
        QCOMPARE(shot.numberOf(shot.before + 1) - shot.numberOf(shot.before), quint64(1));
    }

    void recordsAgainAndAgain_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("frames");
        QTest::addColumn<bool>("counted");
        QTest::addColumn<QString>("shots"); // of three triggers, if so many count
        QTest::addColumn<bool>("goesOn");
        const auto row = [](const char* name, int mode, int frames, bool counted, const char* shots,
                            bool goesOn) {
            QTest::newRow(name) << mode << frames << counted << QString::fromLatin1(shots) << goesOn;
        };
        const bool on = true;
        const bool full = false;
        row("random", TriggerRandom, 100, false, "0+100 0+100 0+100", on);
        row("random, counted", TriggerRandom, 100, true, "0+100 0+100", full);
        row("random, memory full", TriggerRandom, 8188, false, "0+8188 0+8188", full); // 2 x (8188 + 4)
        row("random, a frame too long", TriggerRandom, 8189, false, "0+8189", full);
        row("random reset", TriggerRandomReset, 100, true, "0+100 0+100", full);
        row("random center", TriggerRandomCenter, 100, false, "50+50 50+50", full);
        row("random center, one frame", TriggerRandomCenter, 1, false, "0+1 0+1", full);
        row("random manual", TriggerRandomManual, 100, false, "70+30 70+30", full);
        row("random loop", TriggerRandomLoop, 8188, false, "0+8188 0+8188", on);
        row("random loop, counted", TriggerRandomLoop, 100, true, "0+100 0+100 0+100", on);
    }

    void recordsAgainAndAgain() {
        QFETCH(int, mode);
        QFETCH(int, frames);
        QFETCH(bool, counted);
        QFETCH(QString, shots);
        QFETCH(bool, goesOn);
        const CameraState state = goesOn ? CameraState::Ready : CameraState::Memory;
        m_head->setRandomTimes(counted).result();
        m_head->setTrigger(mode, 30, frames, 2).result();
        ready();
        for (int i = 0; i < 3 && m_body->acceptsTrigger(); ++i) {
            shoot(RingMs, frames + 2);
            QVERIFY(m_body->state() != CameraState::Recording);
        }
        QCOMPARE(m_body->state(), state);
        QCOMPARE(text(m_head->recording().shots), shots);
        if (state == CameraState::Ready) {
            m_body->stopRecording().result();
        }
        QCOMPARE(m_body->state(), CameraState::Memory);

        // One after the other in the memory, each with its own trigger.
        const Recording& memory = m_head->recording();
        int first = 0;
        for (const Shot& shot : memory.shots) {
            QCOMPARE(memory.triggerIndex(first), first + shot.before);
            QCOMPARE(memory.triggerIndex(first + shot.frames() - 1), first + shot.before);
            QCOMPARE(FrameStamp::read(m_head->memoryFrame(first, QSize(128, 128)).image).value_or(0),
                     quint32(shot.numberOf(0)));
            first += shot.frames();
        }
        QCOMPARE(memory.frames, first);
        QVERIFY(m_head->memoryFrame(first).isNull());
    }

    void aRingThatWasJustEmptiedHoldsLittle() {
        m_head->setTrigger(TriggerRandomCenter, 1, 100, 3).result();
        ready();
        shoot(RingMs, 55);
        m_body->triggerIn().result(); // a few frames after the last recording
        m_rig->clock().advanceMs(60);
        const Shot second = m_head->recording().shots.at(1);
        QVERIFY(second.before < 15);
        QCOMPARE(second.after, 50);
        QVERIFY(second.numberOf(0) >= m_head->recording().shots.first().numberOf(99));
    }

    void aResetCountsFromTheTrigger() {
        m_head->setRandomTimes(true).result();
        m_head->setTrigger(TriggerRandomReset, 1, 100, 2).result();
        ready();
        shoot(RingMs, 102);
        shoot(RingMs, 102);
        const QVector<Shot> shots = m_head->recording().shots;
        QCOMPARE(shots.at(0).numberOf(0), quint64(0));
        QCOMPARE(shots.at(1).numberOf(0), quint64(0));
        QVERIFY(shots.at(1).origin > shots.at(0).origin);
        QCOMPARE(m_head->memoryFrame(100, QSize(128, 128)).time, shots.at(1).origin);
    }

    void aCommandEndsWhatACommandBegan() {
        m_head->setTrigger(TriggerRecordOnCommand, 1).result();
        ready();
        shoot(RingMs, 200);
        QCOMPARE(m_body->state(), CameraState::Recording);
        QVERIFY(m_body->acceptsTrigger());
        m_body->triggerIn().result();
        QCOMPARE(m_body->state(), CameraState::Memory);
        const Shot shot = m_head->recording().shots.first();
        QCOMPARE(shot.before, 0);
        QVERIFY2(qAbs(shot.after - 205) <= 1, qPrintable(text({shot})));
    }

    void onlyARunOnCommandTakesASecondTrigger() {
        m_head->setTrigger(TriggerStart, 1).result();
        ready();
        shoot(RingMs, 10);
        QVERIFY(!m_body->acceptsTrigger());
        QVERIFY_EXCEPTION_THROWN(m_body->triggerIn().result(), CameraError);
        QCOMPARE(m_body->state(), CameraState::Recording);
    }

    void stoppedBeforeTheFirstTriggerThereIsNothing() {
        m_head->setTrigger(TriggerRandom, 1, 100, 3).result();
        ready();
        m_rig->clock().advanceMs(500);
        m_body->stopRecording().result();
        QCOMPARE(m_body->state(), CameraState::Live);
        QVERIFY(m_head->recording().isEmpty());
    }

    void valuesFitTheMemory() {
        // Nothing below 1 changes anything; a mode is told of what it uses only.
        QCOMPARE(m_head->setTrigger(TriggerManual, Total, 100, 3).result(), CommandResult::Ok);
        QCOMPARE(m_head->setTrigger(TriggerRandom, 0, 0, 0).result(), CommandResult::Ok);
        QCOMPARE(m_head->settings().afterFrames, Total);
        QCOMPARE(m_head->settings().randomFrames, 100);
        QCOMPARE(m_head->setTrigger(TriggerStart, Total + 1, Total + 1, 1000).result(), CommandResult::Ok);

        QCOMPARE(m_head->setTrigger(TriggerRandom, 0, Total + 1, 0).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().randomFrames, Total);
        QCOMPARE(m_head->setTrigger(TriggerRandomManual, 200, 100, 3).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().afterFrames, 100);
        QCOMPARE(m_head->triggerLimit(), 100);

        // The count: by the memory, by the camera, and only where it holds.
        QCOMPARE(m_head->setTrigger(TriggerRandomCenter, 0, 1000, 17).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().randomCount, Total / 1004);
        QCOMPARE(m_head->setTrigger(TriggerRandomCenter, 0, 10, 41).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().randomCount, 40);
        QCOMPARE(m_head->setTrigger(TriggerRandom, 0, 10, 101).result(), CommandResult::Ok);
        m_head->setRandomTimes(true).result();
        QCOMPARE(m_head->setTrigger(TriggerRandom, 0, 10, 101).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().randomCount, 100);
        m_head->setResolution(QSize(1280, 1024)).result();
        m_head->setTrigger(TriggerRandom, 0, 100, 100).result();
        QCOMPARE(m_head->settings().randomCount, m_head->totalFrames() / 104);
    }

    void aCameraThatCountsNothingRefusesTheCount() {
        SimulatedHead* const twin = m_rig->findName(QStringLiteral("Gemini"))->head();
        QVERIFY_EXCEPTION_THROWN(twin->setRandomTimes(true).result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(twin->setTrigger(TriggerRandomCenter, 1).result(), CameraError);
    }

    void isSetAtTheCameraToo() {
        m_head->changeFromOutside(QStringLiteral("triggerMode"), TriggerRandomManual);
        m_head->changeFromOutside(QStringLiteral("randomFrames"), 200);
        m_head->changeFromOutside(QStringLiteral("randomCount"), 5);
        m_head->changeFromOutside(QStringLiteral("afterFrames"), 300);
        m_head->changeFromOutside(QStringLiteral("randomTimes"), true);
        const QJsonObject settings = m_head->state().value(QStringLiteral("settings")).toObject();
        QCOMPARE(settings.value(QStringLiteral("triggerMode")).toInt(), int(TriggerRandomManual));
        QCOMPARE(settings.value(QStringLiteral("randomFrames")).toInt(), 200);
        QCOMPARE(settings.value(QStringLiteral("afterFrames")).toInt(), 200);
        QCOMPARE(settings.value(QStringLiteral("randomCount")).toInt(), 5);
        QVERIFY(settings.value(QStringLiteral("randomTimes")).toBool());
    }
};

QTEST_GUILESS_MAIN(TriggerTest)
#include "tst_trigger_modes.moc"
