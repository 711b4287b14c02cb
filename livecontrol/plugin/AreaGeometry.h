#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

/// Arithmetic of the rectangle that the user edits on the image: no document, no host, no state.
namespace area {

/// The part of the rectangle that a drag moves. The numbers are part of the plug-in interface.
enum Handle {
    Top = 0,
    Bottom = 1,
    Left = 2,
    Right = 3,
    TopLeft = 4,
    TopRight = 5,
    BottomLeft = 6,
    BottomRight = 7,
    Inside = 8,
    None = 9,
};

inline bool movesTop(int handle) { return handle == Top || handle == TopLeft || handle == TopRight; }
inline bool movesBottom(int handle) {
    return handle == Bottom || handle == BottomLeft || handle == BottomRight;
}
inline bool movesLeft(int handle) { return handle == Left || handle == TopLeft || handle == BottomLeft; }
inline bool movesRight(int handle) { return handle == Right || handle == TopRight || handle == BottomRight; }

/// Limits of the rectangle, in the pixels of the image that it stands on.
struct Limits {
    QPoint posStep{1, 1};
    QSize sizeStep{1, 1};
    QSize maxSize{-1, -1}; ///< Negative: no limit.
    QSize minSize{1, 1};
    bool centerX = false;
    bool centerY = false;

    bool hasMaxSize() const { return maxSize.width() >= 0 && maxSize.height() >= 0; }
    bool hasMinSize() const { return minSize.width() >= 0 && minSize.height() >= 0; }
};

/// How the image stands in its view.
struct Orientation {
    int degrees = 0; ///< 0, 90, 180 or 270, clockwise.
    bool flipA = false;
    bool flipB = false;

    bool isTurned() const { return degrees == 90 || degrees == 270; }
};

/// Nearest integer, halves upward, for negative values too.
int roundHalfUp(double value);

/// Moves the normalised rectangle into the image, then cuts it to the largest size.
QRect clamp(const QRect& rect, const QSize& image, const Limits& limits);

/// Brings a changed rectangle within the limits. `pressed` is the rectangle when the drag began.
QRect constrain(int handle, const QRect& rect, const QRect& pressed, const QSize& image,
                const Limits& limits);

/// The handle under `pos`; `rectInView` and `pos` in view pixels, `margin` the distance that still counts as
/// near.
int hitTest(const QPoint& pos, const QRect& rectInView, int margin, const Orientation& orientation);

/// Sets the edges of `handle` to `pos`, where that leaves at least the smallest size.
QRect moveEdges(int handle, const QRect& rect, const QPoint& pos, const QSize& image, const Limits& limits);

/// The arrow key that acts on the image as `key` does on the screen.
int arrowOnImage(int key, const Orientation& orientation);

/// Moves one edge by its size step, outward or inward; a step that leaves the image or the smallest size is
/// not done.
QRect stepEdge(int arrow, bool inward, const QRect& rect, const QSize& image, const Limits& limits);

} // namespace area
