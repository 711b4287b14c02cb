// Drives and cards with recordings. This program has none: lists are empty,
// nothing is open, and what asks for one of them by name fails.

#include "livecontrol/foundation/APP_Exception.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Wifi.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostDocuments";

[[noreturn]] void missing(const QString& text) { throw DOC_Exception(text, 0); }
} // namespace

uint ViewerHost::getSDDriveMask() {
    OPERATION();
    return 0;
}

void ViewerHost::openSDDrive(uint mask) {
    OPERATION(mask);
    missing(QStringLiteral("There is no such drive."));
}

bool ViewerHost::getCurrentSDDrive() {
    OPERATION();
    return false;
}

QList<QMap<QString, QString>> ViewerHost::listDockStores() {
    OPERATION();
    return {};
}

void ViewerHost::openDockStore(int type, int driveNo, int slotNo, const QString& name) {
    OPERATION(type, driveNo, slotNo, name);
    missing(QStringLiteral("There is no such drive."));
}

bool ViewerHost::checkDockStorePassword(int type, int driveNo, const QString& password) {
    Q_UNUSED(password)
    OPERATION(type, driveNo);
    return false;
}

bool ViewerHost::setDockStorePassword(int type, int driveNo, const QString& oldPassword,
                                      const QString& newPassword) {
    Q_UNUSED(oldPassword)
    Q_UNUSED(newPassword)
    OPERATION(type, driveNo);
    return false;
}

QList<QMap<QString, QString>> ViewerHost::listCFastCards() {
    OPERATION();
    return {};
}

void ViewerHost::openCFastCard(int type, int driveNo, int slotNo, const QString& name) {
    OPERATION(type, driveNo, slotNo, name);
    missing(QStringLiteral("There is no such drive."));
}

bool ViewerHost::getCurrentCFastCard() {
    OPERATION();
    return false;
}

void ViewerHost::refreshDriveDocuments(int kind) { OPERATION(kind); }

void ViewerHost::closeSDDocuments() { OPERATION(); }

void ViewerHost::closeDockStoreRecords(int cameraIndex) { OPERATION(cameraIndex); }

void ViewerHost::closeCFastDocuments(int reserved) { OPERATION(reserved); }

void ViewerHost::closeCFastRecords(int cameraIndex) { OPERATION(cameraIndex); }

void ViewerHost::disconnectWifi(DOCKEY key) {
    OPERATION(key);
    const Document* const document = m_documents.find(key);
    if (document && document->body() && document->body()->wifi()) {
        document->body()->wifi()->leave();
    }
}
