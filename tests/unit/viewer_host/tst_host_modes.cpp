// What goes with a page that edits, with a tool or with a preference, and goes back with it.

#include "livecontrol/interface/records.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/cameras/CameraHead.h"

#include <QTemporaryDir>
#include <QUndoCommand>
#include <QtTest>

class tst_HostModes : public QObject {
    Q_OBJECT

private slots:
    // A block shows where a camera has its function, and no other's.
    void eachLevelIsThatOfItsFunction() {
        HostTest test;
        ViewerHost& host = test.host;
        const std::initializer_list<std::pair<CameraFunction, std::function<int()>>> levels{
            {CameraFunction::ShutterLock, [&] { return host.existSupportedShutterLockMode(); }},
            {CameraFunction::ResolutionLock, [&] { return host.existResolutionLockMode(); }},
            {CameraFunction::DualSlope, [&] { return host.existSupportedDSShutter(); }},
            {CameraFunction::DualSlopeMode, [&] { return host.existSupportedDSShutterMode(); }},
            {CameraFunction::AutoExposure, [&] { return host.existSupportedAutoExposure(); }},
            {CameraFunction::ImageTrigger, [&] { return host.existSupportImageTrigger(); }},
            {CameraFunction::RandomTimes, [&] { return host.existSupportRandomTrgTimes(); }},
            {CameraFunction::LensControl, [&] { return host.existLensControl(); }},
            {CameraFunction::LowLight, [&] { return host.existLowLight(); }},
            {CameraFunction::FanControl, [&] { return host.existFanControl(); }},
            {CameraFunction::HeadLight, [&] { return int(host.existHeadLedLaser()); }},
            {CameraFunction::LiveQuality, [&] { return host.existLiveImageQuality(); }}};
        for (const char* const name : {"Mono", "Colour", "Plain", "Twin"}) {
            test.select({test.camera(name)});
            for (const auto& [function, level] : levels) {
                const bool has = test.head(name).model().supports(function);
                QVERIFY2(level() == (has ? MULTIPLE_DOCS_ALL : MULTIPLE_DOCS_NOTHING),
                         qPrintable(QLatin1String(name) + QLatin1Char(' ') + functionName(function)));
            }
        }
    }

    // What the pages take for their limits and boxes is the current camera's own.
    void theBoxesShowWhatTheCameraHas() {
        HostTest test;
        test.select({test.camera("Twin")});
        ViewerHost& host = test.host;
        SimulatedHead& head = test.head("Twin");
        const CameraModel& model = head.model();
        QCOMPARE((QList<int>{host.getDSShutterMin(), host.getDSShutterMax(), host.getMaxRandomTrgCount(),
                             host.getMaxRandomEndlessTrgCount(), host.getRandomFramesOffset()}),
                 (QList<int>{model.dualSlopeMin, model.dualSlopeMax, model.randomCountMax,
                             model.randomCountMaxAlways, model.randomOffset}));
        LensAxisInfo axes[3];
        host.getLensControlInfo(axes[0], axes[1], axes[2]);
        for (const LensAxis which : {LensAxis::Iris, LensAxis::Focus, LensAxis::Zoom}) {
            const LensAxisInfo& shown = axes[size_t(which)];
            const Lens::Axis axis = head.lens().axis(which);
            QCOMPARE((QList<int>{shown.sliderMin, shown.spinnerMin, shown.sliderMax, shown.spinnerMax,
                                 shown.sliderValue, shown.smallTick, shown.largeTick}),
                     (QList<int>{axis.min, axis.min, axis.max, axis.max, axis.value, axis.smallTick,
                                 axis.largeTick}));
        }
        host.setHeadLedLaser(true, 1);
        QVERIFY(head.settings().led && !head.settings().laser);
        QVERIFY(host.getHeadLedLaser(true) && !host.getHeadLedLaser(false));
        host.setZoomIncremental(2, 1);
        QCOMPARE(head.lens().axis(LensAxis::Zoom).target, axes[2].sliderValue + 2 * axes[2].largeTick);
        host.setFocusIncremental(-2, 0);
        QCOMPARE(head.lens().axis(LensAxis::Focus).target, axes[1].sliderValue - 2 * axes[1].smallTick);
    }

    // The limits are those of the picture, and the longest time comes back as it was sent.
    void theAreaOfTheExposureEndsWithThePicture() {
        HostTest test;
        test.select({test.camera("Mono")});
        test.host.setResolution(640, 480);
        AutoExposureInfo info;
        AutoExposureLimits limits;
        test.host.getAutoExposureInfo(info, limits);
        QCOMPARE(QSize(int(limits.widthMax), int(limits.heightMax)), QSize(640, 480));
        QCOMPARE(QSize(int(limits.widthFrameMax), int(limits.heightFrameMax)), QSize(1280, 1024));
        QList<unsigned long> times;
        test.host.getAutoExposureMaxTimeList(1, times);
        info.maxTime = quint32(times.at(2));
        test.host.setAutoExposureInfo(info);
        QCOMPARE(test.head("Mono").settings().exposure.maxTime, info.maxTime);
        test.host.getAutoExposureInfo(info, limits);
        QCOMPARE(info.maxTime, quint32(times.at(2)));
    }

    void theImageIsWatchedAsLongAsItsPageShows() {
        HostTest test;
        test.select({test.camera("Mono")});
        test.host.setHwTriggerSetting(true);
        test.host.startImageTriggerObserver();
        QVERIFY(test.head("Mono").isImageMonitored());
        // The page asks for the status by itself: an update would take back what is typed there.
        ImageTriggerInfo info;
        ImageTriggerLimits limits;
        test.host.getImageTriggerInfo(info, limits);
        info.range = limits.rangeMax;
        test.host.setImageTriggerInfo(info);
        QCoreApplication::processEvents();
        const int updates = test.shell.pageUpdates;
        const int refreshes = test.shell.viewRefreshes;
        test.head("Mono").setShutter(test.head("Mono").settings().shutter * 50).result();
        test.rig.clock().advanceMs(2000);
        test.head("Mono").setShutter(test.head("Mono").settings().rate).result();
        test.rig.clock().advanceMs(2000);
        QTRY_VERIFY(test.shell.viewRefreshes > refreshes);
        QCOMPARE(test.shell.pageUpdates, updates);
        test.host.setHwTriggerSetting(false);
        QVERIFY(!test.head("Mono").isImageMonitored());
    }

    // A binning that was switched off since does not come back with the next page.
    void aBinningComesBackOnce() {
        HostTest test;
        Document& mono = *test.camera("Mono");
        ViewState view;
        view.binning = 1;
        mono.setView(view);
        for (const int level : {1, 0}) {
            test.host.modes().forbid({QStringLiteral("binning")}, true);
            test.host.modes().forbid({QStringLiteral("binning")}, false);
            QCOMPARE(mono.view().binning, level);
            view.binning = 0;
            mono.setView(view);
        }
    }

    // An update would take back what else was edited on the page.
    void aMoveOfTheAreaUpdatesNoPage() {
        HostTest test;
        test.host.history().pushAreaStep(std::make_unique<QUndoCommand>());
        QCOMPARE(test.shell.pageUpdates, 0);
        QVERIFY(test.shell.viewRefreshes > 0);
        test.host.history().push(std::make_unique<QUndoCommand>());
        QVERIFY(test.shell.pageUpdates > 0);
    }

    void oneCameraIsFocusedAtATime() {
        HostTest test;
        test.select({test.camera("Colour")});
        test.host.openPlugin(QStringLiteral("autofocus"));
        QVERIFY(test.host.isAutoFocussing());
        test.select({test.camera("Mono")});
        QVERIFY_EXCEPTION_THROWN(test.host.openPlugin(QStringLiteral("autofocus")), CameraFailure);
        // Whoever drives the lens by hand ends it.
        test.rig.clock().advanceMs(500);
        test.head("Colour").moveLens(LensAxis::Zoom, 500).result();
        test.rig.clock().advanceMs(1000);
        QCOMPARE(test.shell.busyText, QString());
        test.select({test.camera("Colour")});
        QVERIFY(!test.host.isAutoFocussing() && test.messages.failures.isEmpty());
    }

    void aFanThatIsForcedRuns() {
        HostTest test;
        test.select({test.camera("Mono")});
        int state = -1;
        test.host.setFanControl(false);
        QVERIFY(!test.host.getFanControl(state));
        test.body("Mono")->set(QStringLiteral("temperature"), 70);
        QVERIFY(test.host.getFanControl(state));
        QCOMPARE(state, int(FanForced));
    }

    void theReducedImageIsKept() {
        HostTest test;
        test.host.setLiveImageDataReduceMode(true);
        QVERIFY(test.list.live().isReduced());
        QCOMPARE(test.preferences.values.value(QStringLiteral("live/reduceData")), QVariant(true));
    }

    // The exposure of the live image is for cameras in low light alone; each whole step may calibrate.
    void aShutterInLowLightLeavesTheOthersAlone() {
        HostTest test;
        test.select({test.camera("Mono"), test.camera("Plain")});
        SimulatedHead& mono = test.head("Mono");
        const quint32 plain = test.head("Plain").settings().shutter;
        mono.setLowLight(true).result();
        QVERIFY(mono.shutterList().contains(mono.settings().liveShutter()));
        test.host.setShutterSpeed(8, true);
        QCOMPARE(mono.settings().liveShutter(), 8U);
        QCOMPARE(test.head("Plain").settings().shutter, plain);
        mono.setResolution({640, 480}).result();
        mono.changeFromOutside(QStringLiteral("lowLightType"), int(LowLight::WholeSensor));
        QCOMPARE(mono.liveFrame().image.size(), QSize(1280, 1024));
        mono.changeFromOutside(QStringLiteral("lowLightType"), int(LowLight::Resolution));
        QCOMPARE(mono.liveFrame().image.size(), QSize(640, 480));

        test.preferences.setValue(QStringLiteral("shading/autocalib"), true);
        const auto commands = [&](bool whole) {
            const quint64 before = test.body("Mono")->commandCount();
            test.host.setShutterSpeed(whole ? 15 : 4, whole);
            return int(test.body("Mono")->commandCount() - before);
        };
        QCOMPARE(commands(false), 1);
        QCOMPARE(commands(true), 2);
    }

    void eachPartOfATriggerCounts() {
        HostTest test;
        const TriggerConfig one{4, 1, 10, 20, 33.5F, 0, 30, 2};
        QVERIFY(test.host.isSameTriggerConfig(one, one));
        const auto differs = [&](const std::function<void(TriggerConfig&)>& change) {
            TriggerConfig other = one;
            change(other);
            return !test.host.isSameTriggerConfig(one, other);
        };
        QVERIFY(differs([](TriggerConfig& it) { it.mode = 7; }));
        QVERIFY(differs([](TriggerConfig& it) { it.lock = 2; }));
        QVERIFY(differs([](TriggerConfig& it) { it.beforeFrames = 11; }));
        QVERIFY(differs([](TriggerConfig& it) { it.afterFrames = 21; }));
        QVERIFY(differs([](TriggerConfig& it) { it.beforePercent = 34; }));
        QVERIFY(differs([](TriggerConfig& it) { it.randomFrames = 31; }));
        QVERIFY(differs([](TriggerConfig& it) { it.randomCount = 3; }));
    }

    // Another camera is not where a file says it is: the user is told once, and where his own went.
    void whatWasNotRestoredIsToldOnce() {
        HostTest test;
        QStringList told;
        QObject::connect(&test.list, &DocumentList::told, [&](const QString& text) { told.append(text); });
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("all.zcsx"));
        test.host.saveCameraSettings(path, 0);
        QCOMPARE(told, QStringList{QStringLiteral("The settings are saved: %1").arg(path)});
        test.body("Plain")->unplug();
        test.host.loadCameraSettings(path, 0, 0);
        QVERIFY(test.host.wereSettingsRestored());
        test.host.reportRestoredSettings(true);
        test.host.reportRestoredSettings(true);
        QCOMPARE(test.messages.lists, QStringList{QStringLiteral("Plain: this camera is not connected.")});
    }

    // The first that fails is what is told, and the others open.
    void ofSeveralFilesTheFirstFailureIsTold() {
        HostTest test;
        try {
            test.host.openFiles({QStringLiteral("/no/a.rch"), QStringLiteral("/no/b.rch")}, 1, 1, 1, 0, 0);
            QFAIL("there are no such files");
        } catch (const DOC_FileException& error) {
            QCOMPARE(error.path(), QStringLiteral("/no/a.rch"));
        }
    }
};

QTEST_MAIN(tst_HostModes)
#include "tst_host_modes.moc"
