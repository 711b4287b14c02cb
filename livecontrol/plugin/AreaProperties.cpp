// The values and limits that a host shows when the rectangle is edited as numbers.

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/plugin/PLG_Common.h"

#include <algorithm>

namespace {

/// The smallest size that keeps an aspect ratio (width over height): one side grows.
QSize minSizeForAspect(const QSize& smallest, double aspect) {
    const int width = area::roundHalfUp(smallest.width() / aspect);
    const int height = area::roundHalfUp(smallest.height() * aspect);
    return {std::max(smallest.width(), width), std::max(smallest.height(), height)};
}

/// The largest size within `limit` that keeps an aspect ratio (width over height).
QSize maxSizeForAspect(const QSize& limit, double aspect) {
    const int width = std::min(limit.width(), area::roundHalfUp(limit.height() * aspect));
    return {width, std::min(limit.height(), area::roundHalfUp(width / aspect))};
}

} // namespace

QVariantMap PLG_Common::getAreaProperties(DOC_Interface* document, const QSize& imageSize,
                                          const AreaPropertiesInput& input) {
    QSize image = imageSize;
    if (document && docAs<DOC_Geometry>(document).isAxisSwapped()) {
        image.transpose();
    }
    const QRect& area = input.area;
    QSize smallest = m_minSize; // not scaled: a host edits the values of the full image
    if (isAspectFixed() && getAspectRatio() > 0) {
        smallest = minSizeForAspect(smallest, getAspectRatio());
    }
    QSize largest(image.width() - area.left(), image.height() - area.top());
    if (input.fixedAspect && input.aspectRatio > 0) {
        largest = maxSizeForAspect(largest, input.aspectRatio);
    }
    const double zoom = input.zoomRate / 100.0;
    const int zoomedWidth = std::max(1, area::roundHalfUp(area.width() * zoom));
    const int zoomedHeight = std::max(1, area::roundHalfUp(area.height() * zoom));
    return {
        {QStringLiteral("Width"), area.width()},
        {QStringLiteral("WidthMin"), smallest.width()},
        {QStringLiteral("WidthMax"), largest.width()},
        {QStringLiteral("WidthStep"), 1},
        {QStringLiteral("Height"), area.height()},
        {QStringLiteral("HeightMin"), smallest.height()},
        {QStringLiteral("HeightMax"), largest.height()},
        {QStringLiteral("HeightStep"), 1},
        {QStringLiteral("PosX"), area.left()},
        {QStringLiteral("PosXMin"), 0},
        {QStringLiteral("PosXMax"), image.width() - area.width()},
        {QStringLiteral("PosXStep"), 1},
        {QStringLiteral("PosY"), area.top()},
        {QStringLiteral("PosYMin"), 0},
        {QStringLiteral("PosYMax"), image.height() - area.height()},
        {QStringLiteral("PosYStep"), 1},
        {QStringLiteral("AspectRatio"), input.aspectRatio},
        {QStringLiteral("FixAspect"), input.fixedAspect},
        {QStringLiteral("OriginalAspect"), false},
        {QStringLiteral("CurrentWidth"), imageSize.width()},
        {QStringLiteral("CurrentHeight"), imageSize.height()},
        {QStringLiteral("ZoomRate"), input.zoomRate},
        {QStringLiteral("ZoomResolution"), QStringLiteral("%1,%2").arg(zoomedWidth).arg(zoomedHeight)},
    };
}
