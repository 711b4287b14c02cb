#include "livecontrol/bridge/JS_Mediator_Plugin.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>
#include <stdexcept>

namespace {

const QString kStatusOrder = QStringLiteral(
    "IsNoneWindow IsSingleWindow IsMultiWindow IsRecording IsBgSaving IsBgConverting IsDirectSaving "
    "IsNoneDocument "
    "IsSingleSelectedDocument IsCTSReady IsReady IsLiveMode IsMemoryMode IsFileMode IsNotRecording "
    "IsRecordingError "
    "IsNotUndo IsNotRedo IsLowlight ExistLowlight IsAllLowlightON IsAllLowlightOFF IsAutoExposureSetting "
    "IsHwTriggerSetting IsVariableSetting IsTracking IsActiveLensCalibration IsLensCalibration "
    "IsNoneWaveformData "
    "IsLiveNoAutoDownloadSetting IsCurrentDisconnected IsConflictPartition IsSendingNodeCommand "
    "IsAdjustingImage "
    "IsDetectingPixelDefect IsCycleView IsImageOverlay IsImageTriggerCapturing IsImageTriggerDetecting "
    "IsMouseDragging IsAutoFocussing IsNotlivePage IsNotLiveAndDeviceSettingPage IsPrefDialogOpening "
    "IsModalDialogOpening IsPhaseAdjusting IsFullScreen IsModalessDialogTextFocussing IsShading IsQmon "
    "IsActiveZelOnQmon IsQmonLockDevice IsAllQmonLockDevice IsOtherPluginOpen IsNotCurrentAutoFocus Is2DFile "
    "Is3DFile "
    "IsNt3DFile IsImageOverlayEx IsOpenExceptFilecontrol IsAssigningPointMe IsAssigningPointOther "
    "IsDisplayingPersmatch IsLimited3DTool IsAutoExpoting HideTriggerTest IsLutCurve IsSuspendReduce");

QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

const QString kUpdateAll = QStringLiteral("HostApplication.updateAll");
const QString kHandleError = QStringLiteral("HostApplication.handleError");

} // namespace

class tst_Mediator : public QObject {
    Q_OBJECT

private slots:
    void givesTheStatusKeysInTheirOrder() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        const QString text = mediator.getControlStatus();
        QStringList keys;
        QRegularExpressionMatchIterator found =
            QRegularExpression(QStringLiteral("\"(\\w+)\":")).globalMatch(text);
        while (found.hasNext()) {
            keys.append(found.next().captured(1));
        }
        QCOMPARE(keys, kStatusOrder.split(QLatin1Char(' ')));
        QVERIFY(!text.contains(QLatin1Char(' ')) && !text.contains(QLatin1Char('\n')));
        const QJsonObject status = parsed(text);
        for (const QJsonValue value : status) {
            QVERIFY(value.isBool());
        }
        QCOMPARE(status.size(), keys.size());
    }

    void tellsStatesWithAndWithoutADocument() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        rig.host.onGetDocumentCount = [] { return 1; };
        rig.host.onGetRecordingState = [] { return 1; };
        rig.host.onIsQmonRunning = [] { return true; };
        rig.camera.onIsQmonLocked = [] { return true; };
        rig.host.onCountWindows = [](bool, int) { return 3; };
        QJsonObject status = parsed(mediator.getControlStatus());
        QVERIFY(status[QStringLiteral("IsCTSReady")].toBool());
        QVERIFY(!status[QStringLiteral("IsNotRecording")].toBool());
        QVERIFY(status[QStringLiteral("IsQmonLockDevice")].toBool());
        QVERIFY(status[QStringLiteral("IsMultiWindow")].toBool());
        QVERIFY(status[QStringLiteral("Is2DFile")].toBool());
        QVERIFY(status[QStringLiteral("HideTriggerTest")].toBool());

        rig.host.onCurrentDocument = [] { return nullptr; };
        rig.host.onGetDocumentCount = [] { return 0; };
        status = parsed(mediator.getControlStatus());
        QVERIFY(status[QStringLiteral("IsNoneDocument")].toBool());
        for (const char* const key :
             {"Is2DFile", "Is3DFile", "IsCurrentDisconnected", "IsLutCurve", "IsSuspendReduce",
              "IsAssigningPointMe", "IsAssigningPointOther", "IsQmonLockDevice"}) {
            QVERIFY2(!status[QLatin1String(key)].toBool(), key);
        }
    }

    void givesNoStatusAfterAFailure() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        rig.host.calls.failNext(QStringLiteral("HostPlugins.isAdjustingImage"),
                                throwing(std::runtime_error("x")));
        QVERIFY(mediator.getControlStatus().isEmpty());
        QCOMPARE(rig.host.calls.count(kHandleError), 1);
    }

    void listsDevicesAndKeepsGoingAfterOneFails() {
        TestRig rig;
        FakeCamera second(rig.host.calls);
        rig.host.onGetAllKeys = [](bool) { return QList<DOCKEY>{TestRig::kKey, 8}; };
        rig.host.onDocByKey = [&](DOCKEY key, bool) -> DOC_Interface* {
            return key == 8 ? &second : &rig.camera;
        };
        rig.camera.onGetCameraName = [](bool) { return QStringLiteral("<img src=x onerror=alert(1)>"); };
        rig.camera.onGetHeadName = [](bool) { return QString(); };
        rig.camera.onGetDeviceName = [](bool) { return QStringLiteral("HS-1"); };
        rig.camera.onGetWifiState = [] { return 1; };
        second.onIsConnected = [] { return false; };
        second.onGetCameraName = [](bool) -> QString { return QStringLiteral("B"); };
        second.onGetIPAddress = [](bool) -> QString { throw std::runtime_error("link"); };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));

        const QVariantList rows = mediator.getDeviceInfoList(false);
        QCOMPARE(rows.size(), 2);
        const QJsonObject first = parsed(rows.at(0).toString());
        QCOMPARE(first[QStringLiteral("key")].toString(), QStringLiteral("7"));
        QCOMPARE(first[QStringLiteral("cameraname")].toString(),
                 QStringLiteral("<img src=x onerror=alert(1)>"));
        QCOMPARE(first[QStringLiteral("devicename")].toString(), QStringLiteral("HS-1"));
        QVERIFY(first[QStringLiteral("headno")].isDouble());
        QCOMPARE(first[QStringLiteral("found")].toString(), QStringLiteral("found"));
        QCOMPARE(first[QStringLiteral("con-wifi")].toString(), QStringLiteral("connected"));
        const QJsonObject broken = parsed(rows.at(1).toString());
        QCOMPARE(broken[QStringLiteral("cameraname")].toString(), QStringLiteral("B"));
        QCOMPARE(broken[QStringLiteral("found")].toString(), QString());
        QVERIFY(!broken.contains(QStringLiteral("headno")));
        QCOMPARE(rig.host.calls.count(kHandleError), 1);

        rig.host.onGetPrefBool = [](const QString& key, const QVariant&) {
            return key == QLatin1String("devicemanager/connectedCameraOnlyShowing");
        };
        QCOMPARE(mediator.getDeviceInfoList(true).size(), 1);
        QCOMPARE(mediator.getDeviceInfoList(false).size(), 2);
        rig.host.onGetMode = [] { return int(HOST_MODE_MEMORY); };
        QCOMPARE(mediator.getDeviceInfoList(true).size(), 2);
    }

    void updatesBehindASetterOnlyIfTold() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        LogCapture log;
        mediator.setPrefBool(QStringLiteral("a/b"), true, false);
        QCOMPARE(rig.host.calls.count(kUpdateAll), 0);
        QVERIFY(log.lines().isEmpty());
        mediator.setPrefBool(QStringLiteral("a/b"), true);
        QCOMPARE(rig.host.calls.names().last(), kUpdateAll);
        QCOMPARE(rig.host.calls.lastArgs(kUpdateAll), QVariantList({63, true}));
        QCOMPARE(log.lines().first().text, QStringLiteral("[ENTER] \"JS_Mediator::setPrefBool\" \"\""));
        mediator.setPrefDQString(QStringLiteral("a/c"), QStringLiteral("t"), false);
        QCOMPARE(rig.host.calls.names().last(), QStringLiteral("HostApplication.setPref"));
    }

    void updatesBeforeItLogsTheEndAlsoBehindAFailure() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        LogCapture log;
        rig.host.onUpdateAll = [](int, bool) { qInfo() << "updated"; };
        rig.host.calls.failNext(QStringLiteral("HostPlugins.closePlugin"), throwing(std::runtime_error("x")));
        mediator.closePlugin(QStringLiteral("zoom"));
        QStringList texts;
        for (const LogCapture::Line& line : log.lines()) {
            texts.append(line.text);
        }
        QCOMPARE(texts, QStringList({QStringLiteral("[ENTER] \"JS_Mediator::closePlugin\" \"[name:zoom]\""),
                                     QStringLiteral("updated"),
                                     QStringLiteral("[LEAVE] \"JS_Mediator::closePlugin\"")}));
        QCOMPARE(rig.host.calls.count(kHandleError), 1);
        QCOMPARE(rig.host.calls.lastArgs(QStringLiteral("HostApplication.deterUpdateUI")),
                 QVariantList({false})); // the hold is undone too
    }

    void selectsByKeyWithUpdatesHeldBack() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        mediator.setSelectDoc(QStringLiteral("abc"));
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostDocuments.setSelection")), 0);
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
        rig.host.calls.clear();
        mediator.setSelectDoc(QStringLiteral("12"));
        QCOMPARE(rig.host.calls.names(),
                 QStringList({QStringLiteral("HostApplication.deterUpdateUI"),
                              QStringLiteral("HostDocuments.setSelection"), kUpdateAll,
                              QStringLiteral("HostApplication.deterUpdateUI")}));
        rig.host.calls.clear();
        rig.host.onGetCurrentKey = [] { return kInvalidDockey; };
        mediator.selectAllDocs();
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostDocuments.selectAll")), 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostDocuments.setCurrentKey")), 0);
    }

    void showsHowTheImageStands() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QCOMPARE(mediator.getRangeMax(), 255);
        rig.host.onGetPrefBool = [](const QString&, const QVariant&) { return true; };
        rig.host.onGetBitDepth = [] { return 12; };
        QCOMPARE(mediator.getRangeMax(), 4095);
        rig.host.onGetFlipA = [](DOCKEY) { return true; };
        rig.host.onGetFlipB = [](DOCKEY) { return true; };
        rig.host.onGetRotation = [](DOCKEY) { return 0.75F; };
        QCOMPARE(mediator.getFlip(), QStringLiteral("3"));
        QCOMPARE(mediator.getRotate(), QStringLiteral("270"));
        rig.host.calls.failNext(QStringLiteral("HostViews.getRotation"), throwing(std::runtime_error("x")));
        QCOMPARE(mediator.getRotate(), QStringLiteral("0"));

        rig.host.onGetPrefInt = [](const QString&, const QVariant&) { return 1; };
        const QJsonArray units = QJsonDocument::fromJson(mediator.getCalibrationUnits().toUtf8()).array();
        QCOMPARE(units.size(), 3);
        QCOMPARE(units.at(0).toObject()[QStringLiteral("value")].toString(),
                 QStringLiteral("Micro (\u00b5m)"));
        QCOMPARE(units.at(0).toObject()[QStringLiteral("view")].toString(), QStringLiteral("\u00b5m"));
    }

    void translatesBothTextsBeforeItFillsThePlace() {
        TestRig rig;
        rig.host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QCOMPARE(mediator.translate(QStringLiteral("lock %1 now"), QStringLiteral("all")),
                 QStringLiteral("LOCK ALL NOW"));
    }

    void restartsTheLiveImageForBinningOnly() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        mediator.openPlugin(QStringLiteral("zoom"));
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostLive.suspendLive")), 0);
        rig.host.onIsRestartNeeded = [] { return true; };
        rig.host.onGetSelectedCameraKeys = [](int) { return QList<DOCKEY>{TestRig::kKey}; };
        mediator.openPlugin(QStringLiteral("binning"));
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostLive.suspendLive")), 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("DOC_Transfer.restartTransfer")), 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostLive.resumeLive")), 1);
        QVERIFY(rig.mutex.tryLock()); // the guard gave it back
        rig.mutex.unlock();
        rig.host.calls.clear();
        rig.mutex.lock(); // a busy paint thread: the guard goes on without the lock
        mediator.openPlugin(QStringLiteral("binning"));
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostPlugins.openPlugin")), 1);
        rig.mutex.unlock();
    }

    void bracketsAChangeByModeAndFlags() {
        TestRig rig;
        const auto callsOf = [&rig](bool refreshSettings) {
            rig.host.calls.clear();
            { const LiveSuspendGuard guard(&rig.host, refreshSettings, false); }
            QStringList names;
            for (const QString& name : rig.host.calls.names()) {
                if (!name.contains(QLatin1String("isLiveMode")) && !name.contains(QLatin1String("Mutex"))) {
                    names.append(name.section(QLatin1Char('.'), 1));
                }
            }
            return names.join(QLatin1Char(' '));
        };
        QCOMPARE(callsOf(true),
                 QStringLiteral("prepareRefreshDocuments prepareRefreshViews stopLiveForRefresh "
                                "resumeLive refreshDocuments refreshViews"));
        QCOMPARE(rig.host.calls.lastArgs(QStringLiteral("HostLive.stopLiveForRefresh")),
                 QVariantList({false, true, true}));
        QCOMPARE(callsOf(false), QStringLiteral("suspendLive resumeLive"));
        rig.host.onIsLiveMode = [] { return false; };
        QCOMPARE(callsOf(true), QStringLiteral("pausePlayback resumePlayback"));

        rig.host.calls.failNext(QStringLiteral("HostPlayer.pausePlayback"),
                                throwing(std::runtime_error("x")));
        QVERIFY_EXCEPTION_THROWN(LiveSuspendGuard(&rig.host, false, false), std::runtime_error);
        QVERIFY(rig.mutex.tryLock()); // given back although the guard never stood
        rig.mutex.unlock();
    }

    void worksWithoutAPlugin() {
        TestRig rig;
        JS_Mediator_Plugin mediator(&rig.host, QStringLiteral("livecontrol"), nullptr);
        mediator.onOpen();
        mediator.onReset();
        mediator.onClosed();
        mediator.undo();
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostHistory.undo")), 1);
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
        rig.host.onCurrentDocument = [] { return nullptr; };
        QVERIFY(!mediator.isCurrentDummy());
        QCOMPARE(mediator.name(), QStringLiteral("livecontrol"));
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
    }

    void logsAUserOperationWithFiveItems() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        LogCapture log;
        mediator.userOperationLogWebView(QStringLiteral("qrc:/a.html"), QStringLiteral("clicked"),
                                         QStringLiteral("Button"), QStringLiteral("ok"),
                                         QStringLiteral("big"), {});
        mediator.userOperationLogWebView(QStringLiteral("u"), QStringLiteral("changed"),
                                         QStringLiteral("Select"), QString(), QStringLiteral("big"), 3);
        mediator.userOperationLogWebView(QStringLiteral("u"), QStringLiteral("clicked"),
                                         QStringLiteral("Link"), QString(), QString(), {});
        mediator.userOperationErrorLog(QStringLiteral("oops"));
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral(
                     "[USER] \"[URL:qrc:/a.html] [ID:ok] [Control:Button] [Operation:clicked] [Value:] \""));
        QVERIFY(log.lines().at(1).text.contains(QStringLiteral("[Class:big] [Control:Select]")));
        QVERIFY(log.lines().at(1).text.contains(QStringLiteral("[Value:3]")));
        QVERIFY(log.lines().at(2).text.contains(QStringLiteral("[ID:] ")));
        QCOMPARE(log.lines().at(3).type, QtCriticalMsg);
        QVERIFY(log.lines().at(3).text.startsWith(QStringLiteral("[USER][ERROR] ")));
    }
};

QTEST_MAIN(tst_Mediator)
#include "tst_mediator.moc"
