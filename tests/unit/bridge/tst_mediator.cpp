#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"
#include "tests/unit/bridge/HostStates.h"

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

QJsonObject flagsAfter(const std::function<void(TestRig&)>& set) {
    TestRig rig;
    if (set) {
        set(rig);
    }
    return parsed(JS_Mediator(&rig.host, QStringLiteral("m")).getControlStatus());
}

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

    // One state of the host at a time, and exactly those flags change that belong to it.
    void tellsEachStateByItsOwnFlags() {
        const QJsonObject before = flagsAfter({});
        for (const State& state : states()) {
            const QJsonObject after = flagsAfter(state.set);
            QStringList changed;
            for (const QString& key : after.keys()) {
                if (after[key] != before[key]) {
                    changed.append(key);
                }
            }
            QStringList expected =
                QString::fromLatin1(state.changed).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            expected.sort();
            QVERIFY2(changed == expected, qPrintable(QStringLiteral("%1: %2").arg(
                                              QLatin1String(state.name), changed.join(QLatin1Char(' ')))));
        }
    }

    void tellsTheStateOfTheDocumentThatIsAskedFor() {
        TestRig rig;
        FakeCamera other(rig.host.calls);
        other.onIsConnected = [] { return false; };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QVERIFY(!parsed(mediator.getControlStatus())[QStringLiteral("IsCurrentDisconnected")].toBool());
        QVERIFY(parsed(mediator.getControlStatus(&other))[QStringLiteral("IsCurrentDisconnected")].toBool());
    }

    void givesNoStatusAfterAFailure() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        rig.host.calls.failNext(QStringLiteral("HostPlugins.isAdjustingImage"),
                                throwing(std::runtime_error("x")));
        QVERIFY(mediator.getControlStatus().isEmpty());
        QCOMPARE(rig.host.calls.count(kHandleError), 1);
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
    }

    void selectsAllAndKeepsTheCurrentDocument() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        const QString getKey = QStringLiteral("HostDocuments.getCurrentKey");
        const QString selectAll = QStringLiteral("HostDocuments.selectAll");
        const QString setKey = QStringLiteral("HostDocuments.setCurrentKey");
        mediator.selectAllDocs();
        QStringList names = rig.host.calls.names();
        QVERIFY(names.indexOf(selectAll) > names.indexOf(getKey));
        QVERIFY(names.indexOf(setKey) > names.indexOf(selectAll));
        QCOMPARE(rig.host.calls.lastArgs(setKey), QVariantList({TestRig::kKey, true}));

        rig.host.calls.clear();
        rig.host.onGetCurrentKey = [] { return kInvalidDockey; };
        mediator.selectAllDocs();
        QCOMPARE(rig.host.calls.count(selectAll), 1);
        QCOMPARE(rig.host.calls.count(setKey), 0);

        // What was current isn't known, so it could not be made current again.
        rig.host.calls.clear();
        rig.host.calls.failNext(getKey, throwing(std::runtime_error("x")));
        mediator.selectAllDocs();
        QCOMPARE(rig.host.calls.names(), QStringList({getKey, kHandleError}));
    }

    void opensThePreferencesOnTheTranslatedPage() {
        TestRig rig;
        rig.host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        const QString prepare = QStringLiteral("HostCameraControl.prepareSettingsDialog");
        QCOMPARE(mediator.openPrefsDialog(QStringLiteral("s_io")), 1);
        QCOMPARE(rig.prefsDialog.page, QStringLiteral("S_IO"));
        QCOMPARE(rig.host.calls.count(prepare), 1);
        rig.host.onIsLiveMode = [] { return false; };
        mediator.openPrefsDialog(QString());
        QCOMPARE(rig.prefsDialog.page, QString());
        QCOMPARE(rig.host.calls.count(prepare), 1);
    }

    void takesTheToolsAway() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        mediator.setDisableAllQuickTool();
        QCOMPARE(rig.host.calls.names(), QStringList({QStringLiteral("HostDocuments.setActiveTool"),
                                                      QStringLiteral("HostDocuments.setToolsDisabled"),
                                                      QStringLiteral("HostApplication.refreshTools")}));
    }

    void readsTextsAndTheStyleWithTheirDefaults() {
        TestRig rig;
        LogCapture log;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QCOMPARE(mediator.getStyle(), QStringLiteral("dark")); // nothing is stored
        QCOMPARE(mediator.load(QStringLiteral("no/such.html")), QString());
        QCOMPARE(log.lines().size(), 1);
        QCOMPARE(log.lines().first().type, QtWarningMsg);
        QCOMPARE(log.with(QStringLiteral("not found \":/no/such.html\"")).size(), 1);
        QCOMPARE(rig.host.calls.count(kHandleError), 0);
    }

    void writesNumbersAsTheUserWantsThem() {
        QLocale::setDefault(QLocale(QLocale::English));
        TestRig rig;
        rig.host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        QCOMPARE(mediator.formatFrames(12345, true), QStringLiteral("12345 frames"));
        setPrefs(rig, {QStringLiteral("display/frameInsertDelimiter")});
        QCOMPARE(mediator.formatFrames(12345, false), QStringLiteral("12,345"));
        QCOMPARE(mediator.formatFrames(0, true), QStringLiteral("0 frames"));
        QCOMPARE(mediator.formatRecordRate(12345, true), QStringLiteral("12345 FPS"));
        setPrefs(rig, {QStringLiteral("display/recordRateInsertDelimiter")});
        QCOMPARE(mediator.formatRecordRate(12345, false), QStringLiteral("12,345"));
        QCOMPARE(mediator.formatRecordRate(0, true), QString());
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
        rig.host.onGetSelectedCameraKeys = [](int) { return QList<DOCKEY>{TestRig::kKey}; };
        mediator.openPlugin(QStringLiteral("binning")); // which its cameras take as they are
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostLive.resumeLive")), 1);
        QCOMPARE(rig.host.calls.count(QStringLiteral("DOC_Transfer.restartTransfer")), 0);
        rig.host.calls.clear();
        rig.host.onIsRestartNeeded = [] { return true; };
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
        rig.host.calls.clear();
        rig.host.onIsRestartNeeded = []() -> bool { throw std::runtime_error("restart"); };
        mediator.openPlugin(QStringLiteral("binning"));
        QCOMPARE(rig.host.calls.count(QStringLiteral("HostLive.resumeLive")), 1);
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
