#include "livecontrol/devices/JS_Mediator_EditDeviceDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

namespace {

// Function codes of a camera.
constexpr int kFunctionWifi = 112;
constexpr int kFunctionSerialNumber = 167;
constexpr int kSerialDigits = 11;

struct Addresses {
    QString ip;
    QString mask;
    QString gateway;

    bool operator!=(const Addresses& other) const {
        return ip != other.ip || mask != other.mask || gateway != other.gateway;
    }
};

Addresses addressesOf(DOC_Settings& settings) {
    Addresses found;
    settings.getNetworkAddresses(found.ip, found.mask, found.gateway);
    return found;
}

QString firmwareText(DOC_Settings& settings) {
    QString text = settings.getFirmwareVersion();
    const QString others[] = {settings.getSubFirmwareVersion(), settings.getHeadFirmwareVersion()};
    for (const QString& version : others) {
        if (!version.isEmpty()) {
            text += QStringLiteral(" - ") + version;
        }
    }
    return text;
}

QString serialText(unsigned number) {
    return QStringLiteral("%1").arg(number, kSerialDigits, 10, QLatin1Char('0'));
}

} // namespace

JS_Mediator_EditDeviceDialog::JS_Mediator_EditDeviceDialog(HostObject* host, DOCKEY docKey)
    : JS_Mediator_Dialog(host, QStringLiteral("editdevice")), m_docKey(docKey) {}

DOC_Settings& JS_Mediator_EditDeviceDialog::settings() {
    DOC_Interface* const document = host()->docByKey(m_docKey, true);
    if (!document) { // it went while the dialog is open
        throw DOC_Exception(QStringLiteral("The camera is not in the list."), 0);
    }
    return docAs<DOC_Settings>(document);
}

QString JS_Mediator_EditDeviceDialog::getEditDeviceDialogSettings() {
    return guarded(
        [&] {
            DOC_Settings& camera = settings();
            const Addresses addresses = addressesOf(camera);
            const QString headName = camera.getHeadName(true);
            const bool hasSerial = camera.isFunctionSupported(kFunctionSerialNumber, true);
            return json::compact({
                {QStringLiteral("isMemoryMode"), host()->isMemoryMode()},
                {QStringLiteral("CameraName"), camera.getCameraName(true)},
                {QStringLiteral("EtherType"), camera.getEtherType()},
                {QStringLiteral("IPAddress"), addresses.ip},
                {QStringLiteral("Subnetmask"), addresses.mask},
                {QStringLiteral("DefaultGateway"), addresses.gateway},
                {QStringLiteral("ModelName"), camera.getDeviceName(true)},
                {QStringLiteral("HeadName"), headName},
                {QStringLiteral("FWVer"), firmwareText(camera)},
                {QStringLiteral("IsSupportWifi"), camera.isFunctionSupported(kFunctionWifi, true)},
                {QStringLiteral("IsDummy"), camera.isDummy()},
                {QStringLiteral("DeviceSerialNumber"),
                 hasSerial ? serialText(camera.getSerialNumber(true)) : QString()},
                {QStringLiteral("HeadSerialNumber"),
                 hasSerial && !headName.isEmpty() ? serialText(camera.getSerialNumber(false)) : QString()},
            });
        },
        QString());
}

void JS_Mediator_EditDeviceDialog::ok(const QString& cameraName, const QString& ipAddress,
                                      const QString& subnetmask, const QString& defaultGateway) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_EditDeviceDialog::ok"),
                               traceArgs({{"cameraName", cameraName},
                                          {"ipAddress", ipAddress},
                                          {"subnetmask", subnetmask},
                                          {"defaultGateway", defaultGateway}}));
    guarded([&] {
        const Addresses before = addressesOf(settings());
        host()->editCamera(m_docKey, cameraName, ipAddress, subnetmask, defaultGateway, host()->isLiveMode());
        if (before != Addresses{ipAddress, subnetmask, defaultGateway}) {
            m_addressChanged = true;
        }
    });
    emit accept();
}

void JS_Mediator_EditDeviceDialog::cancel() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_EditDeviceDialog::cancel"));
    emit reject();
}

void JS_Mediator_EditDeviceDialog::setEditEtherType(int type) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_EditDeviceDialog::setEditEtherType"),
                                      traceArgs({{"type", type}}));
    guarded([&] {
        if (DOC_Interface* const document = host()->docByKey(m_docKey, true)) {
            docAs<DOC_Settings>(document).setEtherType(type);
        }
    });
}
