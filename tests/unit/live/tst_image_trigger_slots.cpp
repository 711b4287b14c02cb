#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/interface/records.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QtTest>
#include <stdexcept>

namespace {
const QString kApply = QStringLiteral(R"({"HWImageTriggerOn":true,"HWImageTriggerValue":128,)"
                                      R"("HWImageTriggerRange":20,"ShowHistgram":true})");
} // namespace

class tst_ImageTriggerSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

    ImageTriggerInfo m_sent;
    int m_state = 0;

    QJsonObject settings() { return parsed(m_live->getHWImageTriggerSettings()); }

    void fillHost() {
        m_sent = ImageTriggerInfo();
        m_state = 0;
        m_rig->host.onGetImageTriggerInfo = [](ImageTriggerInfo& current, ImageTriggerLimits& limits) {
            current = {320, 256, 640, 512, 512, 8};
            limits = {16, 8, 16, 8, 64, 32, 1023, 63, 1280, 1024, 1280, 1024};
        };
        m_rig->host.onSetImageTriggerInfo = [this](const ImageTriggerInfo& info) { m_sent = info; };
        m_rig->host.onGetImageTriggerState = [this] { return m_state; };
        m_rig->host.onGetBitDepth = [] { return 12; };
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

    void tellsTheStatus() {
        QCOMPARE(m_live->getHWImageTriggerStatus(false), QStringLiteral("--"));
        QCOMPARE(count("HostCameraControl.getImageTriggerState"), 0);
        QCOMPARE(m_live->getHWImageTriggerStatus(true), QStringLiteral("No Trigger"));
        m_state = 1;
        QCOMPARE(m_live->getHWImageTriggerStatus(true), QStringLiteral("Triggered"));
        QCOMPARE(m_live->getHWImageTriggerStatus(false), QStringLiteral("--"));
        m_state = 2;
        QCOMPARE(m_live->getHWImageTriggerStatus(true), QStringLiteral("--"));
        m_state = 3;
        QCOMPARE(m_live->getHWImageTriggerStatus(true), QStringLiteral("Triggered"));
    }

    void watchesAsTheBoxSays() {
        QVERIFY(!settings()[QStringLiteral("HWImageTriggerOn")].toBool());
        QCOMPARE(count("HostCameraControl.startImageTriggerObserver"), 0);
        m_live->setImageTriggerObserver(true);
        QCOMPARE(count("HostApplication.updateAll"), 0);
        const QJsonObject shown = settings();
        QVERIFY(shown[QStringLiteral("HWImageTriggerOn")].toBool());
        QCOMPARE(shown[QStringLiteral("HWImageTriggerStatus")].toString(), QStringLiteral("No Trigger"));
        QCOMPARE(count("HostCameraControl.startImageTriggerObserver"), 2); // each refresh starts it anew
        m_live->setImageTriggerObserver(false);
        QCOMPARE(count("HostCameraControl.stopImageTriggerObserver"), 1);
        QCOMPARE(settings()[QStringLiteral("HWImageTriggerStatus")].toString(), QStringLiteral("--"));
    }

    void takesTheCamerasAreaAndScalesTheLevels() {
        const QJsonObject shown = settings();
        QCOMPARE(m_plugin->getSelectArea(), QRect(644, 516, 320, 256));
        const QJsonObject value = shown[QStringLiteral("HWImageTriggerValue")].toObject();
        QCOMPARE(value, (QJsonObject{{QStringLiteral("Value"), 128},
                                     {QStringLiteral("Max"), 255},
                                     {QStringLiteral("Step"), 4}}));
        QCOMPARE(shown[QStringLiteral("HWImageTriggerRange")].toObject()[QStringLiteral("Value")].toInt(),
                 32);
        QCOMPARE(shown[QStringLiteral("HWImageTriggerArea")].toObject()[QStringLiteral("WidthMin")].toInt(),
                 64);
    }

    void sendsThePluginsAreaAndTheCamerasScale() {
        LogCapture log;
        m_live->sendSelectArea(QStringLiteral(R"({"X":100,"Y":60,"Width":160,"Height":80})"));
        m_rig->host.calls.clear();
        m_live->setHWImageTrigger(kApply);
        QCOMPARE(QRect(int(m_sent.posX), int(m_sent.posY), int(m_sent.width), int(m_sent.height)),
                 QRect(96, 56, 160, 80));
        QCOMPARE(m_sent.value, 512U);
        QCOMPARE(m_sent.range, 5U);
        QVERIFY(m_rig->host.calls.calledInOrder({QStringLiteral("HostCameraControl.setImageTriggerOn"),
                                                 QStringLiteral("HostCameraControl.setImageTriggerInfo")}));
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostApplication.setPref")).at(0).toString(),
                 QStringLiteral("imagetrigger/showhistogram"));
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setImageTriggerOn")), QVariantList{true});
        QCOMPARE(count("HostApplication.updateAll"), 1);
        QCOMPARE(m_plugin->getSelectArea(), QRect(644, 516, 320, 256)); // what the camera has now
    }

    void keepsWhatRanBeforeAFailure() {
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.setImageTriggerInfo"),
                                   throwing(std::runtime_error("refused")));
        m_live->setHWImageTrigger(kApply);
        QCOMPARE(count("HostCameraControl.setImageTriggerOn"), 1);
        QCOMPARE(count("HostApplication.setPref"), 0);
        QCOMPARE(count("HostApplication.handleError"), 1);
        m_live->setHWImageTrigger(QStringLiteral("no object"));
        QCOMPARE(count("HostCameraControl.setImageTriggerOn"), 1);
        m_live->setImageTriggerObserver(true);
        m_rig->host.calls.failNext(QStringLiteral("HostCameraControl.getImageTriggerState"),
                                   throwing(std::runtime_error("no answer")));
        QVERIFY(m_live->getHWImageTriggerSettings().isEmpty());
        QCOMPARE(count("HostApplication.handleError"), 2);
    }

    void entersOnceAndLeavesOnce() {
        settings();
        m_rig->host.onIsImageTriggerOn = [] { return true; };
        m_live->hWImageTriggerStart();
        QVERIFY(m_live->unsetSelectArea());
        QVERIFY(settings()[QStringLiteral("HWImageTriggerOn")].toBool());
        bool isOn = true;
        m_rig->host.onIsHwTriggerSetting = [&isOn] { return isOn; };
        m_rig->host.calls.clear();
        m_live->hWImageTriggerStart(); // again: the area stays
        QVERIFY(!m_live->unsetSelectArea());
        QCOMPARE(count("HostPlugins.setHwTriggerSetting"), 0);
        m_plugin->createWidget();
        m_live->hWImageTriggerEnd();
        QVERIFY(!m_plugin->getWidget());
        QVERIFY(
            m_rig->host.calls.calledInOrder({QStringLiteral("HostPlugins.setHwTriggerSetting"),
                                             QStringLiteral("DOC_Transfer.endViewSelection"),
                                             QStringLiteral("HostCameraControl.stopImageTriggerObserver")}));
        isOn = false;
        m_live->hWImageTriggerEnd();
        QCOMPARE(count("HostCameraControl.stopImageTriggerObserver"), 1);
    }

    void countsTheFrameOnlyWhileItShows_data() {
        QTest::addColumn<bool>("visible");
        QTest::addColumn<bool>("setting");
        QTest::addColumn<bool>("counted");
        QTest::newRow("shown") << true << true << true;
        QTest::newRow("hidden") << false << true << false;
        QTest::newRow("page left") << true << false << false;
    }

    /// A rectangle that stands out of the frame tells by its log line that the pixels were to be counted.
    void countsTheFrameOnlyWhileItShows() {
        QFETCH(bool, visible);
        QFETCH(bool, setting);
        QFETCH(bool, counted);
        m_rig->host.onIsHwTriggerSetting = [setting] { return setting; };
        m_rig->camera.onIsConnected = [] { return true; };
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_plugin->setSelectArea(QRect(0, 0, 100, 100));
        m_plugin->setHistogramVisible(visible);
        IMG_FrameBuffer frame;
        LogCapture log;
        m_plugin->paintOverlay(&m_rig->camera, true, &frame);
        QCOMPARE(!log.with(QStringLiteral("size over flow")).isEmpty(), counted);
    }
};

QTEST_MAIN(tst_ImageTriggerSlots)
#include "tst_image_trigger_slots.moc"
