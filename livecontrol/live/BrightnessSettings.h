#pragma once

#include "livecontrol/foundation/UTL_MapRect.h"
#include "livecontrol/interface/records.h"

#include <QJsonObject>
#include <QRect>

class DOC_Geometry;
class HostObject;

/// What the setting pages that judge the brightness of a rectangle have in common.
namespace brightness {

/// Significant bits of the scale that the page counts levels on: the camera's own, or 8.
int pageBitDepth(HostObject* host);
/// The largest level on the page's scale.
quint32 pageMaximum(HostObject* host);
/// A level of one scale on another, rounded up. Both scales are given by their largest values.
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

/// A page by the words that its keys begin with, and the preference of its histogram.
struct Page {
    QString keys;
    QString showHistogram;
};

// The record of the image trigger is that of auto exposure without a time.
AutoExposureInfo exposureOf(const ImageTriggerInfo& info);
ImageTriggerInfo triggerOf(const AutoExposureInfo& info);

/// The camera's own area (camera coordinates).
QRect areaOf(const AutoExposureInfo& info);
/// What a page wishes, on the camera's scale, with that area (camera coordinates).
AutoExposureInfo wishedInfo(const Page& page, const QJsonObject& wish, const QRect& area,
                            const AutoExposureLimits& limits, quint32 pageMax);
bool isSame(const AutoExposureInfo& one, const AutoExposureInfo& other);
/// Exchanges what belongs to width and height.
void swapAxes(AutoExposureLimits& limits);
/// The camera's own area (camera coordinates) as a rectangle of the original image, within the largest area.
QRect originalArea(const QRect& cameraArea, const AutoExposureLimits& limits, DOC_Geometry& geometry);

/// Area, place and levels of a page's text.
QJsonObject pageText(const Page& page, const QRect& area, const Levels& levels,
                     const AutoExposureLimits& limits);

} // namespace brightness
