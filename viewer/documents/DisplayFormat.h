#pragma once

#include "viewer/documents/ShutterFormat.h"

#include <QString>

/// How the values of a picture are written, as the user chose.
struct DisplayFormat {
    /// Of a recording time.
    enum TimeUnit { Clock = 0, Seconds = 1, Milliseconds = 2, Microseconds = 3 };

    ShutterFormat shutter{ShutterFormat::CameraUnit, true};
    bool groupsRates = true;
    bool groupsFrames = true;
    int recordingTimeUnit = Clock;

    /// "5,000"; the unit is the caller's.
    QString rate(quint32 framesPerSecond) const;
    /// A frame's number, or how many there are.
    QString frames(qint64 count) const;
    /// How long that many frames take, as h:m:s or in the unit; empty without a rate.
    QString recordingTime(qint64 frameCount, quint32 framesPerSecond) const;
};
