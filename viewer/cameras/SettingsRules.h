#pragma once

#include "viewer/cameras/CameraHead.h"

/// How the settings of a head depend on each other, as CameraHead tells. Pure arithmetic: a model and
/// settings in, settings out. A setter gives Clamped when another value than the one asked stands afterwards.
namespace SettingsRules {

HeadSettings initial(const CameraModel& model);

QList<quint32> rateList(const CameraModel& model, const HeadSettings& settings);
QList<quint32> shutterList(const CameraModel& model, const HeadSettings& settings);
bool isDualSlopeAvailable(const CameraModel& model, const HeadSettings& settings);
/// What acts on the picture, percent: 0 too when the mode is off.
int activeDualSlope(const CameraModel& model, const HeadSettings& settings);
/// How many of the memory's frames lie after the trigger.
int framesAfterTrigger(const CameraModel& model, const HeadSettings& settings);

CommandResult setResolution(const CameraModel& model, HeadSettings& settings, const QSize& size);
CommandResult setRate(const CameraModel& model, HeadSettings& settings, quint32 rate);
CommandResult setShutter(const CameraModel& model, HeadSettings& settings, quint32 shutter);
CommandResult setShutterLock(HeadSettings& settings, bool on);
CommandResult setDualSlope(const CameraModel& model, HeadSettings& settings, int percent);
CommandResult setAfterFrames(const CameraModel& model, HeadSettings& settings, int frames);

} // namespace SettingsRules
