#include "viewer/cameras/CameraHead.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Scene.h"
#include "viewer/cameras/SettingsRules.h"
#include "viewer/cameras/TriggerRules.h"

#include <tuple>

bool HeadSettings::operator==(const HeadSettings& other) const {
    const auto all = [](const HeadSettings& s) {
        return std::make_tuple(s.resolution.width(), s.resolution.height(), s.rate, s.shutter, s.shutterWish,
                               s.shutterLock, s.resolutionLock, s.dualSlope, s.dualSlopeMode, s.triggerMode,
                               s.afterFrames, s.randomFrames, s.randomCount, s.randomTimes, s.aperture,
                               s.channel, s.position.x(), s.position.y());
    };
    return all(*this) == all(other) && exposure == other.exposure && imageTrigger == other.imageTrigger &&
           lowLight == other.lowLight && led == other.led && laser == other.laser;
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

void CameraHead::refuse(const QString& function, const QString& reason) const {
    throw CameraError(CameraError::Kind::Refused, function, fullName(), reason);
}

void CameraHead::requireFunction(CameraFunction needed, const QString& function) const {
    if (!m_model->supports(needed))
        refuse(function, QStringLiteral("this camera has no %1").arg(functionName(needed)));
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

CommandResult CameraHead::setResolution(const QSize& size) {
    return change(QStringLiteral("KVC_SetResolution"),
                  [&](HeadSettings& s) { return SettingsRules::setResolution(*m_model, s, size); });
}

CommandResult CameraHead::setRate(quint32 rate) {
    return change(QStringLiteral("KVC_SetRecordRate"),
                  [&](HeadSettings& s) { return SettingsRules::setRate(*m_model, s, rate); });
}

CommandResult CameraHead::setShutter(quint32 shutter) {
    return change(QStringLiteral("KVC_SetShutterSpeedFps"),
                  [&](HeadSettings& s) { return SettingsRules::setShutter(*m_model, s, shutter); });
}

CommandResult CameraHead::setShutterLock(bool on) {
    const QString function = QStringLiteral("KVC_SetShutterLockMode");
    return change(function, [&](HeadSettings& s) {
        requireFunction(CameraFunction::ShutterLock, function);
        return SettingsRules::setShutterLock(s, on);
    });
}

CommandResult CameraHead::setResolutionLock(bool on) {
    const QString function = QStringLiteral("KVC_SetResolutionLockMode");
    return change(function, [&](HeadSettings& s) {
        requireFunction(CameraFunction::ResolutionLock, function);
        s.resolutionLock = on;
        return CommandResult::Ok;
    });
}

CameraHead::Edit CameraHead::editDualSlope(const QString& function, int percent) const {
    return [this, function, percent](HeadSettings& s) {
        requireFunction(CameraFunction::DualSlope, function);
        if (percent > 0 && !isDualSlopeAvailable())
            refuse(function, QStringLiteral("not at this frame rate"));
        return SettingsRules::setDualSlope(*m_model, s, percent);
    };
}

CommandResult CameraHead::setDualSlope(int percent) {
    const QString function = QStringLiteral("KVC_SetDSShutterValue");
    return change(function, editDualSlope(function, percent));
}

int CameraHead::triggerLimit() const { return TriggerRules::limit(*m_model, m_settings); }

CameraHead::Edit CameraHead::editTrigger(const QString& function, int mode, int afterFrames, int randomFrames,
                                         int randomCount) const {
    return [=](HeadSettings& s) {
        if (!m_model->triggerModes.contains(mode))
            refuse(function, QStringLiteral("this camera has no trigger mode %1").arg(mode));
        return TriggerRules::set(*m_model, s, mode, afterFrames, randomFrames, randomCount);
    };
}

CommandResult CameraHead::setTrigger(int mode, int afterFrames, int randomFrames, int randomCount) {
    const QString function = QStringLiteral("KVC_SetTriggerMode");
    return change(function, editTrigger(function, mode, afterFrames, randomFrames, randomCount));
}

CameraHead::Edit CameraHead::editRandomTimes(const QString& function, bool on) const {
    return [=](HeadSettings& s) {
        requireFunction(CameraFunction::RandomTimes, function);
        s.randomTimes = on;
        return CommandResult::Ok;
    };
}

CommandResult CameraHead::setRandomTimes(bool on) {
    const QString function = QStringLiteral("KVC_SetRandomTriggerTimes");
    return change(function, editRandomTimes(function, on));
}

CameraHead::Edit CameraHead::editAutoExposure(const QString& function, bool on) const {
    return [this, function, on](HeadSettings& s) {
        requireFunction(CameraFunction::AutoExposure, function);
        if (on && s.dualSlope > 0)
            refuse(function, QStringLiteral("not with a dual slope shutter"));
        return SettingsRules::setAutoExposure(*m_model, s, on);
    };
}

CommandResult CameraHead::setAutoExposure(bool on) {
    const QString function = QStringLiteral("KVC_SetAutoExposure");
    return change(function, editAutoExposure(function, on));
}

CommandResult CameraHead::setExposureControl(const ExposureControl& wish) {
    const QString function = QStringLiteral("KVC_SetAutoExposureInfo");
    return change(function, [&](HeadSettings& s) {
        requireFunction(CameraFunction::AutoExposure, function);
        return SettingsRules::setExposureControl(*m_model, s, wish);
    });
}
