// Lets every host and document operation that the panel uses fail, one at a time, while an update and each
// setter runs: nothing escapes, the user is told, and the panel works again afterwards.

#include "livecontrol/interface/PLG_Interface.h"
#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "simulator/device/WifiUnit.h"
#include "tests/panel/support/BoxCloser.h"
#include "tests/panel/support/OwnDialogs.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/calls/CallRecorder.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

namespace {
constexpr int kHangMs = 60000; // against a hang alone
constexpr char kHeads[] = R"({"title": "Wi-Fi", "cameras": [{"name": "Gemini", "model": "twin",
    "serial": "TW-0003", "address": "192.168.0.12", "heads": ["Left", "Right"]}]})";
constexpr char kCards[] = R"({"title": "Cards", "cameras": [{"name": "Marlin", "model": "mono12",
    "serial": "M12-1", "address": "192.168.0.10", "cards": [{"kind": "cfast"}]}]})";

/// The calls of the operation that is swept, in what it does alone.
QStringList uniqueCalls(PanelTest& test) {
    QStringList operations = test.calls();
    operations.removeDuplicates();
    operations.removeOne(QStringLiteral("HostApplication.handleError"));
    return operations;
}

} // namespace

class tst_FaultSweep : public QObject {
    Q_OBJECT

    QStringList m_sweptByUpdate;
    QStringList m_operations; // of the last sweep
    std::unique_ptr<PanelTest> m_panel;

    /// Lets each operation that the action calls fail in turn.
    void sweep(PanelTest& test, const QString& action) {
        LiveImage& live = test.viewer().documents().live();
        live.beginHold(); // no paint pass between
        const auto release = qScopeGuard([&live] { live.endHold(); });
        BoxCloser boxes;
        CallRecorder& recorder = test.viewer().calls();
        recorder.clearFailures(); // of a sweep that ended early
        const QString script = action + QStringLiteral(", 1");
        test.settle();
        test.calls();
        test.eval(script); // the calls of the page alone: no event runs before they are read
        QStringList operations = test.calls();
        operations.removeDuplicates();
        QVERIFY(!operations.contains(QStringLiteral("HostApplication.handleError")));
        // The update that ends every setter is swept once, by itself.
        for (const QString& swept : qAsConst(m_sweptByUpdate)) {
            operations.removeOne(swept);
        }
        m_operations = operations;
        int reported = 0;
        for (const QString& operation : qAsConst(operations)) {
            recorder.clear();
            recorder.fail(operation, QStringLiteral("cable of ") + operation, 1, 1);
            test.eval(script);
            QCoreApplication::processEvents();
            QVERIFY2(recorder.count(QStringLiteral("HostApplication.handleError")) >= 1,
                     qPrintable(operation));
            recorder.clearFailures();
            ++reported;
            QVERIFY2(test.call("page.errors").toArray().isEmpty(), qPrintable(operation));
        }
        QTRY_COMPARE_WITH_TIMEOUT(boxes.closed, reported, kHangMs);
        test.eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(!test.caption(QStringLiteral("#livecontrol_framerate")).isEmpty());
    }

private slots:
    void cleanupTestCase() { m_panel.reset(); }

    // One viewer for all of them: each leaves the camera so that the next one is carried out.
    void thePanelSurvivesEveryFailure_data() {
        QTest::addColumn<QString>("action");
        QTest::newRow("update") << QStringLiteral("livecontrol_obj.update()");
        QTest::newRow("rate") << QStringLiteral("livecontrol.setFrameRate('1')");
        QTest::newRow("shutter") << QStringLiteral("livecontrol.setShutterSpeed('2')");
        QTest::newRow("resolution") << QStringLiteral("livecontrol.setResolution('1')");
        QTest::newRow("dual slope") << QStringLiteral(
            "livecontrol.setDSShutterValue('10'), livecontrol.setDSShutterValue('0')");
        QTest::newRow("locks") << QStringLiteral(
            "livecontrol.toggleShutterLockMode(), livecontrol.toggleResolutionLockMode()");
        QTest::newRow("trigger mode")
            << QStringLiteral("livecontrol.setTriggerMode(4, 100, 200, 33.33, 50, 2)");
        QTest::newRow("trigger parameters") << QStringLiteral("livecontrol_obj.applyTrigger(1, 1000, 2276)");
        QTest::newRow("trigger lock") << QStringLiteral("livecontrol.setLockTriggerParam(1)");
        // Without resetLens(): its text on the image calls for a paint pass between.
        QTest::newRow("lens") << QStringLiteral(
            "livecontrol.setIrisValue(40), livecontrol.setFocusValue(500), livecontrol.closeLens(), "
            "livecontrol.setIrisIncremental(1, 0), livecontrol.setFocusIncremental(-1, 1)");
        QTest::newRow("options") << QStringLiteral(
            "livecontrol.setLiveImageDataReduceMode(true), livecontrol.setLowLightMode(true), "
            "livecontrol.setLowLightType(2), livecontrol.setLowlightShutterSpeed('3'), "
            "livecontrol.setLowLightMode(false), "
            "livecontrol.setFanControl(false), livecontrol.setShadingOn(), livecontrol.execPhaseAdjust()");
        QTest::newRow("select") << QStringLiteral(
            "livecontrol.setSelectDoc(livecontrol.getSelectedDockey()[0])");
        QTest::newRow("select all") << QStringLiteral("livecontrol.selectAllDocs()");
        QTest::newRow("device page") << QStringLiteral(
            "livecontrol_obj.changePage(1), livecontrol_obj.changePage(0)");
        QTest::newRow("exposure page")
            << QStringLiteral("livecontrol_obj.startAutoExposure(), livecontrol_obj.changePage(3), "
                              "livecontrol_obj.changePage(0), livecontrol.autoExposureEnd()");
        QTest::newRow("image trigger page")
            << QStringLiteral("livecontrol_obj.startHWImageTrigger(), livecontrol_obj.changePage(4), "
                              "livecontrol.setImageTriggerObserver(true), livecontrol_obj.changePage(0), "
                              "livecontrol.hWImageTriggerEnd()");
        QTest::newRow("image trigger")
            << QStringLiteral("livecontrol.sendSelectArea('{\"X\":16,\"Y\":16,\"Width\":64,\"Height\":64}'), "
                              "livecontrol.setHWImageTrigger('{\"HWImageTriggerOn\":true}')");
        QTest::newRow("area") << QStringLiteral(
            "livecontrol.sendSelectArea('{\"X\":16,\"Y\":16,\"Width\":64,\"Height\":64}'), "
            "livecontrol.recvSelectArea(), livecontrol.convertUserviewRect(0, 0, 8, 8)");
        QTest::newRow("variable page")
            << QStringLiteral("livecontrol_obj.callLiveControlPage(2), livecontrol.cancelVariableSetting(), "
                              "livecontrol_obj.changePage(0), livecontrol.finalizeVariableSetting()");
        QTest::newRow("variable channel")
            << QStringLiteral("livecontrol.sendSelectArea('{\"X\":0,\"Y\":0,\"Width\":640,\"Height\":480}'), "
                              "livecontrol.setVariableChannelInfo(1, 4, 640, 480, 0, 0, true), "
                              "livecontrol.setVariableChannel(0)");
        QTest::newRow("exposure") << QStringLiteral(
            "livecontrol.sendSelectArea('{\"X\":16,\"Y\":16,\"Width\":64,\"Height\":64}'), "
            "livecontrol.setAutoExposure("
            "'{\"AutoExposureOn\":true,\"AutoExposureMaxTime\":1}')");
        // Last: the search for the focus goes on behind it.
        QTest::newRow("autofocus") << QStringLiteral("livecontrol.openAutofocus()");
    }

    void thePanelSurvivesEveryFailure() {
        QFETCH(QString, action);
        if (!m_panel) {
            m_panel = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        }
        sweep(*m_panel, action);
        if (m_sweptByUpdate.isEmpty()) {
            m_sweptByUpdate = m_operations;
            QVERIFY(m_operations.size() > 50);
        }
    }

    void theLampsSurviveEveryFailure() {
        m_panel.reset();
        PanelTest test(QStringLiteral(RIGS_FOLDER "/default.json"));
        test.selectOnly(QStringLiteral("Plover"));
        sweep(test,
              QStringLiteral("livecontrol.existSupportedLedLaserControl(), "
                             "livecontrol.getHeadLedLaser(true), livecontrol.setHeadLedLaser(true, 1)"));
        QVERIFY(m_operations.contains(QStringLiteral("HostApplication.setHeadLedLaser")));
    }

    void theDialogsSurviveEveryFailure_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("script");
        const QString key = QStringLiteral("JSON.parse(deviceList.getDeviceInfoList(false)[0]).key");
        QTest::newRow("add") << QStringLiteral("deviceList.addDoc()")
                             << QStringLiteral("$('#dummy').click(); $('#ok_btn').click();");
        QTest::newRow("edit") << QStringLiteral("livecontrol.editDoc(%1)").arg(key)
                              << QStringLiteral("$('#ip4').val(Number($('#ip4').val()) % 200 + 20); "
                                                "$('#ok_btn').click();");
        QTest::newRow("discovery") << QStringLiteral("livecontrol.discoverySearch()")
                                   << QStringLiteral(
                                          "$('#again_btn').click(); $('#found td:eq(1)').click(); "
                                          "$('#set_btn').click(); $('#found input:enabled').click(); "
                                          "$('#connect_btn:enabled').click(); $('#close_btn').click();");
        QTest::newRow("save") << QStringLiteral("livecontrol.save()")
                              << QStringLiteral("$('#camerasettings_filename_edit').click(); "
                                                "$('#camerasettings_filename_ok').click(); "
                                                "$('#camerasettings_OK').click();");
        QTest::newRow("store") << QStringLiteral("livecontrol.save()")
                               << QStringLiteral("$('#camerasettings_to_place_preset').click(); "
                                                 "$('.presets input:first').click(); "
                                                 "$('#camerasettings_OK').click();");
        QTest::newRow("load") << QStringLiteral("livecontrol.load()") << QStringLiteral("on_ok_clicked");
        QTest::newRow("custom info")
            << QStringLiteral("livecontrol.editCustom()")
            << QStringLiteral("$('#item_name').val('Load').trigger('input'); $('#add_btn').click(); "
                              "$('#items input').click(); $('#items td:eq(1)').click(); "
                              "$('#item_value').val('9').trigger('input'); $('#change_btn').click(); "
                              "$('#delete_btn').click(); $('#cancel_btn').click();");
        QTest::newRow("comment") << QStringLiteral("livecontrol.editComment()")
                                 << QStringLiteral(
                                        "$('#comment').val('x').trigger('input'); $('#ok_btn').click();");
        const QString cancel = QStringLiteral("$('#cancel_btn').click();");
        const QString info =
            QStringLiteral("$('.ei-items input:enabled:first, #blankline').click(); "
                           "editinfo_obj.changeOrder($('.ei-items')[0]);"
                           "$('[id$=fontsetting], #font-bold, #editfont_dialog_ok').click();");
        QTest::newRow("information") << QStringLiteral("livecontrol.editInfo()") << info + cancel;
        for (const auto& [name, act] :
             {std::pair("saved view", "$('#Date, .upper .portlet-font, #collective, [id$=_ok]').click();"),
              std::pair("time code", "$('#reset_btn').click(); $('#ok_btn').click();"),
              std::pair("shutter format", "$('#delimiter').click(); "),
              std::pair("rate format", "$('#delimiter').click(); "),
              std::pair("frame format", "$('#delimiter').click(); "),
              std::pair("recording time format", "$('#unit').val('2').change(); "),
              std::pair("digits", "$('#auto').click(); $('#ok_btn').click(); ")}) {
            QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(act) + cancel;
        }
        QTest::newRow("save files") << QStringLiteral("save files")
                                    << QStringLiteral("$('#rows tbody input:first').click().click(); "
                                                      "$('#skip_unit').val('1').change(); ") +
                                           QStringLiteral("$('#ok_btn').click(); ") + cancel;
        QTest::newRow("open") << QStringLiteral("open")
                              << QStringLiteral(
                                     "$('.drive[data-kind=sd]').click(); $('.drive[data-kind=cf]').click(); "
                                     "$('#format_btn').click(); ") +
                                     cancel;
        QTest::newRow("storage") << QStringLiteral("storage")
                                 << QStringLiteral(
                                        "$('#slots button').click(); $('#records tbody tr:last').click(); "
                                        "$('#data_name').val('x'); $('#rename_btn').click(); "
                                        "$('#format_btn').click(); $('#close_btn').click();");
        QTest::newRow("delete") << QStringLiteral("deviceList.deleteDoc(%1)").arg(key) << QString();
        QTest::newRow("delete all") << QStringLiteral("deviceList.deleteAllDocs()") << QString();
        QTest::newRow("Wi-Fi") << QStringLiteral("livecontrol.wifiSetting(%1)").arg(key)
                               << QStringLiteral(
                                      "$('#scan_btn').click(); $('#access_points li:eq(1)').click(); "
                                      "$('#connect_btn').click(); $('#disconnect_btn').click(); "
                                      "$('#close_btn').click();");
    }

    void theDialogsSurviveEveryFailure() {
        QFETCH(QString, action);
        QFETCH(QString, script);
        QTemporaryDir folder;
        QFile rig(folder.filePath(QStringLiteral("wifi.json")));
        QVERIFY(rig.open(QIODevice::WriteOnly));
        const QStringList withCards{QStringLiteral("save files"), QStringLiteral("open"),
                                    QStringLiteral("storage")};
        rig.write(withCards.contains(action) ? kCards : kHeads);
        rig.close();
        PanelTest test(rig.fileName());
        DocumentList& documents = test.viewer().documents();
        SimulatedBody* const body = test.viewer().rig().bodies().first();
        documents.live().beginHold(); // no paint pass between
        BoxCloser boxes(&test);
        boxes.script = script;
        CallRecorder& recorder = documents.calls();
        const auto run = [&] {
            documents.addAllCameras();
            if (QTest::currentDataTag() == QByteArray("discovery")) {
                body->disconnectLink();
            } else if (!body->isConnected()) {
                body->connectLink().result();
            }
            if (body->wifi()) {
                body->wifi()->setTimes(1, 1);
            }
            for (const StorageKind kind : {StorageKind::SDCard, StorageKind::DockStore}) {
                if (body->storage()) { // a run has emptied them
                    CardContent card;
                    card.records.push_back({QStringLiteral("a"), 9, 0, 0});
                    body->storage()->insert(kind, 0, card);
                }
            }
            if (QTest::currentDataTag() == QByteArray("load")) {
                body->storePreset(1).result();
            }
            test.viewer().preferences().remove(QStringLiteral("export/dir")); // it is stored by the first run
            recorder.clear();
            if (!runOwnDialog(test.viewer(), action)) {
                test.eval(action + QStringLiteral(", 1"));
            }
            QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activeModalWidget(), kHangMs);
        };
        run();
        QStringList operations = uniqueCalls(test);
        // What every update calls is swept above, and a view may be painted anew behind a window that closes.
        documents.addAllCameras(); // some of the actions remove them
        test.eval(QStringLiteral("livecontrol_obj.update(), 1"));
        test.settle();
        if (QWidget* const view = test.viewer().imageView(documents.cameras().first()->key())) {
            view->repaint();
        }
        for (const QString& swept : uniqueCalls(test)) {
            operations.removeOne(swept);
        }
        // Of an update too, but only at a moment without a camera.
        operations.removeOne(QStringLiteral("HostCameraControl.isLensControlUnable"));
        // Ends of a count: ordered to fail, the host never counts back, and nothing after it is as it was.
        operations.removeOne(QStringLiteral("HostApplication.endModal"));
        operations.removeOne(QStringLiteral("HostApplication.deterUpdateUI"));
        QVERIFY(!operations.isEmpty() && (script.isEmpty() || boxes.dialogs > 0));
        for (const QString& operation : qAsConst(operations)) {
            recorder.fail(operation, QStringLiteral("cable of ") + operation, 1, 1);
            run();
            QVERIFY2(recorder.count(QStringLiteral("HostApplication.handleError")) >= 1,
                     qPrintable(operation));
            recorder.clearFailures();
            QVERIFY2(test.call("page.errors").toArray().isEmpty(), qPrintable(operation));
        }
        run();
        test.eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(!test.caption(QStringLiteral("#livecontrol_framerate")).isEmpty());
    }

    // The image's own input. Only what fails at the page's side of a move is told in a box.
    void aDragSurvivesEveryFailure() {
        PanelTest test(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        test.eval(QStringLiteral("livecontrol_obj.startAutoExposure(), livecontrol_obj.changePage(3), 1"));
        test.settle();
        test.viewer().documents().live().beginHold();
        BoxCloser boxes;
        CallRecorder& recorder = test.viewer().calls();
        PLG_Interface& plugin = *test.viewer().host().plugins().current();
        const auto drag = [&](int way) {
            const QRectF area = QRectF(plugin.getArea());
            const QPoint from =
                test.viewer().documents().current()->view().imageToView.map(area.center()).toPoint();
            const QPoint to = from + QPoint(way, way / 2);
            for (const auto& [method, at] : {std::pair("image.move", from), std::pair("image.press", from),
                                             std::pair("image.move", to), std::pair("image.release", to)}) {
                test.call(method, {{QStringLiteral("x"), at.x()}, {QStringLiteral("y"), at.y()}});
                QCoreApplication::sendPostedEvents();
            }
        };
        test.calls();
        drag(20);
        QStringList operations = test.calls();
        operations.removeDuplicates();
        QVERIFY(operations.size() > 8);
        int way = 20;
        for (const QString& operation : qAsConst(operations)) {
            recorder.fail(operation, QStringLiteral("cable of ") + operation, 1, 1);
            way = -way;
            drag(way);
            recorder.clearFailures();
            QVERIFY2(test.call("page.errors").toArray().isEmpty(), qPrintable(operation));
            QVERIFY2(!plugin.isDragging(), qPrintable(operation));
            const QRect before = plugin.getArea();
            drag(40);
            QVERIFY2(plugin.getArea() != before, qPrintable(operation));
            drag(-40);
        }
    }
};

QTEST_MAIN(tst_FaultSweep)
#include "tst_fault_sweep.moc"
