// Switching cameras off and restarting them: every way through the questions, and what the cameras do.

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QtTest>

namespace {
const QString kAtOnce =
    QStringLiteral("Multiple cameras capable of power operation from ZEL are connected. Do "
                   "you operate all at once?");
const QString kOffOrRestart = QStringLiteral("Turns off or restarts the camera. Is it OK?");
const QString kOff = QStringLiteral("Turn off the camera. Is it OK?");
const QString kSureOff = QStringLiteral("Turn off the camera. Are you really sure?");
const QString kSureRestart = QStringLiteral("Restart the camera. Are you really sure?");

// The commands for one device with one head.
QStringList commands(const char* command) {
    return {QStringLiteral("DOC_Settings.preparePowerOperation"),
            QStringLiteral("DOC_Settings.setPowerOperating true"),
            QStringLiteral("DOC_Settings.") + QLatin1String(command),
            QStringLiteral("DOC_Interface.setConnected false"),
            QStringLiteral("HostDocuments.closeDocument false"),
            QStringLiteral("DOC_Settings.setPowerOperating false")};
}
const QString kPrepare = QStringLiteral("DOC_Transfer.prepareShutdown true");
} // namespace

class tst_Power : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QString m_untouched; // the rig of the last test, if no camera was switched

    void start(const QString& rig) {
        if (!m_test || m_untouched != rig) {
            m_test.reset();
            m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/") + rig);
            m_test->openDevices();
        }
        m_untouched.clear();
        m_test->clearLogs();
    }
    SimulatedBody* body(const QString& name) { return m_test->viewer().rig().findName(name); }
    /// The calls that belong to power, with their last argument, as far as it is a choice.
    QStringList powerCalls() {
        const QStringList watched{
            QStringLiteral("prepareShutdown"),   QStringLiteral("preparePowerOperation"),
            QStringLiteral("setPowerOperating"), QStringLiteral("restartCamera"),
            QStringLiteral("powerOff"),          QStringLiteral("setConnected"),
            QStringLiteral("closeDocument")};
        QStringList found;
        for (const QJsonValue value : m_test->call("host.calls").toArray()) {
            const QJsonObject call = value.toObject();
            QString name = call[QStringLiteral("name")].toString();
            const QJsonArray args = call[QStringLiteral("args")].toArray();
            if (watched.contains(name.section(QLatin1Char('.'), 1))) {
                if (!args.isEmpty()) {
                    name += args.last().toBool() ? QStringLiteral(" true") : QStringLiteral(" false");
                }
                found.append(name);
            }
        }
        return found;
    }
    /// What the next question says under its text, and the texts of its buttons that don't fit into them.
    /// False while it isn't there.
    static bool look(QStringList& asked, QStringList& under, QStringList& cut, QStringList& chosen) {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || (!asked.isEmpty() && asked.last() == box->text())) {
            return false;
        }
        asked.append(box->text());
        QTextDocument shown;
        shown.setHtml(box->informativeText());
        under.append(shown.toPlainText());
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* const button : buttons) {
            QStyleOptionButton option;
            option.initFrom(button);
            const QRect room =
                button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
            const QString text = button->text().remove(QLatin1Char('&'));
            if (button->fontMetrics().horizontalAdvance(text) > room.width()) {
                cut.append(text);
            }
        }
        chosen.append(qobject_cast<QPushButton*>(box->focusWidget())->text().remove(QLatin1Char('&')));
        return true;
    }
    void pressPower(const QString& camera, const QStringList& answers, QStringList& questions) {
        ModalSteps steps(*m_test);
        for (const QString& answer : answers) {
            steps.press(answer);
        }
        m_test->click(m_test->deviceRow(camera) + QStringLiteral(" .power"));
        FINISH(steps);
        questions = steps.boxes();
    }

private slots:
    void cleanupTestCase() { m_test.reset(); }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    // One road through each rig: all ways through the questions are tested with the slot.
    void asksAndActs_data() {
        QTest::addColumn<QString>("rig");
        QTest::addColumn<QString>("camera");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("questions");
        QTest::addColumn<QStringList>("calls");
        const QString turnOff = QStringLiteral("Turn off the camera");
        const QString doRestart = QStringLiteral("Restart the camera");
        QTest::newRow("not sure") << QStringLiteral("default.json") << QStringLiteral("Plover")
                                  << QStringList{QStringLiteral("No"), turnOff,
                                                 QStringLiteral("Not turn off")}
                                  << QStringList{kAtOnce, kOff, kSureOff} << QStringList();
        QTest::newRow("two heads, one document closed")
            << QStringLiteral("default.json") << QStringLiteral("Gemini Left")
            << QStringList{QStringLiteral("No"), doRestart, QStringLiteral("Restart")}
            << QStringList{kAtOnce, kOffOrRestart, kSureRestart}
            << QStringList{kPrepare, kPrepare} + commands("restartCamera");
        QTest::newRow("two at once") << QStringLiteral("two-alike.json") << QStringLiteral("Merlin")
                                     << QStringList{QStringLiteral("Yes"), turnOff,
                                                    QStringLiteral("Turn off")}
                                     << QStringList{kAtOnce, kOffOrRestart, kSureOff}
                                     << QStringList{kPrepare, kPrepare} + commands("powerOff") +
                                            commands("powerOff");
    }
    void asksAndActs() {
        QFETCH(QString, rig);
        QFETCH(QString, camera);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, questions);
        QFETCH(QStringList, calls);
        start(rig);
        const int before = m_test->deviceRows().size();
        QStringList asked;
        pressPower(camera, answers, asked);
        QCOMPARE(asked, questions);
        QCOMPARE(powerCalls(), calls);
        QCOMPARE(m_test->deviceRows().size() == before, calls.isEmpty());
        m_untouched = calls.isEmpty() ? rig : QString();
    }

    void namesTheCamerasAndCutsNoWord() {
        start(QStringLiteral("default.json"));
        QStringList asked;
        QStringList under;
        QStringList cut;
        QStringList chosen;
        ModalSteps steps(*m_test);
        for (const char* const answer : {"No", "Restart the camera", "Not restart"}) {
            steps.run([&] { return look(asked, under, cut, chosen); });
            steps.press(QLatin1String(answer));
        }
        m_test->click(m_test->deviceRow(QStringLiteral("Gemini Left")) + QStringLiteral(" .power"));
        FINISH(steps);
        QCOMPARE(under.at(1), QStringLiteral("Gemini"));
        QVERIFY2(under.at(0).contains(QStringLiteral("3 cameras: Marlin, Plover, Gemini")) &&
                     under.at(0).endsWith(QStringLiteral("No: Gemini")),
                 qPrintable(under.at(0)));
        QCOMPARE(under.at(2), QStringLiteral("Gemini"));
        QCOMPARE(cut, QStringList());
        QCOMPARE(chosen, (QStringList{QStringLiteral("Cancel"), QStringLiteral("Cancel"),
                                      QStringLiteral("Not restart")}));
        m_untouched = QStringLiteral("default.json");
    }

    void leavesTheOthersAloneIfACameraRefuses() {
        start(QStringLiteral("two-alike.json"));
        m_test->call("host.fail", {{QStringLiteral("operation"), QStringLiteral("DOC_Settings.powerOff")},
                                   {QStringLiteral("message"), QStringLiteral("stuck")}});
        QStringList asked;
        pressPower(QStringLiteral("Marlin"),
                   {QStringLiteral("Yes"), QStringLiteral("Turn off the camera"), QStringLiteral("Turn off"),
                    QStringLiteral("OK")},
                   asked);
        QVERIFY2(asked.last().contains(QStringLiteral("stuck")), qPrintable(asked.last()));
        QVERIFY(body(QStringLiteral("Merlin"))->isConnected());
        QCOMPARE(powerCalls().last(), QStringLiteral("DOC_Settings.setPowerOperating false"));
    }

    void leavesACameraThatWentDuringTheQuestion_data() {
        QTest::addColumn<bool>("isRemoved");
        QTest::newRow("left the list") << true;
        QTest::newRow("unplugged") << false;
    }
    void leavesACameraThatWentDuringTheQuestion() {
        QFETCH(bool, isRemoved);
        start(QStringLiteral("one-camera.json"));
        const QString name = m_test->deviceRows().at(0);
        ModalSteps steps(*m_test);
        steps.press(QStringLiteral("Turn off the camera"))
            .run([&] {
                if (!dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    return false;
                }
                isRemoved ? m_test->viewer().documents().remove(&m_test->camera(name)) : body(name)->unplug();
                return true;
            })
            .press(QStringLiteral("Turn off"))
            .press(QStringLiteral("OK"));
        m_test->click(m_test->deviceRow(name) + QStringLiteral(" .power"));
        FINISH(steps);
        if (isRemoved) {
            QCOMPARE(steps.boxes().last(), QStringLiteral("The camera is not in the list."));
            QVERIFY(powerCalls().isEmpty());
        } else {
            QVERIFY2(steps.boxes().last().contains(name), qPrintable(steps.boxes().last()));
            QCOMPARE(m_test->deviceRows(), QStringList{name});
        }
        QVERIFY(body(name)->state() == CameraState::Live);
    }

    void goesOffAndIsFoundAgain() {
        start(QStringLiteral("default.json"));
        SimulatedBody* const gemini = body(QStringLiteral("Gemini"));
        const auto search = [this] {
            m_test->eval(QStringLiteral("livecontrol.findCameras('192.168.0.0'), 1"));
            m_test->settle();
            return m_test->deviceRows().filter(QStringLiteral("Gemini")).size();
        };
        QStringList asked;
        pressPower(QStringLiteral("Gemini Right"),
                   {QStringLiteral("No"), QStringLiteral("Turn off the camera"), QStringLiteral("Turn off")},
                   asked);
        QVERIFY(gemini->state() == CameraState::Off);
        QVERIFY(!gemini->isConnected());
        QCOMPARE(search(), 0); // nobody answers
        gemini->powerOn();     // the switch at the camera
        QTRY_VERIFY(gemini->state() == CameraState::Live);
        QCOMPARE(search(), 2);

        QList<CameraState> states;
        const QObject watch;
        connect(gemini, &CameraBody::stateChanged, &watch, [&] { states.append(gemini->state()); });
        pressPower(QStringLiteral("Gemini Right"),
                   {QStringLiteral("No"), QStringLiteral("Restart the camera"), QStringLiteral("Restart")},
                   asked);
        QVERIFY(states.contains(CameraState::Booting));
        QTRY_VERIFY(gemini->state() == CameraState::Live);
        QCOMPARE(search(), 2);
        QVERIFY(m_test->camera(QStringLiteral("Gemini Left")).isConnected());
    }
};

QTEST_MAIN(tst_Power)
#include "tst_power.moc"
