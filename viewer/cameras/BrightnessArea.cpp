#include "viewer/cameras/BrightnessArea.h"

#include <cmath>

bool MeteringArea::isMet(const ExposureMeter& meter, double level) const {
    const double target = value / (meter.valueMax + 1.0);
    return std::abs(level - target) <= range / (meter.rangeMax + 1.0);
}

bool MeteringArea::operator==(const MeteringArea& other) const {
    return on == other.on && area == other.area && value == other.value && range == other.range;
}

bool ExposureControl::operator==(const ExposureControl& other) const {
    return MeteringArea::operator==(other) && maxTime == other.maxTime;
}
