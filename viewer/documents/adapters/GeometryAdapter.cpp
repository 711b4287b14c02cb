#include "viewer/documents/adapters/GeometryAdapter.h"

#include "viewer/documents/SavedPictures.h"
#include "viewer/documents/UprightImage.h"
#include "viewer/documents/adapters/InfoMap.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr char kInterface[] = "DOC_Geometry";
constexpr int kWithInformation[] = {10, 11, 17, 18};
const QString kLineBreak = QStringLiteral("{Separator}"); // as a plug-in gets a comment's
} // namespace

QSize GeometryAdapter::getImageSize() {
    OPERATION();
    return document().imageSize();
}

/// The kinds 10, 11, 17 and 18 have the information of the saved view round or in the picture, all others are
/// the picture alone. Frames of the recording count from 1, and 0 is the one that shows.
QPixmap GeometryAdapter::renderThumbnail(int kind, int width, int height, PARTITIONNUMBER partition,
                                         int frame, QDateTime* dateTime) {
    OPERATION(kind, width, height, partition, frame, dateTime);
    const QSize limit(width, height);
    SavedPictures* const saved = list().savedPictures();
    if (saved && std::find(std::begin(kWithInformation), std::end(kWithInformation), kind) !=
                     std::end(kWithInformation)) {
        const QDateTime moment = dateTime ? *dateTime : QDateTime();
        return QPixmap::fromImage(saved->image({document(), partition, frame, moment}, limit));
    }
    return QPixmap::fromImage(UprightImage::fitted(document(), limit, partition, frame));
}

void GeometryAdapter::setPointerPos(const QPoint& point) {
    OPERATION(point);
    document().setPointerPos(point);
}

QPoint GeometryAdapter::getPointerPos() {
    OPERATION();
    return document().pointerPos();
}

QPoint GeometryAdapter::mapViewToImage(const QPoint& point, bool clamp) {
    OPERATION(point, clamp);
    const QPointF exact = document().view().imageToView.inverted().map(QPointF(point));
    const QPoint image(int(std::floor(exact.x())), int(std::floor(exact.y())));
    const QSize size = document().imageSize();
    if (!clamp || size.isEmpty()) {
        return image;
    }
    return QPoint(qBound(0, image.x(), size.width() - 1), qBound(0, image.y(), size.height() - 1));
}

QRect GeometryAdapter::mapRectToView(const QRect& rect, bool clip) {
    OPERATION(rect, clip);
    const QTransform& toView = document().view().imageToView;
    const QRect mapped = toView.mapRect(QRectF(rect)).toRect();
    const QRect bounds = toView.mapRect(QRectF(QPointF(0, 0), document().imageSize())).toRect();
    return clip ? mapped.intersected(bounds) : mapped;
}

QPointF GeometryAdapter::mapOriginalToUserview(const QPointF& point, int kind) {
    OPERATION(point, kind);
    return document().view().toUserview(point, document().imageSize());
}

QPointF GeometryAdapter::mapUserviewToOriginal(const QPointF& point) {
    OPERATION(point);
    return document().view().toOriginal(point, document().imageSize());
}

// The cameras deliver their image upright, from the corner of the area in use.
QPoint GeometryAdapter::mapCameraToOriginal(const QPoint& point, bool full) {
    OPERATION(point, full);
    return point;
}

QPoint GeometryAdapter::mapOriginalToCamera(const QPoint& point) {
    OPERATION(point);
    return point;
}

bool GeometryAdapter::isAxisSwapped() {
    OPERATION();
    return document().view().isSwapped();
}

QVariant GeometryAdapter::getInfoMap(int kind, int frame, bool convert, bool layout, int all) {
    OPERATION(kind, frame, convert, layout, all);
    return infoMap(document());
}

QString GeometryAdapter::getComment() {
    OPERATION();
    return document().comment().replace(QLatin1Char('\n'), kLineBreak);
}

void GeometryAdapter::setComment(const QString& text) {
    OPERATION(text);
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    document().setComment(lines.replace(kLineBreak, QStringLiteral("\n")));
}

QString GeometryAdapter::getLogoPath() {
    OPERATION();
    return document().logoPath();
}

void GeometryAdapter::setLogoPath(const QString& path) {
    OPERATION(path);
    document().setLogoPath(path);
}
