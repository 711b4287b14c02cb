#pragma once

#include "viewer/cameras/BrightnessArea.h"
#include "viewer/cameras/Lens.h"

#include <QList>
#include <QSet>
#include <QSize>
#include <QString>

/// Functions that a camera may have or lack. Named in model files as functionName() says.
enum class CameraFunction {
    ShutterLock,
    ResolutionLock,
    DualSlope,     // dual slope shutter with a value
    DualSlopeMode, // which is a mode of its own, switched at the camera, beside the value
    AutoExposure,
    VariableChannels,
    ImageTrigger,
    RandomTimes,
    LowLight,
    FanControl,
    LensControl,
    LiveQuality,
    ShadingCalibration,
    HeadLight, // an LED and a laser
    LinkAdjustment,
    LinkSpeed,
    Wifi,
    PowerOff, // from the computer
    Restart   // the same
};

/// Trigger modes: where the recording stands round the trigger. TriggerRules tells what each records.
enum TriggerMode {
    TriggerStart = 0,
    TriggerCenter = 1,
    TriggerEnd = 2,
    TriggerRandom = 3,
    TriggerManual = 4,
    TriggerRandomReset = 5,
    TriggerRandomCenter = 6,
    TriggerRandomManual = 7,
    TriggerTwoStage = 8,
    TriggerTwoStageHalf = 9,
    TriggerTwoStageQuarter = 10,
    TriggerTwoStageEighth = 11,
    TriggerReset = 12,
    TriggerRecordOnCommand = 13,
    TriggerRandomLoop = 14
};

QString functionName(CameraFunction function);

/// Rates, both ends included, at which the sensor reads its rows in larger blocks than otherwise.
struct RateBand {
    quint32 from = 0; // fps
    quint32 to = 0;
    int heightStep = 1; // rows
};

/// What a kind of camera can do; it never changes. Made by whoever knows the camera; empty lists and no
/// functions for one of which only name and address are known.
struct CameraModel {
    virtual ~CameraModel() = default;

    QString id;    // never shown
    QString title; // as a user reads it
    QSize sensor;  // pixels
    QSize sizeMin;
    QSize sizeStep;
    bool color = false;
    int bitDepth = 8;

    QList<QSize> resolutions;        // presets, largest first
    QList<quint32> rates;            // fps, rising
    QList<quint32> shutters;         // n for 1/n s, rising, that is from long to short
    QList<quint32> lowLightShutters; // the same, longer ones that low light has besides
    int dualSlopeMin = 0;            // percent; 0 switches it off
    int dualSlopeMax = 0;
    quint32 dualSlopeRateLimit = 0; // no dual slope above this rate; 0: no limit
    ExposureMeter meter;            // of the auto exposure and the image trigger

    // Of variable channels.
    QSize positionStep = QSize(1, 1); // grid of the position on the sensor
    bool positionFreeX = true;        // false: the camera keeps the area centered on this axis
    bool positionFreeY = true;
    QList<RateBand> bands;

    QList<int> triggerModes;       // of TriggerMode
    int randomOffset = 0;          // frames that a random recording costs on top of its own
    int randomCountMax = 100;      // random recordings that can be counted
    int randomCountMaxAlways = 50; // the same in the modes that always count
    int memoryMb = 1024;           // recording memory of a head, each of its partitions
    int partitions = 1;

    QSet<int> functions; // of CameraFunction
    LensModel lens;
    int presets = 0;
    bool presetsNeedReboot = false; // a preset is loaded when the camera starts

    bool supports(CameraFunction function) const { return functions.contains(int(function)); }
    /// Highest rate at that size, fps, not restricted to the list of rates.
    virtual quint32 maxRate(const QSize& size) const;
    /// Grid of the height at that rate.
    int heightStepAt(quint32 rate) const;
    /// Frames of that size that fit into the memory.
    int memoryFrames(const QSize& size) const;
};
