// Custom items, and the storage slots of a camera: SD cards, dock stores, CFast cards. The simulated cameras
// have no slots, so nothing is managed here and a format is refused.

#include "viewer/documents/CameraCommands.h"
#include "viewer/documents/SettingsFace.h"

namespace {
constexpr char kInterface[] = "DOC_Settings";
}

void SettingsFace::refuseStorage() {
    refuse(QStringLiteral("KVFC_FormatDrive"), document().title(), reason("There is no such slot."));
}

QVariantList SettingsFace::getCustomItems() {
    OPERATION();
    return document().customItems().toList();
}

void SettingsFace::clearCustomItems() {
    OPERATION();
    document().customItems().clear();
}

void SettingsFace::addCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                                 bool useFileName) {
    OPERATION(name, value, unit, display, useFileName);
    document().customItems().add({name, value, unit, display, useFileName});
}

void SettingsFace::setCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                                 bool useFileName) {
    OPERATION(name, value, unit, display, useFileName);
    document().customItems().replace(name, {name, value, unit, display, useFileName});
}

void SettingsFace::removeCustomItem(const QString& name) {
    OPERATION(name);
    document().customItems().remove(name);
}

void SettingsFace::renameCustomItem(const QString& oldName, const QString& newName) {
    OPERATION(oldName, newName);
    document().customItems().rename(oldName, newName);
}

int SettingsFace::getSDMemoryMode() {
    OPERATION();
    return 0;
}

bool SettingsFace::isListHidden() {
    OPERATION();
    return document().kind() == Document::Kind::File;
}

bool SettingsFace::isSDManaged() {
    OPERATION();
    return false;
}

bool SettingsFace::isDockStoreManaged() {
    OPERATION();
    return false;
}

bool SettingsFace::isCFastManaged() {
    OPERATION();
    return false;
}

bool SettingsFace::isSDSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

void SettingsFace::getSDCardInfo(int slot, int& speed, int& classNo, unsigned int& sizeMegabytes) {
    OPERATION(slot);
    speed = classNo = 0;
    sizeMegabytes = 0;
}

void SettingsFace::getSDSlotState(int slot, bool& inserted, bool& isProtected, bool& formatted) {
    OPERATION(slot);
    inserted = isProtected = formatted = false;
}

void SettingsFace::getSDRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsFace::getSDRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsFace::formatSDSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsFace::refreshSDSlot(int slot) { OPERATION(slot); }

bool SettingsFace::isDockStoreSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

bool SettingsFace::canSavedCheck() {
    OPERATION();
    return document().recordedFrames() > 0;
}

bool SettingsFace::canConvertDataName(int kind) {
    OPERATION(kind);
    return false;
}

void SettingsFace::getDockStoreCapacity(int slot, unsigned int& total, unsigned int& freeMegabytes) {
    OPERATION(slot);
    total = freeMegabytes = 0;
}

void SettingsFace::getDockStoreState(int slot, bool& connected, bool& formatted) {
    OPERATION(slot);
    connected = formatted = false;
}

void SettingsFace::setDataName(const QString& name) { OPERATION(name); }

void SettingsFace::setDockStoreRecordName(int slot, int dataNo, const QString& name, bool all) {
    OPERATION(slot, dataNo, name, all);
    refuseStorage();
}

QString SettingsFace::getDockStoreRecordName(int slot, int index) {
    OPERATION(slot, index);
    return QString();
}

void SettingsFace::getDockStoreRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsFace::getDockStoreRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsFace::formatDockStoreSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsFace::refreshDockStoreSlot(int slot) { OPERATION(slot); }

unsigned int SettingsFace::getDockStoreRecordCount(int slot) {
    OPERATION(slot);
    return 0;
}

int SettingsFace::getDockStoreSlot() {
    OPERATION();
    return 0;
}

bool SettingsFace::isCFastSlotEnabled(int slot) {
    OPERATION(slot);
    return false;
}

void SettingsFace::getCFastCapacity(int slot, quint64& total, quint64& free, unsigned int& recordCount) {
    OPERATION(slot);
    total = free = 0;
    recordCount = 0;
}

void SettingsFace::getCFastState(int slot, bool& inserted, bool& formatted) {
    OPERATION(slot);
    inserted = formatted = false;
}

void SettingsFace::getCFastRecordFrames(int slot, int index, unsigned int& frames) {
    OPERATION(slot, index);
    frames = 0;
}

void SettingsFace::getCFastRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) {
    OPERATION(slot, index);
    date = time = 0;
}

void SettingsFace::formatCFastSlot(int slot) {
    OPERATION(slot);
    refuseStorage();
}

void SettingsFace::refreshCFastSlot(int slot) { OPERATION(slot); }
