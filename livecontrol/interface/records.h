#pragma once

#include "livecontrol/interface/types.h"

#include <QString>

// Records that the host and the plug-in exchange. The order and width of the fields are part of the
// interface.

/// One row of the resolution list, sensor pixels.
struct ResolutionEntry {
    quint32 width = 0;
    quint32 height = 0;
};

/// One stored combination of frame rate, size and position on the sensor.
struct VariableChannelInfo {
    quint32 reserved0 = 0;
    quint32 rate = 0; ///< fps
    quint32 width = 0;
    quint32 height = 0;
    quint32 posX = 0; ///< Left edge, camera coordinates.
    quint32 posY = 0; ///< Top edge, camera coordinates.
    quint32 reserved6 = 0;
    quint32 shutterMode = 0; ///< 18: the channel uses the dual slope shutter.
    quint32 reserved8 = 0;
};

/// What the camera permits for a variable channel.
struct VariableRestriction {
    quint32 widthStep = 1;
    quint32 heightStep = 1;
    quint32 posXStep = 1;
    quint32 posYStep = 1;
    quint32 widthMin = 1;
    quint32 heightMin = 1;
    bool posXFree =
        false; ///< The position can be chosen; otherwise the camera centers the area on this axis.
    bool posYFree = false;
    quint32 widthFrameMax = 0; ///< Size of the whole sensor frame.
    quint32 heightFrameMax = 0;
    quint32 widthMax = 0;
    quint32 heightMax = 0;
};

/// The current trigger.
struct TriggerConfig {
    qint32 mode = 0;
    qint32 lock = -1; ///< -1 none, 0 before frames, 1 after frames, 2 percent.
    qint32 beforeFrames = 0;
    qint32 afterFrames = 0;
    float beforePercent = 0; ///< Percent.
    qint32 reserved = 0;
    qint32 randomFrames = 0; ///< Frames of one random recording.
    qint32 randomCount = 0;  ///< Number of recordings.
};

/// What a variable channel setting has to put back when it is cancelled.
struct VariableBackup {
    quint32 channel = 0;
    quint32 recordRate = 0; ///< fps
    quint32 width = 0;
    quint32 height = 0;
    quint32 shutter = 0; ///< Raw value (unit 1).
    TriggerConfig trigger;
};

/// Auto exposure: measured area in camera coordinates, target and range on the camera's own scale.
struct AutoExposureInfo {
    quint32 width = 0;
    quint32 height = 0;
    quint32 posX = 0;
    quint32 posY = 0;
    quint32 value = 0;
    quint32 range = 0;
    quint32 maxTime = 0; ///< Longest exposure, one of the raw values of the maximum time list.
};

/// What the camera permits for the measured area.
struct AutoExposureLimits {
    quint32 widthStep = 0;
    quint32 heightStep = 0;
    quint32 posXStep = 0;
    quint32 posYStep = 0;
    quint32 widthMin = 0;
    quint32 heightMin = 0;
    quint32 valueMax = 0;
    quint32 rangeMax = 0;
    quint32 widthFrameMax = 0;
    quint32 heightFrameMax = 0;
    quint32 widthMax = 0;
    quint32 heightMax = 0;
};

/// Hardware image trigger: judged area in camera coordinates, target and range on the camera's own scale.
struct ImageTriggerInfo {
    quint32 width = 0;
    quint32 height = 0;
    quint32 posX = 0;
    quint32 posY = 0;
    quint32 value = 0;
    quint32 range = 0;
};

using ImageTriggerLimits = AutoExposureLimits;

/// One axis of an electronic lens.
struct LensAxisInfo {
    qint32 sliderMax = 0;
    qint32 sliderMin = 0;
    qint32 sliderValue = 0;
    qint32 reserved = 0;
    qint32 spinnerMax = 0; ///< For iris, and for zoom with an "EF2" lens, tenths of the shown unit.
    qint32 spinnerMin = 0;
    qint32 spinnerValue = 0;
    qint32 smallTick = 0;
    qint32 largeTick = 0;
    quint8 enable = 0;          ///< The axis can be driven.
    quint8 autoFocusEnable = 0; ///< Focus only: autofocus can be started.
};

/// An access point that a camera sees.
struct AccessPointInfo {
    QString ssid;
    QString mac;
    QString security;
    QString password; ///< The one known for it; empty if there is none.
    bool connected = false;
    int receive = 0; ///< Reception level.
};

/// State of a camera's presets.
struct PresetInfo {
    int selected = 0;
    int count = 0;
};

/// The custom time code that stands over the image.
struct TimeCodeSetting {
    int index = 0;
    QString displayUnit = QStringLiteral("deg");
    double oneFrame = 0;
    double startValue = 0;
    bool reset = false;
    double resetValue = 0;
    int scopeDisplayIndex = 0;
    int decimalPlaceIndex = 0;
    bool decimalDivide = false;
    bool usingRchFileInfo = true;
    bool overwrite = false;
    bool realTime = false;
};
