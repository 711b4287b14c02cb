#pragma once

#include "livecontrol/interface/records.h"
#include "livecontrol/interface/types.h"

#include <QList>
#include <QString>
#include <QStringList>

class DOC_Interface;

/// The settings of the current and the selected cameras.
///
/// A getter reads the host's mirror of the current camera, a setter talks to the selected cameras. Every
/// operation may throw an exception derived from std::exception; DOC_DeviceException when a camera refuses a
/// command. `exist…` operations give a support level (`MULTIPLE_DOCS_…`).
class HostCameraControl {
public:
    virtual ~HostCameraControl() = default;

    /// Sets the size of the selected cameras, sensor pixels.
    virtual void setResolution(unsigned width, unsigned height) = 0;
    /// Sets the frame rate, fps.
    virtual void setRecordRate(unsigned long rate) = 0;
    /// Sets the shutter speed, a raw value (unit 1). `notify` false: one step of a slide that goes on, whose
    /// end comes with true.
    virtual void setShutterSpeed(unsigned long value, bool notify) = 0;
    /// The shutter speeds that can be set, in a display unit; unit 1 gives raw values. Rows stand in the same
    /// order in every unit.
    virtual void getShutterSpeedList(int unit, QList<unsigned long>& list) = 0;
    /// The shutter speed in a display unit.
    virtual unsigned long getShutterSpeed(int unit) = 0;
    /// Whether the shutter speed stays when the rate changes.
    virtual bool getShutterLockMode() = 0;
    /// Sets the lock of the shutter speed.
    virtual void setShutterLockMode(bool on) = 0;
    /// The sizes that can be set.
    virtual void getResolutionList(QList<ResolutionEntry>& list) = 0;
    /// The frame rates that can be set, fps.
    virtual void getRecordRateList(QList<unsigned long>& list) = 0;
    /// The frame rate, fps.
    virtual unsigned long getRecordRate() = 0;
    /// The size in force, sensor pixels.
    virtual void getResolution(unsigned& width, unsigned& height) = 0;
    /// The size of the sensor, pixels.
    virtual void getMaxResolution(unsigned& width, unsigned& height) = 0;
    /// Switches the fan.
    virtual void setFanControl(bool value) = 0;
    /// How full the store is, percent.
    virtual double getDockStoreUseRatio(int type, int driveNo, int slotNo, int option) = 0;
    /// Bytes that were ever written.
    virtual quint64 getTotalWrittenAmount(int type, int driveNo, int slotNo, int option) = 0;
    /// How full the card is, percent.
    virtual double getCFastUseRatio(int type, int driveNo, int slotNo, int option) = 0;
    /// Formats a docked store.
    virtual void formatDockStore(int type, int driveNo, int slotNo) = 0;
    /// Formats a CFast card.
    virtual void formatCFast(int type, int driveNo, int slotNo) = 0;
    /// True while a lens is calibrated.
    virtual bool isLensCalibration() = 0;
    /// Makes a partition of the camera memory the current one.
    virtual void setCurrentPartition(int number, bool notify) = 0;
    /// The name for a camera that has none.
    virtual QString getDefaultCameraName(int reserved) = 0;
    /// Whether the resolution stays when the rate changes.
    virtual bool getResolutionLockMode() = 0;
    /// Sets the lock of the resolution.
    virtual void setResolutionLockMode(bool on) = 0;
    /// Dual slope shutter, percent; 0 is off.
    virtual int getDSShutterValue() = 0;
    /// Whether the dual slope shutter is on as a mode.
    virtual bool getDSShutterMode() = 0;
    /// Sets the dual slope shutter, percent; 0 is off.
    virtual void setDSShutterValue(int value) = 0;
    /// Whether the dual slope shutter can be used at present.
    virtual bool isAvailableDSShutter() = 0;
    /// Largest dual slope value.
    virtual int getDSShutterMax() = 0;
    /// Smallest dual slope value.
    virtual int getDSShutterMin() = 0;
    /// Whether a selected camera has low light on.
    virtual bool existsLowLight() = 0;
    /// Whether low light is on (or off) in all selected cameras.
    virtual bool isAllLowLight(bool on) = 0;
    /// Whether the multi-camera tool locks all cameras.
    virtual bool isAllQmonLocked() = 0;
    /// Sends the live image reduced.
    virtual void setLiveImageDataReduceMode(bool on) = 0;
    /// Whether the live image is sent reduced.
    virtual bool getLiveImageDataReduceMode() = 0;
    /// Whether low light is on.
    virtual bool isLowLight() = 0;
    /// Type of low light.
    virtual int getLowLightType() = 0;
    /// True if a camera with low light on is among the selected; settings are not loaded then.
    virtual bool isAnyLowLightOn() = 0;
    /// Switches low light.
    virtual void setLowLightMode(bool mode) = 0;
    /// Sets the type of low light.
    virtual void setLowLightType(int type) = 0;
    /// Called before the preferences dialog opens in live mode.
    virtual void prepareSettingsDialog() = 0;
    /// Whether auto exposure runs.
    virtual bool isAutoExposureOn() = 0;
    /// Switches auto exposure.
    virtual void setAutoExposureOn(bool on) = 0;
    /// State and limits of auto exposure.
    virtual void getAutoExposureInfo(AutoExposureInfo& current, AutoExposureLimits& limits) = 0;
    /// Sets area, target, range and longest time.
    virtual void setAutoExposureInfo(const AutoExposureInfo& current) = 0;
    /// Significant bits of the camera's image.
    virtual int getBitDepth() = 0;
    /// Unit 1 gives the camera's raw values; another unit the values to show.
    virtual void getAutoExposureMaxTimeList(int displayUnit, QList<unsigned long>& list) = 0;
    /// Frames after the trigger, of a random recording, and the number of random recordings.
    virtual void getTriggerParameters(int& afterFrames, int& randomFrames, int& randomTimesMax) = 0;
    /// Number of the trigger mode.
    virtual int getTriggerMode() = 0;
    /// The selected cameras differ.
    virtual bool isTriggerModeDifferent() = 0;
    /// 0 none, 1..20 channel.
    virtual unsigned getVariableChannel() = 0;
    /// Makes a variable channel the active one; 0 is none.
    virtual void setVariableChannel(unsigned channel) = 0;
    /// The same for the documents given.
    virtual void setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) = 0;
    /// What a channel holds.
    virtual void getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) = 0;
    /// Stores a channel in the documents given.
    virtual void setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                          const VariableChannelInfo& info) = 0;
    /// The documents that a channel is to be stored in.
    virtual void listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) = 0;
    /// Empties a channel.
    virtual void eraseVariableChannel(unsigned channel) = 0;
    /// Largest width at a rate and height; 0 if none.
    virtual unsigned getVariableMaxWidth(unsigned long rate, unsigned height) = 0;
    /// Largest height at a rate and width; 0 if none.
    virtual unsigned getVariableMaxHeight(unsigned long rate, unsigned width) = 0;
    /// Highest rate at a size, fps.
    virtual unsigned long getVariableMaxRate(unsigned width, unsigned height) = 0;
    /// Steps and limits of a variable size.
    virtual void getVariableRestriction(VariableRestriction& restriction) = 0;
    /// The rates that a channel may have, fps.
    virtual void getVariableRateList(QList<unsigned long>& list) = 0;
    /// Brings the cameras into the state in which channels are set.
    virtual void beginVariableSetting() = 0;
    /// Puts back what was in force before.
    virtual void restoreVariableSetting(const VariableBackup& backup) = 0;
    /// Numbers of the trigger modes that can be set.
    virtual void getTriggerModeList(QList<int>& list) = 0;
    /// Sets mode and frame counts as they are.
    virtual void setTriggerModeSimple(int mode, int afterFrames, int randomFrames, int randomCount) = 0;
    /// Whether the number of random recordings is limited.
    virtual bool isRandomTimesEnable() = 0;
    /// Largest number of random recordings.
    virtual int getMaxRandomTrgCount() = 0;
    /// The same for the endless mode.
    virtual int getMaxRandomEndlessTrgCount() = 0;
    /// Limits the number of random recordings.
    virtual void setRandomTimesEnable(bool enable) = 0;
    /// State and limits of the hardware image trigger.
    virtual void getImageTriggerInfo(ImageTriggerInfo& current, ImageTriggerLimits& limits) = 0;
    /// 0 no trigger, 2 not available, else triggered.
    virtual int getImageTriggerState() = 0;
    /// Begins to watch the image trigger.
    virtual void startImageTriggerObserver() = 0;
    /// Ends it.
    virtual void stopImageTriggerObserver() = 0;
    /// Sets area, target and range.
    virtual void setImageTriggerInfo(const ImageTriggerInfo& current) = 0;
    /// Whether the image trigger is on.
    virtual bool isImageTriggerOn() = 0;
    /// Switches the image trigger.
    virtual void setImageTriggerOn(bool on) = 0;
    /// Whether the fan runs, and its state.
    virtual bool getFanControl(int& state) = 0;
    /// Frames that the memory holds.
    virtual int getTotalFrames() = 0;
    /// Runs a calibration of the documents; code 2 is shading.
    virtual void runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) = 0;
    /// Whether the calibration can be run; code 2 is shading.
    virtual void isCalibrationSupported(int code, int reserved, bool& supported) = 0;
    /// Support level of LED and laser.
    virtual unsigned long existHeadLedLaser() = 0;
    /// True while a camera saves by itself.
    virtual bool isDirectSaving(bool selectedOnly) = 0;
    /// 1 EF, 2 MYUTRON, 3 FOURTHIRDS, 4 EF2, else no known lens.
    virtual int getLensType() = 0;
    /// True: the lens can't be driven; false: there is none.
    virtual bool isLensControlUnable() = 0;
    /// Name of the lens.
    virtual QString getLensName() = 0;
    /// How long a command of the lens takes, milliseconds.
    virtual int getLensControlCommandTime() = 0;
    /// The three axes.
    virtual void getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) = 0;
    /// Parks the lens.
    virtual void closeLens() = 0;
    /// Reads the lens anew.
    virtual void resetLens(int reserved) = 0;
    /// Sets the iris.
    virtual void setIrisValue(int value) = 0;
    /// Moves the iris by coefficient times size.
    virtual void setIrisIncremental(int coef, int size) = 0;
    /// Sets the focus.
    virtual void setFocusValue(int value) = 0;
    /// Moves the focus by coefficient times size.
    virtual void setFocusIncremental(int coef, int size) = 0;
    /// Sets the zoom.
    virtual void setZoomValue(int value) = 0;
    /// Moves the zoom by coefficient times size.
    virtual void setZoomIncremental(int coef, int size) = 0;
    /// Frames that a random recording has in addition.
    virtual int getRandomFramesOffset() = 0;
    /// Changes name and address of a camera.
    virtual void editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                            const QString& gateway, bool isLive) = 0;
    /// Sets the trigger of the documents given, one value of it locked.
    virtual void applyTriggerParameterOf(const QList<DOC_Interface*>& documents, int lock, int mode,
                                         int before, int after, float percent, int randomFrames,
                                         int randomCount) = 0;
    /// Sets the trigger, one value of it locked.
    virtual void applyTriggerParameter(int lock, int mode, int before, int after, float percent,
                                       int randomFrames, int randomCount) = 0;
    /// Sets mode, frames and percent.
    virtual void setTriggerModeParameters(int mode, int before, int after, float percent, int randomFrames,
                                          int randomCount) = 0;
    /// The trigger in force.
    virtual void getTriggerConfig(TriggerConfig& config) = 0;
    /// Whether two triggers are alike.
    virtual bool isSameTriggerConfig(const TriggerConfig& a, const TriggerConfig& b) = 0;
    /// Support level.
    virtual int existSupportedShutterLockMode() = 0;
    /// Support level.
    virtual int existSupportedAutoExposure() = 0;
    /// Support level.
    virtual int existSupportedDSShutter() = 0;
    /// Support level.
    virtual int existSupportedDSShutterMode() = 0;
    /// Support level.
    virtual int existSupportImageTrigger() = 0;
    /// Support level.
    virtual int existSupportRandomTrgTimes() = 0;
    /// Support level.
    virtual int existResolutionLockMode() = 0;
    /// Support level.
    virtual int existLiveImageQuality() = 0;
    /// Support level.
    virtual int existLowLight() = 0;
    /// Support level.
    virtual int existFanControl() = 0;
    /// Support level.
    virtual int existLensControl() = 0;
    /// Connects the cameras at these addresses.
    virtual void connectCameras(const QStringList& list) = 0;
    /// Searches the network of the address.
    virtual void findCameras(const QString& ip) = 0;
    /// Adds a camera to the list, or a dummy entry.
    virtual void addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) = 0;
    /// Reads the list of cameras anew.
    virtual void updateCameras() = 0;
    /// Opens the discovery of cameras.
    virtual void discoverySearch() = 0;
    /// Searches again; the answer is JSON.
    virtual QString discoverySearchAgain() = 0;
    /// Corrects the address of a camera that was discovered.
    virtual void setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                                     const QString& mac) = 0;
};
