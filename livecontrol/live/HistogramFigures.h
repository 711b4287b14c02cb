#pragma once

#include <QtGlobal>

#include <array>

/// What the histogram's graph writes beside its bars.
namespace histogram {

constexpr int kBins = 256;
using Row = std::array<quint32, kBins>; ///< The counters of one channel.

/// Steps of the vertical scale.
struct Division {
    int count = 0; ///< 2 to 4, or 0 where no step fits.
    int unit = 0;  ///< Pixels that one step stands for.
};
/// The finest step of 1, 2, 5, 10, 20, ... 10,000,000 that divides `peak` into at most four whole steps.
Division verticalDivision(int peak);

/// Label `i` of a horizontal scale with that many divisions: 0, then the last value of each part.
int horizontalLabel(int i, int divisions, int bitDepth);

/// Sample values on a scale of `bitDepth` bits.
struct Statistics {
    int min = -1; ///< -1 when nothing was counted.
    int max = -1; ///< -1 when nothing was counted.
    int average = 0;
};
Statistics statistics(const Row& row, int bitDepth);

} // namespace histogram
