#include "livecontrol/foundation/UTL_Numbers.h"

#include <cmath>
#include <limits>
#include <numeric>

namespace {

constexpr uint kNearestDigits = 5; ///< 4 decimals.

double powerOfDigits(uint digits) { return digits <= 1 ? 1.0 : std::pow(10.0, digits - 1); }

} // namespace

uint greatestCommonDivisor(uint a, uint b) { return std::gcd(a, b); }

double roundToDigits(double value, uint digits) {
    const double power = powerOfDigits(digits);
    return std::round(value * power) / power;
}

double floorToDigits(double value, uint digits) {
    // Apart, so that a large integer part costs the fraction no precision.
    double whole = 0.0;
    const double fraction = std::modf(value, &whole);
    const double power = powerOfDigits(digits);
    return whole + std::floor(fraction * power + 0.5) / power;
}

double nearestValue(double value, const QList<double>& values) {
    double nearest = value;
    double least = std::numeric_limits<double>::infinity();
    for (const double candidate : values) {
        const double distance = roundToDigits(std::abs(candidate - value), kNearestDigits);
        if (distance <= least) {
            least = distance;
            nearest = candidate;
        }
    }
    return floorToDigits(nearest, kNearestDigits);
}

void clampMin1(QSize& size) { size = size.expandedTo({1, 1}); }
