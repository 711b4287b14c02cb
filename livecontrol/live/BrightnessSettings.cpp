#include "livecontrol/live/BrightnessSettings.h"

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/HostObject.h"

#include <algorithm>
#include <cmath>

namespace brightness {

namespace {

constexpr double kLargest = 4294967295.0; ///< That a field of the records holds.

bool showsRealBitDepth(HostObject* host) {
    return host->getPrefBool(QStringLiteral("display/DisplayWithRealBitDepth"), false);
}

/// Moves a place back so that a length from there on stays within `max`, on the grid.
int placeWithin(int place, int length, int max, quint32 step) {
    if (place + length <= max) {
        return place;
    }
    place = max - length;
    return step > 1 ? place - place % static_cast<int>(step) : place;
}

QJsonObject levelText(quint32 value, quint32 max, quint32 step) {
    return {{QStringLiteral("Value"), double(value)},
            {QStringLiteral("Max"), double(max)},
            {QStringLiteral("Step"), double(step)}};
}

} // namespace

int pageBitDepth(HostObject* host) { return showsRealBitDepth(host) ? host->getBitDepth() : 8; }

quint32 pageMaximum(HostObject* host) { return (1U << qBound(0, pageBitDepth(host), 31)) - 1; }

quint32 scaled(quint32 level, quint32 fromMaximum, quint32 toMaximum) {
    return static_cast<quint32>(
        std::min(kLargest, std::ceil(level * (toMaximum + 1.0) / (fromMaximum + 1.0))));
}

Levels levelsOnPage(quint32 value, quint32 range, const AutoExposureLimits& limits, quint32 pageMax) {
    if (pageMax == limits.valueMax) {
        return {value, range, limits.valueMax, limits.rangeMax, 1};
    }
    return {scaled(value, limits.valueMax, pageMax), scaled(range, limits.rangeMax, pageMax), pageMax,
            pageMax, scaled(1, limits.rangeMax, pageMax)};
}

bool isSame(const AutoExposureInfo& one, const AutoExposureInfo& other) {
    return areaOf(one) == areaOf(other) && one.value == other.value && one.range == other.range &&
           one.maxTime == other.maxTime;
}

void swapAxes(AutoExposureLimits& limits) {
    std::swap(limits.widthMin, limits.heightMin);
    std::swap(limits.widthFrameMax, limits.heightFrameMax);
    std::swap(limits.widthMax, limits.heightMax);
    std::swap(limits.widthStep, limits.heightStep);
    std::swap(limits.posXStep, limits.posYStep);
}

QRect originalArea(const QRect& cameraArea, const AutoExposureLimits& limits, DOC_Geometry& geometry) {
    const QPoint original = geometry.mapCameraToOriginal(cameraArea.topLeft(), true);
    const int width = std::min(static_cast<int>(limits.widthMax), cameraArea.width());
    const int height = std::min(static_cast<int>(limits.heightMax), cameraArea.height());
    return {placeWithin(original.x(), width, static_cast<int>(limits.widthMax), limits.posXStep),
            placeWithin(original.y(), height, static_cast<int>(limits.heightMax), limits.posYStep), width,
            height};
}

QJsonObject sizeText(const QRect& area, const AutoExposureLimits& limits) {
    return {{QStringLiteral("Width"), area.width()},
            {QStringLiteral("WidthMin"), double(limits.widthMin)},
            {QStringLiteral("WidthMax"), double(limits.widthMax)},
            {QStringLiteral("WidthFrameMax"), double(limits.widthFrameMax)},
            {QStringLiteral("WidthStep"), double(limits.widthStep)},
            {QStringLiteral("Height"), area.height()},
            {QStringLiteral("HeightMin"), double(limits.heightMin)},
            {QStringLiteral("HeightMax"), double(limits.heightMax)},
            {QStringLiteral("HeightFrameMax"), double(limits.heightFrameMax)},
            {QStringLiteral("HeightStep"), double(limits.heightStep)}};
}

QJsonObject positionText(const QRect& area, const AutoExposureLimits& limits) {
    return {{QStringLiteral("X"), area.left()},
            {QStringLiteral("Y"), area.top()},
            {QStringLiteral("XStep"), double(limits.posXStep)},
            {QStringLiteral("YStep"), double(limits.posYStep)}};
}

QJsonObject valueText(const Levels& levels) { return levelText(levels.value, levels.valueMax, levels.step); }

QJsonObject rangeText(const Levels& levels) { return levelText(levels.range, levels.rangeMax, levels.step); }

quint32 levelFrom(const QJsonObject& object, const QString& key) {
    return static_cast<quint32>(qBound(0.0, object.value(key).toDouble(), kLargest));
}

} // namespace brightness
