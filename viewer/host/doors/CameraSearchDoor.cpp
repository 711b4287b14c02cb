#include "viewer/host/doors/CameraSearchDoor.h"

#include "viewer/cameras/Network.h"
#include "viewer/host/HostWindow.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/prefs/Preferences.h"

QString CameraSearchDoor::searchPlace() const {
    return CameraFinder::placeOf(m_preferences.value(QStringLiteral("cameraconnection/SearchWay")).toInt(),
                                 m_preferences.value(QStringLiteral("cameraconnection/SearchIP")).toString());
}

void CameraSearchDoor::editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                                  const QString& gateway, bool isLive) {
    OPERATION(key, name, ip, mask, gateway, isLive);
    const Document* const document = m_documents.find(key);
    if (document && document->body()) {
        m_finder.edit(*document->body(), name, ip, mask, gateway);
    }
}

void CameraSearchDoor::discoverySearch() {
    OPERATION();
    DeviceDialogs::search(*this, m_finder.searchResults(searchPlace()), m_shell.dialogParent());
}

void CameraSearchDoor::setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                                           const QString& mac) {
    OPERATION(adapter, ip, mask, gateway, mac);
    m_finder.assignNetwork(mac, network::toText(ip), network::toText(mask), network::toText(gateway));
}
