#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QtTest>
#include <stdexcept>

namespace {
QJsonObject row(const QJsonObject& object, const char* list, int index) {
    return object[QLatin1String(list)].toArray().at(index).toObject();
}
} // namespace

class tst_ShootingSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

    void makeChannelActive(unsigned channel, quint32 width, quint32 height) {
        m_rig->host.onGetVariableChannel = [channel] { return channel; };
        m_rig->host.onGetVariableChannelInfo = [=](unsigned, VariableChannelInfo& info) {
            info.width = width;
            info.height = height;
        };
        m_rig->host.onGetResolution = [=](unsigned& w, unsigned& h) {
            w = width;
            h = height;
        };
    }

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void findsTheCurrentRows() {
        m_rig->host.onGetResolution = [](unsigned& w, unsigned& h) {
            w = 640;
            h = 480;
        };
        const QJsonObject sizes = parsed(m_live->getResolutionSettings());
        QCOMPARE(sizes[QStringLiteral("SelectValue")].toString(), QStringLiteral("1"));
        QVERIFY(sizes[QStringLiteral("Selected")].toBool());
        QCOMPARE(row(sizes, "Resolutions", 0)[QStringLiteral("Width")].toString(), QStringLiteral("1280"));

        // Of two equal rows the later one counts; a value in no row selects nothing.
        m_rig->host.onGetShutterSpeedList = [](int, QList<unsigned long>& list) {
            list = {1000, 1000, 5000};
        };
        m_rig->host.onGetShutterSpeed = [](int) { return 1000UL; };
        QJsonObject shutter = parsed(m_live->getShutterSpeedSettings());
        QCOMPARE(shutter[QStringLiteral("SelectValue")].toString(), QStringLiteral("1"));
        QCOMPARE(row(shutter, "ShutterSpeeds", 2)[QStringLiteral("ShutterSpeed")].toString(),
                 QStringLiteral("1/5000 sec"));
        m_rig->host.onGetShutterSpeed = [](int) { return 777UL; };
        shutter = parsed(m_live->getShutterSpeedSettings());
        QVERIFY(!shutter[QStringLiteral("Selected")].toBool());
        QCOMPARE(shutter[QStringLiteral("SelectValue")].toString(), QStringLiteral("-999"));
        QVERIFY(shutter[QStringLiteral("DSShutterMode")].isDouble());
        // List and value are those of the unit that shows.
        m_rig->host.onGetPrefInt = [](const QString&, const QVariant&) { return 4; };
        m_live->getShutterSpeedSettings();
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.getShutterSpeedList")).at(0).toInt(), 4);
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.getShutterSpeed")).at(0).toInt(), 4);
    }

    void setsTheRowsOfSizeAndRate() {
        m_live->setResolution(1);
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setResolution")), (QVariantList{640U, 480U}));
        m_live->setFrameRate(1);
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setRecordRate")).at(0).toUInt(), 2000U);
    }

    void tellsLevelsAndModesOfTheHost() {
        auto& host = m_rig->host;
        for (const bool on : {false, true}) {
            host.onExistResolutionLockMode = [] { return MULTIPLE_DOCS_CURRENT_AND_ANY; };
            host.onGetResolutionLockMode = [on] { return on; };
            const QJsonObject sizes = parsed(m_live->getResolutionSettings());
            QCOMPARE(sizes[QStringLiteral("ExistResolutionLockMode")].toInt(),
                     int(MULTIPLE_DOCS_CURRENT_AND_ANY));
            QCOMPARE(sizes[QStringLiteral("ResolutionLockMode")], QJsonValue(on));
            host.onExistSupportedShutterLockMode = [] { return MULTIPLE_DOCS_ALL; };
            host.onExistSupportedAutoExposure = [] { return MULTIPLE_DOCS_CURRENT_AND_ANY; };
            host.onExistSupportedDSShutter = [] { return MULTIPLE_DOCS_NOT_IN_CURRENT; };
            host.onExistSupportedDSShutterMode = [] { return MULTIPLE_DOCS_NOTHING; };
            host.onGetShutterLockMode = [on] { return on; };
            host.onGetDSShutterMode = [on] { return !on; };
            host.onIsAutoExposureOn = [on] { return on; };
            host.onIsLowLight = [on] { return !on; };
            const QJsonObject shutter = parsed(m_live->getShutterSpeedSettings());
            QList<int> levels;
            for (const char* const key : {"ShutterLockMode", "AutoExposure", "DSShutter", "DSShutterMode"}) {
                levels.append(shutter[QLatin1String("ExistSupported") + QLatin1String(key)].toInt(-1));
            }
            QCOMPARE(levels, QList<int>({3, 2, 1, 0}));
            QCOMPARE(shutter[QStringLiteral("ShutterLockMode")], QJsonValue(on));
            QCOMPARE(shutter[QStringLiteral("DSShutterMode")], QJsonValue(int(!on)));
            QCOMPARE(shutter[QStringLiteral("AutoExposureOn")], QJsonValue(on));
            QCOMPARE(shutter[QStringLiteral("LowLightMode")], QJsonValue(!on));
            QCOMPARE(parsed(m_live->getFrameRateSettings())[QStringLiteral("LowLightMode")], QJsonValue(!on));
        }
    }

    void labelsAnActiveChannel() {
        makeChannelActive(3, 640, 480);
        m_rig->host.onGetRecordRate = [] { return 2000UL; };
        QJsonObject rates = parsed(m_live->getFrameRateSettings());
        QCOMPARE(rates[QStringLiteral("VariablePrefix")].toString(), QStringLiteral("Channel 3: "));
        QCOMPARE(row(rates, "Framerates", 0)[QStringLiteral("Value")].toString(), QStringLiteral("-999"));
        QCOMPARE(row(rates, "Framerates", 0)[QStringLiteral("Rate")].toString(), QStringLiteral("2000 fps"));
        QCOMPARE(rates[QStringLiteral("SelectValue")].toString(), QStringLiteral("-999"));
        QVERIFY(rates[QStringLiteral("Selected")].toBool());

        m_rig->host.onGetResolutionList = [](QList<ResolutionEntry>&) {};
        const QJsonObject sizes = parsed(m_live->getResolutionSettings());
        QCOMPARE(sizes[QStringLiteral("Resolutions")].toArray().size(), 1);
        QCOMPARE(row(sizes, "Resolutions", 0)[QStringLiteral("Value")].toString(), QStringLiteral("-999"));
        QVERIFY(sizes[QStringLiteral("Selected")].toBool());

        // A size that is not the channel's bears no name.
        m_rig->host.onGetResolution = [](unsigned& w, unsigned& h) { w = h = 512; };
        QCOMPARE(parsed(m_live->getResolutionSettings())[QStringLiteral("VariablePrefix")].toString(),
                 QString());

        for (const unsigned noChannel : {0U, 21U}) {
            makeChannelActive(noChannel, 640, 480);
            rates = parsed(m_live->getFrameRateSettings());
            QVERIFY(rates[QStringLiteral("VariablePrefix")].toString().isEmpty());
            QCOMPARE(rates[QStringLiteral("SelectValue")].toString(), QStringLiteral("1"));
        }
    }

    void takesEmptyListsAsSuch() {
        m_rig->host.onGetRecordRateList = [](QList<unsigned long>&) {};
        QJsonObject rates = parsed(m_live->getFrameRateSettings());
        QVERIFY(rates[QStringLiteral("Framerates")].toArray().isEmpty());
        QVERIFY(!rates[QStringLiteral("Selected")].toBool());
        m_rig->host.onGetRecordRate = [] { return 500UL; };
        rates = parsed(m_live->getFrameRateSettings());
        QCOMPARE(row(rates, "Framerates", 0)[QStringLiteral("Rate")].toString(), QStringLiteral("500 fps"));
        m_live->setFrameRate(0);
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostCameraControl.setRecordRate")), 0);
        QCOMPARE(m_rig->host.calls.count(kHandleError), 0);
    }

    void turnsTheLargestSizeWithTheDocument() {
        m_rig->host.onGetMaxResolution = [](unsigned& w, unsigned& h) {
            w = 1280;
            h = 1024;
        };
        m_rig->camera.onIsAxisSwapped = [] { return true; };
        QCOMPARE(parsed(m_live->getMaxResolution())[QStringLiteral("Width")].toString(),
                 QStringLiteral("1024"));
        QCOMPARE(parsed(m_live->getMaxResolution())[QStringLiteral("Height")].toString(),
                 QStringLiteral("1280"));
        QVERIFY(m_live->isSwapResolution());
        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QCOMPARE(parsed(m_live->getMaxResolution())[QStringLiteral("Width")].toString(),
                 QStringLiteral("1280"));
        QVERIFY(!m_live->isSwapResolution());
    }

    void setsRowsByRawValuesThenUpdates() {
        LogCapture log;
        m_rig->host.onGetPrefInt = [](const QString&, const QVariant&) { return 4; };
        m_live->setShutterSpeed(2);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({QStringLiteral("HostCameraControl.getShutterSpeedList"),
                              QStringLiteral("HostCameraControl.setShutterSpeed"), kUpdateAll}));
        QCOMPARE(
            m_rig->host.calls.lastArgs(QStringLiteral("HostCameraControl.getShutterSpeedList")).at(0).toInt(),
            1);
        const QVariantList set =
            m_rig->host.calls.lastArgs(QStringLiteral("HostCameraControl.setShutterSpeed"));
        QCOMPARE(set.at(0).toULongLong(), 5000ULL);
        QCOMPARE(set.at(1).toBool(), true);
        QCOMPARE(log.lines().at(0).text,
                 QStringLiteral("[ENTER] \"JS_Mediator_LiveControl::setShutterSpeed\" \"[selectValue:2]\""));
        QCOMPARE(log.lines().at(1).text,
                 QStringLiteral("[LEAVE] \"JS_Mediator_LiveControl::setShutterSpeed\""));
    }

    void changesNothingByARowThatIsNotThere() {
        LogCapture log;
        m_live->setResolution(2);
        m_live->setFrameRate(99);
        m_live->setShutterSpeed(ulong(-1));
        for (const char* const setter : {"setResolution", "setRecordRate", "setShutterSpeed"}) {
            QCOMPARE(m_rig->host.calls.count(QLatin1String("HostCameraControl.") + QLatin1String(setter)), 0);
        }
        QCOMPARE(log.with(QStringLiteral("no row")).size(), 3);
        QCOMPARE(m_rig->host.calls.count(kUpdateAll), 3); // the page shows the true state again
    }

    void updatesEvenBehindARefusedCommand() {
        LogCapture log;
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setResolution"),
                                   throwing(std::runtime_error("refused")));
        m_live->setResolution(0);
        QCOMPARE(m_rig->host.calls.names().mid(1),
                 QStringList({QStringLiteral("HostCameraControl.setResolution"), kHandleError, kUpdateAll}));
    }

    void dragsTheDualSlopeWithoutUpdates() {
        m_live->setDSShutterValue(45);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({QStringLiteral("HostCameraControl.setDSShutterValue")}));
        m_rig->host.onGetShutterLockMode = [] { return true; };
        m_live->toggleShutterLockMode();
        QCOMPARE(
            m_rig->host.calls.lastArgs(QStringLiteral("HostCameraControl.setShutterLockMode")).at(0).toBool(),
            false);
        m_rig->host.onGetResolutionLockMode = [] { return true; };
        m_live->toggleResolutionLockMode();
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setResolutionLockMode")), QVariantList{false});
        m_rig->host.onGetDSShutterValue = [] { return 45; };
        m_rig->host.onGetDSShutterMin = [] { return 5; };
        m_rig->host.onGetDSShutterMax = [] { return 95; };
        const QJsonObject slope = parsed(m_live->getDSShutterSettings());
        QCOMPARE((QList<int>{slope[QStringLiteral("Min")].toInt(), slope[QStringLiteral("Value")].toInt(),
                             slope[QStringLiteral("Max")].toInt()}),
                 (QList<int>{5, 45, 95}));
        QCOMPARE(parsed(m_live->getShutterSpeedSettings())[QStringLiteral("DSShutterValue")].toInt(), 45);
    }

    void keepsThePageAndDrivesTheRectangle() {
        auto& live = static_cast<JS_Mediator_LiveControl&>(*m_plugin->getMediator());
        QVERIFY(m_plugin->isSelectAreaNull());
        QVERIFY(!m_plugin->isAreaPage());
        live.setLastPage(2);
        QVERIFY(m_plugin->isAreaPage());
        m_plugin->setVariableAreaLocked(true);
        QVERIFY(!m_plugin->isAreaPage());
        live.setLastPage(4);
        QVERIFY(m_plugin->isAreaPage());
        QCOMPARE(m_plugin->getLastPage(), 4);

        m_plugin->setArea(nullptr, QRect(1, 2, 3, 4), true);
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostApplication.runPageScript")).at(0).toString(),
                 QStringLiteral("livecontrol_obj.recvRectArea();"));
        std::unique_ptr<QThread> other(
            QThread::create([this] { m_plugin->setArea(nullptr, QRect(9, 9, 9, 9), true); }));
        other->start();
        other->wait();
        QCOMPARE(m_plugin->getArea(), QRect(1, 2, 3, 4));
        QCOMPARE(m_rig->host.calls.count(QStringLiteral("HostApplication.runPageScript")), 1);
    }

    void initialisesInTheToldOrder() {
        TestRig rig;
        RUN_ObservePhaseAdjustWarningThread observer;
        rig.host.onGetPhaseAdjustObserver = [&observer] { return &observer; };
        PLG_livecontrol plugin;
        QVERIFY(plugin.getMediator() == nullptr);
        QCOMPARE(plugin.getLastPage(), 0);
        plugin.init(&rig.host);
        QCOMPARE(rig.host.calls.names(),
                 QStringList({QStringLiteral("HostApplication.addMediator"),
                              QStringLiteral("HostApplication.getDialogParent"),
                              QStringLiteral("HostApplication.addMediator"),
                              QStringLiteral("HostDocuments.getPhaseAdjustObserver")}));
        QSignalSpy spy(plugin.getMediator(), SIGNAL(signalPhaseAdjustWarning()));
        emit observer.signalWarning(true);
        QCOMPARE(spy.count(), 1);
        QSignalSpy page(plugin.getMediator(), SIGNAL(signalCallLiveControlPage(int)));
        plugin.callPage(2);
        QCOMPARE(page.takeFirst().at(0).toInt(), 2);
        QVERIFY(plugin.isEnabledInMode(0));
        QVERIFY(!plugin.isEnabledInMode(1));
        QVERIFY(!plugin.isEnabledInMode(7));
    }

    void showsTheRectangleInASettingOnly() {
        QVERIFY(!m_plugin->isAreaShown(&m_rig->camera));
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        QVERIFY(!m_plugin->isAreaEditable(&m_rig->camera));
        m_rig->host.onIsVariableSetting = [] { return true; };
        QVERIFY(m_plugin->isAreaEditable(&m_rig->camera));
        m_plugin->setVariableAreaLocked(true);
        QVERIFY(m_plugin->isAreaShown(&m_rig->camera));
        QVERIFY(!m_plugin->isAreaEditable(&m_rig->camera));
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return false; };
        QVERIFY(!m_plugin->isAreaShown(&m_rig->camera));
        m_rig->host.onIsMultiLock = [] { return true; }; // all views follow the current one
        QVERIFY(m_plugin->isAreaShown(&m_rig->camera));
        m_rig->host.onIsMultiLock = nullptr;
        m_rig->camera.onIsLowLight = [] { return true; };
        m_rig->camera.onGetLowLightType = [] { return 2; };
        QVERIFY(m_plugin->isAreaShown(&m_rig->camera));
    }
};

QTEST_MAIN(tst_ShootingSlots)
#include "tst_shooting_slots.moc"
