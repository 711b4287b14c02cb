#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/interface/records.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QtTest>
#include <stdexcept>

namespace {
const QString kApply = QStringLiteral(
    R"({"AutoExposureOn":true,"AutoExposureValue":128,"AutoExposureRange":20,"AutoExposureMaxTime":%1,)"
    R"("ShowHistgram":true,"AutoExposureArea":{"Width":1,"Height":1},"AutoExposurePos":{"X":1,"Y":1}})");
} // namespace

class tst_ExposureSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

    AutoExposureInfo m_camera;
    AutoExposureLimits m_limits;
    AutoExposureInfo m_sent;

    QJsonObject settings() { return parsed(m_live->getAutoExposureSettings()); }
    QJsonObject part(const char* name) { return settings()[QLatin1String(name)].toObject(); }

    void fillHost() {
        m_camera = {320, 256, 640, 512, 512, 8, 2000};
        m_limits = {16, 8, 16, 8, 64, 32, 1023, 63, 1280, 1024, 1280, 1024};
        m_sent = AutoExposureInfo();
        m_rig->host.onGetAutoExposureInfo = [this](AutoExposureInfo& current, AutoExposureLimits& limits) {
            current = m_camera;
            limits = m_limits;
        };
        m_rig->host.onSetAutoExposureInfo = [this](const AutoExposureInfo& info) { m_sent = info; };
        m_rig->host.onGetAutoExposureMaxTimeList = [](int unit, QList<unsigned long>& list) {
            list = unit == 1 ? QList<unsigned long>{1000, 2000, 5000} : QList<unsigned long>{10, 20, 50};
        };
        m_rig->host.onGetBitDepth = [] { return 12; };
        m_rig->camera.onIsFunctionSupported = [](int, bool) { return false; };
        m_rig->camera.onMapOriginalToUserview = [](const QPointF& p, int) { return p; };
        m_rig->camera.onMapUserviewToOriginal = [](const QPointF& p) { return p; };
        m_rig->camera.onMapCameraToOriginal = [](const QPoint& p, bool) { return p + QPoint(4, 4); };
        m_rig->camera.onMapOriginalToCamera = [](const QPoint& p) { return p - QPoint(4, 4); };
    }

private slots:
    void init() {
        setUp();
        fillHost();
    }
    void cleanup() { tearDown(); }

    void takesTheCamerasAreaOnce() {
        QVERIFY(m_live->unsetSelectArea());
        const QJsonObject seen = parsed(m_live->convertUserviewRect(1, 2, 30, 40));
        QCOMPARE(QSize(seen[QStringLiteral("Width")].toInt(), seen[QStringLiteral("Height")].toInt()),
                 QSize(30, 40));
        QCOMPARE(part("AutoExposurePos")[QStringLiteral("X")].toInt(), 644);
        QVERIFY(!m_live->unsetSelectArea());
        QCOMPARE(m_plugin->getSelectArea(), QRect(644, 516, 320, 256));
        m_camera.posX = 0;
        QCOMPARE(part("AutoExposurePos")[QStringLiteral("X")].toInt(), 644);
        m_live->resetSelectArea();
        QVERIFY(m_live->unsetSelectArea());
    }

    void movesAnAreaThatStandsOut() {
        // The size is cut first, then the place moved back, then lowered onto its grid.
        m_camera.posX = 1100;
        m_camera.width = 300;
        m_camera.height = 5000;
        settings();
        QCOMPARE(m_plugin->getSelectArea(), QRect(976, 0, 300, 1024));
    }

    void showsLevelsOnThePagesScale() {
        QJsonObject value = part("AutoExposureValue");
        QCOMPARE(value[QStringLiteral("Value")].toInt(), 128);
        QCOMPARE(value[QStringLiteral("Max")].toInt(), 255);
        QCOMPARE(value[QStringLiteral("Step")].toInt(), 4);
        QCOMPARE(part("AutoExposureRange")[QStringLiteral("Value")].toInt(), 32);
        m_rig->host.onGetPrefBool = [](const QString& name, const QVariant& fallback) {
            return name.endsWith(QLatin1String("RealBitDepth")) || fallback.toBool();
        };
        QCOMPARE(part("AutoExposureValue")[QStringLiteral("Max")].toInt(), 4095);
        QCOMPARE(part("AutoExposureValue")[QStringLiteral("Step")].toInt(), 64);
        m_limits.valueMax = m_limits.rangeMax = 4095;
        value = part("AutoExposureValue"); // the same scale
        QCOMPARE(value[QStringLiteral("Value")].toInt(), 512);
        QCOMPARE(value[QStringLiteral("Step")].toInt(), 1);
        m_rig->camera.onIsFunctionSupported = [](int code, bool) { return code == 145; };
        m_rig->camera.onGetAutoExposureUpperLimit = [] { return 3840; };
        QCOMPARE(part("AutoExposureRange")[QStringLiteral("Max")].toInt(), 3840);
        m_rig->host.onGetPrefBool = [](const QString&, const QVariant& fallback) {
            return fallback.toBool();
        };
        QCOMPARE(m_live->getAutoExposureUpperLimit(), 240);
        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QVERIFY(!m_live->hasAutoExposureUpperLimit());
        QCOMPARE(m_live->getAutoExposureUpperLimit(), 256);
    }

    void turnsTheLimitsOfThePageAlone() {
        m_rig->camera.onIsAxisSwapped = [] { return true; };
        m_limits.widthFrameMax = 1400;
        m_limits.heightFrameMax = 1000;
        m_rig->camera.onMapOriginalToUserview = [](const QPointF& p, int) {
            return QPointF(1024 - p.y(), p.x());
        };
        const QJsonObject all = settings();
        const QJsonObject size = all[QStringLiteral("AutoExposureArea")].toObject();
        QCOMPARE(size[QStringLiteral("Width")].toInt(), 256);
        QCOMPARE(size[QStringLiteral("WidthMax")].toInt(), 1024);
        QCOMPARE(size[QStringLiteral("WidthFrameMax")].toInt(), 1000);
        QCOMPARE(size[QStringLiteral("HeightFrameMax")].toInt(), 1400);
        QCOMPARE(size[QStringLiteral("HeightMin")].toInt(), 64);
        QCOMPARE(size[QStringLiteral("HeightStep")].toInt(), 16);
        const QJsonObject place = all[QStringLiteral("AutoExposurePos")].toObject();
        QCOMPARE(place[QStringLiteral("X")].toInt(), 1024 - 516 - 256);
        QCOMPARE(place[QStringLiteral("YStep")].toInt(), 16);
        // What the page shows comes back as what it was.
        const QRect before = m_plugin->getSelectArea();
        m_rig->camera.onMapUserviewToOriginal = [](const QPointF& p) { return QPointF(p.y(), 1024 - p.x()); };
        m_live->sendSelectArea(m_live->recvSelectArea());
        QCOMPARE(m_plugin->getSelectArea(), before);
    }

    void sendsThePluginsAreaAndRawValues() {
        LogCapture log;
        m_live->sendSelectArea(QStringLiteral(R"({"X":100,"Y":60,"Width":160,"Height":80})"));
        m_live->setAutoExposure(kApply.arg(2));
        QCOMPARE(QRect(int(m_sent.posX), int(m_sent.posY), int(m_sent.width), int(m_sent.height)),
                 QRect(96, 56, 160, 80));
        QCOMPARE(m_sent.value, 512U);
        QCOMPARE(m_sent.range, 5U);
        QCOMPARE(m_sent.maxTime, 5000U);
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setAutoExposureOn")), QVariantList{true});
        QCOMPARE(lastArgs(QStringLiteral("HostApplication.setPref")),
                 (QVariantList{QStringLiteral("autoexposure/showhistogram"), true}));
        QCOMPARE(count("HostApplication.updateAll"), 1);
        QVERIFY(log.lines().at(0).text.contains(QStringLiteral("[autoExposureJSON:")));
    }

    void showsTheAreaThatTheCameraTook() {
        m_live->sendSelectArea(QStringLiteral(R"({"X":100,"Y":60,"Width":640,"Height":480})"));
        m_rig->host.onSetAutoExposureInfo = [this](const AutoExposureInfo& info) {
            m_camera = info;
            m_camera.width = 512; // all that it has room for
        };
        m_live->setAutoExposure(kApply.arg(0));
        QCOMPARE(m_plugin->getSelectArea(), QRect(100, 60, 512, 480));
        // Also when the host tells of it as of a failure.
        m_rig->host.onSetAutoExposureInfo = [this](const AutoExposureInfo& info) {
            m_camera = info;
            m_camera.height = 256;
            throw std::runtime_error("took another");
        };
        m_live->setAutoExposure(kApply.arg(0));
        QCOMPARE(m_plugin->getSelectArea(), QRect(100, 60, 512, 256));
        QCOMPARE(count("HostApplication.handleError"), 1);
        // A refused one stays to be corrected.
        m_live->sendSelectArea(QStringLiteral(R"({"X":0,"Y":0,"Width":640,"Height":480})"));
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setAutoExposureInfo"),
                                   throwing(std::runtime_error("refused")));
        m_live->setAutoExposure(kApply.arg(0));
        QCOMPARE(m_plugin->getSelectArea(), QRect(0, 0, 640, 480));
    }

    void readsNoTimeBehindTheList() {
        for (const int row : {3, -1}) {
            m_live->setAutoExposure(kApply.arg(row));
            QCOMPARE(m_sent.maxTime, 2000U); // as it was
        }
        m_rig->host.onGetAutoExposureMaxTimeList = [](int, QList<unsigned long>& list) { list.clear(); };
        m_live->setAutoExposure(kApply.arg(0));
        QCOMPARE(m_sent.maxTime, 2000U);
        const QJsonObject times = part("AutoExposureMaxTime");
        QCOMPARE(times[QStringLiteral("SelectValue")].toInt(), -1);
        QVERIFY(times[QStringLiteral("AutoExposureMaxTimes")].toArray().isEmpty());
    }

    void listsTheTimes() {
        const QJsonObject times = part("AutoExposureMaxTime");
        QCOMPARE(times[QStringLiteral("SelectValue")].toInt(), 1);
        const QJsonObject row = times[QStringLiteral("AutoExposureMaxTimes")].toArray().at(2).toObject();
        QCOMPARE(row[QStringLiteral("Value")].toString(), QStringLiteral("2"));
        QCOMPARE(row[QStringLiteral("Text")].toString(), QStringLiteral("1/5000 sec"));
        m_rig->host.onGetPrefInt = [](const QString&, const QVariant&) { return 0; };
        const QJsonObject shown = part("AutoExposureMaxTime"); // in the unit of the shutter's box
        QCOMPARE(shown[QStringLiteral("AutoExposureMaxTimes")][2][QStringLiteral("Text")].toString(),
                 QStringLiteral("1/50 sec"));
        QCOMPARE(shown[QStringLiteral("SelectValue")].toInt(), 1);
    }

    // As the page is entered and left, and as its box is ticked.
    void theHistogramShowsAsItsBoxSays() {
        m_rig->host.onGetPrefBool = [](const QString& name, const QVariant& fallback) {
            return name == QLatin1String("autoexposure/showhistogram") || fallback.toBool();
        };
        m_plugin->createWidget();
        m_live->autoExposureStart();
        QVERIFY(!m_plugin->getWidget()); // of the page before
        QCOMPARE(lastArgs(QStringLiteral("HostDocuments.setActiveTool")), QVariantList{QString()});
        QVERIFY(settings()[QStringLiteral("ShowHistgram")].toBool());
        QVERIFY(m_plugin->getOverlayEnabled());
        m_live->setHistgramVisible(false);
        QVERIFY(!m_plugin->getOverlayEnabled());
        QVERIFY(!settings()[QStringLiteral("ShowHistgram")].toBool());
        m_plugin->createWidget();
        m_live->autoExposureEnd();
        QVERIFY(!m_plugin->getWidget());
    }

    void leavesWhatRanBeforeAFailure() {
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setAutoExposureInfo"),
                                   throwing(std::runtime_error("refused")));
        m_live->setAutoExposure(kApply.arg(0));
        QCOMPARE(count("HostCameraControl.setAutoExposureOn"), 1);
        QCOMPARE(count("HostApplication.setPref"), 0);
        QCOMPARE(count("HostApplication.handleError"), 1);
        QCOMPARE(count("HostApplication.updateAll"), 1);
        m_live->setAutoExposure(QStringLiteral("no object"));
        QCOMPARE(count("HostCameraControl.setAutoExposureOn"), 1);
    }

    void givesNoSettingsWithoutTheirLimit() {
        m_rig->camera.onIsFunctionSupported = [](int, bool) { return true; };
        m_rig->host.calls.failNext(QStringLiteral("DOC_Settings.getAutoExposureUpperLimit"),
                                   throwing(std::runtime_error("no answer")));
        QVERIFY(m_live->getAutoExposureSettings().isEmpty());
        QCOMPARE(count("HostApplication.handleError"), 1);
    }

    void entersAndLeavesTheMode() {
        settings();
        m_rig->host.onIsAutoExposureOn = [] { return true; };
        m_rig->host.calls.clear();
        m_live->autoExposureStart();
        QVERIFY(m_live->unsetSelectArea());
        QVERIFY(settings()[QStringLiteral("AutoExposureOn")].toBool());
        m_live->setAutoExposureSwitch(false);
        QVERIFY(!settings()[QStringLiteral("AutoExposureOn")].toBool());
        const QStringList names = m_rig->host.calls.names();
        QVERIFY(m_rig->host.calls.calledInOrder({QStringLiteral("HostLive.suspendLive"),
                                                 QStringLiteral("HostPlugins.setAutoExposureSetting"),
                                                 QStringLiteral("HostLive.resumeLive")}));
        QCOMPARE(names.count(QStringLiteral("HostLive.resumeLive")), 1);
        QCOMPARE(names.count(QStringLiteral("DOC_Transfer.beginViewSelection")), 1);
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->host.calls.clear();
        m_live->autoExposureStart(); // again: the area stays
        QVERIFY(!m_live->unsetSelectArea());
        QCOMPARE(count("HostViews.setProcessingDisabled"), 0);
        m_live->autoExposureEnd();
        QVERIFY(!m_live->unsetSelectArea());
        QCOMPARE(
            m_rig->host.calls.lastArgs(QStringLiteral("HostViews.setProcessingDisabled"))
                .at(1)
                .toStringList(),
            QStringList({QStringLiteral("binning"), QStringLiteral("warp"), QStringLiteral("lenscalib")}));
        QCOMPARE(
            m_rig->host.calls.lastArgs(QStringLiteral("HostPlugins.setAutoExposureSetting")).at(0).toBool(),
            false);
    }

    void answersWithoutADocument() {
        m_rig->host.onCurrentDocument = [] { return nullptr; };
        QVERIFY(m_live->getAutoExposureSettings().isEmpty());
        QVERIFY(m_live->recvSelectArea().isEmpty());
        m_live->sendSelectArea(QStringLiteral("{}"));
        m_live->setAutoExposure(kApply.arg(0));
        m_live->autoExposureStart();
        m_live->autoExposureEnd();
        QCOMPARE(count("HostApplication.handleError"), 0);
        QCOMPARE(count("HostCameraControl.setAutoExposureInfo"), 0);
    }
};

QTEST_MAIN(tst_ExposureSlots)
#include "tst_exposure_slots.moc"
