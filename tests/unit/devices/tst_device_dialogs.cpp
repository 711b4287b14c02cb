// The dialogs that add and edit a camera, and the two that ask for passwords.

#include "livecontrol/devices/GUI_AddDeviceDialog.h"
#include "livecontrol/devices/GUI_CameraNetworkSettingDialog.h"
#include "livecontrol/devices/GUI_ChangePasswordDialog.h"
#include "livecontrol/devices/GUI_DiscoverySearchDialog.h"
#include "livecontrol/devices/GUI_EditDeviceDialog.h"
#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/devices/GUI_WifiSettingDialog.h"
#include "livecontrol/devices/JS_Mediator_AddDeviceDialog.h"
#include "livecontrol/devices/JS_Mediator_ChangePasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_EditDeviceDialog.h"
#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTextCodec>
#include <QWebFrame>
#include <QtTest>

#include <memory>
#include <stdexcept>

namespace {

QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

const QString kHandleError = QStringLiteral("HostApplication.handleError");
const QString kAdd = QStringLiteral("HostCameraControl.addCamera");
const QString kEdit = QStringLiteral("HostCameraControl.editCamera");
const QString kWarn = QStringLiteral("HostApplication.warn");
const QString kAlert = QStringLiteral("HostApplication.alert");

/// What stands over a fake host's list of dummies.
struct Dummies {
    std::vector<std::unique_ptr<FakeCamera>> cameras;

    Dummies(TestRig& rig, const QList<int>& numbers) {
        QList<DOCKEY> keys{TestRig::kKey};
        for (const int number : numbers) {
            cameras.push_back(std::make_unique<FakeCamera>(rig.host.calls));
            cameras.back()->onIsDummy = [] { return true; };
            cameras.back()->onGetIPAddress = [number](bool) {
                return QStringLiteral("999.999.999.%1").arg(number);
            };
            keys.append(100 + static_cast<DOCKEY>(cameras.size()) - 1);
        }
        keys.append(99999); // one that just went
        // A camera that isn't a dummy takes no number.
        rig.camera.onGetIPAddress = [](bool) { return QStringLiteral("999.999.999.3"); };
        rig.host.onGetAllKeys = [keys](bool) { return keys; };
        rig.host.onFindDocument = [this, &rig](DOCKEY key) -> DOC_Interface* {
            return key == TestRig::kKey                       ? &rig.camera
                   : key >= 100 && key - 100 < cameras.size() ? cameras.at(key - 100).get()
                                                              : nullptr;
        };
    }
};

} // namespace

class tst_DeviceDialogs : public QObject {
    Q_OBJECT

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<TestRig> m_rig;

    CallRecorder& calls() { return m_rig->host.calls; }

private slots:
    void init() {
        m_log = std::make_unique<LogCapture>();
        m_rig = std::make_unique<TestRig>();
        m_rig->camera.onGetNetworkAddresses = [](QString& ip, QString& mask, QString& gateway) {
            ip = QStringLiteral("192.168.0.10");
            mask = QStringLiteral("255.255.255.0");
            gateway = QStringLiteral("0.0.0.0");
        };
    }
    void cleanup() {
        m_rig.reset();
        m_log.reset();
    }

    void proposesTheNextFreeDummy_data() {
        QTest::addColumn<QList<int>>("taken");
        QTest::addColumn<int>("next");
        QList<int> all;
        for (int i = 1; i <= 255; ++i) {
            all.append(i);
        }
        QTest::newRow("none") << QList<int>() << 1;
        QTest::newRow("gap") << QList<int>{4, 2, 1} << 3;
        QTest::newRow("in a row") << QList<int>{1, 2} << 3;
        QTest::newRow("the last") << all.mid(0, 254) << 255;
        QTest::newRow("all") << all << 1;
    }
    void proposesTheNextFreeDummy() {
        QFETCH(QList<int>, taken);
        QFETCH(int, next);
        const Dummies dummies(*m_rig, taken);
        m_rig->host.onGetDefaultCameraName = [](int) { return QStringLiteral("camera \"1\""); };
        JS_Mediator_AddDeviceDialog mediator(&m_rig->host, true);
        const QJsonObject settings = parsed(mediator.getAddDeviceDialogSettings());
        QCOMPARE(settings[QStringLiteral("DefaultDummyIPAddress")].toString(),
                 QStringLiteral("999.999.999.%1").arg(next));
        QCOMPARE(settings[QStringLiteral("DefaultIPAddress")].toString(), QStringLiteral("192.168.0.10"));
        QCOMPARE(settings[QStringLiteral("DefaultCameraName")].toString(), QStringLiteral("camera \"1\""));
    }

    void addsWhatCanBeRightAndCloses_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("added");
        const QString good = QStringLiteral("camera");
        const QString address = QStringLiteral("192.168.0.11");
        QTest::newRow("right") << good << address << true;
        QTest::newRow("dummy") << good << QStringLiteral("999.999.999.1") << true;
        QTest::newRow("right to left") << QString::fromUtf8("\xd7\x90\xd7\x91") << address << true;
        QTest::newRow("emoji") << QString::fromUtf8("\xf0\x9f\x93\xb7") << address << true;
        QTest::newRow("colon") << QStringLiteral("a:b") << address << false;
        QTest::newRow("markup") << QStringLiteral("<b>") << address << false;
        QTest::newRow("percent") << QStringLiteral("50%") << address << false;
        QTest::newRow("three numbers") << good << QStringLiteral("300.1.1") << false;
        QTest::newRow("empty address") << good << QString() << false;
        QTest::newRow("letters") << good << QStringLiteral("a.b.c.d") << false;
        QTest::newRow("NaN") << good << QStringLiteral("NaN.168.0.1") << false;
        QTest::newRow("pasted text") << good << QStringLiteral("address 192.168.0.1") << false;
    }
    void addsWhatCanBeRightAndCloses() {
        QFETCH(QString, name);
        QFETCH(QString, address);
        QFETCH(bool, added);
        JS_Mediator_AddDeviceDialog mediator(&m_rig->host, false);
        const QSignalSpy accepted(&mediator, &JS_Mediator_Dialog::accept);
        mediator.ok(name, address, true);
        QCOMPARE(calls().lastArgs(kAdd), added ? (QVariantList{name, address, true, false}) : QVariantList());
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(calls().names().last(), QStringLiteral("HostApplication.updateAll"));
    }

    void closesAfterAFailureToo() {
        calls().failNext(kAdd, throwing(std::runtime_error("taken")));
        calls().failNext(kEdit, throwing(std::runtime_error("cable")));
        JS_Mediator_AddDeviceDialog add(&m_rig->host, true);
        JS_Mediator_EditDeviceDialog edit(&m_rig->host, TestRig::kKey);
        const QSignalSpy added(&add, &JS_Mediator_Dialog::accept);
        const QSignalSpy edited(&edit, &JS_Mediator_Dialog::accept);
        add.ok(QStringLiteral("a"), QStringLiteral("10.0.0.1"), false);
        edit.ok(QStringLiteral("a"), QStringLiteral("10.0.0.1"), QString(), QString());
        QCOMPARE(calls().count(kHandleError), 2);
        QCOMPARE(added.size() + edited.size(), 2);
        QVERIFY(!edit.isAddressChanged());
    }

    void whatCouldNotBeAddedIsKeptForTheNextDialog() {
        calls().failNext(kAdd, throwing(std::runtime_error("taken")));
        TypedCamera typed;
        JS_Mediator_AddDeviceDialog first(&m_rig->host, true, &typed);
        QCOMPARE(first.getTyped(), QString());
        first.ok(QStringLiteral("a b"), QStringLiteral("10.0.0.1"), true);
        QVERIFY(typed.hasFailed);
        JS_Mediator_AddDeviceDialog second(&m_rig->host, true, &typed);
        QVERIFY(!typed.hasFailed); // whatever closes it now ends it
        const QJsonObject kept = parsed(second.getTyped());
        QCOMPARE(kept[QStringLiteral("name")].toString(), QStringLiteral("a b"));
        QCOMPARE(kept[QStringLiteral("ipAddress")].toString(), QStringLiteral("10.0.0.1"));
        QVERIFY(kept[QStringLiteral("isDummy")].toBool());
        second.ok(QStringLiteral("a"), QStringLiteral("10.0.0.1"), false);
        QVERIFY(!typed.hasFailed);
    }

    void tellsAllAboutTheCamera() {
        FakeCamera& camera = m_rig->camera;
        camera.onGetCameraName = [](bool head) { return head ? QStringLiteral("A <1>") : QString(); };
        camera.onGetEtherType = [] { return 1; };
        camera.onGetDeviceName = [](bool) { return QStringLiteral("HS-1"); };
        camera.onGetHeadName = [](bool) { return QStringLiteral("H2"); };
        camera.onGetFirmwareVersion = [] { return QStringLiteral("1.0"); };
        camera.onGetHeadFirmwareVersion = [] { return QStringLiteral("3.1"); };
        camera.onIsFunctionSupported = [](int code, bool) { return code == 112 || code == 167; };
        camera.onGetSerialNumber = [](bool device) { return device ? 123U : 4294967295U; };
        JS_Mediator_EditDeviceDialog mediator(&m_rig->host, TestRig::kKey);
        const QString expected = QStringLiteral(
            "{\"CameraName\":\"A <1>\",\"DefaultGateway\":\"0.0.0.0\",\"DeviceSerialNumber\":\"00000000123\","
            "\"EtherType\":1,\"FWVer\":\"1.0 - "
            "3.1\",\"HeadName\":\"H2\",\"HeadSerialNumber\":\"04294967295\","
            "\"IPAddress\":\"192.168.0.10\",\"IsDummy\":false,\"IsSupportWifi\":true,\"ModelName\":\"HS-1\","
            "\"Subnetmask\":\"255.255.255.0\",\"isMemoryMode\":false}");
        QCOMPARE(mediator.getEditDeviceDialogSettings(), expected);

        camera.onGetHeadName = nullptr;
        camera.onGetSubFirmwareVersion = [] { return QStringLiteral("2.0"); };
        QJsonObject settings = parsed(mediator.getEditDeviceDialogSettings());
        QCOMPARE(settings[QStringLiteral("FWVer")].toString(), QStringLiteral("1.0 - 2.0 - 3.1"));
        QCOMPARE(settings[QStringLiteral("HeadSerialNumber")].toString(), QString());
        QCOMPARE(settings[QStringLiteral("DeviceSerialNumber")].toString(), QStringLiteral("00000000123"));
        camera.onIsFunctionSupported = nullptr;
        settings = parsed(mediator.getEditDeviceDialogSettings());
        QCOMPARE(settings[QStringLiteral("DeviceSerialNumber")].toString(), QString());
    }

    void knowsWhetherTheAddressChanged_data() {
        QTest::addColumn<QStringList>("addresses");
        QTest::addColumn<bool>("changed");
        const QString ip = QStringLiteral("192.168.0.10");
        const QString mask = QStringLiteral("255.255.255.0");
        const QString gateway = QStringLiteral("0.0.0.0");
        const QString other = QStringLiteral("192.168.0.1");
        QTest::newRow("same") << QStringList{ip, mask, gateway} << false;
        QTest::newRow("address") << QStringList{other, mask, gateway} << true;
        QTest::newRow("mask") << QStringList{ip, other, gateway} << true;
        QTest::newRow("gateway") << QStringList{ip, mask, other} << true;
    }
    void knowsWhetherTheAddressChanged() {
        QFETCH(QStringList, addresses);
        QFETCH(bool, changed);
        m_rig->host.onIsLiveMode = [changed] { return changed; };
        JS_Mediator_EditDeviceDialog mediator(&m_rig->host, TestRig::kKey);
        mediator.ok(QStringLiteral("new"), addresses.at(0), addresses.at(1), addresses.at(2));
        QCOMPARE(mediator.isAddressChanged(), changed);
        QCOMPARE(calls().lastArgs(kEdit), (QVariantList{TestRig::kKey, QStringLiteral("new"), addresses.at(0),
                                                        addresses.at(1), addresses.at(2), changed}));
        QCOMPARE(calls().count(QStringLiteral("HostApplication.updateAll")), 0);
    }

    void outlivesItsCamera() {
        JS_Mediator_EditDeviceDialog mediator(&m_rig->host, TestRig::kKey);
        m_rig->host.onDocByKey = [](DOCKEY, bool) { return nullptr; };
        QCOMPARE(mediator.getEditDeviceDialogSettings(), QString());
        QCOMPARE(calls().count(kHandleError), 1);
        mediator.setEditEtherType(1);
        QCOMPARE(calls().count(kHandleError), 1);
        const QSignalSpy accepted(&mediator, &JS_Mediator_Dialog::accept);
        mediator.ok(QStringLiteral("a"), QString(), QString(), QString());
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(calls().count(kEdit), 0);
    }

    void countsPasswordsInBytes_data() {
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("fits");
        const QChar kanji(0x9AD8);
        QTest::newRow("empty") << QString() << true;
        QTest::newRow("32") << QString(32, QLatin1Char('a')) << true;
        QTest::newRow("33") << QString(33, QLatin1Char('a')) << false;
        QTest::newRow("16 wide") << QString(16, kanji) << true;
        QTest::newRow("17 wide") << QString(17, kanji) << false;
    }
    void countsPasswordsInBytes() {
        QFETCH(QString, password);
        QFETCH(bool, fits);
        QTextCodec* const before = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("Shift-JIS"));
        JS_Mediator_InputPasswordDialog mediator(&m_rig->host, QString(), 32);
        const bool result = mediator.checkBytes(password);
        QTextCodec::setCodecForLocale(before);
        QCOMPARE(result, fits);
        QCOMPARE(calls().lastArgs(kWarn).value(0).toString(),
                 fits ? QString() : QStringLiteral("Please input within 32 bytes."));
    }

    void checksANewPassword_data() {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("message");
        const QString shortText = QStringLiteral("abcd");
        const QString longText = QStringLiteral("abcde");
        const QString tooLong = QStringLiteral("Please New Password input within 4 bytes.");
        QTest::newRow("right") << QStringList{shortText, shortText, shortText} << QString();
        QTest::newRow("all empty") << QStringList{QString(), QString(), QString()} << QString();
        QTest::newRow("old") << QStringList{longText, longText, longText}
                             << QStringLiteral("Please Old Password input within 4 bytes.");
        QTest::newRow("both new") << QStringList{shortText, longText, longText} << tooLong;
        QTest::newRow("first new") << QStringList{shortText, longText, shortText} << tooLong;
        QTest::newRow("second new") << QStringList{shortText, shortText, longText} << tooLong;
        QTest::newRow("different") << QStringList{shortText, shortText, QStringLiteral("abcD")}
                                   << QStringLiteral("New Password is different.");
    }
    void checksANewPassword() {
        QFETCH(QStringList, texts);
        QFETCH(QString, message);
        JS_Mediator_ChangePasswordDialog mediator(&m_rig->host, QString(), QString(), 4);
        QCOMPARE(mediator.checkPass(texts.at(0), texts.at(1), texts.at(2)), message.isEmpty());
        QStringList told;
        for (const CallRecorder::Call& call : calls().calls()) {
            if (call.name() == kWarn || call.name() == kAlert) {
                told.append(call.args.first().toString());
            }
        }
        QCOMPARE(told, message.isEmpty() ? QStringList() : QStringList{message});
    }

    void keepsWhatTheUserEntered() {
        GUI_ChangePasswordDialog dialog(&m_rig->host, QStringLiteral("old"), QStringLiteral("new"), 8);
        auto* const mediator = static_cast<JS_Mediator_ChangePasswordDialog*>(dialog.mediator());
        QCOMPARE(mediator->getOldPassword() + mediator->getNewPassword(), QStringLiteral("oldnew"));
        QCOMPARE(mediator->getMaxPassLen(), 8);
        mediator->onOk(QStringLiteral("1"), QStringLiteral("2"));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.oldPassword() + dialog.newPassword(), QStringLiteral("12"));
        mediator->onCancel();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void dialogsHaveTheirLooks() {
        HostObject* const host = &m_rig->host;
        const auto check = [](const GUI_WebViewDialog& dialog, const char* title, const char* page,
                              const QSize& size, const char* name) {
            QCOMPARE(dialog.windowTitle(), QString::fromLatin1(title));
            QCOMPARE(dialog.view()->page()->mainFrame()->requestedUrl(), QUrl(QString::fromLatin1(page)));
            QCOMPARE(dialog.minimumSize(), size);
            QCOMPARE(dialog.maximumSize(), size);
            QCOMPARE(dialog.mediator()->scriptName(), QString::fromLatin1(name));
            const bool hasClose = dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint);
            QCOMPARE(hasClose, qstrcmp(name, "adddevice") != 0);
        };
        check(GUI_AddDeviceDialog(host, true), "Add Device", "qrc:/livecontrol_adddevice.html", {395, 195},
              "adddevice");
        check(GUI_InputPasswordDialog(host, QString(), 4), "Input password",
              "qrc:/input_password_dialog.html", {240, 120}, "inputpass");
        check(GUI_ChangePasswordDialog(host, QString(), QString(), 4), "Change Password",
              "qrc:/change_password_dialog.html", {400, 185}, "changepass");
        check(GUI_WifiSettingDialog(host, &m_rig->camera), "Camera WiFi Setting",
              "qrc:/wifi_setting_dialog.html", {300, 470}, "wifisetting");
        const GUI_EditDeviceDialog edit(host, TestRig::kKey);
        QCOMPARE(edit.mediator()->scriptName(), QStringLiteral("editdevice"));
        QVERIFY(!edit.isAddressChanged());
        QVERIFY(edit.minimumSize() == QSize(395, 430) && edit.maximumSize() == QSize(395, 430));
        const GUI_DiscoverySearchDialog discovery(host, QStringLiteral("T"), QStringLiteral("qrc:/d.html"),
                                                  QStringLiteral("[]"));
        QCOMPARE(discovery.windowTitle(), QStringLiteral("T"));
        QCOMPARE(discovery.mediator()->scriptName(), QStringLiteral("discoverysearch"));
    }

    void cancelEndsTheNetworkDialog() {
        GUI_CameraNetworkSettingDialog dialog(&m_rig->host, QStringLiteral("T"),
                                              QStringLiteral("qrc:/n.html"));
        const QSignalSpy rejected(dialog.mediator(), &JS_Mediator_Dialog::rejected);
        dialog.show();
        dialog.cancel();
        QVERIFY(!dialog.isVisible());
        QVERIFY(!rejected.isEmpty());
    }
};

QTEST_MAIN(tst_DeviceDialogs)
#include "tst_device_dialogs.moc"
