#include "viewer/cameras/CameraHead.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/OwnFunctions.h"
#include "viewer/cameras/Scene.h"
#include "viewer/cameras/SettingTable.h"
#include "viewer/cameras/SettingsRules.h"
#include "viewer/cameras/TriggerRules.h"

bool HeadSettings::operator==(const HeadSettings& other) const {
    return position == other.position && SettingTable::areEqual(*this, other);
}

CameraHead::CameraHead(CameraBody* body, int index, const QString& name,
                       std::shared_ptr<const CameraModel> model)
    : m_body(body), m_index(index), m_name(name), m_model(std::move(model)),
      m_settings(SettingsRules::initial(*m_model)), m_lens(m_model->lens, body->clock()),
      m_shadedAt(body->temperature()), m_recordings(size_t(m_model->partitions)),
      // The heads of a body look at the same scene from the same place in time.
      m_scene(std::make_unique<Scene>(m_model->sensor, body->seed())) {}

CameraHead::~CameraHead() = default;

QString CameraHead::fullName() const {
    return m_name.isEmpty() ? m_body->name() : m_body->name() + QLatin1Char(' ') + m_name;
}

QList<QSize> CameraHead::resolutionList() const { return m_model->resolutions; }

QList<quint32> CameraHead::rateList() const { return SettingsRules::rateList(*m_model, m_settings); }

QList<quint32> CameraHead::shutterList() const { return SettingsRules::shutterList(*m_model, m_settings); }

QSize CameraHead::maxResolution() const { return m_model->sensor; }

bool CameraHead::isDualSlopeAvailable() const {
    return SettingsRules::isDualSlopeAvailable(*m_model, m_settings);
}

int CameraHead::totalFrames() const { return m_model->memoryFrames(m_settings.resolution); }

void CameraHead::refuse(const QString& function, const Reason& reason) const {
    throw CameraError(CameraError::Kind::Refused, function, fullName(), reason);
}

void CameraHead::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed))
        refuse(function, reason("this camera has no %1", {functionName(needed)}));
}

CommandResult CameraHead::change(const QString& function, const Edit& edit) {
    return m_body->command(function, fullName(), [&] {
        m_body->requireIdle(function, fullName());
        return apply(edit);
    });
}

CommandResult CameraHead::apply(const Edit& edit) {
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

CameraHead::Edit CameraHead::edit(const Setting& setting, const QString& function,
                                  const QVariant& value) const {
    return [this, &setting, function, value](HeadSettings& s) {
        if (setting.needs) {
            requireFunction(*setting.needs, function);
        }
        const Reason why = setting.refusal ? setting.refusal(*this, s, value) : Reason();
        if (!why.isEmpty()) {
            refuse(function, why);
        }
        return setting.set(*this, s, value);
    };
}

CommandResult CameraHead::setByKey(const char* key, const QString& function, const QVariant& value) {
    return change(function, edit(*SettingTable::find(QLatin1String(key)), function, value));
}

CommandResult CameraHead::setResolution(const QSize& size) {
    return setByKey("resolution", QStringLiteral("KVC_SetResolution"), size);
}

CommandResult CameraHead::setRate(quint32 rate) {
    return setByKey("rate", QStringLiteral("KVC_SetRecordRate"), rate);
}

CommandResult CameraHead::setShutter(quint32 shutter) {
    return setByKey("shutter", QStringLiteral("KVC_SetShutterSpeedFps"), shutter);
}

CommandResult CameraHead::setShutterLock(bool on) {
    return setByKey("shutterLock", QStringLiteral("KVC_SetShutterLockMode"), on);
}

CommandResult CameraHead::setResolutionLock(bool on) {
    return setByKey("resolutionLock", QStringLiteral("KVC_SetResolutionLockMode"), on);
}

CommandResult CameraHead::setDualSlope(int percent) {
    return setByKey("dualSlope", QStringLiteral("KVC_SetDSShutterValue"), percent);
}

CommandResult CameraHead::setRandomTimes(bool on) {
    return setByKey("randomTimes", QStringLiteral("KVC_SetRandomTriggerTimes"), on);
}

CommandResult CameraHead::setAutoExposure(bool on) {
    return setByKey("autoExposure", QStringLiteral("KVC_SetAutoExposure"), on);
}

int CameraHead::triggerLimit() const { return TriggerRules::limit(*m_model, m_settings); }

CommandResult CameraHead::setTrigger(int mode, int afterFrames, int randomFrames, int randomCount) {
    const QString function = QStringLiteral("KVC_SetTriggerMode");
    return change(function, [&](HeadSettings& s) {
        const Setting& setting = *SettingTable::find(QStringLiteral("triggerMode"));
        const Reason why = setting.refusal(*this, s, mode);
        if (!why.isEmpty()) {
            refuse(function, why);
        }
        return TriggerRules::set(*m_model, s, mode, afterFrames, randomFrames, randomCount);
    });
}

CommandResult CameraHead::adopt(const HeadSettings& wish) {
    return change(OwnFunction::RestoreSettings,
                  [&](HeadSettings& s) { return SettingTable::adopt(*this, s, wish); });
}

CommandResult CameraHead::setExposureControl(const ExposureControl& wish) {
    const QString function = QStringLiteral("KVC_SetAutoExposureInfo");
    return change(function, [&](HeadSettings& s) {
        requireFunction(CameraFunction::AutoExposure, function);
        return SettingsRules::setExposureControl(*m_model, s, wish);
    });
}
