#pragma once

#include "livecontrol/interface/types.h"

#include <QString>
#include <QVariantList>

struct AccessPointInfo;
struct PresetInfo;
struct VariableChannelInfo;

/// The camera behind a document.
///
/// What isn't known of a document gives a neutral value: 0, false or an empty text. GUI thread only, but for
/// the access point operations, which a worker thread calls too. Any operation may throw an exception derived
/// from `std::exception`; those that change something at the camera throw `DOC_DeviceException` when it
/// refuses.
class DOC_Settings {
public:
    virtual ~DOC_Settings() = default;

    /// Dotted IP address. Callers pass true for `device`.
    virtual QString getIPAddress(bool device) = 0;
    /// The camera's own user name with `device`; otherwise as lists show it: with the head's name, or the
    /// address in place of the name if the user wants that.
    virtual QString getCameraName(bool device) = 0;
    /// Factor by which the image is reduced, 1 for none.
    virtual int getImageScale() = 0;
    /// Frames per second of the recording in a partition.
    virtual unsigned int getPartitionRecordRate(PARTITIONNUMBER partition) = 0;
    /// Frames per second. Callers pass 0 for `kind`.
    virtual unsigned int getRecordRate(int kind) = 0;
    /// Name of the camera's model. Callers pass true for `device`.
    virtual QString getDeviceName(bool device) = 0;
    /// Index of the camera among those of the host, from 0; -1 for a file.
    virtual int getCameraIndex() = 0;
    /// Number of the head in its camera, from 1; 0 for a camera with one head.
    virtual int getHeadNumber() = 0;
    /// Name of the head; empty for a camera with one head. Callers pass true for `device`.
    virtual QString getHeadName(bool device) = 0;
    /// The document's current partition, from 1.
    virtual PARTITIONNUMBER getPartitionNumber(bool device) = 0;
    /// Reads the partition anew, after a change of it.
    virtual void refreshPartition(bool force) = 0;
    /// How many partitions the camera's memory has. Callers pass false twice.
    virtual int getPartitionCount(bool device, bool recordedOnly) = 0;
    /// True if the camera has the function of that code. Callers pass true for `device`.
    virtual bool isFunctionSupported(int code, bool device) = 0;
    /// The camera's presets: the one in use, from 1 (0 none), and their number.
    virtual void getPresetInfo(PresetInfo& info) = 0;
    /// Takes the settings of a preset, from 1.
    virtual void loadPreset(int presetNo) = 0;
    /// Stores the settings in a preset, from 1.
    virtual void storePreset(int presetNo) = 0;
    /// True if all heads of the device share their settings: the others are to be refreshed too.
    virtual bool isSharedHeadSettings() = 0;
    /// Version of the firmware.
    virtual QString getFirmwareVersion() = 0;
    /// Version of the second firmware; may be empty.
    virtual QString getSubFirmwareVersion() = 0;
    /// Version of the head's firmware; may be empty.
    virtual QString getHeadFirmwareVersion() = 0;
    /// The custom items: maps with name, value, unit, display and usefilename.
    virtual QVariantList getCustomItems() = 0;
    /// Removes all custom items.
    virtual void clearCustomItems() = 0;
    /// Adds a custom item after the others.
    virtual void addCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                               bool useFileName) = 0;
    /// Changes the custom item `name`.
    virtual void setCustomItem(const QString& name, const QString& value, const QString& unit, bool display,
                               bool useFileName) = 0;
    /// Removes the custom item `name`.
    virtual void removeCustomItem(const QString& name) = 0;
    /// Gives the custom item `oldName` another name.
    virtual void renameCustomItem(const QString& oldName, const QString& newName) = 0;
    /// How a recording is stored on an SD card: 0 normal, otherwise fit.
    virtual int getSDMemoryMode() = 0;
    /// True keeps the document out of the list outside file mode.
    virtual bool isListHidden() = 0;
    /// True if the camera stores on SD cards. Slots and indices of records count from 0, unless said
    /// otherwise.
    virtual bool isSDManaged() = 0;
    /// True if the camera stores on dock stores.
    virtual bool isDockStoreManaged() = 0;
    /// True if the camera stores on CFast cards.
    virtual bool isCFastManaged() = 0;
    /// True if the SD slot can be used.
    virtual bool isSDSlotEnabled(int slot) = 0;
    /// Speed code, class and size (megabytes) of the SD card.
    virtual void getSDCardInfo(int slot, int& speed, int& classNo, unsigned int& sizeMegabytes) = 0;
    /// State of the SD slot.
    virtual void getSDSlotState(int slot, bool& inserted, bool& isProtected, bool& formatted) = 0;
    /// Frames of a record on the SD card; 0 after the last.
    virtual void getSDRecordFrames(int slot, int index, unsigned int& frames) = 0;
    /// Date (year from 2000, month, day) and time (hour, minute, second) of a record, one byte each, coded
    /// decimal, 0 if unknown.
    virtual void getSDRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) = 0;
    /// Formats the SD card.
    virtual void formatSDSlot(int slot) = 0;
    /// Reads the state of the SD slot anew.
    virtual void refreshSDSlot(int slot) = 0;
    /// True if the dock store slot can be used.
    virtual bool isDockStoreSlotEnabled(int slot) = 0;
    /// True if the recording is still there and may be saved.
    virtual bool canSavedCheck() = 0;
    /// True if data names can be changed. Callers pass 0 for `kind`.
    virtual bool canConvertDataName(int kind) = 0;
    /// Capacity of the dock store and what is free, in megabytes.
    virtual void getDockStoreCapacity(int slot, unsigned int& total, unsigned int& freeMegabytes) = 0;
    /// State of the dock store.
    virtual void getDockStoreState(int slot, bool& connected, bool& formatted) = 0;
    /// Sets the name of the data that the document shows.
    virtual void setDataName(const QString& name) = 0;
    /// Sets the name of a record on the dock store. Callers pass false for `all`.
    virtual void setDockStoreRecordName(int slot, int dataNo, const QString& name, bool all) = 0;
    /// Name of a record on the dock store.
    virtual QString getDockStoreRecordName(int slot, int index) = 0;
    /// Frames of a record on the dock store; 0 after the last.
    virtual void getDockStoreRecordFrames(int slot, int index, unsigned int& frames) = 0;
    /// As `getSDRecordDateTime`.
    virtual void getDockStoreRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) = 0;
    /// Formats the dock store.
    virtual void formatDockStoreSlot(int slot) = 0;
    /// Reads the state of the dock store anew.
    virtual void refreshDockStoreSlot(int slot) = 0;
    /// Number of records on the dock store.
    virtual unsigned int getDockStoreRecordCount(int slot) = 0;
    /// The dock store slot of the document's head.
    virtual int getDockStoreSlot() = 0;
    /// True if the CFast slot can be used.
    virtual bool isCFastSlotEnabled(int slot) = 0;
    /// Capacity of the CFast card and what is free, in bytes, and the number of its records.
    virtual void getCFastCapacity(int slot, quint64& total, quint64& free, unsigned int& recordCount) = 0;
    /// State of the CFast slot.
    virtual void getCFastState(int slot, bool& inserted, bool& formatted) = 0;
    /// Frames of a record on the CFast card; `index` from 1.
    virtual void getCFastRecordFrames(int slot, int index, unsigned int& frames) = 0;
    /// As `getSDRecordDateTime`; `index` from 1.
    virtual void getCFastRecordDateTime(int slot, int index, unsigned int& date, unsigned int& time) = 0;
    /// Formats the CFast card.
    virtual void formatCFastSlot(int slot) = 0;
    /// Reads the state of the CFast slot anew.
    virtual void refreshCFastSlot(int slot) = 0;
    /// True for a camera of which only name and address are known.
    virtual bool isDummy() = 0;
    /// True if the image is three-dimensional.
    virtual bool is3D() = 0;
    /// Number of heads of the camera, at least 1.
    virtual int getHeadCount() = 0;
    /// Turns the camera off.
    virtual void powerOff() = 0;
    /// Starts the camera anew.
    virtual void restartCamera() = 0;
    /// State of the camera's Wi-Fi: 1 connected.
    virtual int getWifiState() = 0;
    /// The kind of connection: 0 Ethernet, 1 Wi-Fi.
    virtual int getEtherType() = 0;
    /// Chooses the kind of connection.
    virtual void setEtherType(int type) = 0;
    /// Dotted addresses of the connection.
    virtual void getNetworkAddresses(QString& ip, QString& mask, QString& gateway) = 0;
    /// Looks for access points; returns when it is done.
    virtual void scanAccessPoints() = 0;
    /// Number of the access points found.
    virtual int getAccessPointCount() = 0;
    /// One of the access points found; `index` from 0.
    virtual void getAccessPoint(AccessPointInfo& info, int index) = 0;
    /// Sets the password for an access point.
    virtual void setAccessPointPassword(int index, const QString& password) = 0;
    /// Connects the camera with an access point; returns when it is done.
    virtual void connectAccessPoint(int index) = 0;
    /// True if a change of the camera's power is to be waited for under a dialog.
    virtual bool needsPowerWaitDialog() = 0;
    /// Serial number of the device, or of the head with `device` false.
    virtual unsigned int getSerialNumber(bool device) = 0;
    /// True if a preset takes effect at the camera's next start only.
    virtual bool isPresetLoadedAfterReboot() = 0;
    /// Highest level of auto exposure, in the camera's full bit depth.
    virtual int getAutoExposureUpperLimit() = 0;
    /// Brackets a power command: true before, false after it.
    virtual void setPowerOperating(bool operating) = 0;
    /// 1 if the camera can tell the speed of its link.
    virtual int getLinkSpeedState() = 0;
    /// True if low light is on.
    virtual bool isLowLight() = 0;
    /// Kind of the low light function.
    virtual int getLowLightType() = 0;
    /// The variable channel in use, from 1; 0 for none.
    virtual unsigned int getCurrentVariableChannel() = 0;
    /// What is stored in a variable channel, from 1.
    virtual void getVariableChannelInfo(unsigned int channel, VariableChannelInfo& info) = 0;
    /// A line of text about a variable channel, and whether something is registered in it; `registered` may
    /// be null. Callers pass 0 for `kind`.
    virtual void getVariableChannelText(unsigned int channel, QString& text, bool* registered, int kind) = 0;
    /// True if the camera can run that size (pixels) at that rate (frames per second).
    virtual bool isValidVariableSize(unsigned int rate, unsigned int width, unsigned int height) = 0;
    /// Announces a power operation to the camera.
    virtual void preparePowerOperation() = 0;
};
