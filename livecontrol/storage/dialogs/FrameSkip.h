#pragma once

#include <QList>

// How many frames a save leaves out: counted in frames, or in milliseconds on a grid that all rates in hand
// share.

/// To five decimals, halves away from zero. The integer part is split off first, so that a large one costs
/// the fraction no precision.
double roundToFive(double value);

/// The nearest number of frames; 1 for a rate of 0.
double framesFromMilliseconds(double milliseconds, uint rate);
/// 1 for a rate of 0.
double millisecondsFromFrames(double frames, uint rate);

/// The one of `values` with the smallest distance, to four decimals; of equal distances the later one. An
/// empty list has nothing nearer than the value itself.
double nearestSkip(double value, const QList<double>& values);

/// The multiples of `step` up to `last`, and `last` itself.
QList<double> skipGrid(double step, double last);

/// What can be chosen in milliseconds when all rates are multiples of `rate` and the shortest recording has
/// `frames` frames.
struct SkipLimits {
    double least = 1.0;
    double most = 1.0;
};
SkipLimits skipLimits(uint rate, uint frames);
