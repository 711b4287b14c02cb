// The Wi-Fi dialog: rows, the worker behind its wait box, passwords, the question at the end.

#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/devices/GUI_WifiSettingDialog.h"
#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_WifiSettingDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ModalAnswer.h"
#include "tests/support/TestRig.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <memory>
#include <stdexcept>

namespace {

QJsonObject parsed(const QVariant& text) {
    return QJsonDocument::fromJson(text.toString().toUtf8()).object();
}

const QString kHandleError = QStringLiteral("HostApplication.handleError");
const QString kAlert = QStringLiteral("HostApplication.alert");
const QString kConfirm = QStringLiteral("HostApplication.confirm");
const QString kScan = QStringLiteral("DOC_Settings.scanAccessPoints");
const QString kConnect = QStringLiteral("DOC_Settings.connectAccessPoint");
const QString kSetPassword = QStringLiteral("DOC_Settings.setAccessPointPassword");
const QString kDisconnect = QStringLiteral("HostDocuments.disconnectDocument");

/// A camera that sees access points.
struct WifiRig : TestRig {
    QList<AccessPointInfo> points{
        {QStringLiteral("<b>lab</b>"), QStringLiteral("00:01"), QString(), QString(), false, 3},
        {QStringLiteral("hall"), QStringLiteral("00:02"), QString(), QStringLiteral("secret"), false, 5}};
    std::unique_ptr<GUI_WifiSettingDialog> dialog;

    WifiRig() {
        camera.onGetAccessPointCount = [this] { return points.size(); };
        camera.onGetAccessPoint = [this](AccessPointInfo& point, int index) {
            if (index < 0 || index >= points.size()) {
                throw std::runtime_error("no such access point");
            }
            point = points.at(index);
        };
        dialog = std::make_unique<GUI_WifiSettingDialog>(&host, &camera);
        host.calls.clear();
    }
    JS_Mediator_WifiSettingDialog& wifi() const {
        return *static_cast<JS_Mediator_WifiSettingDialog*>(dialog->mediator());
    }
};

} // namespace

class tst_Wifi : public QObject {
    Q_OBJECT

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<WifiRig> m_rig;

    JS_Mediator_WifiSettingDialog& wifi() { return m_rig->wifi(); }
    CallRecorder& calls() { return m_rig->host.calls; }
    QString alerted() { return calls().lastArgs(kAlert).value(0).toString(); }

private slots:
    void init() {
        m_log = std::make_unique<LogCapture>();
        m_rig = std::make_unique<WifiRig>();
    }
    void cleanup() {
        m_rig.reset();
        m_log.reset();
    }

    void listsAccessPoints() {
        m_rig->points[1].connected = true;
        wifi().setSelectedNo(0);
        const QVariantList rows = wifi().getAccessPointList();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows.first().toString(),
                 QStringLiteral("{\"key\":\"0\",\"mac\":\"00:01\",\"receive\":\"3\",\"selected\":"
                                "\"ui-selected\",\"ssid\":\"<b>lab</b>\",\"wificonnect\":\"\"}"));
        QCOMPARE(parsed(rows.at(1))[QStringLiteral("wificonnect")].toString(),
                 QStringLiteral("Connected_wifi"));
        QCOMPARE(parsed(rows.at(1))[QStringLiteral("selected")].toString(), QString());
        QCOMPARE(wifi().getConnectedNo(), 1);

        wifi().setSelectedNo(1);
        m_rig->points.removeLast(); // the chosen and connected one vanished
        QCOMPARE(wifi().getAccessPointList().size(), 1);
        QCOMPARE(wifi().getSelectedNo(), -1);
        QCOMPARE(wifi().getConnectedNo(), -1);
    }

    void givesNoRowsAfterAFailure() {
        calls().failNext(QStringLiteral("DOC_Settings.getAccessPoint"),
                         throwing(std::runtime_error("radio")));
        QCOMPARE(wifi().getAccessPointList(), QVariantList());
        QCOMPARE(calls().count(kHandleError), 1);
    }

    void scansBehindAWaitBoxThatOnlyTheEndCloses() {
        std::atomic_bool pressed{false};
        std::atomic_bool offThread{false};
        m_rig->camera.onScanAccessPoints = [&] {
            offThread = QThread::currentThread() != QCoreApplication::instance()->thread();
            for (int ms = 0; ms < 5000 && !pressed; ++ms) {
                QThread::msleep(1);
            }
        };
        ModalAnswer<QProgressDialog> wait([&](QProgressDialog& box) {
            QCOMPARE(box.labelText(), QStringLiteral("Scanning"));
            QCOMPARE(box.size(), QSize(200, 80));
            QCOMPARE(box.minimum(), box.maximum());
            QVERIFY(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            QCOMPARE(box.windowModality(), Qt::ApplicationModal);
            QTest::keyClick(&box, Qt::Key_Escape);
            box.close();
            QVERIFY(box.isVisible());
            pressed = true;
        });
        wifi().scanWifi();
        QVERIFY(wait.seen);
        QVERIFY(offThread);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(calls().count(kHandleError), 0);
        QCOMPARE(m_log->with(QStringLiteral("[START]")).size(), 1);
        QCOMPARE(m_log->with(QStringLiteral("[END]")).size(), 1);

        wifi().scanWifi(); // once more with the same worker
        QCOMPARE(calls().count(kScan), 2);
    }

    void tellsOfAWorkerThatFailed_data() {
        QTest::addColumn<bool>("connects");
        QTest::newRow("scan") << false;
        QTest::newRow("connect") << true;
    }
    void tellsOfAWorkerThatFailed() {
        QFETCH(bool, connects);
        calls().failNext(connects ? kConnect : kScan, throwing(std::runtime_error("radio")));
        wifi().setSelectedNo(0);
        connects ? wifi().connectWifi() : wifi().scanWifi();
        QCOMPARE(calls().count(kHandleError), 1);
        QCOMPARE(calls().lastArgs(kHandleError).first().toString(), QStringLiteral("Doc Error."));
        QCOMPARE(alerted(), QString());

        m_rig->points[0].connected = true;
        wifi().getAccessPointList();
        wifi().onClose(); // nothing was connected through the dialog
        QCOMPARE(calls().count(kConfirm), 0);
    }

    void connectsWithTheChosenPoint() {
        m_rig->camera.onConnectAccessPoint = [this](int index) { m_rig->points[index].connected = true; };
        wifi().setSelectedNo(1);
        wifi().connectWifi();
        QCOMPARE(calls().lastArgs(kConnect), QVariantList{1});
        QCOMPARE(alerted(), QString());
    }

    void tellsOfARefusedPassword() {
        wifi().setSelectedNo(1);
        wifi().connectWifi();
        QCOMPARE(alerted(), QStringLiteral("Connection to the access point failed."));
        QCOMPARE(calls().count(kHandleError), 0);
    }

    void survivesAPointThatVanishesWhileItConnects() {
        m_rig->camera.onConnectAccessPoint = [this](int) { m_rig->points.clear(); };
        wifi().setSelectedNo(1);
        wifi().connectWifi();
        QCOMPARE(calls().count(kHandleError), 1);
        QCOMPARE(wifi().getAccessPointList(), QVariantList());
    }

    void disconnects() {
        m_rig->points[0].connected = true;
        m_rig->host.onDisconnectWifi = [this](DOCKEY key) {
            QCOMPARE(key, TestRig::kKey);
            m_rig->points[0].connected = false;
        };
        wifi().disconnectWifi();
        QCOMPARE(alerted(), QString());
        m_rig->host.onDisconnectWifi = nullptr;
        m_rig->points[0].connected = true;
        m_rig->points[1].connected = true;
        wifi().disconnectWifi();
        QCOMPARE(calls().count(kAlert), 1);
        QCOMPARE(alerted(), QStringLiteral("Disconnection to the access point failed."));
    }

    void sendsAPasswordThatChanged_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<bool>("sent");
        const QString hidden = QStringLiteral("******");
        QTest::newRow("new") << 0 << QString() << QStringLiteral("pass") << true;
        QTest::newRow("other") << 1 << hidden << QStringLiteral("pass") << true;
        QTest::newRow("removed") << 1 << hidden << QString() << true;
        QTest::newRow("left") << 1 << hidden << hidden << false;
        QTest::newRow("cancelled") << 0 << QString() << QString() << false;
    }
    void sendsAPasswordThatChanged() {
        QFETCH(int, row);
        QFETCH(QString, shown);
        QFETCH(QString, entered);
        QFETCH(bool, sent);
        const bool cancels = qstrcmp(QTest::currentDataTag(), "cancelled") == 0;
        ModalAnswer<GUI_InputPasswordDialog> answer([&](GUI_InputPasswordDialog& dialog) {
            auto* const mediator = static_cast<JS_Mediator_InputPasswordDialog*>(dialog.mediator());
            QCOMPARE(dialog.parentWidget(), m_rig->dialog.get());
            QCOMPARE(mediator->getPassword(), shown);
            QCOMPARE(mediator->getMaxPassLen(), 32);
            cancels ? mediator->onCancel() : mediator->onOk(entered);
        });
        wifi().inputPassword(row);
        QVERIFY(answer.seen);
        QCOMPARE(calls().lastArgs(kSetPassword), sent ? (QVariantList{row, entered}) : QVariantList());
        QVERIFY(m_log->with(QStringLiteral("secret")).isEmpty());
        QVERIFY(m_log->with(QStringLiteral("pass]")).isEmpty());
    }

    void asksAtTheEndOfAConnection_data() {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<bool>("yes");
        QTest::newRow("yes") << true << true << true;
        QTest::newRow("no") << true << true << false;
        QTest::newRow("lost again") << true << false << true;
        QTest::newRow("from before") << false << true << true;
    }
    void asksAtTheEndOfAConnection() {
        QFETCH(bool, connected);
        QFETCH(bool, stays);
        QFETCH(bool, yes);
        wifi().setSelectedNo(0);
        if (connected) {
            wifi().connectWifi();
        }
        m_rig->points[0].connected = stays;
        wifi().getAccessPointList();
        m_rig->host.onConfirm = [yes](const QString&, QWidget*, const QMap<QString, QString>&) {
            return yes;
        };
        const QSignalSpy closed(&wifi(), &JS_Mediator_Dialog::reject);
        wifi().onClose();
        const bool asks = connected && stays;
        QCOMPARE(calls().count(kConfirm), asks ? 1 : 0);
        QCOMPARE(calls().count(kDisconnect), asks && yes ? 1 : 0);
        QCOMPARE(closed.size(), 1);
    }

    void touchesNoCameraThatWent_data() {
        QTest::addColumn<QByteArray>("slot");
        for (const char* const slot :
             {"getAccessPointList", "scanWifi", "connectWifi", "disconnectWifi", "onClose"}) {
            QTest::newRow(slot) << QByteArray(slot);
        }
    }
    void touchesNoCameraThatWent() {
        QFETCH(QByteArray, slot);
        m_rig->camera.onConnectAccessPoint = [this](int index) { m_rig->points[index].connected = true; };
        wifi().setSelectedNo(1);
        wifi().connectWifi();
        wifi().getAccessPointList();
        m_rig->host.onKeyOfDocument = [](DOC_Interface*) { return kInvalidDockey; };
        calls().clear();
        const QSignalSpy closed(&wifi(), &JS_Mediator_Dialog::reject);
        QVERIFY(QMetaObject::invokeMethod(&wifi(), slot.constData()));
        QVERIFY(QMetaObject::invokeMethod(&wifi(), slot.constData())); // told once
        QCOMPARE(alerted(), QStringLiteral("The camera is not in the list."));
        QCOMPARE(calls().count(kAlert), 1);
        QCOMPARE(closed.size(), slot == "onClose" ? 2 : 1); // each close by the user ends it once
        QVERIFY(calls().names().filter(QStringLiteral("DOC_")).isEmpty());
        QCOMPARE(calls().count(QStringLiteral("HostDocuments.disconnectWifi")), 0);
    }

    void closesAfterAFailure() {
        wifi().setSelectedNo(0);
        wifi().connectWifi();
        m_rig->points[0].connected = true;
        wifi().getAccessPointList();
        calls().failNext(kDisconnect, throwing(std::runtime_error("gone")));
        const QSignalSpy closed(&wifi(), &JS_Mediator_Dialog::reject);
        wifi().onClose();
        QCOMPARE(calls().count(kHandleError), 1);
        QCOMPARE(closed.size(), 1);
    }
};

QTEST_MAIN(tst_Wifi)
#include "tst_wifi.moc"
