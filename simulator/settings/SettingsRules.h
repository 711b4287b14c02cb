#pragma once

#include "viewer/cameras/Answer.h"
#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/settings/HeadSettings.h"
#include "viewer/cameras/settings/VariableSize.h"

/// How the settings of a head depend on each other, as SimulatedHead tells. Pure arithmetic: a model and
/// settings in, settings out. A setter gives Clamped when another value than the one asked stands afterwards.
namespace SettingsRules {

HeadSettings initial(const CameraModel& model);

/// The exposure for a wish, both n for 1/n s: no longer than a frame, and one of the model's unless it is
/// exactly a frame.
quint32 fittingShutter(const CameraModel& model, quint32 rate, quint32 wish);
QList<quint32> rateList(const CameraModel& model, const HeadSettings& settings);
QList<quint32> shutterList(const CameraModel& model, const HeadSettings& settings);
bool isDualSlopeAvailable(const CameraModel& model, const HeadSettings& settings);
/// What acts on the picture, percent: 0 too when the mode is off.
int activeDualSlope(const CameraModel& model, const HeadSettings& settings);

CommandResult setResolution(const CameraModel& model, HeadSettings& settings, const QSize& size);
CommandResult setRate(const CameraModel& model, HeadSettings& settings, quint32 rate);
CommandResult setShutter(const CameraModel& model, HeadSettings& settings, quint32 shutter);
/// On, it begins with the exposure in force.
CommandResult setLowLight(const CameraModel& model, HeadSettings& settings, bool on);
CommandResult setShutterLock(HeadSettings& settings, bool on);
CommandResult setDualSlope(const CameraModel& model, HeadSettings& settings, int percent);
/// Off, the exposure that was chosen last comes back.
CommandResult setAutoExposure(const CameraModel& model, HeadSettings& settings, bool on);
CommandResult setExposureControl(const CameraModel& model, HeadSettings& settings,
                                 const ExposureControl& wish);
/// All but whether it is on.
CommandResult setImageTriggerControl(const CameraModel& model, HeadSettings& settings,
                                     const MeteringArea& wish);
CommandResult setChannel(const CameraModel& model, HeadSettings& settings, int number,
                         const VariableChannel& content);
CommandResult leaveChannel(const CameraModel& model, HeadSettings& settings);

} // namespace SettingsRules
