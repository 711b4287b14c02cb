// The slots of the camera options: what the page reads of them, and what each of them asks of the host.

#include "tests/support/LogCapture.h"
#include "tests/unit/live/LiveSlotsTest.h"

#include <QSignalSpy>
#include <QtTest>
#include <stdexcept>

namespace {
const QString kGetAutoCalib = QStringLiteral("HostApplication.getPrefBool");
const QString kSetAutoCalib = QStringLiteral("HostApplication.setPrefBool");
const QString kList = QStringLiteral("HostCameraControl.getShutterSpeedList");
const QString kSetShutter = QStringLiteral("HostCameraControl.setShutterSpeed");
const QString kApply = QStringLiteral("HostLens.applyLowLightShutter");
} // namespace

class tst_OptionSlots : public QObject, private LiveSlotsTest {
    Q_OBJECT

    bool m_autoCalib = true;
    QList<bool> m_autoCalibDuring; // when the shutter was set

private slots:
    void init() {
        setUp();
        m_autoCalib = true;
        m_autoCalibDuring.clear();
        FakeHost& host = m_rig->host;
        host.onGetPrefBool = [this](const QString&, const QVariant&) { return m_autoCalib; };
        host.onSetPrefBool = [this](const QString& name, bool value) {
            QCOMPARE(name, QStringLiteral("shading/autocalib"));
            m_autoCalib = value;
        };
        host.onGetShutterSpeedList = [](int unit, QList<unsigned long>& list) {
            list = unit == 1 ? QList<unsigned long>{8, 30, 1000} : QList<unsigned long>{1, 2, 3};
        };
        host.onSetShutterSpeed = [this](unsigned long, bool) { m_autoCalibDuring.append(m_autoCalib); };
    }
    void cleanup() { tearDown(); }

    void tellsTheStates() {
        FakeHost& host = m_rig->host;
        host.onGetLiveImageDataReduceMode = [] { return true; };
        host.onExistLiveImageQuality = [] { return 2; };
        QCOMPARE(m_live->getLiveImageQualitySettings(),
                 QStringLiteral(R"({"reduceMode":true,"supported":2})"));
        host.onIsLowLight = [] { return true; };
        host.onGetLowLightType = [] { return 3; };
        host.onGetVariableChannel = [] { return 7U; };
        host.onExistLowLight = [] { return 1; };
        QCOMPARE(parsed(m_live->getLowLightSettings()),
                 parsed(QStringLiteral(
                     R"({"LowLightMode":true,"LowLightType":3,"VariableChannel":7,"SupportedLowlight":1})")));
        host.onGetFanControl = [](int& state) {
            state = 4;
            return true;
        };
        host.onExistFanControl = [] { return 3; };
        QCOMPARE(parsed(m_live->getFanControlSettings()),
                 parsed(QStringLiteral(
                     R"({"SupportedFanControl":3,"LowLightMode":true,"Value":true,"State":4})")));
        host.onExistHeadLedLaser = [] { return 2UL; };
        QCOMPARE(m_live->existSupportedLedLaserControl(), 2UL);
        QVERIFY(!m_live->isSupportedShadingOn()); // the host leaves the answer unset
        host.onIsCalibrationSupported = [](int code, int reserved, bool& supported) {
            supported = code == 2 && reserved == 0;
        };
        QVERIFY(m_live->isSupportedShadingOn());
        QVERIFY(!m_live->isSupportedPhaseAdjust());
        host.onGetPhaseAdjustTargets = [this](QList<DOC_Interface*>& list) { list = {&m_rig->camera}; };
        QVERIFY(m_live->isSupportedPhaseAdjust());
        QVERIFY(!m_live->isWarningPhaseAdjust());
        QSignalSpy told(m_live.get(), &JS_Mediator_LiveControl::signalPhaseAdjustWarning);
        QVERIFY(QMetaObject::invokeMethod(m_live.get(), "changedPhaseAdjustWarning", Q_ARG(bool, true)));
        QVERIFY(m_live->isWarningPhaseAdjust());
        QCOMPARE(told.count(), 1);
    }

    void answersNeutrallyAfterAFailure() {
        const auto fails = [this](const char* operation) {
            m_rig->host.calls.failNext(QLatin1String(operation), throwing(std::runtime_error("mute")));
        };
        fails("HostCameraControl.existLiveImageQuality");
        QCOMPARE(m_live->getLiveImageQualitySettings(), QString());
        fails("HostCameraControl.getLowLightType");
        QCOMPARE(m_live->getLowLightSettings(), QString());
        fails("HostCameraControl.getFanControl");
        QCOMPARE(m_live->getFanControlSettings(), QString());
        fails("HostCameraControl.isCalibrationSupported");
        QVERIFY(!m_live->isSupportedShadingOn());
        fails("HostCameraControl.existHeadLedLaser");
        QCOMPARE(m_live->existSupportedLedLaserControl(), 0UL);
        fails("HostApplication.getHeadLedLaser");
        QVERIFY(!m_live->getHeadLedLaser(true));
        fails("HostDocuments.getPhaseAdjustTargets");
        QVERIFY(!m_live->isSupportedPhaseAdjust());
        QCOMPARE(count("HostApplication.handleError"), 7);
    }

    void settersEndInAnUpdate() {
        LogCapture log;
        m_live->setLiveImageDataReduceMode(true);
        m_live->setLowLightMode(true);
        m_live->setLowLightType(2);
        m_live->setFanControl(false);
        m_live->setShadingOn();
        QCOMPARE(count("HostApplication.updateAll"), 5);
        for (const char* const on : {"setLiveImageDataReduceMode", "setLowLightMode"}) {
            QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.") + QLatin1String(on)), QVariantList{true});
        }
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setLowLightType")), QVariantList{2});
        QCOMPARE(lastArgs(QStringLiteral("HostCameraControl.setFanControl")), QVariantList{false});
        const QVariantList calibration = lastArgs(QStringLiteral("HostCameraControl.runCalibration"));
        QCOMPARE(calibration.mid(calibration.size() - 2), (QVariantList{2, 0}));
        QVERIFY(log.lines().at(4).text.contains(QStringLiteral("[type:2]")));

        // These change nothing that the page doesn't know.
        m_live->setHeadLedLaser(true, 1);
        m_live->execPhaseAdjust();
        QCOMPARE(lastArgs(QStringLiteral("HostApplication.setHeadLedLaser")), (QVariantList{true, 1U}));
        QCOMPARE(count("HostDocuments.execPhaseAdjust"), 1);
        QCOMPARE(count("HostApplication.updateAll"), 5);
    }

    void aSlideHoldsTheCalibration() {
        LogCapture log;
        m_live->setLowlightShutterSpeed(1);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({kGetAutoCalib, kSetAutoCalib, kList, kSetShutter, kApply, kSetAutoCalib}));
        QCOMPARE(lastArgs(kSetShutter), (QVariantList{qulonglong(30), false}));
        QCOMPARE(m_autoCalibDuring, QList<bool>{false});
        QVERIFY(m_autoCalib);
        QVERIFY(log.lines().at(0).text.contains(QStringLiteral("[selectValue:1] [slide:true]")));

        m_rig->host.calls.clear();
        m_live->setLowlightShutterSpeed(2, false);
        QCOMPARE(m_rig->host.calls.names(),
                 QStringList({kGetAutoCalib, kList, kSetShutter, kApply, kSetAutoCalib}));
        QCOMPARE(lastArgs(kSetShutter), (QVariantList{qulonglong(1000), true}));
        QCOMPARE(m_autoCalibDuring.last(), true);
        QVERIFY(m_autoCalib);
    }

    void theCalibrationComesBackAfterAFailure() {
        m_rig->host.calls.failNext(kSetShutter, throwing(std::runtime_error("refused")));
        m_live->setLowlightShutterSpeed(1);
        QCOMPARE(count("HostApplication.handleError"), 1);
        QCOMPARE(m_rig->host.calls.count(kApply), 0);
        QVERIFY(m_autoCalib);
        m_live->setLowlightShutterSpeed(3); // no such row
        QVERIFY(m_autoCalib);
        QCOMPARE(m_rig->host.calls.count(kApply), 0);
        m_autoCalib = false;
        m_live->setLowlightShutterSpeed(1);
        QVERIFY(!m_autoCalib);
    }
};

QTEST_MAIN(tst_OptionSlots)
#include "tst_option_slots.moc"
