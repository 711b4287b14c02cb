// Variable channels: what a head takes from its body's store, puts into it, and leaves.
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/SettingsRules.h"
#include "viewer/cameras/TriggerRules.h"

namespace {
const QString SetChannel = QStringLiteral("KVC_SetVariableChannel");
}

CommandResult CameraHead::setVariableChannel(int number) { return setByKey("channel", SetChannel, number); }

CommandResult CameraHead::storeVariableChannel(int number, const VariableChannel& content) {
    const QString function = QStringLiteral("KVC_SetVariableChannelInfo");
    VariableChannel taken = content;
    const CommandResult result = change(function, [&](HeadSettings&) {
        requireFunction(CameraFunction::VariableChannels, function);
        if (number < 1 || number > LastVariableChannel)
            refuse(function, reason("there is no channel %1", {number}));
        if (!VariableSize::isValid(*m_model, content.rate, content.size))
            refuse(function, reason("%1 x %2 can't run %3 fps",
                                    {content.size.width(), content.size.height(), content.rate}));
        taken.position = VariableSize::settledPosition(*m_model, content.size, content.position);
        return taken.position == content.position ? CommandResult::Ok : CommandResult::Clamped;
    });
    m_body->keepVariableChannel(number, taken);
    return result;
}

CommandResult CameraHead::eraseVariableChannel(int number) {
    const QString function = QStringLiteral("KVC_EraseVariableChannel");
    const CommandResult result = change(function, [&](HeadSettings&) {
        requireFunction(CameraFunction::VariableChannels, function);
        if (!m_body->variableChannel(number).isStored())
            refuse(function, reason("channel %1 holds nothing", {number}));
        return CommandResult::Ok;
    });
    m_body->keepVariableChannel(number, VariableChannel());
    return result;
}

void CameraHead::followChannel(int number) {
    if (m_settings.channel == number) {
        const VariableChannel content = m_body->variableChannel(number);
        apply([&](HeadSettings& s) {
            return content.isStored() ? SettingsRules::setChannel(*m_model, s, number, content)
                                      : SettingsRules::leaveChannel(*m_model, s);
        });
    }
}

CommandResult CameraHead::restoreSettings(const HeadSettings& before) {
    return change(SetChannel, [&](HeadSettings& s) {
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
        if (s.shutterLock)
            s.shutterWish = wish; // a lock holds more than the exposure in force
        s.exposure = exposure;    // a shutter that a user chooses ends it, this one doesn't
        return TriggerRules::set(*m_model, s, before.triggerMode, before.afterFrames, before.randomFrames,
                                 before.randomCount);
    });
}
