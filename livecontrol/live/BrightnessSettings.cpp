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

/// A level from a page; what is no number counts as 0.
quint32 levelFrom(const QJsonValue& value) {
    return static_cast<quint32>(qBound(0.0, value.toDouble(), kLargest));
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

AutoExposureInfo exposureOf(const ImageTriggerInfo& info) {
    return {info.width, info.height, info.posX, info.posY, info.value, info.range, 0};
}

ImageTriggerInfo triggerOf(const AutoExposureInfo& info) {
    return {info.width, info.height, info.posX, info.posY, info.value, info.range};
}

QRect areaOf(const AutoExposureInfo& info) {
    const auto whole = [](quint32 value) {
        return static_cast<int>(std::min(value, static_cast<quint32>(kMaxPixels)));
    };
    return {whole(info.posX), whole(info.posY), whole(info.width), whole(info.height)};
}

AutoExposureInfo wishedInfo(const Page& page, const QJsonObject& wish, const QRect& area,
                            const AutoExposureLimits& limits, quint32 pageMax) {
    const auto whole = [](int value) { return static_cast<quint32>(std::max(0, value)); };
    AutoExposureInfo info{whole(area.width()), whole(area.height()), whole(area.x()), whole(area.y())};
    info.value = levelFrom(wish.value(page.keys + QStringLiteral("Value")));
    info.range = levelFrom(wish.value(page.keys + QStringLiteral("Range")));
    if (pageMax != limits.valueMax) {
        info.value = scaled(info.value, pageMax, limits.valueMax);
        info.range = scaled(info.range, pageMax, limits.rangeMax);
    }
    return info;
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

QJsonObject pageText(const Page& page, const QRect& area, const Levels& levels,
                     const AutoExposureLimits& limits) {
    return {{page.keys + QStringLiteral("Area"), sizeText(area, limits)},
            {page.keys + QStringLiteral("Pos"), positionText(area, limits)},
            {page.keys + QStringLiteral("Value"), levelText(levels.value, levels.valueMax, levels.step)},
            {page.keys + QStringLiteral("Range"), levelText(levels.range, levels.rangeMax, levels.step)}};
}

} // namespace brightness
