#pragma once

#include "livecontrol/foundation/UTL_MapRect.h"
#include "livecontrol/interface/records.h"

#include <QJsonObject>
#include <QRect>

#include <algorithm>

class DOC_Geometry;
class HostObject;

/// What the setting pages that judge the brightness of a rectangle have in common.
namespace brightness {

/// Significant bits of the scale that the page counts levels on: the camera's own, or 8.
int pageBitDepth(HostObject* host);
/// The largest level on the page's scale.
quint32 pageMaximum(HostObject* host);
/// A level of one scale on another, rounded up. Both are told by their largest values.
quint32 scaled(quint32 level, quint32 fromMaximum, quint32 toMaximum);

/// Target and range on the page's scale.
struct Levels {
    quint32 value = 0;
    quint32 range = 0;
    quint32 valueMax = 0;
    quint32 rangeMax = 0;
    quint32 step = 1;
};
Levels levelsOnPage(quint32 value, quint32 range, const AutoExposureLimits& limits, quint32 pageMax);

// Of records that begin like ImageTriggerInfo:

/// The camera's own area (camera coordinates).
template <class Info>
QRect areaOf(const Info& info) {
    const auto whole = [](quint32 value) {
        return static_cast<int>(std::min(value, static_cast<quint32>(kMostPixels)));
    };
    return {whole(info.posX), whole(info.posY), whole(info.width), whole(info.height)};
}
/// Sets that area.
template <class Info>
void putArea(Info& info, const QRect& area) {
    const auto whole = [](int value) { return static_cast<quint32>(std::max(0, value)); };
    info.posX = whole(area.x());
    info.posY = whole(area.y());
    info.width = whole(area.width());
    info.height = whole(area.height());
}
/// Takes target and range from the page's scale to the camera's.
template <class Info>
void scaleToCamera(Info& info, const AutoExposureLimits& limits, quint32 pageMax) {
    if (pageMax != limits.valueMax) {
        info.value = scaled(info.value, pageMax, limits.valueMax);
        info.range = scaled(info.range, pageMax, limits.rangeMax);
    }
}

bool isSame(const AutoExposureInfo& one, const AutoExposureInfo& other);
/// Exchanges what belongs to width and height.
void swapAxes(AutoExposureLimits& limits);
/// The camera's own area (camera coordinates) as a rectangle of the original image, within the largest area.
QRect originalArea(const QRect& cameraArea, const AutoExposureLimits& limits, DOC_Geometry& geometry);

// Parts of a page's text.
QJsonObject sizeText(const QRect& area, const AutoExposureLimits& limits);
QJsonObject positionText(const QRect& area, const AutoExposureLimits& limits);
QJsonObject valueText(const Levels& levels);
QJsonObject rangeText(const Levels& levels);

/// A level from a page; what is no number counts as 0.
quint32 levelFrom(const QJsonObject& object, const QString& key);

} // namespace brightness
