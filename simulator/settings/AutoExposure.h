#pragma once

#include "viewer/cameras/CameraModel.h"
#include "viewer/cameras/settings/HeadSettings.h"

class QImage;

/// Arithmetic of a camera's auto exposure.
namespace AutoExposure {

constexpr double StepMs = 40; // between two measurements

/// Of a camera that was just switched on: the middle of the image, half bright.
ExposureControl initial(const CameraModel& model, const HeadSettings& settings);
/// The same as fitted(), of what has no time.
MeteringArea fittedArea(const CameraModel& model, const HeadSettings& settings, MeteringArea wish);
/// The nearest that the camera can work to with these settings: the size cut to the image and lowered to its
/// step, the position moved into the image and lowered to its step, the time one of the list.
ExposureControl fitted(const CameraModel& model, const HeadSettings& settings, ExposureControl wish);
/// A shutter within what the rate, the longest time and the model permit.
quint32 limited(const CameraModel& model, const HeadSettings& settings, quint32 shutter);
/// The shutter of the next exposure: half of the way, in stops, from a brightness of `level` (1 is full
/// scale) towards the target. Stays within the range.
quint32 next(const CameraModel& model, const HeadSettings& settings, double level);
/// Mean brightness, 1 is full scale. 0 of a null image.
double meanLevel(const QImage& image, int bitDepth);

} // namespace AutoExposure
