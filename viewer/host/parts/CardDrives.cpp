#include "viewer/host/parts/CardDrives.h"

#include "livecontrol/foundation/UTL_Names.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/messages/Translated.h"

#include <QDir>

namespace {

constexpr int FirstLetter = 3; // D
constexpr int LastLetter = 25;
constexpr int NeedsPassword = 407;

[[noreturn]] void missing(const QString& camera) {
    refuse(CommandKey::ReadStorage, camera, reason("There is no such drive."));
}

/// As the user tells it from all others: buttons, lists and questions have it.
QString nameOf(const QString& camera, StorageKind kind, int slot, int place) {
    const char* const title = kind == StorageKind::SDCard      ? "SD card %1"
                              : kind == StorageKind::DockStore ? "DockStore %1"
                                                               : "CFast %1";
    const QString name = QStringLiteral("%1, %2").arg(camera, translated(title).arg(slot + 1));
    return kind == StorageKind::SDCard && FirstLetter + place <= LastLetter
               ? QStringLiteral("%1: %2").arg(QChar('A' + FirstLetter + place)).arg(name)
               : name;
}

} // namespace

QList<CardDrives::Drive> CardDrives::all(StorageKind kind) const {
    QList<Drive> drives;
    int camera = 0;
    for (const DeviceDocument* const device : m_documents.devices()) {
        const CameraStorage* const storage = device->body()->storage();
        for (int slot = 0; storage && slot < storage->slotCount(kind); ++slot) {
            Drive drive{device->body(), kind, camera, slot, QString()};
            drive.name = nameOf(device->body()->name(), kind, slot, drives.size());
            drives << drive;
        }
        ++camera;
    }
    return drives;
}

CardSlot CardDrives::state(const Drive& drive) const {
    return drive.body->storage()->slot(drive.kind, drive.slot);
}

QList<CardDrives::Drive> CardDrives::present(StorageKind kind) const {
    QList<Drive> drives = all(kind);
    drives.erase(std::remove_if(drives.begin(), drives.end(),
                                [this](const Drive& drive) {
                                    return !drive.body->isConnected() || !state(drive).inserted;
                                }),
                 drives.end());
    return drives;
}

uint CardDrives::letters() const {
    uint mask = 0;
    const QList<Drive> drives = all(StorageKind::SDCard);
    for (int i = 0; i < drives.size() && FirstLetter + i <= LastLetter; ++i) {
        if (drives.at(i).body->isConnected() && state(drives.at(i)).inserted) {
            mask |= 1U << (FirstLetter + i);
        }
    }
    return mask;
}

CardDrives::Drive CardDrives::byLetter(uint bit) const {
    const QList<Drive> drives = all(StorageKind::SDCard);
    for (int i = 0; i < drives.size() && FirstLetter + i <= LastLetter; ++i) {
        if (bit == 1U << (FirstLetter + i)) {
            return drives.at(i);
        }
    }
    missing(QString());
}

uint CardDrives::letterOf(const Drive& drive) const {
    const QList<Drive> drives = all(StorageKind::SDCard);
    for (int i = 0; i < drives.size() && FirstLetter + i <= LastLetter; ++i) {
        if (drives.at(i).body == drive.body && drives.at(i).slot == drive.slot) {
            return 1U << (FirstLetter + i);
        }
    }
    return 0;
}

CardDrives::Drive CardDrives::byNumber(StorageKind kind, int camera, int slot) const {
    for (const Drive& drive : all(kind)) {
        if (drive.camera == camera && drive.slot == slot) {
            return drive;
        }
    }
    missing(QString());
}

template <class Call>
void CardDrives::read(const Drive& drive, const QString& function, const Call& call) const {
    if (!drive.body->isConnected()) {
        refuse(function, drive.body->name(), reason("no link to the camera"));
    }
    CameraCommands(function).runNamed(drive.body->name(), call);
}

QStringList CardDrives::recordings(const Drive& drive) const {
    read(drive, CommandKey::ReadStorage,
         [&] { drive.body->storage()->requireReadable(drive.kind, drive.slot); });
    const CardSlot card = state(drive);
    if (card.locked) {
        throw APP_Exception(QStringLiteral("The drive has a password."), NeedsPassword);
    }
    QStringList paths;
    const QDir folder(card.folder);
    const QStringList names = folder.entryList(QDir::Files | QDir::Readable);
    for (const QString& name : names) {
        paths << folder.filePath(name);
    }
    std::sort(paths.begin(), paths.end(), countingOrder());
    return paths;
}

void CardDrives::mark(const Drive& drive, const QStringList& recordings, Document& document) const {
    DriveOrigin origin;
    origin.drive = drive.name;
    origin.serial = drive.body->serial();
    // Of one camera's drives each counts from 1, and the serial number is that of all of them.
    const int place = recordings.indexOf(document.face()->getFilePath()) + 1;
    origin.dataNo = QStringLiteral("%1-%2-%3").arg(int(drive.kind)).arg(drive.slot).arg(place);
    origin.kind = drive.kind;
    origin.slot = drive.slot;
    document.setDrive(origin);
}

bool CardDrives::isOf(const Document& document, const Drive& drive) {
    const auto& origin = document.drive();
    return origin && origin->isOn(drive.body->serial(), drive.kind, drive.slot);
}

bool CardDrives::isGone(const Document& document) const {
    if (!document.drive()) {
        return false;
    }
    const QList<Drive> there = present(document.drive()->kind);
    return std::none_of(there.begin(), there.end(),
                        [&document](const Drive& drive) { return isOf(document, drive); });
}

int CardDrives::count(const Drive& drive) const {
    return QDir(state(drive).folder).entryList(QDir::Files | QDir::Readable).size();
}

QStringList CardDrives::withoutOpen(QStringList recordings) const {
    for (const FileDocument* const document : m_documents.recordings()) {
        recordings.removeAll(document->path());
    }
    return recordings;
}

template <class Is>
void CardDrives::close(StorageKind kind, const Is& is) {
    const QList<Document*> documents = m_documents.allDocuments();
    for (Document* const document : documents) {
        const auto& drive = document->drive();
        if (drive && drive->kind == kind && is(*document)) {
            m_documents.remove(document);
        }
    }
}

void CardDrives::closeDocuments(StorageKind kind, int camera) {
    const QList<DeviceDocument*> devices = m_documents.devices();
    if (camera >= devices.size()) {
        return;
    }
    // The camera may have had another place in the list when the recording was opened.
    const QString serial = camera < 0 ? QString() : devices.at(camera)->body()->serial();
    close(kind, [&](const Document& document) { return camera < 0 || document.drive()->serial == serial; });
}

void CardDrives::closeGone(StorageKind kind) {
    close(kind, [](const Document& document) { return !QFile::exists(document.face()->getFilePath()); });
}

bool CardDrives::current(StorageKind kind, Drive& drive) const {
    const Drive open = m_current.value(int(kind));
    for (const Drive& each : all(kind)) { // the camera may have been taken out of the list
        if (each.body == open.body && each.slot == open.slot) {
            drive = each;
            const QList<Document*> documents = m_documents.allDocuments();
            return std::any_of(documents.begin(), documents.end(),
                               [&each](const Document* document) { return isOf(*document, each); });
        }
    }
    return false;
}

void CardDrives::format(const Drive& drive) const {
    if (state(drive).locked) {
        refuse(CommandKey::FormatStorage, drive.body->name(), reason("the drive asks for its password"));
    }
    CameraCommands(CommandKey::FormatStorage).runBody(*drive.body, [&](CameraBody& body) {
        return body.storage()->format(drive.kind, drive.slot);
    });
}

bool CardDrives::unlock(const Drive& drive, const QString& password) const {
    bool isRight = false;
    read(drive, CommandKey::ReadStorage,
         [&] { isRight = drive.body->storage()->unlock(drive.kind, drive.slot, password); });
    return isRight;
}

QList<CardDrives::Drive> CardDrives::stores(int camera) const {
    QList<Drive> found;
    for (const Drive& drive : present(StorageKind::DockStore)) {
        if (drive.camera == camera) {
            found << drive;
        }
    }
    if (found.isEmpty()) {
        missing(QString());
    }
    return found;
}

bool CardDrives::unlockStores(int camera, const QString& password) const {
    bool isAny = false;
    for (const Drive& drive : stores(camera)) {
        isAny = (state(drive).locked && unlock(drive, password)) || isAny; // a wrong one locks what is open
    }
    return isAny;
}

bool CardDrives::setStoresPassword(int camera, const QString& before, const QString& now) const {
    bool isAny = false;
    for (const Drive& drive : stores(camera)) {
        read(drive, CommandKey::ReadStorage, [&] {
            isAny = drive.body->storage()->setPassword(drive.kind, drive.slot, before, now) || isAny;
        });
    }
    return isAny;
}
