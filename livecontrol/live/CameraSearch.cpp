// The list of cameras as the panel's page of the devices fills it: searches, the edit of a device, names.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

namespace {
const QString kSearchAddress = QStringLiteral("cameraconnection/SearchIP");
const QString kAddressAsName = QStringLiteral("devicemanager/useipcameraname");
} // namespace

void JS_Mediator_LiveControl::findCameras(const QString& ipAddres) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::findCameras"),
                                      traceArgs({{"ipAddress", ipAddres}}));
    guarded([&] {
        host()->setPref(kSearchAddress, ipAddres);
        guarded([&] { host()->findCameras(ipAddres); }); // what follows tidies up after a failed search too
        refreshIfNoCamera();
    });
}

void JS_Mediator_LiveControl::discoverySearch() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::discoverySearch"));
    guarded([&] { host()->discoverySearch(); });
}

void JS_Mediator_LiveControl::updateCameras() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::updateCameras"));
    guarded([&] {
        host()->updateCameras();
        refreshIfNoCamera();
    });
}

void JS_Mediator_LiveControl::refreshIfNoCamera() {
    if (host()->listCameraKeys(false, false).isEmpty() && !host()->hasOpenViews(false)) {
        host()->refreshPlugins();
    }
}

void JS_Mediator_LiveControl::editDoc(DOCKEY dockey) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::editDoc"),
                                      traceArgs({{"dockey", dockey}}));
    guarded([&] { host()->editDocument(dockey); });
}

QString JS_Mediator_LiveControl::getIPAddressSettings() {
    return guarded(
        [&] {
            return json::compact(QJsonObject{
                {QStringLiteral("IPAddress"), host()->getPrefString(kSearchAddress, QString(), 0)}});
        },
        QString());
}

bool JS_Mediator_LiveControl::isUseIpCameraName() {
    return guarded([&] { return host()->getPrefBool(kAddressAsName, false); }, false);
}

void JS_Mediator_LiveControl::setUseIpCameraName(bool isUseIp) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setUseIpCameraName"),
                                      traceArgs({{"isUseIp", isUseIp}}));
    guarded([&] {
        host()->setPref(kAddressAsName, isUseIp);
        host()->refreshCameraNames();
    });
}
