#pragma once

#include "livecontrol/interface/types.h"

#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariant>

class QDateTime;

/// Coordinates of a document's image, its comment and its logo.
///
/// Spaces: view (pixels of the window), image (pixels that the window shows), camera (pixels of the sensor's
/// area in use), original (the image before rotation and mirroring), userview (after them and the reduction).
/// May be called while the host paints; any operation may throw an exception derived from `std::exception`.
class DOC_Geometry {
public:
    virtual ~DOC_Geometry() = default;

    /// Size of the image in pixels; an empty size without one.
    virtual QSize getImageSize() = 0;
    /// The picture that a saved document would show: `kind` says with which information, `width` and
    /// `height` are the limits in pixels. `dateTime` may be null, and then the time of the recording counts.
    /// Callers pass 0 for `frame`. A null pixmap without an image.
    virtual QPixmap renderThumbnail(int kind, int width, int height, PARTITIONNUMBER partition, int frame,
                                    QDateTime* dateTime) = 0;
    /// Notes where the pointer stands, in the image.
    virtual void setPointerPos(const QPoint& point) = 0;
    /// The point that `setPointerPos` noted.
    virtual QPoint getPointerPos() = 0;
    /// From the view to the image; with `clamp` the result lies inside the image.
    virtual QPoint mapViewToImage(const QPoint& point, bool clamp) = 0;
    /// From the image to the view; with `clip` the result lies inside the view.
    virtual QRect mapRectToView(const QRect& rect, bool clip) = 0;
    /// From original to userview. Callers pass 0 for `kind`.
    virtual QPointF mapOriginalToUserview(const QPointF& point, int kind) = 0;
    /// From userview to original.
    virtual QPointF mapUserviewToOriginal(const QPointF& point) = 0;
    /// From camera to original. Callers pass true for `full`.
    virtual QPoint mapCameraToOriginal(const QPoint& point, bool full) = 0;
    /// From original to camera.
    virtual QPoint mapOriginalToCamera(const QPoint& point) = 0;
    /// True if width and height change places in the user's view.
    virtual bool isAxisSwapped() = 0;
    /// A map of the texts that a saved document carries, its partitions in a list of maps under
    /// "partitions". Callers pass 1 for `kind`, 0 for `frame`, 1 for `all`; `convert` and `layout` say what
    /// it is for.
    virtual QVariant getInfoMap(int kind, int frame, bool convert, bool layout, int all) = 0;
    /// The comment; its line breaks stand as {Separator}.
    virtual QString getComment() = 0;
    /// Replaces the comment.
    virtual void setComment(const QString& text) = 0;
    /// Path of the logo picture; empty without one.
    virtual QString getLogoPath() = 0;
    /// Replaces the path of the logo picture.
    virtual void setLogoPath(const QString& path) = 0;
};
