#pragma once

#include "viewer/cameras/Reason.h"

/// How a shutter value is counted and shown.
///
/// The unit 1 is the camera's own: n for 1/n second. Any other unit is the exposure in nanoseconds, so that
/// the shortest exposures stay apart; it is shown in milliseconds or microseconds. Both kinds stand in the
/// same order.
struct ShutterFormat {
    static constexpr int CameraUnit = 1;

    int unit = CameraUnit;
    bool grouped = false; // thousands

    /// A camera's value (n for 1/n second) in that unit; 0 stays 0.
    static unsigned long fromCamera(quint32 value, int unit);
    /// Display text of a value that stands in this unit; empty for 0.
    QString text(unsigned long value) const;
    /// The same of a camera's value, in this unit and to be translated.
    Reason ofCamera(quint32 value) const { return words(fromCamera(value, unit)); }

private:
    Reason words(unsigned long value) const;
};
