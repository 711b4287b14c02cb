// The frame of the panel: pages, updates, the rules of states, opening and closing.

#include "tests/support/PanelTest.h"
#include "viewer/app/PanelView.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

#include <QJsonArray>
#include <QWebView>
#include <QtTest>

namespace {
const QString kRate = QStringLiteral("#livecontrol_framerate");
const QString kShownPage = QStringLiteral("$('#panels section:visible').attr('id')");
} // namespace

class tst_Pages : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QString m_camera;

    bool isDisabled(const QString& selector) {
        return m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(selector)).toBool();
    }
    /// Closes the panel and opens it again, as a host does.
    void reopen() {
        PanelView& panel = m_test->viewer().panelView();
        PLG_Interface* const plugin = panel.plugin();
        panel.showPlugin(nullptr);
        panel.showPlugin(plugin);
        QVERIFY(
            m_test->waitFor(QStringLiteral("window.livecontrol_obj && $('#panels section:visible').length")));
        m_test->settle();
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        m_camera = m_test->call("camera.list").toArray().at(0).toObject()[QStringLiteral("name")].toString();
        m_test->selectOnly(m_camera);
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void comesBackOnItsLastPage() {
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_list"));
        m_test->click(QStringLiteral("#livecontrol_open_devicesetting"));
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_devicesetting"));
        reopen();
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_devicesetting"));
        m_test->click(QStringLiteral("#livecontrol_devicesetting_closebutton"));
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_list"));
    }

    void opensTheDevicePageOnceIfAsked() {
        m_test->viewer().preferences().setValue(QStringLiteral("livecontrol/viewdevicesetting"), true);
        reopen();
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_devicesetting"));
        QCOMPARE(
            m_test->viewer().preferences().value(QStringLiteral("livecontrol/viewdevicesetting")).toBool(),
            false);
    }

    void leavesASettingPageWhenTheCameraIsLost() {
        m_test->eval(QStringLiteral("livecontrol_obj.changePage(3), 1"));
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_auto_exposure"));
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        QVERIFY(m_test->waitFor(kShownPage + QStringLiteral(" === 'livecontrol_page_list'")));
    }

    void locksTheSettingsWhileACameraRecords() {
        m_test->viewer().recording().ready();
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').prop('disabled')").arg(kRate)));
        QVERIFY(isDisabled(QStringLiteral("#livecontrol_shutterspeed")));
        QVERIFY(isDisabled(QStringLiteral("#livecontrol_io_setting")));
        QVERIFY(
            m_test->eval(QStringLiteral("$('#livecontrol_camera_item_list').hasClass('disabled')")).toBool());
        m_test->viewer().recording().stop();
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').prop('disabled')").arg(kRate)));
        QVERIFY(!m_test->eval(QStringLiteral("$('#livecontrol_camera_item_list').hasClass('disabled')"))
                     .toBool());
    }

    void staysQuietOutsideLiveMode() {
        m_test->viewer().documents().setMode(HOST_MODE_FILE);
        m_test->settle();
        m_test->clearLogs();
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(!m_test->calls().contains(QStringLiteral("HostCameraControl.getRecordRateList")));
        m_test->viewer().documents().setMode(HOST_MODE_LIVE);
    }

    void closesAnOpenListWithAnyUpdate() {
        m_test->eval(QStringLiteral("$('%1')[0].sumo.select.attr('id', 'test_box'), 1").arg(kRate));
        m_test->click(QStringLiteral("#test_box .CaptionCont"));
        QVERIFY(m_test->eval(QStringLiteral("$('%1')[0].sumo.is_opened").arg(kRate)).toBool());
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QVERIFY(!m_test->eval(QStringLiteral("Boolean($('%1')[0].sumo.is_opened)").arg(kRate)).toBool());
    }

    void opensThePreferencesOnTheirPages() {
        for (const char* const link : {"#livecontrol_io_setting", "#livecontrol_recording_setting"}) {
            m_test->answerNextBox(QStringLiteral("OK"));
            m_test->click(QLatin1String(link));
            QCOMPARE(m_test->calls().count(QStringLiteral("HostCameraControl.prepareSettingsDialog")), 1);
        }
    }

    void showsTheRateAsTheUserWantsIt() {
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                    {QStringLiteral("name"), QStringLiteral("rate")},
                                    {QStringLiteral("value"), 1000}});
        m_test->settle();
        QCOMPARE(m_test->caption(kRate), QStringLiteral("1000 fps"));
        m_test->viewer().preferences().setValue(QStringLiteral("display/recordRateInsertDelimiter"), true);
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QCOMPARE(m_test->caption(kRate), QLocale().toString(1000) + QStringLiteral(" fps"));
    }

    void clipsNothingInANarrowPanel() {
        QWebView* const view = m_test->viewer().panel();
        view->setFixedWidth(300);
        m_test->settle();
        const QString wide = QStringLiteral("document.documentElement.scrollWidth > window.innerWidth");
        QVERIFY(!m_test->eval(wide).toBool());
        // Every control of the page that shows lies within the panel, and has a name for a screen reader.
        const QJsonArray outside =
            m_test
                ->eval(
                    QStringLiteral("$('#panels section:visible').find('button, input, select, .SumoSelect')"
                                   ".filter(':visible').filter(function () {"
                                   " var box = this.getBoundingClientRect();"
                                   " return box.left < 0 || box.right > window.innerWidth; })"
                                   ".map(function () { return this.id || this.className; }).get()"))
                .toArray();
        QVERIFY2(outside.isEmpty(), qPrintable(outside.at(0).toString()));
    }

    void showsACameraWithoutAnyOptionalFunction() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/plain.json"));
        QVERIFY(!m_test->rows(kRate).isEmpty());
        QCOMPARE(
            m_test->eval(QStringLiteral("$('#op_shutterlock, #op_dss_shutter, #op_lockedResolution').length"))
                .toInt(),
            0);
    }
};

QTEST_MAIN(tst_Pages)
#include "tst_pages.moc"
