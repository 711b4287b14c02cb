#include "viewer/saving/DrivesMediator.h"

#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/HostObject.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/messages/Translated.h"

namespace {
constexpr int kPasswordBytes = 8;
} // namespace

DrivesMediator::DrivesMediator(HostObject* host, CardDrives& drives, DocumentList& documents)
    : JS_Mediator(host, QStringLiteral("drives")), m_drives(drives), m_documents(documents) {}

bool DrivesMediator::confirmLoss(const QString& question, const QString& details) {
    return guarded(
        [&] {
            return host()->confirm(
                question, nullptr,
                {{QStringLiteral("under"), details}, {QStringLiteral("default"), QStringLiteral("no")}});
        },
        false);
}

int DrivesMediator::count(const QString& kind, int driveNo, int slotNo) {
    const StorageKind storage = kind == QLatin1String("sd")   ? StorageKind::SDCard
                                : kind == QLatin1String("fd") ? StorageKind::DockStore
                                                              : StorageKind::CFast;
    return guarded([&] { return m_drives.count(m_drives.byNumber(storage, driveNo, slotNo)); }, 0);
}

bool DrivesMediator::drive(DOCKEY dockey, int slot, CardDrives::Drive& found) const {
    const Document* const document = m_documents.find(dockey);
    for (const CardDrives::Drive& drive : m_drives.present(StorageKind::DockStore)) {
        if (document && drive.body == document->body() && drive.slot == slot) {
            found = drive;
            return true;
        }
    }
    return false;
}

bool DrivesMediator::isLinked(DOCKEY dockey) {
    const Document* const document = m_documents.find(dockey);
    return document && document->body() && document->body()->isConnected();
}

bool DrivesMediator::isLocked(DOCKEY dockey, int slot) {
    CardDrives::Drive found;
    return drive(dockey, slot, found) && m_drives.state(found).locked;
}

bool DrivesMediator::unlock(DOCKEY dockey, int slot) {
    const OperationTrace trace(QStringLiteral("DrivesMediator::unlock"),
                               traceArgs({{"dockey", dockey}, {"slot", slot}}));
    return guarded(
        [&] {
            CardDrives::Drive found;
            while (drive(dockey, slot, found) && m_drives.state(found).locked) {
                QString password;
                if (!GUI_InputPasswordDialog(host(), QString(), kPasswordBytes).getInputPassword(password)) {
                    return false;
                }
                if (drive(dockey, slot, found) && !m_drives.unlock(found, password)) {
                    host()->alert(translated("Invalid Password."), nullptr);
                }
            }
            return drive(dockey, slot, found);
        },
        false);
}
