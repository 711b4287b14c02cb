#pragma once

#include "viewer/cameras/Reason.h"

/// How a shutter value is counted and shown.
///
/// The unit 1 is the camera's own: n for 1/n second. Any other unit is the exposure in nanoseconds, so that
/// the shortest exposures stay apart; it is shown in a unit of time. Both kinds stand in the same order.
struct ShutterFormat {
    static constexpr int CameraUnit = 1;

    /// Of an exposure time; Fitting is milliseconds or microseconds, as the value has it.
    enum TimeUnit { Fitting = 0, Seconds = 1, Milliseconds = 2, Microseconds = 3 };

    int unit = CameraUnit;
    bool grouped = false; // thousands
    int timeUnit = Fitting;

    /// A camera's value (n for 1/n second) in that unit; 0 stays 0.
    static unsigned long fromCamera(quint32 value, int unit);
    /// Display text of a value that stands in this unit; empty for 0.
    QString text(unsigned long value) const;
    /// The same of a camera's value, in this unit and to be translated.
    Reason ofCamera(quint32 value) const { return words(fromCamera(value, unit)); }

private:
    Reason words(unsigned long value) const;
    QString timeText(double nanoseconds, const class QLocale& locale) const;
};
