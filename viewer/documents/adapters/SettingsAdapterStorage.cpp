// Custom items, and what a camera stores on besides its memory: SD cards, dock stores, CFast cards.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraStorage.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/adapters/SettingsAdapter.h"
#include "viewer/documents/commands/CameraCommands.h"

namespace {
constexpr char kInterface[] = "DOC_Settings";
constexpr quint64 kMegabyte = 1024 * 1024;
} // namespace

CameraStorage* SettingsAdapter::storage() const { return body() ? body()->storage() : nullptr; }

bool SettingsAdapter::hasStorage(StorageKind kind) const {
    return storage() && storage()->slotCount(kind) > 0;
}

CardSlot SettingsAdapter::slotOf(StorageKind kind, int slot) const {
    CardSlot none;
    none.enabled = hasStorage(kind) && storage()->slot(kind, slot).enabled;
    // Nobody knows what is in the slots of a camera without a link.
    return none.enabled && body()->isConnected() ? storage()->slot(kind, slot) : none;
}

void SettingsAdapter::requireUnlocked(const QString& function, StorageKind kind, int slot) const {
    if (slotOf(kind, slot).locked) {
        refuse(function, document().title(), reason("the drive asks for its password"));
    }
}

StorageRecord SettingsAdapter::recordOf(StorageKind kind, int slot, int index) const {
    StorageRecord record;
    if (hasStorage(kind)) {
        requireUnlocked(CommandKey::ReadStorage, kind, slot);
        CameraCommands(CommandKey::ReadStorage).runNamed(body()->name(), [&] {
            record = storage()->record(kind, slot, index);
        });
    }
    return record;
}

void SettingsAdapter::runStorage(const QString& function,
                                 const std::function<Answer(CameraStorage&)>& command) {
    if (!storage()) {
        refuse(function, document().title(), reason("There is no such slot."));
    }
    CameraCommands(function).runBody(*body(), [&](CameraBody&) { return command(*storage()); });
}

QVariantList SettingsAdapter::getCustomItems() {
    OPERATION();
    return document().customItems().toList();
}

void SettingsAdapter::clearCustomItems() {
    OPERATION();
    document().customItems().clear();
}

void SettingsAdapter::addCustomItem(const QString& name, const QString& value, const QString& unit,
                                    bool display, bool useFileName) {
    OPERATION(name, value, unit, display, useFileName);
    document().customItems().add({name, value, unit, display, useFileName});
}

void SettingsAdapter::setCustomItem(const QString& name, const QString& value, const QString& unit,
                                    bool display, bool useFileName) {
    OPERATION(name, value, unit, display, useFileName);
    document().customItems().replace(name, {name, value, unit, display, useFileName});
}

void SettingsAdapter::removeCustomItem(const QString& name) {
    OPERATION(name);
    document().customItems().remove(name);
}

void SettingsAdapter::renameCustomItem(const QString& oldName, const QString& newName) {
    OPERATION(oldName, newName);
    document().customItems().rename(oldName, newName);
}

int SettingsAdapter::getSDMemoryMode() {
    OPERATION();
    return 0;
}

bool SettingsAdapter::isListHidden() {
    OPERATION();
    return document().kind() == Document::Kind::File;
}

bool SettingsAdapter::isSDManaged() {
    OPERATION();
    return hasStorage(StorageKind::SDCard);
}

bool SettingsAdapter::isDockStoreManaged() {
    OPERATION();
    return hasStorage(StorageKind::DockStore);
}

bool SettingsAdapter::isCFastManaged() {
    OPERATION();
    return hasStorage(StorageKind::CFast);
}

bool SettingsAdapter::isSDSlotEnabled(int slot) {
    OPERATION(slot);
    return slotOf(StorageKind::SDCard, slot).enabled;
}

void SettingsAdapter::getSDCardInfo(int slot, int& speed, int& classNo, unsigned int& sizeMegabytes) {
    OPERATION(slot);
    const CardSlot card = slotOf(StorageKind::SDCard, slot);
    speed = card.speedCode;
    classNo = card.speedClass;
    sizeMegabytes = unsigned(card.capacity / kMegabyte);
}

void SettingsAdapter::getSDSlotState(int slot, bool& inserted, bool& isProtected, bool& formatted) {
    OPERATION(slot);
    const CardSlot card = slotOf(StorageKind::SDCard, slot);
    inserted = card.inserted;
    isProtected = card.writeProtected;
    formatted = card.formatted;
}

void SettingsAdapter::getSDRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = recordOf(StorageKind::SDCard, slot, index).frames;
}

void SettingsAdapter::getSDRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    const StorageRecord record = recordOf(StorageKind::SDCard, slot, index);
    date = record.date;
    time = record.time;
}

void SettingsAdapter::formatSDSlot(int slot) {
    OPERATION(slot);
    runStorage(CommandKey::FormatStorage,
               [&](CameraStorage& cards) { return cards.format(StorageKind::SDCard, slot); });
    const QString serial = body()->serial();
    const QList<Document*> documents = list().allDocuments();
    for (Document* const each : documents) { // what was opened from there has gone
        if (each->drive() && each->drive()->isOn(serial, StorageKind::SDCard, slot)) {
            list().remove(each);
        }
    }
}

void SettingsAdapter::refreshSDSlot(int slot) {
    OPERATION(slot);
    runStorage(CommandKey::ReadStorage,
               [&](CameraStorage& cards) { return cards.refresh(StorageKind::SDCard, slot); });
}

bool SettingsAdapter::isDockStoreSlotEnabled(int slot) {
    OPERATION(slot);
    return slotOf(StorageKind::DockStore, slot).enabled;
}

bool SettingsAdapter::canSavedCheck() {
    OPERATION();
    return document().recordedFrames() > 0;
}

bool SettingsAdapter::canConvertDataName(int kind) {
    OPERATION(kind);
    const auto takesNames = [](const CardSlot& card) { return card.inserted && !card.writeProtected; };
    if (document().drive()) {
        return takesNames(driveSlot());
    }
    const int count = storage() ? storage()->slotCount(StorageKind::DockStore) : 0;
    for (int slot = 0; slot < count; ++slot) {
        if (takesNames(slotOf(StorageKind::DockStore, slot))) {
            return true;
        }
    }
    return false;
}

/// The slot of the card that the recording was opened from. As of now: it may have been pulled since.
CardSlot SettingsAdapter::driveSlot() const {
    const DriveOrigin drive = document().drive().value_or(DriveOrigin());
    for (const DeviceDocument* const device : list().devices()) {
        CameraStorage* const cards = device->body()->storage();
        if (cards && device->body()->serial() == drive.serial && drive.slot < cards->slotCount(drive.kind)) {
            return cards->slot(drive.kind, drive.slot);
        }
    }
    return CardSlot();
}

void SettingsAdapter::getDockStoreCapacity(int slot, unsigned int& total, unsigned int& freeMegabytes) {
    OPERATION(slot);
    const CardSlot store = slotOf(StorageKind::DockStore, slot);
    total = unsigned(store.capacity / kMegabyte);
    freeMegabytes = unsigned((store.capacity - store.used) / kMegabyte);
}

void SettingsAdapter::getDockStoreState(int slot, bool& connected, bool& formatted) {
    OPERATION(slot);
    const CardSlot store = slotOf(StorageKind::DockStore, slot);
    connected = store.inserted;
    formatted = store.formatted;
}

void SettingsAdapter::setDataName(const QString& name) {
    OPERATION(name);
    auto* const file = dynamic_cast<FileDocument*>(&document());
    if (!file || !document().drive()) {
        refuse(CommandKey::NameRecord, document().title(), reason("Its data has no name of its own."));
    }
    const CardSlot card = driveSlot();
    if (!card.inserted || card.writeProtected) {
        refuse(
            CommandKey::NameRecord, document().title(),
            reason(card.inserted ? "the card in slot %1 is write protected" : "there is no card in slot %1",
                   {document().drive()->slot + 1}));
    }
    file->rename(name);
}

void SettingsAdapter::setDockStoreRecordName(int slot, int dataNo, const QString& name, bool all) {
    OPERATION(slot, dataNo, name, all);
    requireUnlocked(CommandKey::NameRecord, StorageKind::DockStore, slot);
    const QString text = QString::fromUtf8(name.toLatin1()); // each character is a byte of the camera's
    runStorage(CommandKey::NameRecord, [&](CameraStorage& cards) {
        return cards.rename(StorageKind::DockStore, slot, dataNo, text);
    });
}

QString SettingsAdapter::getDockStoreRecordName(int slot, int index) {
    OPERATION(slot, index);
    return recordOf(StorageKind::DockStore, slot, index).name;
}

void SettingsAdapter::getDockStoreRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = recordOf(StorageKind::DockStore, slot, index).frames;
}

void SettingsAdapter::getDockStoreRecordDateTime(int slot, int index, unsigned int& date,
                                                 unsigned int& time) {
    OPERATION(slot, index);
    const StorageRecord record = recordOf(StorageKind::DockStore, slot, index);
    date = record.date;
    time = record.time;
}

void SettingsAdapter::formatDockStoreSlot(int slot) {
    OPERATION(slot);
    requireUnlocked(CommandKey::FormatStorage, StorageKind::DockStore, slot);
    runStorage(CommandKey::FormatStorage,
               [&](CameraStorage& cards) { return cards.format(StorageKind::DockStore, slot); });
}

void SettingsAdapter::refreshDockStoreSlot(int slot) {
    OPERATION(slot);
    runStorage(CommandKey::ReadStorage,
               [&](CameraStorage& cards) { return cards.refresh(StorageKind::DockStore, slot); });
}

unsigned int SettingsAdapter::getDockStoreRecordCount(int slot) {
    OPERATION(slot);
    return unsigned(slotOf(StorageKind::DockStore, slot).records);
}

// Of a camera whose heads have one store each, that of the head.
int SettingsAdapter::getDockStoreSlot() {
    OPERATION();
    const int index = head() ? head()->index() : 0;
    return slotOf(StorageKind::DockStore, index).enabled ? index : 0;
}

bool SettingsAdapter::isCFastSlotEnabled(int slot) {
    OPERATION(slot);
    return slotOf(StorageKind::CFast, slot).enabled;
}

void SettingsAdapter::getCFastCapacity(int slot, quint64& total, quint64& free, unsigned int& recordCount) {
    OPERATION(slot);
    const CardSlot card = slotOf(StorageKind::CFast, slot);
    total = card.capacity;
    free = card.capacity - card.used;
    recordCount = unsigned(card.records);
}

void SettingsAdapter::getCFastState(int slot, bool& inserted, bool& formatted) {
    OPERATION(slot);
    const CardSlot card = slotOf(StorageKind::CFast, slot);
    inserted = card.inserted;
    formatted = card.formatted;
}

void SettingsAdapter::getCFastRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = recordOf(StorageKind::CFast, slot, index - 1).frames;
}

void SettingsAdapter::getCFastRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    const StorageRecord record = recordOf(StorageKind::CFast, slot, index - 1);
    date = record.date;
    time = record.time;
}

void SettingsAdapter::formatCFastSlot(int slot) {
    OPERATION(slot);
    runStorage(CommandKey::FormatStorage,
               [&](CameraStorage& cards) { return cards.format(StorageKind::CFast, slot); });
}

void SettingsAdapter::refreshCFastSlot(int slot) {
    OPERATION(slot);
    runStorage(CommandKey::ReadStorage,
               [&](CameraStorage& cards) { return cards.refresh(StorageKind::CFast, slot); });
}
