#pragma once

#include "viewer/documents/ViewState.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QTransform>

/// Where an image lies in its window: turned and mirrored as the view state says, fitted or zoomed, moved by
/// the user.
///
/// Three spaces: original (pixels of the image before turning, mirroring and reduction), userview (pixels of
/// what the user sees at zoom 1) and view (device-independent pixels of the window). All lengths are in those
/// pixels.
class ViewTransform {
public:
    static constexpr double MinZoom = 0.02;
    static constexpr double MaxZoom = 32;

    ViewTransform() = default;
    /// zoom: view pixels a userview pixel; 0 or below fits the image into the window. center: the userview
    /// point that the user wants in the middle, as a fraction of the image's size; it is moved as far as
    /// needed to leave no gap that the image could fill.
    ViewTransform(const QSize& original, const ViewState& state, const QSize& window, double zoom,
                  const QPointF& center = QPointF(0.5, 0.5));

    bool isEmpty() const { return m_original.isEmpty() || m_window.isEmpty(); }
    const QSize& original() const { return m_original; }
    QSize userviewSize() const { return m_userview; }
    /// The zoom in force, of a fitted image too.
    double zoom() const { return m_zoom; }
    bool isFitted() const { return m_fitted; }
    /// The center in force, see the constructor.
    const QPointF& center() const { return m_center; }
    bool isAxisSwapped() const { return m_swapped; }

    QPointF originalToUserview(const QPointF& point) const { return m_toUserview.map(point); }
    QPointF userviewToOriginal(const QPointF& point) const { return m_toUserview.inverted().map(point); }
    QPointF viewToUserview(const QPointF& point) const { return m_userviewToView.inverted().map(point); }
    QPointF originalToView(const QPointF& point) const { return originalToViewTransform().map(point); }
    QPointF viewToOriginal(const QPointF& point) const { return userviewToOriginal(viewToUserview(point)); }

    /// The original pixel under a view pixel; with clamp the nearest one of the image.
    QPoint pixelAt(const QPoint& view, bool clamp) const;
    /// Whole original pixels as a rectangle in the view.
    QRectF rectToView(const QRect& original) const;
    /// The whole image in the view.
    QRectF imageRect() const { return rectToView(QRect(QPoint(), m_original)); }
    QTransform originalToViewTransform() const { return m_toUserview * m_userviewToView; }
    /// The four corners of the image in the view, in the order top left, top right, bottom right, bottom left
    /// of the original: where the corners of its texture go.
    QPolygonF imageCorners() const;

    /// The center that keeps the original point under `view` where it is when the zoom becomes that.
    QPointF centerForZoomAt(const QPointF& view, double zoom) const;
    /// The center after the user has dragged the image by that many view pixels.
    QPointF centerForDrag(const QPointF& by) const;

    static double limitedZoom(double zoom);
    /// The next step of zoom up or down, on a ladder of factors of the square root of 2.
    static double steppedZoom(double zoom, int steps);

private:
    void place();

    QSize m_original;
    QSize m_userview;
    QSize m_window;
    double m_zoom = 1;
    bool m_fitted = true;
    bool m_swapped = false;
    QPointF m_center{0.5, 0.5};
    QTransform m_toUserview;
    QTransform m_userviewToView;
};
