#include "livecontrol/storage/dialogs/FrameSkip.h"

#include <cmath>
#include <limits>

namespace {
constexpr double kFiveDecimals = 100000.0;
constexpr double kDistanceUnit = 10000.0;
constexpr double kMillisecondsPerSecond = 1000.0;
} // namespace

double roundToFive(double value) {
    double whole = 0.0;
    const double fraction = std::modf(value, &whole);
    return whole + std::round(fraction * kFiveDecimals) / kFiveDecimals;
}

double framesFromMilliseconds(double milliseconds, uint rate) {
    return rate == 0 ? 1.0 : std::round(milliseconds / kMillisecondsPerSecond * rate);
}

double millisecondsFromFrames(double frames, uint rate) {
    return rate == 0 ? 1.0 : frames * kMillisecondsPerSecond / rate;
}

double nearestSkip(double value, const QList<double>& values) {
    double nearest = value;
    double least = std::numeric_limits<double>::infinity();
    for (const double candidate : values) {
        const double distance = std::abs(std::round((value - candidate) * kDistanceUnit));
        if (distance <= least) {
            least = distance;
            nearest = candidate;
        }
    }
    return roundToFive(nearest);
}

QList<double> skipGrid(double step, double last) {
    QList<double> values;
    for (uint n = 1; step > 0.0; ++n) {
        const double value = roundToFive(n * step);
        if (value > last) {
            break;
        }
        values.append(value);
    }
    if (values.isEmpty() || values.last() != last) { // they rise, so it could only be the last one
        values.append(last);
    }
    return values;
}

SkipLimits skipLimits(uint rate, uint frames) {
    SkipLimits limits;
    limits.least = rate == 0 ? 1.0 : roundToFive(kMillisecondsPerSecond / rate);
    limits.most = frames == 0 ? limits.least : roundToFive(frames * limits.least);
    return limits;
}
