#pragma once

#include "simulator/device/LensUnit.h"
#include "simulator/picture/FrameRequest.h"
#include "simulator/settings/SimulatedModel.h"
#include "viewer/cameras/Frame.h"
#include "viewer/cameras/settings/HeadSettings.h"

#include <memory>

class Scene;

/// Makes the pictures of a head out of copies of all that they depend on, so that it can do so on any thread
/// that has a scene of its own.
struct FrameMaker {
    std::shared_ptr<const SimulatedModel> model;
    PictureSource source; // in place of the scene, as it is and without a stamp; may be empty
    double darkening = 0; // part of the light that the sensor's corners lack
    bool laser = false;

    /// `origin`: ns at which the frame with the number 0 was exposed.
    Frame make(Scene& scene, quint64 number, const HeadSettings& settings, const LensView& lens,
               const QSize& maxSize, qint64 origin = 0) const;
    /// What comes through the lens.
    QImage seen(Scene& scene, const FrameRequest& request, const LensView& lens) const;
    /// Relative light on the sensor.
    static double gain(const HeadSettings& settings, const LensView& lens);
    /// A whole area, reduced to the wanted size with the same shape.
    static QSize imageSize(const QSize& full, const QSize& maxSize);
};
