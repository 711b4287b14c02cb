// The lens of the current camera, and the commands to those of the selected ones.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/OwnFunctions.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/CameraControlDoor.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr char kInterface[] = "HostCameraControl";
constexpr int kSmallTick = 0;

bool hasLens(const CameraHead* head) { return head && head->model().lens.type != 0; }

LensAxisInfo infoOf(const LensUnit::Axis& axis) {
    LensAxisInfo info;
    info.sliderMax = info.spinnerMax = axis.max;
    info.sliderMin = info.spinnerMin = axis.min;
    info.sliderValue = info.spinnerValue = axis.value;
    info.smallTick = axis.smallTick;
    info.largeTick = axis.largeTick;
    info.enable = axis.drivable ? 1 : 0;
    return info;
}

/// Whether a lens drives that axis; one that doesn't is not meant by a command to several.
bool drives(const LensModel& lens, LensAxis axis) {
    return (axis == LensAxis::Iris ? lens.iris : axis == LensAxis::Focus ? lens.focus : lens.zoom).isDriven();
}
} // namespace

void CameraControlDoor::driveLenses(const std::function<bool(const LensModel&)>& isMeant,
                                    const CameraCommands::Command& command) {
    QList<CameraDocument*> cameras;
    for (CameraDocument* const camera : m_documents.targetCameras()) {
        if (hasLens(camera->head()) && isMeant(camera->head()->model().lens)) {
            cameras.append(camera);
        }
    }
    if (cameras.isEmpty()) {
        refuseFunction(OwnFunction::DriveLens);
    }
    try {
        CameraCommands(OwnFunction::DriveLens).run(cameras, command);
    } catch (const CameraFailure&) {
        m_updates.requestSoon(-1);
        throw;
    }
}

void CameraControlDoor::driveLens(const CameraCommands::Command& command) {
    driveLenses([](const LensModel&) { return true; }, command);
}

void CameraControlDoor::moveAxis(LensAxis axis, int value) {
    driveLenses([axis](const LensModel& lens) { return drives(lens, axis); },
                [axis, value](CameraHead& head) { return head.moveLens(axis, value); });
}

void CameraControlDoor::stepAxis(LensAxis axis, int coef, int size) {
    driveLenses([axis](const LensModel& lens) { return drives(lens, axis); },
                [=](CameraHead& head) { return head.stepLens(axis, coef, size != kSmallTick); });
}

int CameraControlDoor::getLensType() {
    OPERATION();
    return hasLens(head()) && head()->lens().isKnown() ? head()->model().lens.type : 0;
}

bool CameraControlDoor::isLensControlUnable() {
    OPERATION();
    return hasLens(head()) && !head()->lens().isKnown();
}

QString CameraControlDoor::getLensName() {
    OPERATION();
    return hasLens(head()) && head()->lens().isKnown() ? head()->model().lens.name : QString();
}

int CameraControlDoor::getLensControlCommandTime() {
    OPERATION();
    return head() ? int(std::ceil(head()->body()->commandTimeMs() + head()->model().lens.commandMs)) : 0;
}

void CameraControlDoor::getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) {
    OPERATION();
    iris = focus = zoom = LensAxisInfo();
    if (hasLens(head())) {
        iris = infoOf(head()->lens().axis(LensAxis::Iris));
        focus = infoOf(head()->lens().axis(LensAxis::Focus));
        focus.autoFocusEnable = focus.enable;
        zoom = infoOf(head()->lens().axis(LensAxis::Zoom));
    }
}

void CameraControlDoor::closeLens() {
    OPERATION();
    driveLens([](CameraHead& head) { return head.closeLens(); });
}

void CameraControlDoor::resetLens(int reserved) {
    OPERATION(reserved);
    driveLens([](CameraHead& head) { return head.resetLens(); });
}

void CameraControlDoor::setIrisValue(int value) {
    OPERATION(value);
    moveAxis(LensAxis::Iris, value);
}

void CameraControlDoor::setIrisIncremental(int coef, int size) {
    OPERATION(coef, size);
    stepAxis(LensAxis::Iris, coef, size);
}

void CameraControlDoor::setFocusValue(int value) {
    OPERATION(value);
    moveAxis(LensAxis::Focus, value);
}

void CameraControlDoor::setFocusIncremental(int coef, int size) {
    OPERATION(coef, size);
    stepAxis(LensAxis::Focus, coef, size);
}

void CameraControlDoor::setZoomValue(int value) {
    OPERATION(value);
    moveAxis(LensAxis::Zoom, value);
}

void CameraControlDoor::setZoomIncremental(int coef, int size) {
    OPERATION(coef, size);
    stepAxis(LensAxis::Zoom, coef, size);
}

int CameraControlDoor::existLensControl() {
    OPERATION();
    return supportLevel(CameraFunction::LensControl);
}
