// Custom items, and the storage slots of a camera: SD cards, dock stores, CFast cards. The simulated cameras
// have no slots, so nothing is managed here and a format is refused.

#include "viewer/documents/CameraCommands.h"
#include "viewer/documents/adapters/SettingsAdapter.h"

namespace {
constexpr char kInterface[] = "DOC_Settings";
}

void SettingsAdapter::refuseStorage() {
    refuse(QStringLiteral("KVFC_FormatDrive"), document().title(), reason("There is no such slot."));
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
    return false;
}

bool SettingsAdapter::isDockStoreManaged() {
    OPERATION();
    return false;
}

bool SettingsAdapter::isCFastManaged() {
    OPERATION();
    return false;
}

bool SettingsAdapter::isSDSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

void SettingsAdapter::getSDCardInfo(int slot, int& speed, int& classNo, unsigned int& sizeMegabytes) {
    OPERATION(slot);
    speed = classNo = 0;
    sizeMegabytes = 0;
}

void SettingsAdapter::getSDSlotState(int slot, bool& inserted, bool& isProtected, bool& formatted) {
    OPERATION(slot);
    inserted = isProtected = formatted = false;
}

void SettingsAdapter::getSDRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsAdapter::getSDRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsAdapter::formatSDSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsAdapter::refreshSDSlot(int slot) { OPERATION(slot); }

bool SettingsAdapter::isDockStoreSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

bool SettingsAdapter::canSavedCheck() {
    OPERATION();
    return document().recordedFrames() > 0;
}

bool SettingsAdapter::canConvertDataName(int kind) {
    OPERATION(kind);
    return false;
}

void SettingsAdapter::getDockStoreCapacity(int slot, unsigned int& total, unsigned int& freeMegabytes) {
    OPERATION(slot);
    total = freeMegabytes = 0;
}

void SettingsAdapter::getDockStoreState(int slot, bool& connected, bool& formatted) {
    OPERATION(slot);
    connected = formatted = false;
}

void SettingsAdapter::setDataName(const QString& name) { OPERATION(name); }

void SettingsAdapter::setDockStoreRecordName(int slot, int dataNo, const QString& name, bool all) {
    OPERATION(slot, dataNo, name, all);
    refuseStorage();
}

QString SettingsAdapter::getDockStoreRecordName(int slot, int index) {
    OPERATION(slot, index);
    return QString();
}

void SettingsAdapter::getDockStoreRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsAdapter::getDockStoreRecordDateTime(int slot, int index, unsigned int& date,
                                                 unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsAdapter::formatDockStoreSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsAdapter::refreshDockStoreSlot(int slot) { OPERATION(slot); }

unsigned int SettingsAdapter::getDockStoreRecordCount(int slot) {
    OPERATION(slot);
    return 0;
}

int SettingsAdapter::getDockStoreSlot() {
    OPERATION();
    return 0;
}

bool SettingsAdapter::isCFastSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

void SettingsAdapter::getCFastCapacity(int slot, quint64& total, quint64& free, unsigned int& recordCount) {
    OPERATION(slot);
    total = free = 0;
    recordCount = 0;
}

void SettingsAdapter::getCFastState(int slot, bool& inserted, bool& formatted) {
    OPERATION(slot);
    inserted = formatted = false;
}

void SettingsAdapter::getCFastRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsAdapter::getCFastRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsAdapter::formatCFastSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsAdapter::refreshCFastSlot(int slot) { OPERATION(slot); }
