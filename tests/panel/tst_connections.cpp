// Discovery of cameras and their Wi-Fi.

#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Rig.h"
#include "viewer/cameras/WifiUnit.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QProgressDialog>
#include <QtTest>

namespace {
const QString kSearch = QStringLiteral("Camera search");
const QString kWifi = QStringLiteral("Camera WiFi Setting");
const QString kSettings = QStringLiteral("Camera search settings");
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

    std::unique_ptr<PanelTest> m_test;
    bool m_isClean = false; // the test left all as it was: the next one goes on with the same viewer

    CameraBody* body(const char* name) { return m_test->viewer().rig().findName(QLatin1String(name)); }
    WifiUnit& wifi() { return *body("Gemini")->wifi(); }
    QString rowOf(const char* name) {
        return QStringLiteral("#found tr:contains('%1')").arg(QLatin1String(name));
    }
    void openWifi() {
        m_test->click(m_test->deviceRow(QStringLiteral("Gemini Left")) + QStringLiteral(" .wifi"));
    }
    /// Steps that choose a point, give it a password and connect.
    void join(ModalSteps& steps, int index, const QString& password) {
        steps.click(kWifi, point(index))
            .click(kWifi, QStringLiteral("#password_btn"))
            .type(kPassword, QStringLiteral("#password"), password)
            .click(kPassword, QStringLiteral("#ok_btn"))
            .click(kWifi, kConnect);
    }
    void removeGemini() {
        m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Gemini Left")));
    }
    QJsonValue pref(const char* name) {
        return m_test->call("prefs.get", {{QStringLiteral("name"), QLatin1String(name)}});
    }
    bool isAnywhere(const QString& secret) {
        const QByteArray calls = QJsonDocument(m_test->call("host.calls").toArray()).toJson();
        return !m_test->logged(secret).isEmpty() || calls.contains(secret.toUtf8());
    }

private slots:
    void cleanupTestCase() { m_test.reset(); }
    void init() {
        if (!m_isClean) {
            m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
            m_test->openDevices();
        }
        m_isClean = false;
        m_test->clearLogs();
        wifi().setTimes(60, 60);
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        if (!m_isClean) {
            m_test.reset();
        }
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void connectsWhatADiscoveryFound() {
        DocumentList& documents = m_test->viewer().documents();
        documents.remove(&m_test->camera(QStringLiteral("Plover")));
        body("Plover")->disconnectLink();
        ModalSteps steps(*m_test);
        steps
            .expect(kSearch, QStringLiteral("$('#found tbody tr').length === 3")) // bodies, no dummy
            .expect(kSearch, QStringLiteral("$(\"%1 input\").prop('disabled')").arg(rowOf("Marlin")))
            .click(kSearch, rowOf("Plover") + QStringLiteral(" input"))
            .click(kSearch, kConnect);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY(m_test->camera(QStringLiteral("Plover")).isConnected());
        QVERIFY(m_test->deviceRows().contains(QStringLiteral("Plover")));
    }

    void correctsAWrongAddress() {
        m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Plover")));
        body("Plover")->disconnectLink();
        body("Plover")->assignNetwork(QStringLiteral("10.1.1.5"), QStringLiteral("255.0.0.0"),
                                      QStringLiteral("0.0.0.0"));
        ModalSteps steps(*m_test);
        steps
            .expect(
                kSearch,
                QStringLiteral("$(\"%1 .unreachable\").text().indexOf('10.1.1.5') >= 0").arg(rowOf("Plover")))
            .expect(kSearch, QStringLiteral("$(\"%1 input\").prop('disabled')").arg(rowOf("Plover")))
            .click(kSearch, rowOf("Plover") + QStringLiteral(" td:eq(1)"))
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("300.1.1"))
            .expect(kSearch, QStringLiteral("$('#set_btn').prop('disabled')"))
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("192.168.0.50"))
            .type(kSearch, QStringLiteral("#mask"), QStringLiteral("255.255.255.0"))
            .click(kSearch, QStringLiteral("#set_btn"))
            .expect(kSearch, QStringLiteral("$(\"%1 .reachable\").length === 1").arg(rowOf("Plover")))
            .click(kSearch, rowOf("Plover") + QStringLiteral(" input"))
            .click(kSearch, kConnect);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QCOMPARE(body("Plover")->address(), QStringLiteral("192.168.0.50"));
        QCOMPARE(body("Plover")->mask(), QStringLiteral("255.255.255.0"));
        QVERIFY(m_test->camera(QStringLiteral("Plover")).isConnected());
    }

    // The address that is right is one of another camera: both would be lost.
    void refusesAnAddressThatAnotherCameraHas() {
        m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Plover")));
        ModalSteps steps(*m_test);
        steps.click(kSearch, rowOf("Plover") + QStringLiteral(" td:eq(1)"))
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("192.168.0.10"))
            .click(kSearch, QStringLiteral("#set_btn"))
            .press(kOk)
            .click(kSearch, rowOf("Plover") + QStringLiteral(" td:eq(1)"))
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("192.168.0.255"))
            .click(kSearch, QStringLiteral("#set_btn"))
            .press(kOk)
            .click(kSearch, kClose);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(QStringLiteral("Marlin")), qPrintable(steps.boxes().at(0)));
        QVERIFY2(steps.boxes().at(1).contains(QStringLiteral("192.168.0.255")),
                 qPrintable(steps.boxes().at(1)));
        QCOMPARE(body("Plover")->address(), QStringLiteral("192.168.0.11"));
    }

    void looksWhereItsSettingsSay() {
        const QString settings = QStringLiteral("#settings_btn");
        const QString ok = QStringLiteral("#ok_btn");
        const QString rows =
            QStringLiteral("$('#found tbody tr').length === %1 && $('#place').text() === '%2'");
        ModalSteps steps(*m_test);
        steps.expect(kSearch, rows.arg(3).arg(QString()))
            .click(kSearch, settings)
            .expect(kSettings, QStringLiteral("$('#way_all').prop('checked') && $('#ip1').prop('disabled')"))
            .click(kSettings, QStringLiteral("#way_address"));
        for (const char* const bad : {"300", "ab", ""}) {
            steps.type(kSettings, QStringLiteral("#ip1"), QStringLiteral("10"))
                .type(kSettings, QStringLiteral("#ip2"), QLatin1String(bad))
                .type(kSettings, QStringLiteral("#ip3"), QStringLiteral("8"))
                .click(kSettings, ok)
                .press(kOk);
        }
        steps.type(kSettings, QStringLiteral("#ip2"), QStringLiteral("9"))
            .click(kSettings, ok)
            .expect(kSearch, rows.arg(0).arg(QStringLiteral("Searched at 10.9.8.* only.")))
            .expect(kSearch, QStringLiteral("$('#none_found').is(':visible')"))
            .click(kSearch, settings)
            .type(kSettings, QStringLiteral("#ip1"), QStringLiteral("192"))
            .type(kSettings, QStringLiteral("#ip2"), QStringLiteral("168"))
            .type(kSettings, QStringLiteral("#ip3"), QStringLiteral("0"))
            .key(kSettings, QString(), QStringLiteral("Return"))
            .expect(kSearch, rows.arg(3).arg(QStringLiteral("Searched at 192.168.0.* only.")))
            .click(kSearch, settings)
            .click(kSettings, QStringLiteral("#way_all"))
            .click(kSettings, QStringLiteral("#cancel_btn"))
            .click(kSearch, kClose);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QCOMPARE(steps.boxes(),
                 QStringList({QStringLiteral("Input IPAddress"), QStringLiteral("Input IPAddress"),
                              QStringLiteral("Input IPAddress")}));
        QCOMPARE(pref("cameraconnection/SearchWay").toInt(), 1); // the last change was taken back
        QCOMPARE(pref("cameraconnection/SearchIP").toString(), QStringLiteral("192.168.0.0"));

        ModalSteps menu(*m_test);
        menu.click(kSettings, QStringLiteral("#way_all")).click(kSettings, ok);
        m_test->viewer().mainWindow().action(QStringLiteral("searchSettings"))->trigger();
        FINISH(menu);
        QCOMPARE(pref("cameraconnection/SearchWay").toInt(), 0);
    }

    void saysSoIfACameraWentSinceItWasFound() {
        m_test->viewer().documents().remove(&m_test->camera(QStringLiteral("Plover")));
        body("Plover")->disconnectLink();
        ModalSteps steps(*m_test);
        steps.click(kSearch, rowOf("Plover") + QStringLiteral(" input"))
            .run([this] { return body("Plover")->unplug(), true; })
            .click(kSearch, kConnect)
            .press(kOk);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(QStringLiteral("Plover")), qPrintable(steps.boxes().at(0)));
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
        m_isClean = true;
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
        QVERIFY(!steps.boxes().at(0).isEmpty());
        QVERIFY(!wifi().isConnected());
        QCOMPARE(m_test->calls().count(QStringLiteral("DOC_Settings.connectAccessPoint")), 1);
        m_isClean = true;
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
        m_isClean = true;
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
        m_isClean = true;
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
