// The cameras in the network, their names and addresses.

#include "viewer/cameras/Network.h"
#include "viewer/host/CameraControlDoor.h"
#include "viewer/host/Shell.h"
#include "viewer/host/parts/CameraFinder.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/prefs/Preferences.h"

namespace {
constexpr char kInterface[] = "HostCameraControl";
}

QString CameraControlDoor::searchPlace() const {
    return CameraFinder::placeOf(m_preferences.value(QStringLiteral("cameraconnection/SearchWay")).toInt(),
                                 m_preferences.value(QStringLiteral("cameraconnection/SearchIP")).toString());
}

QString CameraControlDoor::getDefaultCameraName(int reserved) {
    OPERATION(reserved);
    return CameraFinder(m_documents).freeName();
}

void CameraControlDoor::editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                                   const QString& gateway, bool isLive) {
    OPERATION(key, name, ip, mask, gateway, isLive);
    const Document* const document = m_documents.find(key);
    if (document && document->body()) {
        CameraFinder(m_documents).edit(*document->body(), name, ip, mask, gateway);
    }
}

void CameraControlDoor::connectCameras(const QStringList& list) {
    OPERATION(list);
    CameraFinder(m_documents).connectCameras(list);
}

void CameraControlDoor::findCameras(const QString& ip) {
    OPERATION(ip);
    CameraFinder(m_documents).find(ip);
}

void CameraControlDoor::addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) {
    OPERATION(name, ip, isDummy, connect);
    CameraFinder(m_documents).add(name, ip, isDummy, connect);
}

void CameraControlDoor::updateCameras() {
    OPERATION();
    CameraFinder(m_documents).update();
}

void CameraControlDoor::discoverySearch() {
    OPERATION();
    DeviceDialogs::search(*this, CameraFinder(m_documents).searchResults(searchPlace()),
                          m_shell.dialogParent());
}

QString CameraControlDoor::discoverySearchAgain() {
    OPERATION();
    return CameraFinder(m_documents).searchResults(searchPlace());
}

void CameraControlDoor::setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                                            const QString& mac) {
    OPERATION(adapter, ip, mask, gateway, mac);
    CameraFinder(m_documents)
        .assignNetwork(mac, network::toText(ip), network::toText(mask), network::toText(gateway));
}
