// The frame of the panel: pages, updates, the rules of states, opening and closing.

#include "tests/support/PanelTest.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/ViewerHost.h"
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
    bool isTrue(const QString& script) { return m_test->eval(script).toBool(); }
    void reopen() {
        m_test->reopen();
        m_test->settle();
    }
    /// Of these controls those that can be used, whatever kind they are of.
    QStringList usable(const QStringList& controls) {
        QStringList found;
        for (const QString& control : controls) {
            if (isTrue(
                    QStringLiteral("(function ($c) { return $c.length > 0 && $c.filter(function () {"
                                   " return $(this).hasClass('disabled') || this.disabled; }).length === 0;"
                                   " })($('%1'))")
                        .arg(control))) {
                found.append(control);
            }
        }
        return found;
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

    // As when a dialog opens over it; the pointer's place on the screen is none in the view.
    void aPointerThatLeavesMarksNothing() {
        QWebView* const view = m_test->viewer().panel();
        const QString button = QStringLiteral("#livecontrol_open_devicesetting");
        const QPoint middle = PageDriver(view).middleOf(button);
        QVERIFY(view->mapToGlobal(QPoint()) != QPoint());
        QCursor::setPos(middle);
        QTRY_COMPARE(QCursor::pos(), middle);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave);
        QCOMPARE(m_test->eval(QStringLiteral("$(':hover').not('html, body').length")).toInt(), 0);
    }

    void opensTheDevicePageOnceIfAsked() {
        m_test->viewer().preferences().setValue(QStringLiteral("livecontrol/viewdevicesetting"), true);
        reopen();
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_devicesetting"));
        QCOMPARE(
            m_test->viewer().preferences().value(QStringLiteral("livecontrol/viewdevicesetting")).toBool(),
            false);
    }

    // The document stays when the panel goes; what a panel has left behind there would gather.
    void opensAgainAndAgainWithoutATrace() {
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("Dual Slope Shutter"));
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                    {QStringLiteral("name"), QStringLiteral("dualSlope")},
                                    {QStringLiteral("value"), 40}});
        const QString left = QStringLiteral(
            "(function () { var found = 0, base = $.ui.slider.prototype;"
            " [window, document].forEach(function (place) { $.each($._data(place, 'events') || {},"
            " function (type, handlers) { found += handlers.length; }); });"
            " while ((base = Object.getPrototypeOf(base))) { found += 1; } return found; })()");
        reopen();
        const int atFirst = m_test->eval(left).toInt();
        QVERIFY(atFirst > 0);
        for (int i = 0; i < 50; ++i) {
            m_test->reopen();
        }
        m_test->settle();
        QCOMPARE(m_test->eval(left).toInt(), atFirst);
        // What the user has opened is open still.
        QVERIFY(isTrue(QStringLiteral("$('#livecontrol_dsshutter_body').is(':visible')")));

        // One panel answers, and an interrupted slide ends once.
        m_test->calls();
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QCOMPARE(m_test->calls().count(QStringLiteral("HostCameraControl.getRecordRateList")), 1);
        m_test->holdMouse(QStringLiteral("#livecontrol_dsshutter_slider .ui-slider-handle"));
        m_test->calls();
        m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_slider').slider('disable'), 1"));
        QTRY_VERIFY(m_test->calls(false).contains(QStringLiteral("HostCameraControl.getRecordRateList")));
        m_test->releaseMouse();
        QCOMPARE(m_test->calls().count(QStringLiteral("HostCameraControl.getRecordRateList")), 1);
    }

    void leavesASettingPageWhenTheCameraIsLost() {
        m_test->eval(QStringLiteral("livecontrol_obj.changePage(3), 1"));
        QCOMPARE(m_test->text(kShownPage), QStringLiteral("livecontrol_page_auto_exposure"));
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        QVERIFY(m_test->waitFor(kShownPage + QStringLiteral(" === 'livecontrol_page_list'")));
    }

    void locksTheSettingsWhileACameraRecords() {
        m_test->eval(QStringLiteral("livecontrol.setDSShutterValue(40),"
                                    " livecontrol.setTriggerMode(4, 0, 0, 0, 0, 0), 1"));
        const QStringList list{kRate,
                               QStringLiteral("#livecontrol_shutterspeed"),
                               QStringLiteral("#livecontrol_resolution"),
                               QStringLiteral("#livecontrol_trigger"),
                               QStringLiteral("#livecontrol_camera_item_list"),
                               QStringLiteral("#livecontrol_viewall_camera"),
                               QStringLiteral("#livecontrol_dsshutter_slider"),
                               QStringLiteral("#livecontrol_dsshutter_spinner"),
                               QStringLiteral("#livecontrol_random_frames"),
                               QStringLiteral("#livecontrol_trigger_total_frames"),
                               QStringLiteral("#livecontrol_trig_slider"),
                               QStringLiteral("#livecontrol_manu_trig_before_frame"),
                               QStringLiteral("#livecontrol_manu_trig_after_frame"),
                               QStringLiteral("#livecontrol_manu_trig_before_per"),
                               QStringLiteral("#livecontrol_manu_trig_after_per"),
                               QStringLiteral("#livecontrol_manu_trig_before_frame_lock"),
                               QStringLiteral("#livecontrol_manu_trig_after_frame_lock"),
                               QStringLiteral("#livecontrol_manu_trig_before_per_lock"),
                               QStringLiteral("#livecontrol_manu_trig_before_per_lock_2"),
                               QStringLiteral("#livecontrol_random_times_enable"),
                               QStringLiteral("#livecontrol_io_setting"),
                               QStringLiteral("#livecontrol_recording_setting")};
        const QStringList devices{QStringLiteral("#livecontrol_ip1"),
                                  QStringLiteral("#livecontrol_search"),
                                  QStringLiteral("#livecontrol_discovery"),
                                  QStringLiteral("#livecontrol_device_item_list"),
                                  QStringLiteral("#livecontrol_useip_cameraname"),
                                  QStringLiteral("#livecontrol_adddevice"),
                                  QStringLiteral("#livecontrol_viewall_device"),
                                  QStringLiteral("#livecontrol_update"),
                                  QStringLiteral("#livecontrol_deleteall"),
                                  QStringLiteral("#livecontrol_save_button"),
                                  QStringLiteral("#livecontrol_load_button"),
                                  QStringLiteral("#livecontrol_ethernet_setting")};
        const QString rowButtons = QStringLiteral("$('#livecontrol_device_item_list button:visible').length");
        QCOMPARE(usable(list), list);
        m_test->viewer().recording().ready();
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').prop('disabled')").arg(kRate)));
        QCOMPARE(usable(list), QStringList());
        m_test->viewer().preferences().setValue(QStringLiteral("cameraconnection/SearchIP"),
                                                QStringLiteral("192.168.0.0"));
        m_test->openDevices();
        QCOMPARE(usable(devices), QStringList());
        QCOMPARE(m_test->eval(rowButtons).toInt(), 0);
        m_test->viewer().recording().stop();
        QVERIFY(m_test->waitFor(QStringLiteral("!$('#livecontrol_deleteall').prop('disabled')")));
        QCOMPARE(usable(devices), devices);
        QVERIFY(m_test->eval(rowButtons).toInt() > 0);

        // What is no address can't be searched, however often the panel is updated.
        const QString search = QStringLiteral("#livecontrol_search");
        for (const char* const text : {"300", "30"}) {
            m_test->key(QStringLiteral("#livecontrol_ip1"), QStringLiteral("Ctrl+A"));
            m_test->type(QString(), QLatin1String(text));
            m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
            QCOMPARE(isDisabled(search), QLatin1String(text) == QLatin1String("300"));
        }
        m_test->click(QStringLiteral("#livecontrol_devicesetting_closebutton"));
        QCOMPARE(usable(list), list);
    }

    void followsTheWindowsAndTheHost() {
        const QString exposure = QStringLiteral("#op_auto_exposure");
        const QString trigger = QStringLiteral("#op_hwimage_trigger");
        const QString channel = QStringLiteral("#livecontrol_variable_select button");
        const QStringList items{exposure, trigger, channel};
        const QStringList single{QStringLiteral("#livecontrol_showInfoCheckbox"), kRate,
                                 QStringLiteral("#livecontrol_editCustomButton"), channel};
        m_test.reset(); // one viewer at a time
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/two-alike.json"));
        m_test->selectOnly(m_camera);
        if (!isTrue(QStringLiteral("$('#livecontrol_showInfoCheckbox').prop('checked')"))) {
            m_test->click(QStringLiteral("#livecontrol_showInfoCheckbox"));
        }
        QCOMPARE(usable(items), items);
        QCOMPARE(usable(single), single);
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1")); // a window each
        m_test->settle();
        QCOMPARE(usable(items), QStringList());
        QVERIFY(usable(single).contains(kRate));
        m_test->selectOnly(m_camera);
        QCOMPARE(usable(items), items);

        // While the program ends, nothing is asked any more.
        m_test->viewer().host().setClosing(true);
        m_test->clearLogs();
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QCOMPARE(m_test->calls(), QStringList{QStringLiteral("HostApplication.isUpdateIgnore")});
        m_test->viewer().host().setClosing(false);

        // Without a camera there is no window, and nothing to select or delete.
        m_test->viewer().documents().removeAll();
        m_test->settle();
        QVERIFY(isTrue(QStringLiteral("JSON.parse(livecontrol.getControlStatus()).IsNoneWindow")));
        QCOMPARE(usable(single), QStringList());
        QVERIFY(isDisabled(QStringLiteral("#livecontrol_viewall_camera")));
        QVERIFY(isDisabled(QStringLiteral("#livecontrol_deleteall")));

        // A link that was disabled is reached by the Tab key again.
        QCOMPARE(m_test->text(QStringLiteral("(function ($link) { $('#panels').append($link); var before ="
                                             " $link[0].tabIndex; zel4func.disable($link, true);"
                                             " zel4func.disable($link, true); var while_ = $link[0].tabIndex;"
                                             " zel4func.disable($link, false); var after = $link[0].tabIndex;"
                                             " $link.remove(); return [before, while_, after].join(' ');"
                                             " })($('<a href=\"#\">more</a>'))")),
                 QStringLiteral("0 -1 0"));
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
        m_test.reset(); // one viewer at a time
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/plain.json"));
        QVERIFY(!m_test->rows(kRate).isEmpty());
        QCOMPARE(
            m_test->eval(QStringLiteral("$('#op_shutterlock, #op_dss_shutter, #op_lockedResolution').length"))
                .toInt(),
            0);
        QCOMPARE(m_test
                     ->eval(QStringLiteral("$('#livecontrol_shading, #livecontrol_fan_control,"
                                           " #livecontrol_livespeed_block, #livecontrol_lowlight_block,"
                                           " #livecontrol_led_laser_setting, #livecontrol_phase_adjust')"
                                           ".filter(':visible').length"))
                     .toInt(),
                 0);
    }
};

QTEST_MAIN(tst_Pages)
#include "tst_pages.moc"
