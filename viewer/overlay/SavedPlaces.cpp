#include "viewer/overlay/SavedPlaces.h"

#include "viewer/overlay/OverlayLayout.h"

namespace {

using Gaps = std::array<int, SavedViewSettings::Places>;
using View = SavedViewSettings;

constexpr int kLeastHeight = 400; // that texts around a picture may have, however low it is
// Along an edge inside a picture texts may take a third of its height at most, so that the sides have one
// too.
constexpr int kStripPart = 3;

/// Encoders of movies take even sizes only.
int even(int length) { return length + length % 2; }

/// Asks for what a place needs, and gives that with its gaps.
class Measuring {
public:
    Measuring(SavedPlaces& places, const Gaps& gaps, const SavedPlaces::Measure& measure)
        : m_places(places), m_gaps(gaps), m_measure(measure) {}

    QSize operator()(int place, const QSize& room) {
        const int gap = m_gaps[size_t(place)];
        SavedPlaces::Place& made = m_places.places[size_t(place)];
        made.most = QSize(qMax(1, room.width() - 2 * gap), qMax(0, room.height() - 2 * gap));
        const QSize texts = m_measure(place, made.most);
        return texts.isEmpty() ? QSize(0, 0) : texts + QSize(2 * gap, 2 * gap);
    }

private:
    SavedPlaces& m_places;
    const Gaps& m_gaps;
    const SavedPlaces::Measure& m_measure;
};

} // namespace

SavedPlaces SavedPlaces::around(const QSize& picture, const Gaps& gaps, const Measure& measure) {
    SavedPlaces made;
    Measuring needs(made, gaps, measure);
    const int most = qMax(picture.height(), kLeastHeight);
    const QSize side(OverlayLayout::Room::Unlimited, most);
    const QSize leftUpper = needs(View::LeftUpper, side);
    const QSize leftLower = needs(View::LeftLower, side);
    const QSize rightUpper = needs(View::RightUpper, side);
    const QSize rightLower = needs(View::RightLower, side);
    const int left = qMax(leftUpper.width(), leftLower.width());
    const int right = qMax(rightUpper.width(), rightLower.width());
    const int width = left + picture.width() + right;
    const int upper = needs(View::Upper, QSize(width, most)).height();
    const int lower = needs(View::Lower, QSize(width, most)).height();
    const int middle = qMax(picture.height(), qMax(leftUpper.height() + leftLower.height(),
                                                   rightUpper.height() + rightLower.height()));
    const int height = upper + middle + lower;
    made.picture = QRect(QPoint(left, upper + (middle - picture.height()) / 2), picture);
    const bool isPlain = height == picture.height() && width == picture.width();
    made.size = isPlain ? picture : QSize(even(width), even(height));
    const int bottom = upper + middle;
    const auto place = [&](int which, int x, int y, int cellWidth, int cellHeight) {
        made.places[size_t(which)].cell = QRect(x, y, cellWidth, cellHeight);
    };
    const int rightAt = left + picture.width();
    place(View::Upper, 0, 0, made.size.width(), upper);
    place(View::LeftUpper, 0, upper, left, leftUpper.height());
    place(View::LeftLower, 0, bottom - leftLower.height(), left, leftLower.height());
    place(View::RightUpper, rightAt, upper, made.size.width() - rightAt, rightUpper.height());
    place(View::RightLower, rightAt, bottom - rightLower.height(), made.size.width() - rightAt,
          rightLower.height());
    place(View::Lower, 0, bottom, made.size.width(), lower > 0 ? made.size.height() - bottom : 0);
    return made;
}

SavedPlaces SavedPlaces::within(const QSize& picture, const Gaps& gaps,
                                const std::array<Qt::AlignmentFlag, SavedViewSettings::Places>& alignments,
                                const Measure& measure) {
    SavedPlaces made;
    made.size = picture;
    made.picture = QRect(QPoint(0, 0), picture);
    Measuring needs(made, gaps, measure);
    const QSize strip(picture.width(), picture.height() / kStripPart);
    const QSize upper = needs(View::Upper, strip);
    const QSize lower = needs(View::Lower, strip);
    const int rest = picture.height() - upper.height() - lower.height();
    const int bottom = picture.height() - lower.height();
    const auto place = [&](int which, const QPoint& corner, const QSize& size) {
        made.places[size_t(which)].cell = QRect(corner, size);
    };
    const auto along = [&](int which, const QSize& size, int y) {
        const int free = picture.width() - size.width();
        const Qt::AlignmentFlag alignment = alignments[size_t(which)];
        const int x = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? free : free / 2;
        place(which, QPoint(x, y), size);
    };
    along(View::Upper, upper, 0);
    along(View::Lower, lower, bottom);
    // Of two that stand one above the other the lower one has what the upper one leaves, but half at least.
    for (const bool isRight : {false, true}) {
        const int below = isRight ? View::RightLower : View::LeftLower;
        const int above = isRight ? View::RightUpper : View::LeftUpper;
        const bool hasBelow = !needs(below, QSize(picture.width() / 2, rest)).isEmpty();
        const QSize top = needs(above, QSize(picture.width() / 2, hasBelow ? rest / 2 : rest));
        const QSize low = needs(below, QSize(picture.width() / 2, rest - top.height()));
        place(above, QPoint(isRight ? picture.width() - top.width() : 0, upper.height()), top);
        place(below, QPoint(isRight ? picture.width() - low.width() : 0, bottom - low.height()), low);
    }
    return made;
}
