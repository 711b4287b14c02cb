#include "livecontrol/plugin/AreaGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace area {

int roundHalfUp(double value) { return static_cast<int>(std::floor(value + 0.5)); }

QRect clamp(const QRect& rect, const QSize& image, const Limits& limits) {
    const QRect bounds(QPoint(0, 0), image);
    QRect result = rect.normalized();
    if (result.top() < bounds.top()) {
        result.moveTop(bounds.top());
    }
    if (result.left() < bounds.left()) {
        result.moveLeft(bounds.left());
    }
    if (result.bottom() > bounds.bottom()) {
        result.moveBottom(bounds.bottom());
    }
    if (result.right() > bounds.right()) {
        result.moveRight(bounds.right());
    }
    if (limits.hasMaxSize()) {
        result.setWidth(std::min(result.width(), limits.maxSize.width()));
        result.setHeight(std::min(result.height(), limits.maxSize.height()));
    }
    return result;
}

namespace {

int toStep(int value, int step) {
    return step > 1 ? roundHalfUp(static_cast<double>(value) / step) * step : value;
}

/// What stands over the last whole step above the smallest size.
int overStep(int size, int smallest, int step) {
    return step > 1 && size > smallest ? (size - smallest) % step : 0;
}

QRect cutToMaxSize(int handle, QRect rect, const QRect& pressed, const Limits& limits) {
    if (!limits.hasMaxSize()) {
        return rect;
    }
    if (rect.width() > limits.maxSize.width()) {
        rect.setWidth(limits.maxSize.width());
        if (movesLeft(handle)) {
            rect.moveRight(pressed.right());
        }
    }
    if (rect.height() > limits.maxSize.height()) {
        rect.setHeight(limits.maxSize.height());
        if (movesTop(handle)) {
            rect.moveBottom(pressed.bottom());
        }
    }
    return rect;
}

QRect centered(QRect rect, const QSize& image, const Limits& limits) {
    if (!limits.centerX && !limits.centerY) {
        return rect;
    }
    if (limits.centerX) {
        rect.moveLeft((image.width() - rect.width()) >> 1);
    }
    if (limits.centerY) {
        rect.moveTop((image.height() - rect.height()) >> 1);
    }
    return clamp(rect, image, limits);
}

QRect cutToSizeStep(int handle, QRect rect, const Limits& limits) {
    const int overHeight = overStep(rect.height(), limits.minSize.height(), limits.sizeStep.height());
    const int overWidth = overStep(rect.width(), limits.minSize.width(), limits.sizeStep.width());
    if (movesTop(handle)) {
        rect.setTop(rect.top() + overHeight);
    } else if (movesBottom(handle)) {
        rect.setBottom(rect.bottom() - overHeight);
    }
    if (movesLeft(handle)) {
        rect.setLeft(rect.left() + overWidth);
    } else if (movesRight(handle)) {
        rect.setRight(rect.right() - overWidth);
    }
    return rect;
}

} // namespace

QRect constrain(int handle, const QRect& rect, const QRect& pressed, const QSize& image,
                const Limits& limits) {
    QRect result = clamp(cutToMaxSize(handle, rect, pressed, limits), image, limits);
    if ((limits.posStep.x() > 1 || limits.posStep.y() > 1) && handle == Inside) {
        result.moveTo(toStep(result.left(), limits.posStep.x()), toStep(result.top(), limits.posStep.y()));
        result = clamp(result, image, limits);
    }
    if (limits.sizeStep.width() > 1 || limits.sizeStep.height() > 1) {
        result = clamp(cutToSizeStep(handle, result, limits), image, limits);
    }
    result = centered(result, image, limits);
    if (limits.hasMinSize()) {
        const QSize smallest = limits.minSize.boundedTo(image); // limits can be meant for a turned image
        result.setSize(result.size().expandedTo(smallest));
        // What grew must neither stand out of the image nor off its center.
        result = centered(clamp(result, image, limits), image, limits);
    }
    return result;
}

namespace {

/// The lines of the rectangle in the view, each under the name that it has on the image, and the pointer on
/// the image's axes.
struct Lines {
    int left, top, right, bottom;
    QPoint pos;
};

Lines linesOnImage(const QPoint& pos, const QRect& view, const Orientation& orientation) {
    Lines lines{view.left(), view.top(), view.right(), view.bottom(), pos};
    switch (orientation.degrees) {
    case 90:
        lines = {view.top(), view.right(), view.bottom(), view.left(), QPoint(pos.y(), pos.x())};
        break;
    case 180:
        lines = {view.right(), view.bottom(), view.left(), view.top(), pos};
        break;
    case 270:
        lines = {view.bottom(), view.left(), view.top(), view.right(), QPoint(pos.y(), pos.x())};
        break;
    default:
        break;
    }
    const bool swapX = orientation.isTurned() ? orientation.flipB : orientation.flipA;
    const bool swapY = orientation.isTurned() ? orientation.flipA : orientation.flipB;
    if (swapX) {
        std::swap(lines.left, lines.right);
    }
    if (swapY) {
        std::swap(lines.top, lines.bottom);
    }
    return lines;
}

bool isBetween(int value, int a, int b) { return value >= std::min(a, b) && value <= std::max(a, b); }
bool isStrictlyBetween(int value, int a, int b) { return value > std::min(a, b) && value < std::max(a, b); }

} // namespace

int hitTest(const QPoint& pos, const QRect& rectInView, int margin, const Orientation& orientation) {
    const Lines lines = linesOnImage(pos, rectInView, orientation);
    const QPoint p = lines.pos;
    const auto isNear = [margin](int value, int line) { return std::abs(value - line) <= margin; };
    const bool nearLeft = isNear(p.x(), lines.left);
    const bool nearRight = isNear(p.x(), lines.right);
    // A corner needs the pointer near both of its lines; an edge needs it within the other direction.
    const bool inWidth = isBetween(p.x(), lines.left, lines.right);
    const bool inHeight = isBetween(p.y(), lines.top, lines.bottom);
    if (isNear(p.y(), lines.top)) {
        if (nearLeft) {
            return TopLeft;
        }
        if (nearRight) {
            return TopRight;
        }
        if (inWidth) {
            return Top;
        }
    }
    if (isNear(p.y(), lines.bottom)) {
        if (nearLeft) {
            return BottomLeft;
        }
        if (nearRight) {
            return BottomRight;
        }
        if (inWidth) {
            return Bottom;
        }
    }
    if (nearLeft && inHeight) {
        return Left;
    }
    if (nearRight && inHeight) {
        return Right;
    }
    const bool inside = isStrictlyBetween(p.x(), lines.left, lines.right) &&
                        isStrictlyBetween(p.y(), lines.top, lines.bottom);
    return inside ? Inside : None;
}

QRect moveEdges(int handle, const QRect& rect, const QPoint& pos, const QSize& image, const Limits& limits) {
    const int smallestWidth = std::max(1, limits.minSize.width());
    const int smallestHeight = std::max(1, limits.minSize.height());
    QRect moved = rect;
    bool allowed = true;
    if (movesTop(handle)) {
        allowed = allowed && pos.y() <= rect.bottom() - smallestHeight + 1;
        moved.setTop(pos.y());
    } else if (movesBottom(handle)) {
        allowed = allowed && pos.y() >= rect.top() + smallestHeight - 1;
        moved.setBottom(pos.y());
    }
    if (movesLeft(handle)) {
        allowed = allowed && pos.x() <= rect.right() - smallestWidth + 1;
        moved.setLeft(pos.x());
    } else if (movesRight(handle)) {
        allowed = allowed && pos.x() >= rect.left() + smallestWidth - 1;
        moved.setRight(pos.x());
    }
    if (!allowed) {
        return rect;
    }
    if (limits.centerX && (movesLeft(handle) || movesRight(handle))) {
        const int opposite = image.width() - 1 - pos.x();
        movesLeft(handle) ? moved.setRight(opposite) : moved.setLeft(opposite);
    }
    if (limits.centerY && (movesTop(handle) || movesBottom(handle))) {
        const int opposite = image.height() - 1 - pos.y();
        movesTop(handle) ? moved.setBottom(opposite) : moved.setTop(opposite);
    }
    return moved;
}

int arrowOnImage(int key, const Orientation& orientation) {
    // Clockwise from left; a quarter turn of the image turns the arrow one place back.
    static constexpr int kArrows[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
    const auto* const found = std::find(std::begin(kArrows), std::end(kArrows), key);
    if (found == std::end(kArrows)) {
        return 0;
    }
    const auto place = static_cast<int>(found - kArrows);
    int arrow = kArrows[(place + 4 - orientation.degrees / 90) % 4];
    const bool swapX = orientation.isTurned() ? orientation.flipB : orientation.flipA;
    const bool swapY = orientation.isTurned() ? orientation.flipA : orientation.flipB;
    if (swapX && (arrow == Qt::Key_Left || arrow == Qt::Key_Right)) {
        arrow = arrow == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    } else if (swapY && (arrow == Qt::Key_Up || arrow == Qt::Key_Down)) {
        arrow = arrow == Qt::Key_Up ? Qt::Key_Down : Qt::Key_Up;
    }
    return arrow;
}

QRect stepEdge(int arrow, bool inward, const QRect& rect, const QSize& image, const Limits& limits) {
    const bool horizontal = arrow == Qt::Key_Left || arrow == Qt::Key_Right;
    const bool centered = horizontal ? limits.centerX : limits.centerY;
    int step = horizontal ? limits.sizeStep.width() : limits.sizeStep.height();
    if (centered) {
        step /= 2; // both edges move
    }
    step = std::max(1, step);
    const int outward = inward ? -step : step;
    QRect moved = rect;
    if (arrow == Qt::Key_Left || (centered && horizontal)) {
        moved.setLeft(moved.left() - outward);
    }
    if (arrow == Qt::Key_Right || (centered && horizontal)) {
        moved.setRight(moved.right() + outward);
    }
    if (arrow == Qt::Key_Up || (centered && !horizontal)) {
        moved.setTop(moved.top() - outward);
    }
    if (arrow == Qt::Key_Down || (centered && !horizontal)) {
        moved.setBottom(moved.bottom() + outward);
    }
    const bool fits = QRect(QPoint(0, 0), image).contains(moved) &&
                      moved.width() >= std::max(1, limits.minSize.width()) &&
                      moved.height() >= std::max(1, limits.minSize.height());
    return fits ? moved : rect;
}

} // namespace area
