// Presets, fan and links of a body, and what can be done to it from outside.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/OwnFunctions.h"
#include "viewer/cameras/SettingTable.h"
#include "viewer/cameras/SettingsRecord.h"

#include <utility>

CommandResult CameraBody::storePreset(int number) {
    const QString function = QStringLiteral("KVC_SetStorePreset");
    return command(function, name(), [&] {
        if (number < 1 || number > presetCount())
            throw CameraError(CameraError::Kind::Refused, function, name(),
                              reason("there is no preset %1", {number}));
        m_presets.insert_or_assign(number, SettingsRecord::of(*this));
        m_preset = number;
        return CommandResult::Ok;
    });
}

const BodyRecord& CameraBody::presetOf(int number, const QString& function) const {
    const auto found = m_presets.find(number);
    if (found == m_presets.end())
        throw CameraError(CameraError::Kind::Refused, function, name(),
                          reason("preset %1 holds nothing", {number}));
    return found->second;
}

void CameraBody::loadPreset(int number) {
    const QString function = OwnFunction::LoadPreset;
    if (m_model->presetsNeedReboot) {
        presetOf(number, function);
        m_presetAtBoot = number;
        return;
    }
    command(function, name(), [&] {
        requireIdle(function, name());
        presetOf(number, function);
        return CommandResult::Ok;
    });
    SettingsRecord::apply(presetOf(number, function), *this);
    m_preset = number;
}

void CameraBody::bootPreset() {
    if (m_presetAtBoot == 0)
        return;
    const BodyRecord record = presetOf(m_presetAtBoot, QString());
    m_preset = std::exchange(m_presetAtBoot, 0);
    for (int channel = 1; channel <= LastVariableChannel; ++channel)
        m_channels.at(size_t(channel - 1)) = record.channels.value(channel);
    for (size_t i = 0; i < m_heads.size(); ++i) {
        CameraHead& each = *m_heads[i];
        const HeadSettings& wish = record.heads.at(int(i)).settings;
        each.apply([&](HeadSettings& s) { return SettingTable::adopt(each, s, wish); });
    }
    m_fanRuns = record.fanRuns;
    m_partition = record.partition;
}

void CameraBody::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed))
        throw CameraError(CameraError::Kind::Refused, function, name(),
                          reason("this camera has no %1", {functionName(needed)}));
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
                          reason("\"%1\" can't be set to \"%2\"", {name, value.toString()}));
    emit infoChanged(this);
}
