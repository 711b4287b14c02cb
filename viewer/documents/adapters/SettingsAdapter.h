#pragma once

#include "livecontrol/interface/DOC_Settings.h"
#include "viewer/documents/adapters/AdapterBase.h"

class Answer;
class CameraStorage;
class Wifi;
enum class StorageKind;
struct CardSlot;
struct StorageRecord;

class SettingsAdapter : public DOC_Settings, private AdapterBase {
public:
    explicit SettingsAdapter(Document& document) : AdapterBase(document) {}

    QString getIPAddress(bool device) override;
    QString getCameraName(bool device) override;
    int getImageScale() override;
    unsigned int getPartitionRecordRate(PARTITIONNUMBER partition) override;
    unsigned int getRecordRate(int kind) override;
    QString getDeviceName(bool device) override;
    int getCameraIndex() override;
    int getHeadNumber() override;
    QString getHeadName(bool device) override;
    PARTITIONNUMBER getPartitionNumber(bool device) override;
    void refreshPartition(bool force) override;
    int getPartitionCount(bool device, bool recordedOnly) override;
    bool isFunctionSupported(int code, bool device) override;
    void getPresetInfo(PresetInfo& info) override;
    void loadPreset(int presetNo) override;
    void storePreset(int presetNo) override;
    bool isSharedHeadSettings() override;
    QString getFirmwareVersion() override;
    QString getSubFirmwareVersion() override;
    QString getHeadFirmwareVersion() override;
    QVariantList getCustomItems() override;
    void clearCustomItems() override;
    void addCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                       bool useFileName) override;
    void setCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                       bool useFileName) override;
    void removeCustomItem(const QString& name) override;
    void renameCustomItem(const QString& oldName, const QString& newName) override;
    int getSDMemoryMode() override;
    bool isListHidden() override;
    bool isSDManaged() override;
    bool isDockStoreManaged() override;
    bool isCFastManaged() override;
    bool isSDSlotEnabled(int slot) override;
    void getSDCardInfo(int slot, int& speed, int& classNo, unsigned int& sizeMegabytes) override;
    void getSDSlotState(int slot, bool& inserted, bool& isProtected, bool& formatted) override;
    void getSDRecordFrames(int slot, int index, unsigned int& frames) override;
    void getSDRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) override;
    void formatSDSlot(int slot) override;
    void refreshSDSlot(int slot) override;
    bool isDockStoreSlotEnabled(int slot) override;
    bool canSavedCheck() override;
    bool canConvertDataName(int kind) override;
    void getDockStoreCapacity(int slot, unsigned int& total, unsigned int& freeMegabytes) override;
    void getDockStoreState(int slot, bool& connected, bool& formatted) override;
    void setDataName(const QString& name) override;
    void setDockStoreRecordName(int slot, int dataNo, const QString& name, bool all) override;
    QString getDockStoreRecordName(int slot, int index) override;
    void getDockStoreRecordFrames(int slot, int index, unsigned int& frames) override;
    void getDockStoreRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) override;
    void formatDockStoreSlot(int slot) override;
    void refreshDockStoreSlot(int slot) override;
    unsigned int getDockStoreRecordCount(int slot) override;
    int getDockStoreSlot() override;
    bool isCFastSlotEnabled(int slot) override;
    void getCFastCapacity(int slot, quint64& total, quint64& free, unsigned int& recordCount) override;
    void getCFastState(int slot, bool& inserted, bool& formatted) override;
    void getCFastRecordFrames(int slot, int index, unsigned int& frames) override;
    void getCFastRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) override;
    void formatCFastSlot(int slot) override;
    void refreshCFastSlot(int slot) override;
    bool isDummy() override;
    bool is3D() override;
    int getHeadCount() override;
    void powerOff() override;
    void restartCamera() override;
    int getWifiState() override;
    int getEtherType() override;
    void setEtherType(int type) override;
    void getNetworkAddresses(QString& ip, QString& mask, QString& gateway) override;
    void scanAccessPoints() override;
    int getAccessPointCount() override;
    void getAccessPoint(AccessPointInfo& info, int index) override;
    void setAccessPointPassword(int index, const QString& password) override;
    void connectAccessPoint(int index) override;
    bool needsPowerWaitDialog() override;
    unsigned int getSerialNumber(bool device) override;
    bool isPresetLoadedAfterReboot() override;
    int getAutoExposureUpperLimit() override;
    void setPowerOperating(bool operating) override;
    int getLinkSpeedState() override;
    bool isLowLight() override;
    int getLowLightType() override;
    unsigned int getCurrentVariableChannel() override;
    void getVariableChannelInfo(unsigned int channel, VariableChannelInfo& info) override;
    void getVariableChannelText(unsigned int channel, QString& text, bool* registered, int kind) override;
    bool isValidVariableSize(unsigned int rate, unsigned int width, unsigned int height) override;
    void preparePowerOperation() override;

private:
    void switchPower(const std::function<Answer(CameraBody&)>& command);
    /// The digits of the serial number; 0 without any.
    unsigned int serialNumber() const;
    /// Null without one.
    CameraStorage* storage() const;
    bool hasStorage(StorageKind kind) const;
    /// One that can't be used if there is none.
    CardSlot slotOf(StorageKind kind, int slot) const;
    /// Throws CameraFailure for a drive whose password has not been given.
    void requireUnlocked(const QString& function, StorageKind kind, int slot) const;
    CardSlot driveSlot() const;
    /// Throws CameraFailure.
    StorageRecord recordOf(StorageKind kind, int slot, int index) const;
    void runStorage(const QString& function, const std::function<Answer(CameraStorage&)>& command);
    /// Null without one.
    Wifi* wifi() const;
    void runWifi(const std::function<void()>& command);
};
