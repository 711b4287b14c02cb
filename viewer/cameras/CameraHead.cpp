#include "viewer/cameras/CameraHead.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/cameras/settings/TriggerRules.h"

namespace {

class NoLens : public Lens {
public:
    Axis axis(LensAxis /*which*/) const override { return {}; }
    bool isKnown() const override { return false; }
    double msToRest() const override { return 0; }
};

} // namespace

QString CameraHead::fullName() const {
    return name().isEmpty() ? body()->name() : body()->name() + QLatin1Char(' ') + name();
}

int CameraHead::totalFrames() const { return model().memoryFrames(settings().resolution); }

int CameraHead::triggerLimit() const { return TriggerRules::limit(model(), settings()); }

QSize CameraHead::liveSize() const {
    return settings().lowLight.showsWholeSensor() ? model().sensor : settings().resolution;
}

QRect CameraHead::area() const { return settings().areaOn(model().sensor); }

CameraError CameraHead::refusal(const QString& function, const Reason& reason) const {
    return {CameraError::Kind::Refused, function, fullName(), reason};
}

CameraError CameraHead::lacks(CameraFunction needed, const QString& function) const {
    return refusal(function, reason("this camera has no %1", {functionName(needed)}));
}

Answer CameraHead::setByKey(const char* key, const QVariant& value) {
    return set(*SettingTable::find(QLatin1String(key)), value);
}

Answer CameraHead::setExposureControl(const ExposureControl& /*wish*/) {
    return lacks(CameraFunction::AutoExposure, CommandKey::SetExposureControl);
}

Answer CameraHead::setImageTriggerControl(const MeteringArea& /*wish*/) {
    return lacks(CameraFunction::ImageTrigger, CommandKey::SetImageTrigger);
}

Answer CameraHead::calibrateShading() {
    return lacks(CameraFunction::ShadingCalibration, CommandKey::CalibrateShading);
}

Answer CameraHead::storeVariableChannel(int /*number*/, const VariableChannel& /*content*/) {
    return lacks(CameraFunction::VariableChannels, CommandKey::StoreVariableChannel);
}

Answer CameraHead::eraseVariableChannel(int /*number*/) {
    return lacks(CameraFunction::VariableChannels, CommandKey::EraseVariableChannel);
}

const Lens& CameraHead::lens() const {
    static const NoLens none;
    return none;
}

Answer CameraHead::moveLens(LensAxis /*axis*/, int /*value*/) {
    return lacks(CameraFunction::LensControl, CommandKey::DriveLens);
}

Answer CameraHead::stepLens(LensAxis /*axis*/, int /*count*/, bool /*large*/) {
    return lacks(CameraFunction::LensControl, CommandKey::DriveLens);
}

Answer CameraHead::closeLens() { return lacks(CameraFunction::LensControl, CommandKey::DriveLens); }

Answer CameraHead::resetLens() { return lacks(CameraFunction::LensControl, CommandKey::DriveLens); }
