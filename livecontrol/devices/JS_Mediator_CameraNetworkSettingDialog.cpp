#include "livecontrol/devices/JS_Mediator_CameraNetworkSettingDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/HostObject.h"

namespace {
const QString kSearchWay = QStringLiteral("cameraconnection/SearchWay");
const QString kSearchAddress = QStringLiteral("cameraconnection/SearchIP");
} // namespace

JS_Mediator_CameraNetworkSettingDialog::JS_Mediator_CameraNetworkSettingDialog(HostObject* host)
    : JS_Mediator_Dialog(host, QStringLiteral("cameranetworksetting")) {}

int JS_Mediator_CameraNetworkSettingDialog::getCameraSearchWay() {
    return guarded([&] { return host()->getPrefInt(kSearchWay, 0); }, 0);
}

QString JS_Mediator_CameraNetworkSettingDialog::getCameraSearchIPAddress() {
    return guarded([&] { return host()->getPrefString(kSearchAddress, QString(), 0); },
                   QStringLiteral("192.168.0.0"));
}

void JS_Mediator_CameraNetworkSettingDialog::setCameraSearchWay(int mode) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::setCameraSearchWay"),
                               traceArgs({{"mode", mode}}));
    guarded([&] { host()->setPref(kSearchWay, mode); });
}

void JS_Mediator_CameraNetworkSettingDialog::setCameraSearchIPAddress(const QString& ipAddress) {
    const OperationTrace trace(
        QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::setCameraSearchIPAddress"),
        traceArgs({{"ipAddress", ipAddress}}));
    guarded([&] { host()->setPref(kSearchAddress, ipAddress); });
}

void JS_Mediator_CameraNetworkSettingDialog::ok() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::ok"));
    emit accept();
}

void JS_Mediator_CameraNetworkSettingDialog::cancel() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::cancel"));
    emit reject();
}
