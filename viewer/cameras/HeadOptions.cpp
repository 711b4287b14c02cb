// The small options of a head: low light, lamps, shading.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/OwnFunctions.h"
#include "viewer/cameras/SettingsRules.h"

namespace {

const QString SetLowLight = QStringLiteral("KVC_SetLowLightMode");
const QString SetShading = QStringLiteral("KVC_SetPixelGainData");

} // namespace

CameraHead::Edit CameraHead::editLowLight(const QString& function, bool on) const {
    return [=](HeadSettings& s) {
        requireFunction(CameraFunction::LowLight, function);
        return SettingsRules::setLowLight(*m_model, s, on);
    };
}

CommandResult CameraHead::setLowLight(bool on) { return change(SetLowLight, editLowLight(SetLowLight, on)); }

CommandResult CameraHead::setLowLightType(int type) {
    return change(SetLowLight, [=](HeadSettings& s) {
        requireFunction(CameraFunction::LowLight, SetLowLight);
        if (type != LowLight::WholeSensor && type != LowLight::Resolution)
            refuse(SetLowLight, QStringLiteral("low light has no type %1").arg(type));
        s.lowLight.type = type;
        return CommandResult::Ok;
    });
}

CommandResult CameraHead::setLed(bool on) { return setLamp(&HeadSettings::led, on); }

CommandResult CameraHead::setLaser(bool on) { return setLamp(&HeadSettings::laser, on); }

CommandResult CameraHead::setLamp(bool HeadSettings::*lamp, bool on) {
    return change(OwnFunction::SwitchLamp, [=](HeadSettings& s) {
        requireFunction(CameraFunction::HeadLight, OwnFunction::SwitchLamp);
        s.*lamp = on;
        return CommandResult::Ok;
    });
}

CommandResult CameraHead::calibrateShading() {
    return change(SetShading, [this](HeadSettings&) {
        requireFunction(CameraFunction::ShadingCalibration, SetShading);
        m_shadedAt = m_body->temperature();
        return CommandResult::Ok;
    });
}
