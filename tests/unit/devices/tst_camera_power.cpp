// The questions before cameras go off, pressed in the real boxes, and what happens to the cameras.

#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <stdexcept>

namespace {

constexpr int kPowerOff = 117;
constexpr int kRestart = 118;

const QString kAll = QStringLiteral(
    "Multiple cameras capable of power operation from ZEL are connected. Do you operate all at once?");
const QString kOffOrRestart = QStringLiteral("Turns off or restarts the camera. Is it OK?");
const QString kOff = QStringLiteral("Turn off the camera. Is it OK?");
const QString kSureOff = QStringLiteral("Turn off the camera. Are you really sure?");
const QString kSureRestart = QStringLiteral("Restart the camera. Are you really sure?");
const QString kNotInTheList = QStringLiteral("The camera is not in the list.");
const QString kAlert = QStringLiteral("HostApplication.alert");
const QString kHandleError = QStringLiteral("HostApplication.handleError");

/// Presses buttons of the boxes in turn, by their labels; an empty label closes the box by its frame. Keeps
/// what was asked.
class Answers : public QObject {
public:
    explicit Answers(const QStringList& labels, const std::function<void(const QString&)>& whenAsked = {})
        : m_left(labels), m_whenAsked(whenAsked) {
        connect(&m_timer, &QTimer::timeout, this, &Answers::look);
        m_timer.start(5);
    }

    QStringList left() const { return m_left; }
    QStringList asked;

private:
    void look() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return;
        }
        asked.append(box->text());
        if (m_whenAsked) {
            m_whenAsked(box->text());
        }
        const QString label = m_left.isEmpty() ? QString() : m_left.takeFirst();
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* const button : buttons) {
            QString text = button->text();
            if (!label.isEmpty() && text.remove(QLatin1Char('&')) == label) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        m_left.prepend(label); // a label that no button has stays left
        if (label.isEmpty()) {
            m_left.removeFirst();
        }
        box->close();
    }

    QTimer m_timer;
    QStringList m_left;
    std::function<void(const QString&)> m_whenAsked;
};

/// Two bodies, "a" under the key 7 and "b" under 8; "b" has two heads. Commands leave a line each.
struct PowerRig : TestRig {
    CallRecorder otherCalls;
    FakeDevice other{otherCalls};
    FakeCamera heads[2]{FakeCamera(otherCalls), FakeCamera(otherCalls)};
    bool isOtherGone = false;
    QStringList commands;
    std::function<void(const QString&)> whenAsked; ///< While a question with this text stands.
    QSet<int> functionsA{kPowerOff, kRestart};
    QSet<int> functionsB{kPowerOff, kRestart};
    PLG_livecontrol plugin;

    PowerRig() {
        host.onListDevices = [this] {
            return isOtherGone ? QList<DeviceObject*>{&device} : QList<DeviceObject*>{&device, &other};
        };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* {
            const bool isOthers = (key == 8 || key == 9) && !isOtherGone;
            return key == 7 ? &camera : isOthers ? &heads[key - 8] : nullptr;
        };
        host.onKeyOfDocument = [this](DOC_Interface* document) -> DOCKEY {
            return document == &camera ? 7 : document == &heads[0] ? 8 : 9;
        };
        host.onCloseDocument = [this](DOCKEY key, bool ask) {
            commands.append(QStringLiteral("close %1%2").arg(key).arg(QLatin1String(ask ? "?" : "")));
        };
        other.onGetHeads = [this](bool) { return QList<DOC_Interface*>{&heads[0], &heads[1]}; };
        heads[0].onGetDevice = [this] { return &other; };
        heads[1].onGetDevice = [this] { return &other; };
        wire(device, QStringLiteral("a"), functionsA);
        wire(other, QStringLiteral("b"), functionsB);
        wireHead(camera, QStringLiteral("a1"));
        wireHead(heads[0], QStringLiteral("b1"));
        wireHead(heads[1], QStringLiteral("b2"));
        plugin.init(&host);
    }

    void wire(FakeDevice& body, const QString& name, const QSet<int>& functions) {
        const auto log = [this, name](const char* what) {
            return [this, name, what] { commands.append(QString::fromLatin1(what) + name); };
        };
        body.onIsFunctionSupported = [&functions](int code, bool ofDevice) {
            return ofDevice && functions.contains(code);
        };
        body.onPreparePowerOperation = log("prepare ");
        body.onPowerOff = log("off ");
        body.onRestartCamera = log("restart ");
        body.onSetPowerOperating = [this, name](bool on) {
            commands.append(QStringLiteral("operating %1 %2").arg(name).arg(on));
        };
        body.onSetConnected = [this, name](bool on) {
            commands.append(QStringLiteral("connected %1 %2").arg(name).arg(on));
        };
    }
    void wireHead(FakeCamera& head, const QString& name) {
        head.onPrepareShutdown = [this, name](bool stop, bool close, bool wait) {
            commands.append((stop && close && wait ? QStringLiteral("shutdown ") : QStringLiteral("? ")) +
                            name);
        };
    }

    /// "b" leaves the list. What is called of it afterwards would be called of freed memory.
    void loseOther() {
        isOtherGone = true;
        otherCalls.clear();
    }

    /// Runs the slot with the answers; all of them must have been asked for.
    QStringList run(const QStringList& labels, DOCKEY key = 7) {
        Answers answers(labels, whenAsked);
        JS_Mediator_LiveControl live(&host, &plugin);
        host.calls.clear();
        live.controlCameraPower(key);
        return answers.left().isEmpty()
                   ? answers.asked
                   : QStringList{QStringLiteral("not pressed: ") + answers.left().join(QLatin1Char(','))};
    }
};

QStringList switched(const QString& name, const QString& command, int key) {
    return {QStringLiteral("prepare ") + name,   QStringLiteral("operating %1 1").arg(name),
            command + QLatin1Char(' ') + name,   QStringLiteral("connected %1 0").arg(name),
            QStringLiteral("close %1").arg(key), QStringLiteral("operating %1 0").arg(name)};
}

const QStringList kShutA{QStringLiteral("shutdown a1")};
const QStringList kShutB{QStringLiteral("shutdown b1"), QStringLiteral("shutdown b2")};

QStringList off(const char* name, int key) {
    return switched(QLatin1String(name), QStringLiteral("off"), key);
}
QStringList restarted(const char* name, int key) {
    return switched(QLatin1String(name), QStringLiteral("restart"), key);
}

} // namespace

class tst_CameraPower : public QObject {
    Q_OBJECT

private slots:
    void askedOfOne_data() {
        QTest::addColumn<bool>("canRestart");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("commands");
        const QString turnOff = QStringLiteral("Turn off the camera");
        const QString restart = QStringLiteral("Restart the camera");
        QTest::newRow("off") << true << QStringList{turnOff, QStringLiteral("Turn off")}
                             << QStringList{kOffOrRestart, kSureOff} << kShutA + off("a", 7);
        QTest::newRow("not off") << true << QStringList{turnOff, QStringLiteral("Not turn off")}
                                 << QStringList{kOffOrRestart, kSureOff} << QStringList();
        QTest::newRow("restart") << true << QStringList{restart, QStringLiteral("Restart")}
                                 << QStringList{kOffOrRestart, kSureRestart} << kShutA + restarted("a", 7);
        QTest::newRow("not restart") << true << QStringList{restart, QStringLiteral("Not restart")}
                                     << QStringList{kOffOrRestart, kSureRestart} << QStringList();
        QTest::newRow("cancel") << true << QStringList{QStringLiteral("Cancel")} << QStringList{kOffOrRestart}
                                << QStringList();
        QTest::newRow("closed") << true << QStringList{QString()} << QStringList{kOffOrRestart}
                                << QStringList();
        QTest::newRow("sure, closed") << true << QStringList{turnOff, QString()}
                                      << QStringList{kOffOrRestart, kSureOff} << QStringList();
        QTest::newRow("no restart: off") << false << QStringList{turnOff, QStringLiteral("Turn off")}
                                         << QStringList{kOff, kSureOff} << kShutA + off("a", 7);
        QTest::newRow("no restart: not off") << false << QStringList{turnOff, QStringLiteral("Not turn off")}
                                             << QStringList{kOff, kSureOff} << QStringList();
        QTest::newRow("no restart: cancel")
            << false << QStringList{QStringLiteral("Cancel")} << QStringList{kOff} << QStringList();
    }
    void askedOfOne() {
        QFETCH(bool, canRestart);
        QFETCH(QStringList, labels);
        QFETCH(QStringList, asked);
        QFETCH(QStringList, commands);
        LogCapture log;
        PowerRig rig;
        rig.functionsA = canRestart ? QSet<int>{kPowerOff, kRestart} : QSet<int>{kPowerOff};
        rig.functionsB = {};
        QCOMPARE(rig.run(labels), asked);
        QCOMPARE(rig.commands, commands);
        QCOMPARE(log.with(QStringLiteral("[ENTER] \"JS_Mediator_LiveControl::controlCameraPower\" "
                                         "\"[dockey:7]\""))
                     .size(),
                 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostApplication.updateAll")), 0);
    }

    void askedOfTwo_data() {
        QTest::addColumn<bool>("otherRestarts");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("commands");
        const QString turnOff = QStringLiteral("Turn off the camera");
        const QString restart = QStringLiteral("Restart the camera");
        QTest::newRow("all restart") << true
                                     << QStringList{QStringLiteral("Yes"), restart, QStringLiteral("Restart")}
                                     << QStringList{kAll, kOffOrRestart, kSureRestart}
                                     << kShutA + kShutB + restarted("a", 7) + restarted("b", 8);
        QTest::newRow("one of all can't restart")
            << false << QStringList{QStringLiteral("Yes"), turnOff, QStringLiteral("Turn off")}
            << QStringList{kAll, kOff, kSureOff} << kShutA + kShutB + off("a", 7) + off("b", 8);
        QTest::newRow("the pressed one")
            << false << QStringList{QStringLiteral("No"), turnOff, QStringLiteral("Turn off")}
            << QStringList{kAll, kOffOrRestart, kSureOff} << kShutA + off("a", 7);
        QTest::newRow("cancel") << true << QStringList{QStringLiteral("Cancel")} << QStringList{kAll}
                                << QStringList();
        QTest::newRow("closed") << true << QStringList{QString()} << QStringList{kAll} << QStringList();
    }
    void askedOfTwo() {
        QFETCH(bool, otherRestarts);
        QFETCH(QStringList, labels);
        QFETCH(QStringList, asked);
        QFETCH(QStringList, commands);
        const LogCapture quiet;
        PowerRig rig;
        rig.functionsB = otherRestarts ? QSet<int>{kPowerOff, kRestart} : QSet<int>{kPowerOff};
        QCOMPARE(rig.run(labels), asked);
        QCOMPARE(rig.commands, commands);
    }

    // Whichever of them it is.
    void restartsNoneIfTheFirstCannot() {
        const LogCapture quiet;
        PowerRig rig;
        rig.functionsA = {kPowerOff};
        QCOMPARE(rig.run({QStringLiteral("Yes"), QStringLiteral("Turn off the camera"),
                          QStringLiteral("Turn off")}),
                 (QStringList{kAll, kOff, kSureOff}));
        QCOMPARE(rig.commands, kShutA + kShutB + off("a", 7) + off("b", 8));
    }

    void countsOnlyDevicesWithHeads() {
        const LogCapture quiet;
        PowerRig rig;
        rig.other.onGetHeads = [](bool) { return QList<DOC_Interface*>(); };
        QCOMPARE(rig.run({QStringLiteral("Cancel")}), QStringList{kOffOrRestart});
    }

    void takesThePressedDeviceUntested() {
        const LogCapture quiet;
        PowerRig rig;
        rig.functionsA = {kPowerOff};
        rig.functionsB = {};
        QCOMPARE(rig.run({QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")}, 8),
                 (QStringList{kOff, kSureOff}));
        QCOMPARE(rig.commands, kShutB + off("b", 8));
    }

    void saysThatACameraIsNotInTheList() {
        const LogCapture quiet;
        PowerRig rig;
        rig.functionsB = {};
        QCOMPARE(rig.run({}, 99), QStringList());
        QCOMPARE(rig.host.calls.lastArgs(kAlert).value(0).toString(), kNotInTheList);

        // The same for one that goes while its first question stands.
        rig.functionsB = {kPowerOff, kRestart};
        rig.whenAsked = [&rig](const QString& text) {
            if (text == kAll) {
                rig.loseOther();
            }
        };
        QCOMPARE(rig.run({QStringLiteral("No")}, 8), QStringList{kAll});
        QCOMPARE(rig.host.calls.lastArgs(kAlert).value(0).toString(), kNotInTheList);
        QCOMPARE(rig.otherCalls.names(), QStringList());
        QCOMPARE(rig.commands, QStringList());
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
    }

    // The host frees a lost camera at once; the others are switched all the same.
    void touchesNoCameraThatWent_data() {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QStringList>("commands");
        QTest::newRow("at the choice") << kAll << kShutA + off("a", 7);
        QTest::newRow("at the question") << kOffOrRestart << kShutA + off("a", 7);
        QTest::newRow("at the last question") << kSureOff << kShutA + off("a", 7);
        QTest::newRow("as the views end") << QStringLiteral("shutdown a1") << kShutA + off("a", 7);
        QTest::newRow("between its views")
            << QStringLiteral("shutdown b1") << kShutA + kShutB.mid(0, 1) + off("a", 7);
        QTest::newRow("as the other goes off") << QStringLiteral("off a") << kShutA + kShutB + off("a", 7);
    }
    void touchesNoCameraThatWent() {
        QFETCH(QString, moment);
        QFETCH(QStringList, commands);
        const LogCapture quiet;
        PowerRig rig;
        const auto loseAt = [&](const QString& now) {
            if (now == moment) {
                rig.loseOther();
            }
        };
        rig.whenAsked = loseAt;
        const auto losing = [&](FakeCamera& head, const QString& line) {
            head.onPrepareShutdown = [&rig, loseAt, line](bool, bool, bool) {
                rig.commands.append(line);
                loseAt(line);
            };
        };
        losing(rig.camera, kShutA.first());
        losing(rig.heads[0], kShutB.first());
        rig.device.onPowerOff = [&rig, loseAt] {
            rig.commands.append(QStringLiteral("off a"));
            loseAt(QStringLiteral("off a"));
        };
        rig.run({QStringLiteral("Yes"), QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")});
        QVERIFY(rig.isOtherGone);
        QCOMPARE(rig.commands, commands);
        QCOMPARE(rig.otherCalls.names(), QStringList());
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
        QCOMPARE(rig.host.calls.count(kAlert), 0);
    }

    void waitsUnderTheHostsDialogFirst() {
        const LogCapture quiet;
        PowerRig rig;
        rig.functionsB = {};
        QDialog wait;
        connect(&wait, &QDialog::finished, [&rig] { rig.commands.append(QStringLiteral("waited")); });
        QTimer closer;
        connect(&closer, &QTimer::timeout, [&wait] {
            if (wait.isVisible()) {
                wait.accept();
            }
        });
        closer.start(10);
        rig.host.onGetPowerWaitDialog = [&wait] { return &wait; };
        const QStringList yes{QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")};
        rig.run(yes);
        QVERIFY(!rig.commands.contains(QStringLiteral("waited"))); // nobody wants it
        rig.commands.clear();
        rig.device.onNeedsPowerWaitDialog = [] { return true; };
        rig.run(yes);
        QCOMPARE(rig.commands, kShutA + QStringList{QStringLiteral("waited")} + off("a", 7));

        rig.commands.clear();
        rig.host.onGetPowerWaitDialog = [] { return nullptr; };
        rig.run(yes);
        QCOMPARE(rig.commands, kShutA + off("a", 7));
    }

    void aFailureEndsTheRun() {
        const LogCapture quiet;
        PowerRig rig;
        rig.other.onPowerOff = [] { throw std::runtime_error("cable"); };
        rig.run({QStringLiteral("Yes"), QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")});
        QCOMPARE(rig.commands, kShutA + kShutB + off("a", 7) +
                                   (QStringList{QStringLiteral("prepare b"), QStringLiteral("operating b 1"),
                                                QStringLiteral("operating b 0")}));
        QCOMPARE(rig.host.calls.count(kHandleError), 1);

        rig.commands.clear();
        rig.heads[0].onPrepareShutdown = [](bool, bool, bool) { throw std::runtime_error("view"); };
        rig.run({QStringLiteral("Yes"), QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")});
        QCOMPARE(rig.commands, kShutA); // no command at all
        QCOMPARE(rig.host.calls.count(kHandleError), 1);
    }
};

QTEST_MAIN(tst_CameraPower)
#include "tst_camera_power.moc"
