#include "viewer/documents/ViewState.h"

QTransform ViewState::userviewTransform(const QSize& original) const {
    const double width = original.width();
    const double height = original.height();
    QTransform turn;
    switch (quarterTurns & 3) {
    case 1:
        turn = QTransform(0, 1, -1, 0, height, 0);
        break;
    case 2:
        turn = QTransform(-1, 0, 0, -1, width, height);
        break;
    case 3:
        turn = QTransform(0, -1, 1, 0, 0, width);
        break;
    default:
        break;
    }
    const double turnedWidth = isSwapped() ? height : width;
    const double turnedHeight = isSwapped() ? width : height;
    const QTransform mirror(flipA ? -1 : 1, 0, 0, flipB ? -1 : 1, flipA ? turnedWidth : 0,
                            flipB ? turnedHeight : 0);
    return turn * mirror * QTransform::fromScale(1.0 / reduction(), 1.0 / reduction());
}

QPointF ViewState::toUserview(const QPointF& point, const QSize& original) const {
    return userviewTransform(original).map(point);
}

QPointF ViewState::toOriginal(const QPointF& point, const QSize& original) const {
    return userviewTransform(original).inverted().map(point);
}

bool ViewState::operator==(const ViewState& other) const {
    return quarterTurns == other.quarterTurns && flipA == other.flipA && flipB == other.flipB &&
           binning == other.binning && imageScale == other.imageScale && zoom == other.zoom &&
           tones == other.tones && imageToView == other.imageToView;
}
