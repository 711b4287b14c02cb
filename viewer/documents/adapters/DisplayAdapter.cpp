#include "viewer/documents/adapters/DocumentAdapter.h"

namespace {
constexpr char kInterface[] = "DOC_Display";
}

bool DisplayAdapter::isToolApplied(const QString& name, bool flag) {
    OPERATION(name, flag);
    return list().tools().isApplied(name);
}

bool DisplayAdapter::isToolActive(const QString& name) {
    OPERATION(name);
    return document().isToolActive(name);
}

bool DisplayAdapter::isMultiTrimming() {
    OPERATION();
    return false;
}

void DisplayAdapter::showNextTrimming() { OPERATION(); }

void DisplayAdapter::showPreviousTrimming() { OPERATION(); }

QString DisplayAdapter::getMultiTrimmingLabel() {
    OPERATION();
    return QString();
}

bool DisplayAdapter::isSkipForAll() {
    OPERATION();
    return false;
}

bool DisplayAdapter::isSkipForFile() {
    OPERATION();
    return false;
}

float DisplayAdapter::getRotation() {
    OPERATION();
    return float(document().view().quarterTurns) / 4;
}

bool DisplayAdapter::isFlipA() {
    OPERATION();
    return document().view().flipA;
}

bool DisplayAdapter::isFlipB() {
    OPERATION();
    return document().view().flipB;
}

float DisplayAdapter::getZoomFactor(bool flag) {
    OPERATION(flag);
    const ViewState& view = document().view();
    return float(flag ? view.zoom / view.reduction() : view.zoom);
}

bool DisplayAdapter::isLutCurve() {
    OPERATION();
    return false;
}

int DisplayAdapter::getBinningLevel() {
    OPERATION();
    return document().view().binning;
}
