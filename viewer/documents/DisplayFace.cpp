#include "viewer/documents/DocumentFace.h"

namespace {
constexpr char kInterface[] = "DOC_Display";
}

bool DisplayFace::isToolApplied(const QString& name, bool flag) {
    OPERATION(name, flag);
    return list().tools().isApplied(name);
}

bool DisplayFace::isToolActive(const QString& name) {
    OPERATION(name);
    return document().isToolActive(name);
}

bool DisplayFace::isMultiTrimming() {
    OPERATION();
    return false;
}

void DisplayFace::showNextTrimming() { OPERATION(); }

void DisplayFace::showPreviousTrimming() { OPERATION(); }

QString DisplayFace::getMultiTrimmingLabel() {
    OPERATION();
    return QString();
}

bool DisplayFace::isSkipForAll() {
    OPERATION();
    return false;
}

bool DisplayFace::isSkipForFile() {
    OPERATION();
    return false;
}

float DisplayFace::getRotation() {
    OPERATION();
    return float(document().view().quarterTurns) / 4;
}

bool DisplayFace::isFlipA() {
    OPERATION();
    return document().view().flipA;
}

bool DisplayFace::isFlipB() {
    OPERATION();
    return document().view().flipB;
}

float DisplayFace::getZoomFactor(bool flag) {
    OPERATION(flag);
    const ViewState& view = document().view();
    return float(flag ? view.zoom / view.reduction() : view.zoom);
}

bool DisplayFace::isLutCurve() {
    OPERATION();
    return false;
}

int DisplayFace::getBinningLevel() {
    OPERATION();
    return document().view().binning;
}
