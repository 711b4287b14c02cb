// The small options of a head: low light, lamps, shading.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/OwnFunctions.h"

namespace {

const QString SetLowLight = QStringLiteral("KVC_SetLowLightMode");
const QString SetShading = QStringLiteral("KVC_SetPixelGainData");

} // namespace

CommandResult CameraHead::setLowLight(bool on) { return setByKey("lowLight", SetLowLight, on); }

CommandResult CameraHead::setLowLightType(int type) { return setByKey("lowLightType", SetLowLight, type); }

CommandResult CameraHead::setLed(bool on) { return setByKey("led", OwnFunction::SwitchLamp, on); }

CommandResult CameraHead::setLaser(bool on) { return setByKey("laser", OwnFunction::SwitchLamp, on); }

CommandResult CameraHead::calibrateShading() {
    return change(SetShading, [this](HeadSettings&) {
        requireFunction(CameraFunction::ShadingCalibration, SetShading);
        m_shadedAt = m_body->temperature();
        return CommandResult::Ok;
    });
}
