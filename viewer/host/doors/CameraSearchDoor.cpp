#include "viewer/host/doors/CameraSearchDoor.h"

#include "viewer/cameras/Network.h"
#include "viewer/host/Shell.h"
#include "viewer/host/parts/CameraFinder.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/prefs/Preferences.h"

QString CameraSearchDoor::searchPlace() const {
    return CameraFinder::placeOf(m_preferences.value(QStringLiteral("cameraconnection/SearchWay")).toInt(),
                                 m_preferences.value(QStringLiteral("cameraconnection/SearchIP")).toString());
}

QString CameraSearchDoor::getDefaultCameraName(int reserved) {
    OPERATION(reserved);
    return CameraFinder(m_documents).freeName();
}

void CameraSearchDoor::editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                                  const QString& gateway, bool isLive) {
    OPERATION(key, name, ip, mask, gateway, isLive);
    const Document* const document = m_documents.find(key);
    if (document && document->body()) {
        CameraFinder(m_documents).edit(*document->body(), name, ip, mask, gateway);
    }
}

void CameraSearchDoor::connectCameras(const QStringList& list) {
    OPERATION(list);
    CameraFinder(m_documents).connectCameras(list);
}

void CameraSearchDoor::findCameras(const QString& ip) {
    OPERATION(ip);
    CameraFinder(m_documents).find(ip);
}

void CameraSearchDoor::addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) {
    OPERATION(name, ip, isDummy, connect);
    CameraFinder(m_documents).add(name, ip, isDummy, connect);
}

void CameraSearchDoor::updateCameras() {
    OPERATION();
    CameraFinder(m_documents).update();
}

void CameraSearchDoor::discoverySearch() {
    OPERATION();
    DeviceDialogs::search(*this, CameraFinder(m_documents).searchResults(searchPlace()),
                          m_shell.dialogParent());
}

QString CameraSearchDoor::discoverySearchAgain() {
    OPERATION();
    return CameraFinder(m_documents).searchResults(searchPlace());
}

void CameraSearchDoor::setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                                           const QString& mac) {
    OPERATION(adapter, ip, mask, gateway, mac);
    CameraFinder(m_documents)
        .assignNetwork(mac, network::toText(ip), network::toText(mask), network::toText(gateway));
}
