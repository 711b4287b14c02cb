#include "viewer/views/ViewTransform.h"

#include <QPolygonF>
#include <QtMath>

namespace {

// How far a center may move so that the window stays covered, or the image stays whole where it is smaller.
double limitedCenter(double center, double imageLength, double windowLength) {
    if (imageLength <= windowLength) {
        return 0.5;
    }
    const double margin = windowLength / imageLength / 2;
    return qBound(margin, center, 1 - margin);
}

} // namespace

ViewTransform::ViewTransform(const QSize& original, const ViewState& state, const QSize& window, double zoom,
                             const QPointF& center)
    : m_original(original), m_window(window), m_fitted(zoom <= 0), m_swapped(state.isSwapped()),
      m_center(center) {
    if (isEmpty()) {
        return;
    }
    m_toUserview = state.userviewTransform(original);
    m_userview =
        m_toUserview.mapRect(QRectF(QPointF(), QSizeF(original))).size().toSize().expandedTo(QSize(1, 1));
    m_zoom = m_fitted ? qMin(double(window.width()) / m_userview.width(),
                             double(window.height()) / m_userview.height())
                      : limitedZoom(zoom);
    place();
}

void ViewTransform::place() {
    const QSizeF shown = QSizeF(m_userview) * m_zoom;
    m_center = QPointF(limitedCenter(m_center.x(), shown.width(), m_window.width()),
                       limitedCenter(m_center.y(), shown.height(), m_window.height()));
    // On whole pixels, so that an image at zoom 1 stays sharp.
    const double left = qRound(m_window.width() / 2.0 - m_center.x() * shown.width());
    const double top = qRound(m_window.height() / 2.0 - m_center.y() * shown.height());
    m_userviewToView = QTransform(m_zoom, 0, 0, m_zoom, left, top);
}

QPoint ViewTransform::pixelAt(const QPoint& view, bool clamp) const {
    if (isEmpty()) {
        return QPoint();
    }
    // The middle of the view pixel decides.
    const QPointF point = viewToOriginal(QPointF(view) + QPointF(0.5, 0.5));
    const QPoint pixel(qFloor(point.x()), qFloor(point.y()));
    return clamp ? QPoint(qBound(0, pixel.x(), m_original.width() - 1),
                          qBound(0, pixel.y(), m_original.height() - 1))
                 : pixel;
}

QRectF ViewTransform::rectToView(const QRect& original) const {
    return originalToViewTransform().mapRect(QRectF(original));
}

QPolygonF ViewTransform::imageCorners() const {
    const double w = m_original.width();
    const double h = m_original.height();
    return originalToViewTransform().map(
        QPolygonF({QPointF(0, 0), QPointF(w, 0), QPointF(w, h), QPointF(0, h)}));
}

QPointF ViewTransform::centerForZoomAt(const QPointF& view, double zoom) const {
    const QPointF fixed = viewToUserview(view);
    const QPointF middle(m_window.width() / 2.0, m_window.height() / 2.0);
    const QPointF center = fixed - (view - middle) / limitedZoom(zoom);
    return QPointF(center.x() / m_userview.width(), center.y() / m_userview.height());
}

QPointF ViewTransform::centerForDrag(const QPointF& by) const {
    return QPointF(m_center.x() - by.x() / m_zoom / m_userview.width(),
                   m_center.y() - by.y() / m_zoom / m_userview.height());
}

double ViewTransform::limitedZoom(double zoom) { return qBound(MinZoom, zoom, MaxZoom); }

double ViewTransform::steppedZoom(double zoom, int steps) {
    // A zoom between two rungs goes to the next rung in the direction asked.
    const double rung = std::log2(limitedZoom(zoom)) * 2;
    const double next = steps > 0 ? qFloor(rung + 1e-6) + steps : qCeil(rung - 1e-6) + steps;
    return limitedZoom(std::pow(2, next / 2));
}
