// The rows of the camera lists, and which of them the user wants to see.

#include "livecontrol/interface/JS_Mediator.h"
#include "tests/support/TestRig.h"
#include "tests/unit/bridge/HostStates.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>
#include <stdexcept>

namespace {

QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

const QString kHandleError = QStringLiteral("HostApplication.handleError");

} // namespace

class tst_DeviceRows : public QObject {
    Q_OBJECT

private slots:
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
        rig.camera.onGetHeadName = [](bool) { return QStringLiteral("H2"); }; // goes before the body's
        QCOMPARE(parsed(mediator.getDeviceInfoList(false).first().toString())[QStringLiteral("devicename")]
                     .toString(),
                 QStringLiteral("H2"));
        QVERIFY(first[QStringLiteral("headno")].isDouble());
        QCOMPARE(first[QStringLiteral("found")].toString(), QStringLiteral("found"));
        QCOMPARE(first[QStringLiteral("con-wifi")].toString(), QStringLiteral("connected"));
        QCOMPARE(first[QStringLiteral("selected")].toString(), QString());
        for (const auto& [on, key, text] : rowFlags(rig)) {
            QCOMPARE(
                parsed(mediator.getDeviceInfoList(false).first().toString())[QLatin1String(key)].toString(),
                QString());
            on();
            QCOMPARE(
                parsed(mediator.getDeviceInfoList(false).first().toString())[QLatin1String(key)].toString(),
                QLatin1String(text));
        }
        rig.host.calls.clear();
        mediator.getDeviceInfoList(false);
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

    void aLinkedCameraThatBreaksOffIsNotFound() {
        TestRig rig;
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        const auto found = [&] {
            const QVariantList rows = mediator.getDeviceInfoList(false);
            return parsed(rows.value(0).toString())[QStringLiteral("found")].toString();
        };
        rig.camera.onIsConnected = [] { return true; };
        QCOMPARE(found(), QStringLiteral("found"));
        rig.camera.onGetLinkSpeedState = []() -> int { throw std::runtime_error("link"); }; // the last answer
        QCOMPARE(found(), QString());
        QCOMPARE(rig.host.calls.count(kHandleError), 1);
    }

    void camerasWithoutALinkShowUntilTheUserHidesThem() {
        TestRig rig;
        QVariantMap stored;
        rig.host.onGetPrefBool = [&](const QString& key, const QVariant& value) {
            return stored.value(key, value).toBool();
        };
        rig.host.onSetPref = [&](const QString& key, const QVariant& value) { stored[key] = value; };
        rig.host.onGetMode = [] { return int(HOST_MODE_LIVE); };
        rig.camera.onIsConnected = [] { return false; };
        JS_Mediator mediator(&rig.host, QStringLiteral("m"));
        for (const bool hides : {false, true, false}) { // nothing is stored at first
            QCOMPARE(mediator.getConnectedCameraShowing(), hides);
            QCOMPARE(mediator.getDeviceInfoList(true).size(), hides ? 0 : 1);
            mediator.setConnectedCameraShowing(!hides);
        }
    }
};

QTEST_MAIN(tst_DeviceRows)
#include "tst_device_rows.moc"
