// Variable channels: what a head takes from its body's store, puts into it, and leaves.
#include "simulator/device/SimulatedBody.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/TriggerRules.h"

Answer SimulatedHead::storeVariableChannel(int number, const VariableChannel& content) {
    const QString& function = CommandKey::StoreVariableChannel;
    const auto taken = std::make_shared<VariableChannel>(content);
    const auto check = [=](HeadSettings&) {
        requireFunction(CameraFunction::VariableChannels, function);
        if (number < 1 || number > LastVariableChannel) {
            throw refusal(function, reason("there is no channel %1", {number}));
        }
        if (!VariableSize::isValid(*m_model, content.rate, content.size)) {
            throw refusal(function, reason("%1 x %2 can't run %3 fps",
                                           {content.size.width(), content.size.height(), content.rate}));
        }
        taken->position = VariableSize::settledPosition(*m_model, content.size, content.position);
        return taken->position == content.position ? CommandResult::Ok : CommandResult::Clamped;
    };
    return change(function, check, [=] { m_body->keepVariableChannel(number, *taken); });
}

Answer SimulatedHead::eraseVariableChannel(int number) {
    const QString& function = CommandKey::EraseVariableChannel;
    const auto check = [=](HeadSettings&) {
        requireFunction(CameraFunction::VariableChannels, function);
        if (!m_body->variableChannel(number).isStored()) {
            throw refusal(function, reason("channel %1 holds nothing", {number}));
        }
        return CommandResult::Ok;
    };
    return change(function, check, [=] { m_body->keepVariableChannel(number, VariableChannel()); });
}

void SimulatedHead::followChannel(int number) {
    if (m_settings.channel == number) {
        const VariableChannel content = m_body->variableChannel(number);
        apply([&](HeadSettings& s) {
            return content.isStored() ? SettingsRules::setChannel(*m_model, s, number, content)
                                      : SettingsRules::leaveChannel(*m_model, s);
        });
    }
}

Answer SimulatedHead::restoreSettings(const HeadSettings& before) {
    return change(CommandKey::SetVariableChannel, [=](HeadSettings& s) {
        const quint32 wish = s.shutterWish;
        const ExposureControl exposure = s.exposure;
        const VariableChannel content = m_body->variableChannel(before.channel);
        if (content.isStored()) {
            SettingsRules::setChannel(*m_model, s, before.channel, content);
        } else {
            SettingsRules::setResolution(*m_model, s, before.resolution);
            SettingsRules::setRate(*m_model, s, before.rate);
        }
        SettingsRules::setShutter(*m_model, s, before.shutter);
        if (s.shutterLock) {
            s.shutterWish = wish; // a lock holds more than the exposure in force
        }
        s.exposure = exposure; // a shutter that a user chooses ends it, this one doesn't
        return TriggerRules::set(*m_model, s, before.triggerMode, before.afterFrames, before.randomFrames,
                                 before.randomCount);
    });
}
