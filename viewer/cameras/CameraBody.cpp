#include "viewer/cameras/CameraBody.h"

#include "viewer/cameras/CommandKeys.h"

#include <QTimer>

// A word of a reason, too.
static const char* wordOf(CameraState state) {
    static constexpr const char* kWords[] = {"off",   "booting",   "live",  "waitingReady",
                                             "ready", "recording", "memory"};
    return kWords[static_cast<int>(state)];
}

QString stateName(CameraState state) { return QLatin1String(wordOf(state)); }

Reason stateReason(CameraState state) { return reason(wordOf(state)); }

QList<CameraHead*> CameraBody::heads() const {
    QList<CameraHead*> result;
    for (int index = 0; index < headCount(); ++index) {
        result.append(head(index));
    }
    return result;
}

CameraError CameraBody::refusal(const QString& function, const Reason& reason) const {
    return {CameraError::Kind::Refused, function, name(), reason};
}

CameraError CameraBody::lacks(CameraFunction needed, const QString& function) const {
    return refusal(function, reason("this camera has no %1", {functionName(needed)}));
}

Answer CameraBody::switchOff() { return lacks(CameraFunction::PowerOff, CommandKey::SwitchPower); }

Answer CameraBody::restart() { return lacks(CameraFunction::Restart, CommandKey::SwitchPower); }

Answer CameraBody::setPartition(int number) {
    return refusal(CommandKey::SetPartition, reason("there is no partition %1", {number}));
}

Answer CameraBody::storePreset(int number) {
    return refusal(CommandKey::StorePreset, reason("there is no preset %1", {number}));
}

Answer CameraBody::loadPreset(int number) {
    return refusal(CommandKey::LoadPreset, reason("preset %1 holds nothing", {number}));
}

Answer CameraBody::setFan(bool /*runs*/) { return lacks(CameraFunction::FanControl, CommandKey::SetFan); }

Answer CameraBody::adjustLink() { return lacks(CameraFunction::LinkAdjustment, CommandKey::Link); }

void CameraBody::after(double milliseconds, QObject* context, const std::function<void()>& action) const {
    QTimer::singleShot(int(milliseconds), context, action);
}
