#pragma once

#include <QString>

// The arithmetic of the custom time code: a value in a unit of the user's, with a start and a step for each
// frame, and how a time is written over the image. Values count in steps of 0.0001.

namespace timecode {

constexpr double kScale = 10000;          ///< steps of one
constexpr double kMaxShown = 999900000.0; ///< larger values have no room

/// In steps of 0.0001, rounded to the nearest; exactly half a step is cut off. Held within what can be
/// calculated with; what is no number counts as 0.
qint64 scaled(double value);

/// The number that a text stands for, always with a point; 0 for a text that is no finite number.
double numberOf(const QString& text);
/// With four decimals and a point, in every locale. There is no minus before a zero.
QString fourDecimals(double value);

/// Whether the value comes to `resetValue` at all.
bool isReached(bool reset, double oneFrame, double resetValue, double start);
/// After how many frames `resetValue` is reached from `start`, the last one counted whole; 1 if it is never
/// reached, or if nothing is reset.
qint64 countFromValue(bool reset, double oneFrame, double resetValue, double start);
/// The value after `count` frames.
double valueFromCount(int count, double oneFrame, double start);
/// The same, one frame less if it is too large to be shown.
double guardedValueFromCount(int count, double oneFrame, double start);

/// How a time is written.
struct TimeFormat {
    int scope = 0;        ///< 0 h:m:s, 1 m:s, 2 seconds, 3 milli-, 4 micro-, 5 nanoseconds.
    int places = 0;       ///< Of the fraction, up to 9; 0 for as many as there are.
    bool divided = false; ///< A blank after each third of them.
};

/// A time without its sign, then a blank and the unit, which may be empty. The fraction of a scope counts in
/// parts of that scope's unit.
QString timeText(qint64 nanoseconds, const TimeFormat& format);
/// "012.5000 deg" of a value without its sign.
QString valueText(double value, const QString& unit);

} // namespace timecode
