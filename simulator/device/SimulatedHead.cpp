#include "simulator/device/SimulatedHead.h"

#include "simulator/device/SimulatedBody.h"
#include "simulator/picture/Scene.h"
#include "simulator/settings/SettingBehavior.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/TriggerRules.h"

SimulatedHead::SimulatedHead(SimulatedBody* body, int index, const QString& name,
                             std::shared_ptr<const SimulatedModel> model)
    : CameraHead(*body), m_body(body), m_index(index), m_name(name), m_model(std::move(model)),
      m_settings(SettingsRules::initial(*m_model)), m_lens(m_model->lens, m_model->lensMotion, body->clock()),
      m_shadedAt(body->temperature()), m_recordings(size_t(m_model->partitions)),
      // The heads of a body look at the same scene from the same place in time.
      m_scene(std::make_unique<Scene>(m_model->sensor, body->seed())) {}

SimulatedHead::~SimulatedHead() = default;

QList<quint32> SimulatedHead::rateList() const { return SettingsRules::rateList(*m_model, m_settings); }

QList<quint32> SimulatedHead::shutterList() const { return SettingsRules::shutterList(*m_model, m_settings); }

bool SimulatedHead::isDualSlopeAvailable() const {
    return SettingsRules::isDualSlopeAvailable(*m_model, m_settings);
}

void SimulatedHead::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed)) {
        throw lacks(needed, function);
    }
}

Answer SimulatedHead::change(const QString& function, const Edit& edit, const std::function<void()>& after) {
    return m_body->command(function, fullName(), [=] {
        m_body->requireIdle(function, fullName());
        const CommandResult result = apply(edit);
        if (after) {
            after();
        }
        return result;
    });
}

CommandResult SimulatedHead::apply(const Edit& edit) {
    HeadSettings changed = m_settings;
    const CommandResult result = edit(changed);
    if (changed != m_settings) {
        m_settings = changed;
        followLightSoon();
        judgeImageSoon();
        emit settingsChanged(this);
    }
    return result;
}

SimulatedHead::Edit SimulatedHead::edit(const Setting& setting, const QString& function,
                                        const QVariant& value) const {
    return [this, &setting, function, value](HeadSettings& s) {
        if (setting.needs) {
            requireFunction(*setting.needs, function);
        }
        const Reason why = SettingBehaviors::refusal(setting, *this, s, value);
        if (!why.isEmpty()) {
            throw refusal(function, why);
        }
        return SettingBehaviors::set(setting, *this, s, value);
    };
}

Answer SimulatedHead::set(const Setting& setting, const QVariant& value) {
    const QString function = QLatin1String(setting.command);
    return change(function, edit(setting, function, value));
}

Answer SimulatedHead::setTrigger(int mode, int afterFrames, int randomFrames, int randomCount) {
    return change(CommandKey::SetTrigger, [=](HeadSettings& s) {
        edit(*SettingTable::find(QStringLiteral("triggerMode")), CommandKey::SetTrigger, mode)(s);
        return TriggerRules::set(*m_model, s, mode, afterFrames, randomFrames, randomCount);
    });
}

Answer SimulatedHead::adopt(const HeadSettings& wish) {
    return change(CommandKey::RestoreSettings,
                  [=](HeadSettings& s) { return SettingBehaviors::adopt(*this, s, wish); });
}

Answer SimulatedHead::setExposureControl(const ExposureControl& wish) {
    return change(CommandKey::SetExposureControl, [=](HeadSettings& s) {
        requireFunction(CameraFunction::AutoExposure, CommandKey::SetExposureControl);
        return SettingsRules::setExposureControl(*m_model, s, wish);
    });
}

Answer SimulatedHead::calibrateShading() {
    return change(CommandKey::CalibrateShading, [this](HeadSettings&) {
        requireFunction(CameraFunction::ShadingCalibration, CommandKey::CalibrateShading);
        m_shadedAt = m_body->temperature();
        return CommandResult::Ok;
    });
}
