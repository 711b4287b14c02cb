#include "livecontrol/foundation/UTL_MapRect.h"

#include "livecontrol/foundation/DocumentScale.h"
#include "livecontrol/foundation/UTL_Numbers.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"

#include <QPolygonF>

namespace {

QPointF bounded(const QPointF& point) {
    return {qBound<double>(-kMaxPixels, point.x(), kMaxPixels),
            qBound<double>(-kMaxPixels, point.y(), kMaxPixels)};
}

/// The box around the four mapped corners.
template <class Map>
QRect mappedBox(const QRect& rect, Map&& map) {
    const QRectF corners(rect);
    QPolygonF mapped;
    for (const QPointF& corner :
         {corners.topLeft(), corners.topRight(), corners.bottomRight(), corners.bottomLeft()}) {
        mapped.append(bounded(map(corner)));
    }
    return mapped.boundingRect().toRect();
}

QSize sizeInView(DOC_Geometry& geometry, const QRect& rect) {
    return geometry.isAxisSwapped() ? rect.size().transposed() : rect.size();
}

int multiplied(int length, int factor) {
    return static_cast<int>(qBound<qint64>(1, static_cast<qint64>(length) * factor, kMaxPixels));
}

} // namespace

QRect mapRectToUserview(HostObject* host, DOC_Interface* document, const QRect& rect) {
    auto& geometry = docAs<DOC_Geometry>(document);
    QRect mapped = mappedBox(rect, [&](const QPointF& p) { return geometry.mapOriginalToUserview(p, 0); });
    const int scale = documentScale(host, document);
    if (scale > 1) {
        const QSize size = sizeInView(geometry, rect);
        QSize reduced(size.width() / scale, size.height() / scale);
        clampMin1(reduced);
        mapped.setSize(reduced);
    }
    return mapped;
}

QRect mapRectToOriginal(HostObject* host, DOC_Interface* document, const QRect& rect) {
    auto& geometry = docAs<DOC_Geometry>(document);
    QRect mapped = mappedBox(rect, [&](const QPointF& p) { return geometry.mapUserviewToOriginal(p); });
    const int scale = documentScale(host, document);
    if (scale > 1) {
        const QSize size = sizeInView(geometry, rect);
        mapped.setSize({multiplied(size.width(), scale), multiplied(size.height(), scale)});
    }
    return mapped;
}
