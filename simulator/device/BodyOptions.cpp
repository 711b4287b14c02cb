// Presets, fan and links of a body, and what can be done to it from outside.

#include "simulator/device/SimulatedBody.h"
#include "simulator/settings/SettingBehavior.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/SettingsRecord.h"

#include <utility>

Answer SimulatedBody::storePreset(int number) {
    const QString& function = CommandKey::StorePreset;
    return command(function, name(), [=] {
        if (number < 1 || number > presetCount()) {
            throw refusal(function, reason("there is no preset %1", {number}));
        }
        m_presets.insert_or_assign(number, SettingsRecord::of(*this));
        m_preset = number;
        return CommandResult::Ok;
    });
}

const BodyRecord& SimulatedBody::presetOf(int number, const QString& function) const {
    const auto found = m_presets.find(number);
    if (found == m_presets.end()) {
        throw refusal(function, reason("preset %1 holds nothing", {number}));
    }
    return found->second;
}

Answer SimulatedBody::loadPreset(int number) {
    const QString& function = CommandKey::LoadPreset;
    if (m_model->presetsNeedReboot) {
        return Answer::of([&] {
            presetOf(number, function);
            m_presetAtBoot = number;
            return CommandResult::Ok;
        });
    }
    const auto check = [=] {
        requireIdle(function, name());
        presetOf(number, function);
        return CommandResult::Ok;
    };
    return command(function, name(), check)
        .then([=](CommandResult) { return SettingsRecord::apply(presetOf(number, function), *this); })
        .then([=](CommandResult) {
            m_preset = number;
            return Answer(CommandResult::Ok);
        });
}

void SimulatedBody::bootPreset() {
    if (m_presetAtBoot == 0) {
        return;
    }
    const BodyRecord record = presetOf(m_presetAtBoot, QString());
    m_preset = std::exchange(m_presetAtBoot, 0);
    for (int channel = 1; channel <= LastVariableChannel; ++channel) {
        m_channels.at(size_t(channel - 1)) = record.channels.value(channel);
    }
    for (size_t i = 0; i < m_heads.size(); ++i) {
        SimulatedHead& each = *m_heads[i];
        const HeadSettings& wish = record.heads.at(int(i)).settings;
        each.apply([&](HeadSettings& s) { return SettingBehaviors::adopt(each, s, wish); });
    }
    m_fanRuns = record.fanRuns;
    m_partition = record.partition;
}

void SimulatedBody::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed)) {
        throw lacks(needed, function);
    }
}

FanState SimulatedBody::fanState() const {
    constexpr double Warm = 50; // degrees Celsius
    constexpr double Hot = 60;
    if (m_fanFault) {
        return FanFault;
    }
    if (m_info.temperature >= Hot) {
        return FanForced;
    }
    if (m_fanRuns) {
        return FanSpinning;
    }
    return m_info.temperature >= Warm ? FanStoppedWhileReady : FanStopped;
}

Answer SimulatedBody::setFan(bool runs) {
    const QString& function = CommandKey::SetFan;
    return command(function, name(), [=] {
        requireFunction(CameraFunction::FanControl, function);
        m_fanRuns = runs;
        emit infoChanged(this);
        return CommandResult::Ok;
    });
}

Answer SimulatedBody::adjustLink() {
    const QString& function = CommandKey::Link;
    return command(function, name(), [=] {
        requireFunction(CameraFunction::LinkAdjustment, function);
        requireIdle(function, name());
        m_outOfPhase = false;
        emit infoChanged(this);
        return CommandResult::Ok;
    });
}

void SimulatedBody::set(const QString& name, const QVariant& value) {
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
    if (!ok) {
        throw CameraError(CameraError::Kind::BadValue, QStringLiteral("set"), this->name(),
                          reason("\"%1\" can't be set to \"%2\"", {name, value.toString()}));
    }
    emit infoChanged(this);
}
