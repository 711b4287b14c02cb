#include "viewer/host/doors/CameraLensDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"

#include <cmath>

namespace {
LensAxisInfo infoOf(const Lens::Axis& axis) {
    LensAxisInfo info;
    info.sliderMax = info.spinnerMax = axis.max;
    info.sliderMin = info.spinnerMin = axis.min;
    info.sliderValue = info.spinnerValue = axis.value;
    info.smallTick = axis.smallTick;
    info.largeTick = axis.largeTick;
    info.enable = axis.drivable ? 1 : 0;
    return info;
}
} // namespace

void CameraLensDoor::driveLens(const CameraCommands::Command& command, std::optional<LensAxis> axis) {
    const QList<CameraDocument*> cameras =
        filterCameras(m_cameras.all(), [axis](const CameraDocument& camera) {
            return camera.head()->model().lens.type != 0 &&
                   (!axis || camera.head()->model().lens.range(*axis).isDriven());
        });
    if (cameras.isEmpty()) {
        m_cameras.refuse(CommandKey::DriveLens);
    }
    try {
        CameraCommands(CommandKey::DriveLens).run(cameras, command);
    } catch (const CameraFailure&) {
        m_updates.requestSoon(-1);
        throw;
    }
}

int CameraLensDoor::getLensControlCommandTime() {
    OPERATION();
    return head() ? int(std::ceil(head()->body()->commandTimeMs() + head()->lensCommandMs())) : 0;
}

void CameraLensDoor::getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) {
    OPERATION();
    iris = focus = zoom = LensAxisInfo();
    if (hasLens()) {
        iris = infoOf(head()->lens().axis(LensAxis::Iris));
        focus = infoOf(head()->lens().axis(LensAxis::Focus));
        focus.autoFocusEnable = focus.enable;
        zoom = infoOf(head()->lens().axis(LensAxis::Zoom));
    }
}
