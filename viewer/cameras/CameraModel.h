#pragma once

#include "viewer/cameras/AutoExposure.h"

#include <QList>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

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
    TriggerCentre = 1,
    TriggerEnd = 2,
    TriggerRandom = 3,
    TriggerManual = 4,
    TriggerRandomReset = 5,
    TriggerRandomCentre = 6,
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

/// The ends of an axis of a lens, and its small step.
struct LensRange {
    int min = 0;
    int max = 0; // the same as min: the axis can't be driven
    int tick = 1;

    bool isDriven() const { return max > min; }
};

enum class LensAxis { Iris, Focus, Zoom };

/// An electronic lens.
struct LensModel {
    static constexpr int Ef2 = 4;

    int type = 0; // 1 EF, 2 MYUTRON, 3 FOURTHIRDS, 4 EF2, 0 none
    QString name;
    LensRange iris;         // tenths of the f-number
    LensRange focus;        // steps of its motor, at the wide end of the zoom
    LensRange zoom;         // millimetres of the focal length; tenths of them for EF2
    int focusShift = 0;     // by which the far end of the focus lies higher at the tele end
    double travelMs = 1000; // from one end of an axis to the other
    double commandMs = 10;  // that a command costs on top of the camera's own time

    const LensRange& range(LensAxis which) const {
        return which == LensAxis::Iris ? iris : which == LensAxis::Focus ? focus : zoom;
    }
    /// Whether the numbers of the axis are tenths of what a user reads.
    bool isInTenths(LensAxis which) const {
        return which == LensAxis::Iris || (which == LensAxis::Zoom && type == Ef2);
    }
};

/// What a kind of camera can do; read from a model file and never changed.
struct CameraModel {
    QString id;    // file name without extension
    QString title; // as a user reads it
    QSize sensor;  // pixels
    QSize sizeMin;
    QSize sizeStep;
    bool colour = false;
    int bitDepth = 8;

    /// Time of a frame = frameOverheadUs + rows * (rowOverheadUs + columns * columnNs / 1000); the highest
    /// rate is its inverse, further limited by rateLimit.
    double frameOverheadUs = 5;
    double rowOverheadUs = 0.1;
    double columnNs = 0.3;
    quint32 rateLimit = 1000000;

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
    bool positionFreeX = true;        // false: the camera keeps the area centred on this axis
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
    int storageSlots = 0;
    int presets = 0;
    bool presetsNeedReboot = false; // a preset is loaded when the camera starts

    double commandTimeMs = 5;
    double bootTimeMs = 800;
    double readyTimeMs = 60; // from the ready command to ready

    bool supports(CameraFunction function) const { return functions.contains(int(function)); }
    /// Highest rate at that size, fps, not restricted to the list of rates.
    quint32 maxRate(const QSize& size) const;
    /// Grid of the height at that rate.
    int heightStepAt(quint32 rate) const;
    /// Frames of that size that fit into the memory.
    int memoryFrames(const QSize& size) const;

    /// The built-in models. Throws RigFileError if the model's file is wrong; null if there is none of that
    /// name.
    static std::shared_ptr<const CameraModel> find(const QString& id);
    static QStringList ids();
    /// From the text of a model file; the file name is for messages. Throws RigFileError.
    static std::shared_ptr<const CameraModel> parse(const QByteArray& text, const QString& fileName);
    /// The model of a camera of which only name and address are known: no lists, no functions.
    static std::shared_ptr<const CameraModel> dummy();
};
