#include "viewer/host/doors/CameraSearchDoor.h"

#include "viewer/cameras/Network.h"
#include "viewer/host/HostWindow.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
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
        m_finder.edit(*document->body(), name, ip, mask, gateway,
                      [this](const QString& camera, const Reason& why) { return mayLeave(camera, why); });
    }
}

// After the address has gone out the camera can't be asked to come back: the user hears before what that
// takes.
bool CameraSearchDoor::mayLeave(const QString& camera, const Reason& why) {
    return m_messages.confirmLoss(
        translated("%1 can't be reached at its new address. Change the address all the same?").arg(camera),
        {translated(why),
         translated(
             "The camera stays in the list without a link, and can't be edited there. The way back: "
             "\"Camera search\" finds it whatever its address is, and \"Change address\" gives it another.")},
        m_shell.dialogParent());
}

void CameraSearchDoor::discoverySearch() {
    OPERATION();
    DeviceDialogs::search(*this, m_finder.searchResults(searchPlace()), m_shell.dialogParent());
}

void CameraSearchDoor::setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                                           const QString& mac) {
    OPERATION(adapter, ip, mask, gateway, mac);
    m_finder.assignNetwork(
        mac, network::toText(ip), network::toText(mask), network::toText(gateway),
        [this](const QString& camera, const Reason& why) { return mayLeave(camera, why); });
}
