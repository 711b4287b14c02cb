// Variable channels: what goes to the host in which order, and what comes back.

#include "tests/support/LogCapture.h"
#include "tests/unit/live/VariableTest.h"

#include <QtTest>
#include <stdexcept>

class tst_VariableSlots : public QObject, private VariableTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void tellsTheChannelInForce() {
        QCOMPARE(m_live->getCurrentVariableInfo(),
                 QStringLiteral("{\"ChannelInfo\":\"\",\"DSShuterMode\":\"\",\"Supported\":true}"));
        m_rig->host.onGetVariableChannel = [] { return 3U; };
        m_rig->camera.onGetVariableChannelText = [](unsigned channel, QString& text, bool* registered, int) {
            text = QStringLiteral("3: small");
            if (registered) {
                *registered = channel == 3;
            }
        };
        m_rig->camera.onGetVariableChannelInfo = [](unsigned, VariableChannelInfo& info) {
            info.shutterMode = 18;
        };
        QJsonObject info = parsed(m_live->getCurrentVariableInfo());
        QCOMPARE(info[QStringLiteral("ChannelInfo")].toString(), QStringLiteral("3: small"));
        QCOMPARE(info[QStringLiteral("DSShuterMode")].toString(), QStringLiteral("true"));
        QVERIFY(parsed(m_live->getVariableInfo(3))[QStringLiteral("Registered")].toBool());

        // Below the first channel the document isn't asked.
        m_rig->host.calls.clear();
        for (const int channel : {0, -1}) {
            info = parsed(m_live->getVariableInfo(channel));
            QVERIFY(!info[QStringLiteral("Registered")].toBool());
            QCOMPARE(info[QStringLiteral("ChannelInfo")].toString(), QString());
        }
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("DOC_Settings.getVariableChannelText")), 0);

        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QVERIFY(!parsed(m_live->getCurrentVariableInfo())[QStringLiteral("Supported")].toBool());
    }

    void entersInTheToldOrder() {
        m_plugin->setSelectArea(QRect(0, 0, 8, 8));
        QVERIFY(m_live->prepareVariableSetting());
        const QStringList expected{
            QStringLiteral("suspendLive"),           QStringLiteral("setVariableSetting"),
            QStringLiteral("setProcessingDisabled"), QStringLiteral("currentDocument"),
            QStringLiteral("beginViewSelection"),    QStringLiteral("getVariableChannel"),
            QStringLiteral("getRecordRate"),         QStringLiteral("getResolution"),
            QStringLiteral("getShutterSpeed"),       QStringLiteral("getTriggerConfig"),
            QStringLiteral("beginVariableSetting"),  QStringLiteral("isLiveMode")};
        const QStringList names = calls();
        QCOMPARE(names.mid(names.indexOf(expected.first()), expected.size()), expected);
        QVERIFY(m_plugin->isSelectAreaNull());
        m_live->setLastPage(2);
        QVERIFY(!m_plugin->isAreaPage()); // a preset can't be edited by hand

        // A page that goes with its camera leaves the lock behind; the next page with an area takes it away.
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->host.onIsHwTriggerSetting = [] { return true; };
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_live->setLastPage(0);
        QVERIFY(!m_plugin->isAreaEditable(&m_rig->camera));
        m_rig->host.onIsAutoExposureSetting = [] { return false; };
        m_live->autoExposureStart();
        QVERIFY(m_plugin->isAreaEditable(&m_rig->camera));
        m_plugin->setVariableAreaLocked(true);
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->host.onIsHwTriggerSetting = [] { return false; };
        m_live->hWImageTriggerStart();
        QVERIFY(m_plugin->isAreaEditable(&m_rig->camera));
    }

    void cancelsAndLeavesInTheToldOrder() {
        enterWithTrigger(4, 1);
        m_trigger.afterFrames = 2;
        const auto run = [this](void (JS_Mediator_LiveControl::*slot)(), const QStringList& expected) {
            m_rig->host.calls.clear();
            (m_live->*slot)();
            const QStringList names = calls();
            const int start = names.indexOf(expected.first());
            QVERIFY(start >= 0);
            QCOMPARE(names.mid(start, expected.size()), expected);
            QVERIFY(names.indexOf(QStringLiteral("resumeLive")) > start); // the stream rests meanwhile
        };
        run(&JS_Mediator_LiveControl::cancelVariableSetting,
            {QStringLiteral("suspendLive"), QStringLiteral("restoreVariableSetting"),
             QStringLiteral("getTriggerConfig"), QStringLiteral("isSameTriggerConfig"),
             QStringLiteral("setTriggerModeSimple")});
        run(&JS_Mediator_LiveControl::finalizeVariableSetting,
            {QStringLiteral("suspendLive"), QStringLiteral("setVariableSetting"),
             QStringLiteral("setProcessingDisabled"), QStringLiteral("currentDocument"),
             QStringLiteral("endViewSelection"), QStringLiteral("getTriggerConfig"),
             QStringLiteral("isSameTriggerConfig"), QStringLiteral("applyTriggerParameter")});
    }

    void tellsWhetherAChannelWasStored() {
        m_live->setVariableChannelInfo(1, 0, 0, 0, 0, 0);
        QVERIFY(m_live->isVariableChannelStored());
        m_rig->host.calls.failNext(operation("setVariableChannelOf"), throwing(std::runtime_error("no")));
        m_live->setVariableChannelInfo(1, 0, 0, 0, 0, 0);
        QVERIFY(!m_live->isVariableChannelStored());
        QCOMPARE(m_rig->host.calls.count(kHandleError), 1);
        m_rig->host.onTranslate = [](const QString& text, const char*, int) { return text.toUpper(); };
        for (const int gone : {-1, 4}) {
            m_live->setVariableChannelInfo(1, 0, 0, 0, 0, 0);
            m_live->setVariableChannelInfo(1, gone, 0, 0, 0, 0);
            QVERIFY(!m_live->isVariableChannelStored());
        }
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.alert")), 2);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostApplication.alert")).at(0).toString(),
                 QStringLiteral("THE CAMERA NO LONGER OFFERS THIS FRAME RATE. CHOOSE IT AGAIN."));
    }

    void staysOutWhenTheHostFails() {
        m_rig->host.calls.failNext(operation("beginVariableSetting"), throwing(std::runtime_error("no")));
        QVERIFY(!m_live->prepareVariableSetting());
        QCOMPARE(m_rig->host.calls.count(kHandleError), 1);
    }

    void handsTheBackupBack() {
        m_rig->host.onGetVariableChannel = [] { return 5U; };
        m_rig->host.onGetRecordRate = [] { return 2000UL; };
        m_rig->host.onGetShutterSpeed = [](int unit) { return unit == 1 ? 4000UL : 1UL; };
        m_rig->host.onGetResolution = [](unsigned& width, unsigned& height) {
            width = 400;
            height = 300;
        };
        VariableBackup given;
        m_rig->host.onRestoreVariableSetting = [&given](const VariableBackup& backup) { given = backup; };
        enterWithTrigger(4, 77);
        m_live->cancelVariableSetting();
        QCOMPARE(given.channel, 5U);
        QCOMPARE(given.recordRate, 2000U);
        QCOMPARE(QSize(int(given.width), int(given.height)), QSize(400, 300));
        QCOMPARE(given.shutter, 4000U);
        QCOMPARE(given.trigger.afterFrames, 77);
        QCOMPARE(count("setTriggerModeSimple"), 0); // nothing changed
    }

    void putsFrameCountsBackOnlyWhereTheyAreTheUsers_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("now");
        QTest::addColumn<int>("expected");
        QTest::newRow("manual, changed") << 4 << 50 << 1;
        QTest::newRow("random manual, changed") << 7 << 50 << 1;
        QTest::newRow("manual, unchanged") << 4 << 100 << 0;
        QTest::newRow("start, changed") << 0 << 50 << 0;
    }
    void putsFrameCountsBackOnlyWhereTheyAreTheUsers() {
        QFETCH(int, mode);
        QFETCH(int, now);
        QFETCH(int, expected);
        enterWithTrigger(mode, 100);
        m_trigger.afterFrames = now;
        m_trigger.lock = 1;
        m_trigger.beforeFrames = 31;
        m_trigger.beforePercent = 12.5F;
        m_trigger.randomFrames = 7;
        m_trigger.randomCount = 3;
        m_live->cancelVariableSetting();
        m_live->setVariableChannelInfo(2, 0, 0, 0, 0, 0);
        m_live->finalizeVariableSetting();
        QCOMPARE(count("setTriggerModeSimple"), expected);
        QCOMPARE(count("applyTriggerParameterOf"), expected);
        QCOMPARE(count("applyTriggerParameter"), expected);
        if (expected > 0) { // the values are those in force, not those of the backup
            const TriggerConfig& t = m_trigger;
            const QVariantList all{t.lock,          t.mode,         t.beforeFrames, t.afterFrames,
                                   t.beforePercent, t.randomFrames, t.randomCount};
            QCOMPARE(m_rig->host.calls.lastArgs(operation("applyTriggerParameter")), all);
            QCOMPARE(m_rig->host.calls.lastArgs(operation("applyTriggerParameterOf")).mid(1), all);
            QCOMPARE(m_rig->host.calls.lastArgs(operation("setTriggerModeSimple")),
                     (QVariantList{t.mode, t.afterFrames, t.randomFrames, t.randomCount}));
        }
    }

    void leavesTheMode() {
        enterWithTrigger(0, 1);
        m_plugin->setVariableAreaLocked(true);
        m_live->setLastPage(2);
        m_live->finalizeVariableSetting();
        const QStringList names = calls();
        QCOMPARE(names.count(QStringLiteral("endViewSelection")), 1);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostPlugins.setVariableSetting")).at(0).toBool(),
                 false);
        const QVariantList freed =
            m_rig->host.calls.lastArgs(QStringLiteral("HostViews.setProcessingDisabled"));
        QCOMPARE(freed.at(0).toBool(), false);
        QCOMPARE(freed.at(1).toStringList(), (QStringList{QStringLiteral("binning"), QStringLiteral("warp"),
                                                          QStringLiteral("lenscalib")}));
        QVERIFY(m_plugin->isAreaPage());
    }

    void storesTheRectangleWhateverThePageSends() {
        m_plugin->setSelectArea(QRect(40, 20, 400, 300));
        m_rig->camera.onMapOriginalToCamera = [](const QPoint& point) { return point + QPoint(8, 6); };
        VariableChannelInfo stored;
        stored.reserved0 = stored.reserved6 = stored.shutterMode = stored.reserved8 = 9;
        m_rig->host.onSetVariableChannelInfoOf = [&](const QList<DOC_Interface*>&, unsigned channel,
                                                     const VariableChannelInfo& info) {
            QCOMPARE(channel, 7U);
            stored = info;
        };
        const LogCapture log;
        m_live->setVariableChannelInfo(7, 2, 1, 2, 3, 4, true);
        QCOMPARE((QList<quint32>{stored.rate, stored.width, stored.height, stored.posX, stored.posY}),
                 (QList<quint32>{2000, 400, 300, 48, 26}));
        QCOMPARE(stored.reserved0 + stored.reserved6 + stored.shutterMode + stored.reserved8, 0U);
        QCOMPARE(m_rig->host.calls.lastArgs(operation("listVariableTargets")).last().toBool(), true);
        QVERIFY(m_rig->host.calls.calledInOrder(
            {operation("setVariableChannelInfoOf"), operation("setVariableChannelOf")}));
        QVERIFY(log.with(QStringLiteral("[ENTER]"))
                    .at(0)
                    .contains(QStringLiteral(
                        "[channel:7] [framerateIndex:2] [width:1] [height:2] [posX:3] [posY:4] "
                        "[applySameCameras:true]")));
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.info")), 0);
    }

    void namesTheCamerasOfABulkSetting() {
        FakeCamera other(m_rig->host.calls);
        m_rig->camera.onGetCameraName = [](bool device) {
            return device ? QStringLiteral("body") : QStringLiteral("Marlin");
        };
        other.onGetCameraName = [](bool) { return QStringLiteral("Plover"); };
        m_rig->host.onListVariableTargets = [&](QList<DOC_Interface*>& list, bool) {
            list = {&m_rig->camera, &other};
        };
        m_live->setVariableChannelInfo(1, 0, 0, 0, 0, 0, true);
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.info")), 1);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostApplication.info")).at(0).toString(),
                 QStringLiteral("The bulk configuration to the following devices has been completed."
                                "\n\tMarlin\n\tPlover"));
    }

    void handsTheLimitsToTheRectangle() {
        const QVariantMap rest = parsed(m_live->getVariableRestriction()).toVariantMap();
        m_live->updateVariableLimit(false, rest);
        QCOMPARE(m_plugin->steps, (QList<int>{4, 2, 100, 50}));
        QCOMPARE(m_plugin->sizes, (QList<QSize>{QSize(800, 600), QSize(100, 50)}));
        QVERIFY(!m_plugin->isCenteredX);
        QVERIFY(m_plugin->isCenteredY);
        QVariantMap free = rest;
        free[QStringLiteral("PosYFree")] = true;
        m_live->updateVariableLimit(true, free);
        QVERIFY(m_plugin->isCenteredX && m_plugin->isCenteredY);
        m_live->updateVariableLimit(false, QVariantMap()); // absent keys count as 0, and as not free
        QVERIFY(m_plugin->isCenteredX);
        QCOMPARE(m_plugin->steps, (QList<int>{0, 0, 0, 0}));
        // The pages of the brightness share the rectangle, which has no center there.
        m_rig->host.onGetAutoExposureInfo = [](AutoExposureInfo&, AutoExposureLimits& limits) {
            limits = {16, 8, 4, 2, 64, 32, 255, 63, 800, 600, 640, 480};
        };
        m_live->getAutoExposureSettings();
        QCOMPARE(m_plugin->steps, (QList<int>{4, 2, 16, 8}));
        QCOMPARE(m_plugin->sizes, (QList<QSize>{QSize(640, 480), QSize(64, 32)}));
        QVERIFY(!m_plugin->isCenteredX && !m_plugin->isCenteredY);
        QCOMPARE(m_rig->host.calls.count(kHandleError), 0);
    }

    void freesTheMouseForTheRectangle() {
        m_live->setLastPage(2);
        m_live->changeVariableResolutionInputType(false);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostDocuments.setActiveTool")).at(0).toString(),
                 QString());
        QVERIFY(m_plugin->isAreaPage());
        m_rig->host.calls.clear();
        m_live->changeVariableResolutionInputType(true);
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostDocuments.setActiveTool")), 0);
        QVERIFY(!m_plugin->isAreaPage());
    }
};

QTEST_MAIN(tst_VariableSlots)
#include "tst_variable_slots.moc"
