#pragma once

#include <QRect>
#include <QSize>
#include <QtGlobal>

class QImage;
struct CameraModel;
struct HeadSettings;

/// What a kind of camera offers for its auto exposure and its image trigger; of a camera with neither all is
/// 0.
struct ExposureMeter {
    QSize areaMin;          // pixels
    QSize areaStep;         // of the size, from areaMin on
    QSize posStep;          // of the position, from 0 on
    quint32 valueMax = 0;   // target; valueMax + 1 stands for full scale
    quint32 rangeMax = 0;   // rangeMax + 1 stands for full scale
    quint32 upperLimit = 0; // of target and range together, in the full bit depth; 0: none
};

/// A rectangle of the image whose mean brightness is held against a target.
struct AreaJudge {
    bool on = false;
    QRect area;        // measured, from the corner of the image
    quint32 value = 0; // brightness wanted, on the meter's scale
    quint32 range = 0; // the target is met while the brightness is no farther from it

    /// Of a mean brightness, 1 is full scale.
    bool isMet(const ExposureMeter& meter, double level) const;
    bool operator==(const AreaJudge& other) const;
};

/// What an auto exposure works to: it rests while the target is met.
struct ExposureControl : AreaJudge {
    quint32 maxTime = 0; // n for 1/n s, the longest exposure

    bool operator==(const ExposureControl& other) const;
};

/// Arithmetic of a camera's auto exposure.
namespace AutoExposure {

constexpr double StepMs = 40; // between two measurements

/// Of a camera that was just switched on: the middle of the image, half bright.
ExposureControl initial(const CameraModel& model, const HeadSettings& settings);
/// The same as fitted(), of what has no time.
AreaJudge fittedJudge(const CameraModel& model, const HeadSettings& settings, AreaJudge wish);
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
