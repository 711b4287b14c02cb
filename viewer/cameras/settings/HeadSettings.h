#pragma once

#include "viewer/cameras/BrightnessArea.h"

#include <QPoint>
#include <QSize>

/// A live picture for setting up in the dark: the frame rate does not limit its exposure. Nothing is recorded
/// with it.
struct LowLight {
    static constexpr int WholeSensor = 2; // of `type`: what the picture shows
    static constexpr int Resolution = 3;

    bool on = false;
    int type = Resolution;
    quint32 shutter = 0; // n for 1/n s

    bool showsWholeSensor() const { return on && type == WholeSensor; }
    bool operator==(const LowLight& other) const {
        return on == other.on && type == other.type && shutter == other.shutter;
    }
};

/// What is set at a head. SettingTable has a row for each.
struct HeadSettings {
    QSize resolution;
    quint32 rate = 0;        // fps
    quint32 shutter = 0;     // n for 1/n s, the exposure in force
    quint32 shutterWish = 0; // n that a locked shutter goes back to
    bool shutterLock = false;
    bool resolutionLock = false;
    int dualSlope = 0; // percent, 0 off
    bool dualSlopeMode = false;
    int triggerMode = 0;
    int afterFrames = 1;      // after the trigger, for the manual modes
    int randomFrames = 1;     // of one random recording
    int randomCount = 1;      // of random recordings
    bool randomTimes = false; // whether the count holds in the modes that leave the choice
    double aperture = 1;      // relative light
    int channel = 0; // variable channel in force, from 1; 0: none, and the area is a preset in the center
    QPoint position; // of the area on the sensor, while a channel is in force
    ExposureControl exposure;
    MeteringArea imageTrigger;
    LowLight lowLight;
    bool led = false;   // lights what is near
    bool laser = false; // marks the center of the sensor

    /// The part of a sensor of that size that is in use.
    QRect areaOn(const QSize& sensor) const;
    /// The exposure of the live picture, n for 1/n s.
    quint32 liveShutter() const { return lowLight.on ? lowLight.shutter : shutter; }

    bool operator==(const HeadSettings& other) const;
    bool operator!=(const HeadSettings& other) const { return !(*this == other); }
};
