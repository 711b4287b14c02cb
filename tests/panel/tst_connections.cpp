// The Wi-Fi of a camera: its access points, their passwords, and a camera that goes meanwhile.

#include "simulator/device/WifiUnit.h"
#include "tests/panel/support/DefaultRig.h"
#include "tests/support/ModalSteps.h"
#include "viewer/documents/CameraDocument.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QProgressDialog>

namespace {
const QString kWifi = QStringLiteral("Camera WiFi Setting");
const QString kPassword = QStringLiteral("Input password");
const QString kOk = QStringLiteral("OK");
const QString kScan = QStringLiteral("#scan_btn");
const QString kConnect = QStringLiteral("#connect_btn");
const QString kClose = QStringLiteral("#close_btn");

/// A row of an access point.
QString point(int index) { return QStringLiteral("#access_points li:eq(%1)").arg(index); }
QString points(int count) { return QStringLiteral("$('#access_points li').length === %1").arg(count); }
} // namespace

class tst_Connections : public QObject {
    Q_OBJECT

    DefaultRig m_rig;
    PanelTest* m_test = nullptr;

    SimulatedBody* body(const char* name) { return m_test->viewer().rig().findName(QLatin1String(name)); }
    WifiUnit& wifi() { return *body("Gemini")->wifi(); }
    void openWifi() {
        m_test->click(m_test->deviceRow(QStringLiteral("Gemini Left")) + QStringLiteral(" .wifi"));
    }
    /// Steps that choose a point, give it a password and connect.
    void join(ModalSteps& steps, int index, const QString& password) {
        steps.click(kWifi, point(index))
            .click(kWifi, QStringLiteral("#password_btn"))
            .type(kPassword, QStringLiteral("#password"), password)
            .key(kPassword, QStringLiteral("#password"), QStringLiteral("Return"))
            .click(kWifi, kConnect);
    }
    void removeGemini() {
        m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Gemini Left")));
    }
    bool isAnywhere(const QString& secret) {
        const QByteArray calls = QJsonDocument(m_test->call("host.calls").toArray()).toJson();
        return !m_test->logged(secret).isEmpty() || calls.contains(secret.toUtf8());
    }

private slots:
    void cleanupTestCase() { m_rig.close(); }
    void init() {
        m_test = &m_rig.prepare();
        wifi().setTimes(60, 60);
        wifi().leave();
        for (int i = 0; i < wifi().found().size(); ++i) {
            wifi().setPassword(i, QString());
        }
    }
    void cleanup() {
        const QStringList errors = m_rig.finish();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(QLatin1Char('\n'))));
    }

    void joinsWithTheRightPasswordOnly() {
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan).expect(kWifi, points(4));
        join(steps, 0, QStringLiteral("wrong-word"));
        steps.press(kOk);
        join(steps, 0, QStringLiteral("turbine-7"));
        steps.expect(kWifi, QStringLiteral("$('#access_points .wifi-state').text() !== ''"))
            .run([this] { return wifi().isConnected(); })
            .click(kWifi, kClose)
            .press(QStringLiteral("No"));
        openWifi();
        FINISH(steps);
        QCOMPARE(steps.boxes().at(0), QStringLiteral("Connection to the access point failed."));
        QVERIFY(
            steps.boxes().at(1).startsWith(QStringLiteral("To connect with WiFi, you need to disconnect")));
        QVERIFY(m_test->camera(QStringLiteral("Gemini Left")).isConnected());
        QVERIFY(!isAnywhere(QStringLiteral("turbine-7")));
        QVERIFY(!isAnywhere(QStringLiteral("wrong-word")));
        QVERIFY(!m_test->logged(QStringLiteral("[USER]")).isEmpty()); // what is logged at all
    }

    void disconnectsTheCameraIfWanted() {
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan)
            .click(kWifi, point(1)) // an open one
            .click(kWifi, kConnect)
            .expect(kWifi, QStringLiteral("!$('#disconnect_btn').prop('disabled')"))
            .click(kWifi, kClose)
            .press(QStringLiteral("Yes"));
        openWifi();
        FINISH(steps);
        QVERIFY(!m_test->camera(QStringLiteral("Gemini Left")).isConnected());
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').hasClass('found')")
                                    .arg(m_test->deviceRow(QStringLiteral("Gemini Left")))));
    }

    void leavesTheAccessPointWithoutAQuestion() {
        wifi().scan();
        wifi().join(1);
        ModalSteps steps(*m_test);
        steps.expect(kWifi, QStringLiteral("!$('#disconnect_btn').prop('disabled')"))
            .click(kWifi, QStringLiteral("#disconnect_btn"))
            .expect(kWifi, QStringLiteral("$('#disconnect_btn').prop('disabled')"))
            .click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        QVERIFY(!wifi().isConnected());
        QVERIFY(steps.boxes().isEmpty());
    }

    void saysThatAnAccessPointIsGone() {
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan)
            .click(kWifi, point(3))
            .click(kWifi, kConnect)
            .press(kOk)
            .click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        // Camera and reason, though the worker keeps the failure to itself.
        QVERIFY2(
            steps.boxes().at(0).contains(QStringLiteral("Gemini: the access point can't be found any more")),
            qPrintable(steps.boxes().at(0)));
        QVERIFY(!wifi().isConnected());
        QCOMPARE(m_test->calls().count(QStringLiteral("DOC_Settings.connectAccessPoint")), 1);
    }

    void takesAForeignNameForText() {
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan)
            .expect(kWifi, QStringLiteral("$('#access_points li:eq(2) .device-name').text() === "
                                          "'<b onmouseover=alert(1)>Free Wi-Fi</b>'"))
            .expect(kWifi, QStringLiteral("$('#access_points b').length === 0"))
            .expect(kWifi, QStringLiteral("$('#access_points .wifi-level:first').text() === '82 %'"))
            .click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        QVERIFY(steps.boxes().isEmpty());
    }

    // A password has 32 bytes at most; what is known is never shown.
    void limitsAndHidesThePassword() {
        wifi().scan();
        wifi().setPassword(0, QStringLiteral("turbine-7"));
        ModalSteps steps(*m_test);
        steps.click(kWifi, point(0))
            .click(kWifi, QStringLiteral("#password_btn"))
            .expect(kPassword, QStringLiteral("$('#password').val() === '******'"))
            .type(kPassword, QStringLiteral("#password"), QString(33, QLatin1Char('a')))
            .click(kPassword, QStringLiteral("#ok_btn"))
            .press(kOk)
            .type(kPassword, QStringLiteral("#password"), QStringLiteral("******"))
            .click(kPassword, QStringLiteral("#ok_btn"))
            .click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        QCOMPARE(steps.boxes(), QStringList{QStringLiteral("Please input within 32 bytes.")});
        QCOMPARE(wifi().found().at(0).password, QStringLiteral("turbine-7"));
    }

    void doesNotFreezeWhileItScans() {
        wifi().setTimes(800, 60);
        int ticks = 0;
        QTimer clock;
        connect(&clock, &QTimer::timeout, [&ticks] {
            ticks += dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget()) ? 1 : 0;
        });
        clock.start(20);
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan).expect(kWifi, points(4)).click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        QVERIFY2(ticks >= 3, qPrintable(QString::number(ticks))); // 40 on an idle machine, 10 with sanitizers
    }

    // A camera that leaves the list takes its dialog with it, whatever is going on there.
    void closesWithTheCamera_data() {
        QTest::addColumn<QString>("moment");
        QTest::newRow("idle") << QStringLiteral("idle");
        QTest::newRow("scan") << QStringLiteral("scan");
        QTest::newRow("connection") << QStringLiteral("connection");
        QTest::newRow("password") << QStringLiteral("password");
        QTest::newRow("question") << QStringLiteral("question");
    }
    void closesWithTheCamera() {
        QFETCH(QString, moment);
        const auto remove = [this] { return removeGemini(), true; };
        const auto removeInBusyBox = [this] {
            const bool isThere = dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (isThere) {
                removeGemini();
            }
            return isThere;
        };
        wifi().scan();
        wifi().setTimes(400, 400);
        ModalSteps steps(*m_test);
        steps.click(kWifi, point(1));
        if (moment == QLatin1String("idle")) {
            steps.run(remove).click(kWifi, kConnect);
        } else if (moment == QLatin1String("scan")) {
            steps.click(kWifi, kScan).run(removeInBusyBox);
        } else if (moment == QLatin1String("connection")) {
            steps.click(kWifi, kConnect).run(removeInBusyBox);
        } else if (moment == QLatin1String("password")) {
            steps.click(kWifi, QStringLiteral("#password_btn"))
                .type(kPassword, QStringLiteral("#password"), QStringLiteral("late"))
                .run(remove)
                .click(kPassword, QStringLiteral("#ok_btn"));
        } else {
            steps.click(kWifi, kConnect)
                .expect(kWifi, QStringLiteral("!$('#disconnect_btn').prop('disabled')"))
                .click(kWifi, kClose)
                .run(
                    [&] { return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()) && remove(); })
                .press(QStringLiteral("Yes"));
        }
        steps.press(kOk);
        openWifi();
        FINISH(steps);
        QCOMPARE(steps.boxes().last(), QStringLiteral("The camera is not in the list."));
        QCOMPARE(steps.boxes().size(), moment == QLatin1String("question") ? 2 : 1);
        QCOMPARE(m_test->deviceRows().filter(QStringLiteral("Gemini")).size(), 0);
        QCOMPARE(wifi().found().at(1).password, QString());
    }

    void outlivesACameraThatIsUnplugged() {
        ModalSteps steps(*m_test);
        steps.click(kWifi, kScan)
            .expect(kWifi, points(4))
            .run([this] { return body("Gemini")->unplug(), true; })
            .click(kWifi, point(1))
            .click(kWifi, kConnect)
            .press(kOk)
            .click(kWifi, kScan)
            .press(kOk)
            .click(kWifi, kClose);
        openWifi();
        FINISH(steps);
        QVERIFY(!wifi().isConnected());
    }
};

QTEST_MAIN(tst_Connections)
#include "tst_connections.moc"
