// One command to several cameras: what refuses or takes another value doesn't keep the others from getting
// it.
#include "tests/support/SmallRig.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/documents/commands/CommandWait.h"

#include <QtTest>

namespace {
const QString kRate = QStringLiteral("KVC_SetRecordRate");

QString takenRate(const CameraHead& head) { return QString::number(head.settings().rate); }
} // namespace

/// Two cameras whose time is the real one.
struct SlowRig {
    static constexpr int kMs = 300;
    Rig rig;
    CallRecorder calls;
    DocumentList list{rig, calls};

    SlowRig() {
        for (const char* const name : {"A", "B"}) {
            BodyDescription description;
            description.name = description.address = QLatin1String(name);
            description.model = QStringLiteral("mono12");
            description.commandTimeMs = kMs;
            rig.addBody(description);
        }
        list.addAllCameras();
    }
};

class tst_CameraCommands : public QObject {
    Q_OBJECT

    std::unique_ptr<SmallRig> m_small;

    // The failure of setting a rate; empty if nothing failed.
    DeviceFailure setRate(quint32 rate, int* code = nullptr) {
        try {
            CameraCommands(kRate, takenRate).run(m_small->list.selectedCameras(), [rate](CameraHead& head) {
                return head.setRate(rate);
            });
        } catch (const CameraFailure& failure) {
            if (code) {
                *code = failure.errorCode();
            }
            return failure.failure();
        }
        return {};
    }

private slots:
    void init() {
        m_small = std::make_unique<SmallRig>();
        m_small->select({m_small->camera("Mono"), m_small->camera("Colour"), m_small->camera("Plain")});
    }

    void allTakeAValueThatAllHave() {
        QVERIFY(setRate(2000).isEmpty());
        for (const char* const name : {"Mono", "Colour", "Plain"}) {
            QCOMPARE(m_small->head(name).settings().rate, 2000U);
        }
        QVERIFY(m_small->head("Twin").settings().rate != 2000U); // not selected
    }

    void aRefusalIsToldBehindTheLast() {
        m_small->body("Mono")->faults().refuseNext(1, QStringLiteral("the fan is hot"));
        int code = 0;
        const DeviceFailure failure = setRate(2000, &code);
        QCOMPARE(failure.operation, kRate);
        QCOMPARE(failure.cameras.size(), 1);
        QCOMPARE(failure.cameras.first().name, QStringLiteral("Mono"));
        QCOMPARE(failure.cameras.first().reason.english(), QStringLiteral("the fan is hot"));
        QCOMPARE(code, int(CameraFailure::Refused));
        QVERIFY(m_small->head("Mono").settings().rate != 2000U);
        QCOMPARE(m_small->head("Colour").settings().rate, 2000U);
        QCOMPARE(m_small->head("Plain").settings().rate, 2000U);
    }

    void severalFailuresAreOneExceptionWhoseLogNamesThemAll() {
        m_small->body("Mono")->faults().unplugDuringNext = true;
        m_small->body("Plain")->faults().refuseNext(1, QStringLiteral("no"));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("APP_Exception.*Doc Error")));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral(
                                                "DOC_DeviceException.*KVC_SetRecordRate.*Mono.*Plain")));
        int code = 0;
        QCOMPARE(setRate(2000, &code).cameras.size(), 2);
        QCOMPARE(code, int(CameraFailure::LinkLost));
        QCOMPARE(m_small->head("Colour").settings().rate, 2000U);
    }

    void aFailureBearsTheKeyOfTheCommandThatFailedFirst() {
        m_small->body("Colour")->faults().refuseNext(1, QStringLiteral("no"));
        m_small->body("Plain")->faults().refuseNext(1, QStringLiteral("no"));
        try {
            CameraCommands().run(m_small->list.selectedCameras(), [this](CameraHead& head) {
                return &head == &m_small->head("Plain") ? head.setRate(2000)
                                                        : head.setResolution(QSize(512, 512));
            });
            QFAIL("nothing failed");
        } catch (const CameraFailure& failure) {
            QCOMPARE(failure.failure().operation, QStringLiteral("KVC_SetResolution"));
            QCOMPARE(failure.failure().cameras.size(), 2);
        }
    }

    void aValueThatACameraLacksIsToldWithTheOneItTook() {
        const DeviceFailure failure = setRate(4500); // of the color camera only
        QCOMPARE(failure.cameras.size(), 2);
        QCOMPARE(failure.cameras.first().name, QStringLiteral("Mono"));
        QVERIFY(failure.cameras.first().reason.english().contains(QStringLiteral("4000")));
        QCOMPARE(m_small->head("Colour").settings().rate, 4500U);
        // A setter that doesn't name what was taken lets that pass.
        CameraCommands(kRate).run(m_small->list.selectedCameras(),
                                  [](CameraHead& head) { return head.setRate(4500); });
    }

    void severalAreCommandedAtTheSameTime() {
        const qint64 before = m_small->rig.clock().now();
        QVERIFY(setRate(2000).isEmpty());
        QCOMPARE((m_small->rig.clock().now() - before) / 1000000, 5);
    }

    // Timers run meanwhile; who calls gets his answer when the last camera has given it.
    void theRestGoesOnWhileCamerasAreWaitedFor() {
        SlowRig slow;
        int beats = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&beats] { ++beats; });
        timer.start(10);
        bool isAfterwards = false;
        QTimer::singleShot(50, this, [&] {
            QVERIFY(CommandWait::get().isWaiting());
            QCOMPARE(CommandWait::get().whom(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
            CommandWait::get().afterwards(this, [&] { isAfterwards = !CommandWait::get().isWaiting(); });
        });
        QElapsedTimer running;
        running.start();
        CameraCommands().run(slow.list.cameras(), [](CameraHead& head) { return head.setRate(2000); });
        QVERIFY2(running.elapsed() < 2 * SlowRig::kMs, qPrintable(QString::number(running.elapsed())));
        QVERIFY2(beats >= 5, qPrintable(QString::number(beats)));
        QCOMPARE(slow.rig.bodies().last()->head()->settings().rate, 2000U);
        QVERIFY(!isAfterwards); // not in the middle of what the caller does
        QTRY_VERIFY(isAfterwards);
    }

    void whoHasAnsweredIsNotWaitedForAnyMore() {
        const AnswerPromise first;
        const AnswerPromise second;
        const AnswerPromise nameless;
        const AnswerPromise again; // another one to the first camera
        QStringList seen;
        QTimer::singleShot(30, this, [&] {
            seen.append(CommandWait::get().whom().join(QLatin1Char('+')));
            again.give(CommandResult::Ok);
            first.give(CommandResult::Ok);
            seen.append(CommandWait::get().whom().join(QLatin1Char('+')));
            second.give(CommandResult::Ok);
            seen.append(CommandWait::get().whom().join(QLatin1Char('+')));
            nameless.give(CommandResult::Ok);
        });
        CommandWait::get().until({first.answer(), second.answer(), nameless.answer(), again.answer()},
                                 {QStringLiteral("A"), QStringLiteral("B"), QString(), QStringLiteral("A")});
        QCOMPARE(seen, QStringList({QStringLiteral("A+B"), QStringLiteral("B"), QString()}));
    }

    // What was put off for afterwards may open a dialog, and what comes next is often its answer.
    void aDialogAfterwardsKeepsNobody() {
        SlowRig slow;
        QEventLoop dialog;
        bool isEnded = false;
        QTimer::singleShot(50, this, [&] {
            CommandWait::get().afterwards(this, [&] {
                CommandWait::get().afterwards(this, [&] { dialog.exit(1); });
                QTimer::singleShot(2000, &dialog, [&] { dialog.exit(0); });
                isEnded = dialog.exec() == 1;
            });
            CommandWait::get().afterwards(this, [] {});
        });
        CameraCommands().run(slow.list.cameras(), [](CameraHead& head) { return head.setRate(2000); });
        QTRY_VERIFY(isEnded);
    }

    // Nobody waits for a camera that has gone, and another command in the middle has its own answer.
    void aCameraMayGoWhileItIsWaitedFor() {
        SlowRig slow;
        QTimer::singleShot(40, this, [&] { slow.rig.bodies().first()->unplug(); });
        bool isNestedDone = false;
        QTimer::singleShot(60, this, [&] {
            CameraCommands().run({slow.list.cameras().last()},
                                 [](CameraHead& head) { return head.setRate(1000); });
            isNestedDone = true;
            slow.rig.removeBody(slow.rig.bodies().last());
        });
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("APP_Exception")));
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("DOC_DeviceException")));
        try {
            CameraCommands(kRate, takenRate).run(slow.list.cameras(), [](CameraHead& head) {
                return head.setRate(4500); // not of this model
            });
            QFAIL("nothing failed");
        } catch (const CameraFailure& failure) {
            QVERIFY(isNestedDone);
            QCOMPARE(failure.failure().cameras.first().name, QStringLiteral("A"));
            QCOMPARE(failure.errorCode(), int(CameraFailure::LinkLost));
        }
    }

    void aBodyIsCommandedOnce() {
        m_small->select({m_small->camera("Twin", 0), m_small->camera("Twin", 1), m_small->camera("Mono")});
        QStringList names;
        CameraCommands(kRate).runBodies(m_small->list.selectedCameras(), [&names](CameraBody& body) {
            names.append(body.name());
            return Answer(CommandResult::Ok);
        });
        QCOMPARE(names.size(), 2);
        QVERIFY(names.contains(QStringLiteral("Twin")) && names.contains(QStringLiteral("Mono")));
    }
};

QTEST_GUILESS_MAIN(tst_CameraCommands)
#include "tst_camera_commands.moc"
