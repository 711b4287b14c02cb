#include "viewer/host/doors/DocumentDrivesDoor.h"

#include "viewer/cameras/CameraBody.h"

#include <QScopeGuard>

QList<QMap<QString, QString>> DocumentDrivesDoor::list(StorageKind kind) const {
    QList<QMap<QString, QString>> drives;
    const QList<CardDrives::Drive> present = m_drives.present(kind);
    for (const CardDrives::Drive& drive : present) {
        drives.append({{QStringLiteral("driveno"), QString::number(drive.camera)},
                       {QStringLiteral("slotno"), QString::number(drive.slot)},
                       {QStringLiteral("drivename"), drive.name},
                       {QStringLiteral("drivetype"), QStringLiteral("1")}});
    }
    return drives;
}

void DocumentDrivesDoor::open(const CardDrives::Drive& drive) {
    const QStringList paths = m_drives.recordings(drive);
    m_temporary.close([&drive](const Document& document) { return CardDrives::isOf(document, drive); });
    // What could be opened stays, also if something else on it could not.
    const auto mark = qScopeGuard([&] {
        for (const DOCKEY key : newKeys()) {
            m_drives.mark(drive, paths, *m_documents.find(key));
        }
        m_drives.setCurrent(drive);
    });
    openRecordings(m_drives.withoutOpen(paths)); // the user's own stay his
}

void DocumentDrivesDoor::openSDDrive(uint mask) {
    OPERATION(mask);
    open(m_drives.byLetter(mask));
}

bool DocumentDrivesDoor::getCurrentSDDrive(uint& mask) {
    OPERATION(mask);
    CardDrives::Drive drive;
    if (!m_drives.current(StorageKind::SDCard, drive)) {
        return false;
    }
    mask = m_drives.letterOf(drive);
    return true;
}

bool DocumentDrivesDoor::getCurrentCFastCard(int& driveNo) {
    OPERATION(driveNo);
    CardDrives::Drive drive;
    if (!m_drives.current(StorageKind::CFast, drive)) {
        return false;
    }
    driveNo = drive.camera;
    return true;
}

// 1 and 2 stand for dock stores, 3 and 4 for CFast cards, in a camera and at the computer. What was on the
// one that was formatted has nothing to show any more.
void DocumentDrivesDoor::refreshDriveDocuments(int kind) {
    OPERATION(kind);
    m_drives.closeGone(kind <= 2 ? StorageKind::DockStore : StorageKind::CFast);
}
