#include "livecontrol/devices/JS_Mediator_WifiSettingDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/devices/GUI_WifiSettingDialog.h"
#include "livecontrol/foundation/WindowHelpers.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"

#include <QCloseEvent>
#include <QProgressDialog>
#include <QScopeGuard>

namespace {

constexpr int kMaxPasswordBytes = 32;

/// Stands for a known password.
const QString kHiddenPassword = QStringLiteral("******");

/// A busy display that only the end of the work closes, not Escape or the window manager.
class WaitBox : public QProgressDialog {
public:
    WaitBox(const QString& text, QWidget* parent)
        : QProgressDialog(text, QString(), 0, 0, parent,
                          Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
        setCancelButton(nullptr);
        setWindowModality(Qt::ApplicationModal);
        setFixedSize(200, 80);
    }

    void reject() override {}

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

JS_Mediator_WifiSettingDialog::JS_Mediator_WifiSettingDialog(HostObject* host, DOC_Interface* document,
                                                             GUI_WifiSettingDialog* dialog)
    : JS_Mediator_Dialog(host, QStringLiteral("wifisetting")), m_document(document), m_dialog(dialog),
      m_worker(std::make_unique<RUN_WifiControlThread>(host, this, document)) {
    connect(m_worker.get(), &QThread::finished, this, &JS_Mediator_WifiSettingDialog::finishedWifiControl);
}

JS_Mediator_WifiSettingDialog::~JS_Mediator_WifiSettingDialog() { m_worker->stopAndWait(); }

DOC_Settings& JS_Mediator_WifiSettingDialog::camera() { return docAs<DOC_Settings>(m_document); }

bool JS_Mediator_WifiSettingDialog::isGone() {
    if (!m_gone && host()->keyOfDocument(m_document) == kInvalidDockey) {
        m_gone = true;
        emit reject();
        tell(QStringLiteral("The camera is not in the list."));
    }
    return m_gone;
}

QVariantList JS_Mediator_WifiSettingDialog::getAccessPointList() {
    return guarded(
        [&] {
            if (isGone()) {
                return QVariantList();
            }
            const int count = camera().getAccessPointCount();
            if (count <= m_selectedNo) {
                m_selectedNo = -1;
            }
            m_connectedNo = -1;
            QVariantList rows;
            for (int i = 0; i < count; ++i) {
                rows.append(row(i));
            }
            return rows;
        },
        QVariantList());
}

QString JS_Mediator_WifiSettingDialog::row(int index) {
    AccessPointInfo point;
    camera().getAccessPoint(point, index);
    QString connected;
    if (point.connected) {
        m_connectedNo = index;
        connected = host()->translate(QStringLiteral("Connected_wifi"), nullptr, 0);
    }
    return json::compact(
        {{QStringLiteral("key"), json::text(index)},
         {QStringLiteral("ssid"), point.ssid},
         {QStringLiteral("mac"), point.mac},
         {QStringLiteral("receive"), json::text(point.receive)},
         {QStringLiteral("wificonnect"), connected},
         {QStringLiteral("selected"), index == m_selectedNo ? QStringLiteral("ui-selected") : QString()}});
}

void JS_Mediator_WifiSettingDialog::inputPassword(int key) {
    guarded([&] {
        if (isGone()) {
            return;
        }
        AccessPointInfo point;
        camera().getAccessPoint(point, key);
        GUI_InputPasswordDialog dialog(host(), point.password.isEmpty() ? QString() : kHiddenPassword,
                                       kMaxPasswordBytes, m_dialog);
        QString password;
        if (dialog.getInputPassword(password) && password != kHiddenPassword && !isGone()) {
            camera().setAccessPointPassword(key, password);
        }
    });
}

void JS_Mediator_WifiSettingDialog::scanWifi() {
    guarded([&] { runWorker(RUN_WifiControlThread::Scan, QStringLiteral("Scanning")); });
}

void JS_Mediator_WifiSettingDialog::connectWifi() {
    guarded([&] {
        if (!runWorker(RUN_WifiControlThread::Connect, QStringLiteral("Connecting"))) {
            return;
        }
        m_connectRequested = true;
        AccessPointInfo point;
        camera().getAccessPoint(point, m_selectedNo);
        if (!point.connected) {
            tell(QStringLiteral("Connection to the access point failed."));
        }
    });
}

bool JS_Mediator_WifiSettingDialog::runWorker(RUN_WifiControlThread::ControlMode mode, const QString& text) {
    if (m_worker->isRunning() || isGone()) { // a page called in while the box is open
        return false;
    }
    m_worker->setControlMode(mode);
    m_worker->start();
    {
        // No box may show after a failure, and it closes early when the application quits.
        const auto ended = qScopeGuard([this] { m_worker->wait(); });
        showWaitDialog(text);
    }
    if (isGone()) {
        return false;
    }
    if (!m_worker->isSucceeded()) {
        throw DOC_DeviceException(QString(), 0);
    }
    return true;
}

void JS_Mediator_WifiSettingDialog::showWaitDialog(const QString& text) {
    WaitBox box(host()->translate(text, nullptr, 0), m_dialog);
    applyNativeStyle(host(), &box);
    m_waitBox = &box;
    box.exec();
}

void JS_Mediator_WifiSettingDialog::finishedWifiControl() {
    if (m_waitBox) {
        m_waitBox->accept();
    }
}

void JS_Mediator_WifiSettingDialog::disconnectWifi() {
    guarded([&] {
        if (isGone()) {
            return;
        }
        host()->disconnectWifi(host()->keyOfDocument(m_document));
        const int count = camera().getAccessPointCount();
        for (int i = 0; i < count; ++i) {
            AccessPointInfo point;
            camera().getAccessPoint(point, i);
            if (point.connected) {
                tell(QStringLiteral("Disconnection to the access point failed."));
                break;
            }
        }
    });
}

void JS_Mediator_WifiSettingDialog::tell(const QString& text) {
    host()->alert(host()->translate(text, nullptr, 0), nullptr);
}

void JS_Mediator_WifiSettingDialog::onClose() {
    const bool wasGone = m_gone;
    guarded([&] {
        if (m_connectedNo < 0 || !m_connectRequested || isGone()) {
            return;
        }
        const QString question =
            QStringLiteral("To connect with WiFi, you need to disconnect the camera and search the camera "
                           "again. Do you want to disconnect the camera?");
        if (host()->confirm(host()->translate(question, nullptr, 0), nullptr, {}) && !isGone()) {
            host()->disconnectDocument(host()->keyOfDocument(m_document));
        }
    });
    if (wasGone || !m_gone) { // a camera that is found gone here has ended the dialog already
        emit reject();
    }
}
