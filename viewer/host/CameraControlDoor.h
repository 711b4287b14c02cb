#pragma once

#include "viewer/host/HostRooms.h"

#include <optional>

/// The operations on the settings of the current camera and the selected ones. A setter goes to all selected
/// cameras that are connected: each gets the value whatever the others answer, and one CameraFailure behind
/// the last tells what went wrong. A getter answers for the current camera, with a neutral value without one.
class CameraControlDoor : public HostRooms {
public:
    using HostRooms::HostRooms;

    void setResolution(unsigned width, unsigned height) override;
    void setRecordRate(unsigned long rate) override;
    void setShutterSpeed(unsigned long value, bool notify) override;
    void getShutterSpeedList(int unit, QList<unsigned long>& list) override;
    unsigned long getShutterSpeed(int unit) override;
    bool getShutterLockMode() override;
    void setShutterLockMode(bool on) override;
    void getResolutionList(QList<ResolutionEntry>& list) override;
    void getRecordRateList(QList<unsigned long>& list) override;
    unsigned long getRecordRate() override;
    void getResolution(unsigned& width, unsigned& height) override;
    void getMaxResolution(unsigned& width, unsigned& height) override;
    void setFanControl(bool value) override;
    double getDockStoreUseRatio(int type, int driveNo, int slotNo, int option) override;
    quint64 getTotalWrittenAmount(int type, int driveNo, int slotNo, int option) override;
    double getCFastUseRatio(int type, int driveNo, int slotNo, int option) override;
    void formatDockStore(int type, int driveNo, int slotNo) override;
    void formatCFast(int type, int driveNo, int slotNo) override;
    bool isLensCalibration() override;
    void setCurrentPartition(int number, bool notify) override;
    QString getDefaultCameraName(int reserved) override;
    bool getResolutionLockMode() override;
    void setResolutionLockMode(bool on) override;
    int getDSShutterValue() override;
    bool getDSShutterMode() override;
    void setDSShutterValue(int value) override;
    bool isAvailableDSShutter() override;
    int getDSShutterMax() override;
    int getDSShutterMin() override;
    bool existsLowLight() override;
    bool isAllLowLight(bool on) override;
    bool isAllQmonLocked() override;
    void setLiveImageDataReduceMode(bool on) override;
    bool getLiveImageDataReduceMode() override;
    bool isLowLight() override;
    int getLowLightType() override;
    bool isAnyLowLightOn() override;
    void setLowLightMode(bool mode) override;
    void setLowLightType(int type) override;
    void prepareSettingsDialog() override;
    bool isAutoExposureOn() override;
    void setAutoExposureOn(bool on) override;
    void getAutoExposureInfo(AutoExposureInfo& current, AutoExposureLimits& limits) override;
    void setAutoExposureInfo(const AutoExposureInfo& current) override;
    int getBitDepth() override;
    void getAutoExposureMaxTimeList(int displayUnit, QList<unsigned long>& list) override;
    void getTriggerParameters(int& afterFrames, int& randomFrames, int& randomTimesMax) override;
    int getTriggerMode() override;
    bool isTriggerModeDifferent() override;
    unsigned getVariableChannel() override;
    void setVariableChannel(unsigned channel) override;
    void setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) override;
    void getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) override;
    void setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                  const VariableChannelInfo& info) override;
    void listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) override;
    void eraseVariableChannel(unsigned channel) override;
    unsigned getVariableMaxWidth(unsigned long rate, unsigned height) override;
    unsigned getVariableMaxHeight(unsigned long rate, unsigned width) override;
    unsigned long getVariableMaxRate(unsigned width, unsigned height) override;
    void getVariableRestriction(VariableRestriction& restriction) override;
    void getVariableRateList(QList<unsigned long>& list) override;
    void beginVariableSetting() override;
    void restoreVariableSetting(const VariableBackup& backup) override;
    void getTriggerModeList(QList<int>& list) override;
    void setTriggerModeSimple(int mode, int afterFrames, int randomFrames, int randomCount) override;
    bool isRandomTimesEnable() override;
    int getMaxRandomTrgCount() override;
    int getMaxRandomEndlessTrgCount() override;
    void setRandomTimesEnable(bool enable) override;
    void getImageTriggerInfo(ImageTriggerInfo& current, ImageTriggerLimits& limits) override;
    int getImageTriggerState() override;
    void startImageTriggerObserver() override;
    void stopImageTriggerObserver() override;
    void setImageTriggerInfo(const ImageTriggerInfo& current) override;
    bool isImageTriggerOn() override;
    void setImageTriggerOn(bool on) override;
    bool getFanControl(int& state) override;
    int getTotalFrames() override;
    void runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) override;
    void isCalibrationSupported(int code, int reserved, bool& supported) override;
    unsigned long existHeadLedLaser() override;
    bool isDirectSaving(bool selectedOnly) override;
    int getLensType() override;
    bool isLensControlUnable() override;
    QString getLensName() override;
    int getLensControlCommandTime() override;
    void getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) override;
    void closeLens() override;
    void resetLens(int reserved) override;
    void setIrisValue(int value) override;
    void setIrisIncremental(int coef, int size) override;
    void setFocusValue(int value) override;
    void setFocusIncremental(int coef, int size) override;
    void setZoomValue(int value) override;
    void setZoomIncremental(int coef, int size) override;
    int getRandomFramesOffset() override;
    void editCamera(DOCKEY key, const QString& name, const QString& ip, const QString& mask,
                    const QString& gateway, bool isLive) override;
    void applyTriggerParameterOf(const QList<DOC_Interface*>& documents, int lock, int mode, int before,
                                 int after, float percent, int randomFrames, int randomCount) override;
    void applyTriggerParameter(int lock, int mode, int before, int after, float percent, int randomFrames,
                               int randomCount) override;
    void setTriggerModeParameters(int mode, int before, int after, float percent, int randomFrames,
                                  int randomCount) override;
    void getTriggerConfig(TriggerConfig& config) override;
    bool isSameTriggerConfig(const TriggerConfig& a, const TriggerConfig& b) override;
    int existSupportedShutterLockMode() override;
    int existSupportedAutoExposure() override;
    int existSupportedDSShutter() override;
    int existSupportedDSShutterMode() override;
    int existSupportImageTrigger() override;
    int existSupportRandomTrgTimes() override;
    int existResolutionLockMode() override;
    int existLiveImageQuality() override;
    int existLowLight() override;
    int existFanControl() override;
    int existLensControl() override;
    void connectCameras(const QStringList& list) override;
    void findCameras(const QString& ip) override;
    void addCamera(const QString& name, const QString& ip, bool isDummy, bool connect) override;
    void updateCameras() override;
    void discoverySearch() override;
    QString discoverySearchAgain() override;
    void setDiscoveryNetwork(unsigned adapter, unsigned ip, unsigned mask, unsigned gateway,
                             const QString& mac) override;

    /// The address in whose network a search looks; empty for everywhere.
    QString searchPlace() const;

private:
    /// `taken`: see CameraCommands.
    void applyTrigger(const QList<CameraDocument*>& cameras, int lock, const TriggerConfig& wish,
                      const CameraCommands::Taken& taken);
    TriggerConfig triggerConfig() const;

    /// To the selected cameras with a lens, and with the axis if one is given. A lens that refuses still
    /// stands where it stood, which the pages hear of.
    void driveLens(const CameraCommands::Command& command, std::optional<LensAxis> axis = std::nullopt);
    void moveAxis(LensAxis axis, int value);
    void stepAxis(LensAxis axis, int coef, int size);
    CommandResult takeChannel(CameraHead& head, unsigned channel);
};
