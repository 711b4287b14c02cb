#pragma once

#include "viewer/documents/Tones.h"

#include <QPointF>
#include <QSize>
#include <QTransform>

/// How a document's image is shown. Belongs to the document; the view that shows it keeps it up to date.
///
/// An image is first turned, then mirrored. The user's view is what comes out, in pixels after the reduction.
struct ViewState {
    int quarterTurns = 0; // clockwise, 0..3
    bool flipA = false;   // left to right
    bool flipB = false;   // top to bottom
    int binning = 0;      // exponent of 2
    int imageScale = 1;   // factor by which the transferred image is smaller than the original
    Tones tones;
    double zoom = 1;        // window pixels a pixel of the shown image
    QTransform imageToView; // from the original image's pixels to those of the window

    int reduction() const { return imageScale << binning; }
    bool isSwapped() const { return quarterTurns % 2 != 0; }
    /// From the original image of that size to the user's view, and back.
    QPointF toUserview(const QPointF& point, const QSize& original) const;
    QPointF toOriginal(const QPointF& point, const QSize& original) const;
    QTransform userviewTransform(const QSize& original) const;

    bool operator==(const ViewState& other) const;
    bool operator!=(const ViewState& other) const { return !(*this == other); }
};
