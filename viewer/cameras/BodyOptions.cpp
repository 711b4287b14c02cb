// Fan and links of a body, and what can be done to it from outside.

#include "viewer/cameras/CameraBody.h"

void CameraBody::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed))
        throw CameraError(CameraError::Kind::Refused, function, name(),
                          QStringLiteral("this camera has no %1").arg(functionName(needed)));
}

FanState CameraBody::fanState() const {
    constexpr double Warm = 50; // degrees Celsius
    constexpr double Hot = 60;
    if (m_fanFault)
        return FanFault;
    if (m_info.temperature >= Hot)
        return FanForced;
    if (m_fanRuns)
        return FanSpinning;
    return m_info.temperature >= Warm ? FanStoppedWhileReady : FanStopped;
}

CommandResult CameraBody::setFan(bool runs) {
    const QString function = QStringLiteral("KVC_SetFanCtrl");
    const CommandResult result = command(function, name(), [&] {
        requireFunction(CameraFunction::FanControl, function);
        m_fanRuns = runs;
        return CommandResult::Ok;
    });
    emit infoChanged(this);
    return result;
}

CommandResult CameraBody::adjustLink() {
    const QString function = QStringLiteral("KVC_SetInterfaceInfo");
    const CommandResult result = command(function, name(), [&] {
        requireFunction(CameraFunction::LinkAdjustment, function);
        requireIdle(function, name());
        m_outOfPhase = false;
        return CommandResult::Ok;
    });
    emit infoChanged(this);
    return result;
}

void CameraBody::set(const QString& name, const QVariant& value) {
    bool ok = true;
    if (name == QLatin1String("temperature")) {
        const double degrees = value.toDouble(&ok);
        m_info.temperature = ok ? degrees : m_info.temperature;
    } else if (name == QLatin1String("fanFault")) {
        m_fanFault = value.toBool();
    } else if (name == QLatin1String("outOfPhase")) {
        m_outOfPhase = value.toBool();
    } else if (name == QLatin1String("name")) {
        ok = !value.toString().trimmed().isEmpty();
        m_info.name = ok ? value.toString() : m_info.name;
    } else if (name == QLatin1String("address")) {
        ok = !value.toString().trimmed().isEmpty();
        m_info.address = ok ? value.toString() : m_info.address;
    } else if (name == QLatin1String("power")) {
        value.toBool() ? powerOn() : powerOff();
    } else if (name == QLatin1String("plugged")) {
        value.toBool() ? plug() : unplug();
    } else {
        ok = false;
    }
    if (!ok)
        throw CameraError(CameraError::Kind::BadValue, QStringLiteral("set"), this->name(),
                          QStringLiteral("\"%1\" can't be set to \"%2\"").arg(name, value.toString()));
    emit infoChanged(this);
}
