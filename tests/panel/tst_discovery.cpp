// Discovery of cameras: what a search found, correcting and connecting it, and where it looks.

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "tests/panel/support/DefaultRig.h"
#include "tests/support/ModalSteps.h"
#include "viewer/app/MainWindow.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

#include <QAction>
#include <QSignalSpy>
#include <QWebFrame>

namespace {
const QString kSearch = QStringLiteral("Camera search");
const QString kSettings = QStringLiteral("Camera search settings");
const QString kOk = QStringLiteral("OK");
const QString kConnect = QStringLiteral("#connect_btn");
const QString kClose = QStringLiteral("#close_btn");
} // namespace

class tst_Discovery : public QObject {
    Q_OBJECT

    DefaultRig m_rig;
    PanelTest* m_test = nullptr;

    SimulatedBody* body(const char* name) { return m_test->viewer().rig().findName(QLatin1String(name)); }
    QString rowOf(const char* name) {
        return QStringLiteral("#found tr:contains('%1')").arg(QLatin1String(name));
    }
    QJsonValue pref(const char* name) {
        return m_test->call("prefs.get", {{QStringLiteral("name"), QLatin1String(name)}});
    }

private slots:
    void cleanupTestCase() { m_rig.close(); }
    void init() { m_test = &m_rig.prepare(); }
    void cleanup() {
        const QStringList errors = m_rig.finish();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.join(QLatin1Char('\n'))));
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
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("10.1.1.6"))
            .click(kSearch, QStringLiteral("#set_btn"))
            .press(QStringLiteral("Cancel")) // it would be as far away as before
            .run([this] { return body("Plover")->address() == QLatin1String("10.1.1.5"); })
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
        const QString rows = QStringLiteral(
            "$('#found tbody tr').length === %1 && $('#place').text().replace(/^Cameras found: "
            "[0-9]+; already in the list: [0-9]+ ?/, '') === '%2'");
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
            .press(kOk)
            .expect(kSearch, QStringLiteral("$('#found tbody tr').length === 2")) // try another one
            .click(kSearch, kClose);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(QStringLiteral("Plover")), qPrintable(steps.boxes().at(0)));
    }

    void whatWasConnectedIsNotAskedForAgain() {
        for (const char* const name : {"Plover", "Marlin"}) {
            m_test->viewer().documents().remove(&m_test->camera(QLatin1String(name)));
            body(name)->disconnectLink();
        }
        ModalSteps steps(*m_test);
        steps.click(kSearch, rowOf("Marlin") + QStringLiteral(" input"))
            .click(kSearch, rowOf("Plover") + QStringLiteral(" input"))
            .run([this] { return body("Plover")->unplug(), true; })
            .click(kSearch, kConnect)
            .press(kOk)
            .expect(kSearch, QStringLiteral("$(\"%1 .in-list\").length === 1").arg(rowOf("Marlin")))
            .expect(kSearch, QStringLiteral("!$(\"%1 input\").prop('checked')").arg(rowOf("Marlin")))
            .expect(kSearch, QStringLiteral("$('#connect_btn').prop('disabled')"))
            .click(kSearch, kClose);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY(m_test->camera(QStringLiteral("Marlin")).isConnected());
    }

    // Whatever searches anew: ticks stay, and so does an address that the user is still typing.
    void keepsWhatWasTickedAndTyped() {
        DocumentList& documents = m_test->viewer().documents();
        documents.remove(&m_test->camera(QStringLiteral("Plover")));
        documents.remove(&m_test->camera(QStringLiteral("Marlin")));
        body("Plover")->disconnectLink();
        body("Marlin")->disconnectLink();
        const QString kept =
            QStringLiteral("$(\"%1 input\").prop('checked') && $('#address').val() === '%2' && "
                           "$('#found tr.ui-selected td:eq(1)').text() === 'Marlin'");
        const auto keeps = [&](const QString& address) { return kept.arg(rowOf("Plover"), address); };
        const QString typed = QStringLiteral("192.168.0.11");
        ModalSteps steps(*m_test);
        steps.click(kSearch, rowOf("Plover") + QStringLiteral(" input"))
            .click(kSearch, rowOf("Marlin") + QStringLiteral(" td:eq(1)"))
            .type(kSearch, QStringLiteral("#address"), typed)
            .click(kSearch, QStringLiteral("#set_btn")) // Plover's
            .press(kOk)
            .expect(kSearch, keeps(typed))
            .click(kSearch, QStringLiteral("#again_btn"))
            .expect(kSearch, keeps(typed))
            .click(kSearch, QStringLiteral("#settings_btn"))
            .click(kSettings, QStringLiteral("#cancel_btn"))
            .expect(kSearch, keeps(typed))
            .type(kSearch, QStringLiteral("#address"), QStringLiteral("192.168.0.50"))
            .click(kSearch, QStringLiteral("#set_btn"))
            .expect(kSearch, keeps(QStringLiteral("192.168.0.50")))
            .click(kSearch, kConnect);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
        QVERIFY(m_test->camera(QStringLiteral("Plover")).isConnected());
        QCOMPARE(m_test->deviceRows().filter(QStringLiteral("Marlin")), QStringList());
        // Two changes and the button; a cancelled dialog and what is connected now are no reason to search.
        QCOMPARE(m_test->calls().count(QStringLiteral("HostCameraControl.discoverySearchAgain")), 3);
    }

    // What a search finds is shown, over what was read before or typed since.
    void aNewAddressTakesThePlaceOfTheOld() {
        const QString marlin = QStringLiteral("$('#found tr.ui-selected td:eq(1)').text() === 'Marlin' && "
                                              "$('#%1').val() === '%2'");
        const QString again = QStringLiteral("#again_btn");
        QStringList now{QStringLiteral("192.168.0.10"), QStringLiteral("255.255.255.0"),
                        QStringLiteral("0.0.0.0")};
        ModalSteps steps(*m_test);
        steps.click(kSearch, rowOf("Marlin") + QStringLiteral(" td:eq(1)"));
        int changed = 0;
        for (const auto& [field, found] :
             {std::pair("address", "192.168.0.77"), std::pair("mask", "255.255.0.0"),
              std::pair("gateway", "192.168.0.1")}) {
            now[changed++] = QLatin1String(found);
            steps.type(kSearch, QStringLiteral("#address"), QStringLiteral("192.168.0.5"))
                .run([this, now] {
                    return body("Marlin")->assignNetwork(now.at(0), now.at(1), now.at(2)), true;
                })
                .click(kSearch, again)
                .expect(kSearch, marlin.arg(QLatin1String(field), QLatin1String(found)))
                .expect(kSearch, marlin.arg(QStringLiteral("address"), now.at(0)));
        }
        steps.click(kSearch, kClose);
        m_test->click(QStringLiteral("#livecontrol_discovery"));
        FINISH(steps);
    }

    // A host shows this page while it searches.
    void tellsThatItSearches() {
        m_test->call("prefs.set", {{QStringLiteral("name"), QStringLiteral("env/style")},
                                   {QStringLiteral("value"), QStringLiteral("light")}});
        ViewerHost& host = m_test->viewer().host();
        JS_Mediator progress(&host, QStringLiteral("progress"));
        GUI_WebView view(&host);
        QSignalSpy loaded(&view, &QWebView::loadFinished);
        host.attachMediator(&view, &progress);
        view.load(QUrl(QStringLiteral("qrc:/livecontrol_progress.html")));
        QVERIFY(loaded.wait());
        QVERIFY(loaded.first().first().toBool());
        const auto eval = [&view](const char* script) {
            return view.page()->mainFrame()->evaluateJavaScript(QLatin1String(script));
        };
        QCOMPARE(eval("$('#searching').text()").toString(), QStringLiteral("Searching Now..."));
        QVERIFY(eval("$('html').hasClass('style-light')").toBool());
        QVERIFY(eval("parseFloat($('#searching').css('font-size')) > 20").toBool());
        QTRY_VERIFY(eval("$('#searching').css('opacity') < 1").toBool());
        QTRY_VERIFY(eval("$('#searching').css('opacity') == 1").toBool());
        m_test->call("prefs.set", {{QStringLiteral("name"), QStringLiteral("env/style")},
                                   {QStringLiteral("value"), QStringLiteral("dark")}});
    }
};

QTEST_MAIN(tst_Discovery)
#include "tst_discovery.moc"
