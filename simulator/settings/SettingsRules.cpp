#include "simulator/settings/SettingsRules.h"

#include "simulator/settings/AutoExposure.h"

#include "viewer/cameras/settings/TriggerRules.h"

#include <algorithm>

namespace {

constexpr quint32 FirstRate = 1000; // fps of a camera that was just switched on, if it can

CommandResult resultOf(bool asAsked) { return asAsked ? CommandResult::Ok : CommandResult::Clamped; }

// The highest of a rising list that is not above the limit, else the first.
quint32 highestUpTo(const QList<quint32>& rising, quint32 limit) {
    const auto above = std::upper_bound(rising.begin(), rising.end(), limit);
    return above == rising.begin() ? rising.first() : *(above - 1);
}

// The lowest of a rising list that is not below the limit, else the last.
quint32 lowestFrom(const QList<quint32>& rising, quint32 limit) {
    const auto found = std::lower_bound(rising.begin(), rising.end(), limit);
    return found == rising.end() ? rising.last() : *found;
}

// Presets stand from the largest to the smallest.
QSize presetWithin(const CameraModel& model, const QSize& size) {
    const auto fits = [&size](const QSize& preset) { return preset.boundedTo(size) == preset; };
    const auto found = std::find_if(model.resolutions.begin(), model.resolutions.end(), fits);
    return found == model.resolutions.end() ? model.resolutions.last() : *found;
}

// After a change of rate or size: all that depends on them.
void settle(const CameraModel& model, HeadSettings& settings) {
    if (!model.meter.areaStep.isEmpty()) {
        settings.exposure = AutoExposure::fitted(model, settings, settings.exposure);
        settings.imageTrigger = AutoExposure::fittedArea(model, settings, settings.imageTrigger);
    }
    if (settings.exposure.on) {
        settings.shutter = AutoExposure::limited(model, settings, settings.shutter);
    } else {
        settings.shutter = SettingsRules::fittingShutter(
            model, settings.rate, settings.shutterLock ? settings.shutterWish : settings.shutter);
        if (!settings.shutterLock) {
            settings.shutterWish = settings.shutter;
        }
    }
    if (!SettingsRules::isDualSlopeAvailable(model, settings)) {
        settings.dualSlope = 0;
    }
    TriggerRules::settle(model, settings);
}

} // namespace

quint32 SettingsRules::fittingShutter(const CameraModel& model, quint32 rate, quint32 wish) {
    if (wish <= rate) {
        return rate;
    }
    return std::max(rate, lowestFrom(model.shutters, wish));
}

HeadSettings SettingsRules::initial(const CameraModel& model) {
    HeadSettings settings;
    if (model.resolutions.isEmpty()) {
        return settings;
    }
    settings.resolution = model.resolutions.first();
    settings.rate = highestUpTo(model.rates, std::min(FirstRate, model.maxRate(settings.resolution)));
    settings.shutter = settings.shutterWish = settings.rate;
    settings.triggerMode = model.triggerModes.first();
    settings.afterFrames = model.memoryFrames(settings.resolution);
    settings.randomFrames = std::max(1, settings.afterFrames / 10);
    settings.exposure = AutoExposure::initial(model, settings);
    settings.imageTrigger = settings.exposure;
    settle(model, settings);
    return settings;
}

QList<quint32> SettingsRules::rateList(const CameraModel& model, const HeadSettings& settings) {
    quint32 limit = settings.resolutionLock ? model.maxRate(settings.resolution) : 0;
    if (!settings.resolutionLock) {
        for (const QSize& size : model.resolutions) {
            limit = std::max(limit, model.maxRate(size));
        }
    }
    QList<quint32> list;
    for (const quint32 rate : model.rates) {
        if (rate <= limit) {
            list << rate;
        }
    }
    return list;
}

QList<quint32> SettingsRules::shutterList(const CameraModel& model, const HeadSettings& settings) {
    if (settings.lowLight.on) {
        return model.lowLightShutters + model.shutters;
    }
    QList<quint32> list;
    if (settings.rate > 0) {
        list << settings.rate;
    }
    for (const quint32 shutter : model.shutters) {
        if (shutter > settings.rate) {
            list << shutter;
        }
    }
    return list;
}

bool SettingsRules::isDualSlopeAvailable(const CameraModel& model, const HeadSettings& settings) {
    return model.supports(CameraFunction::DualSlope) &&
           (model.dualSlopeRateLimit == 0 || settings.rate <= model.dualSlopeRateLimit);
}

int SettingsRules::activeDualSlope(const CameraModel& model, const HeadSettings& settings) {
    const bool off = model.supports(CameraFunction::DualSlopeMode) && !settings.dualSlopeMode;
    return off ? 0 : settings.dualSlope;
}

CommandResult SettingsRules::setResolution(const CameraModel& model, HeadSettings& settings,
                                           const QSize& size) {
    settings.channel = 0;
    settings.position = QPoint();
    settings.resolution = presetWithin(model, size);
    settings.rate = highestUpTo(model.rates, std::min(settings.rate, model.maxRate(settings.resolution)));
    settle(model, settings);
    return resultOf(settings.resolution == size);
}

CommandResult SettingsRules::setRate(const CameraModel& model, HeadSettings& settings, quint32 rate) {
    leaveChannel(model, settings);
    settings.rate = highestUpTo(rateList(model, settings), rate);
    if (settings.rate > model.maxRate(settings.resolution)) {
        const auto runs = [&](const QSize& preset) { return model.maxRate(preset) >= settings.rate; };
        settings.resolution = *std::find_if(model.resolutions.begin(), model.resolutions.end(), runs);
    }
    settle(model, settings);
    return resultOf(settings.rate == rate);
}

CommandResult SettingsRules::setShutter(const CameraModel& model, HeadSettings& settings, quint32 shutter) {
    if (settings.lowLight.on) {
        const QList<quint32> list = shutterList(model, settings);
        settings.lowLight.shutter = lowestFrom(list, shutter);
        return resultOf(settings.lowLight.shutter == shutter);
    }
    settings.exposure.on = false;
    settings.shutter = settings.shutterWish = fittingShutter(model, settings.rate, shutter);
    return resultOf(settings.shutter == shutter);
}

CommandResult SettingsRules::setLowLight(const CameraModel& model, HeadSettings& settings, bool on) {
    const quint32 before = settings.liveShutter();
    settings.lowLight.on = on;
    settings.lowLight.shutter = on ? lowestFrom(shutterList(model, settings), before) : 0;
    return CommandResult::Ok;
}

CommandResult SettingsRules::setShutterLock(HeadSettings& settings, bool on) {
    settings.shutterLock = on;
    settings.shutterWish = settings.shutter;
    return CommandResult::Ok;
}

CommandResult SettingsRules::setAutoExposure(const CameraModel& model, HeadSettings& settings, bool on) {
    if (settings.exposure.on && !on) {
        settings.shutter = settings.shutterWish;
    }
    settings.exposure.on = on;
    settle(model, settings);
    return CommandResult::Ok;
}

CommandResult SettingsRules::setExposureControl(const CameraModel& model, HeadSettings& settings,
                                                const ExposureControl& wish) {
    ExposureControl asked = wish;
    asked.on = settings.exposure.on;
    settings.exposure = AutoExposure::fitted(model, settings, asked);
    settle(model, settings);
    return resultOf(settings.exposure == asked);
}

CommandResult SettingsRules::setImageTriggerControl(const CameraModel& model, HeadSettings& settings,
                                                    const MeteringArea& wish) {
    MeteringArea asked = wish;
    asked.on = settings.imageTrigger.on;
    settings.imageTrigger = AutoExposure::fittedArea(model, settings, asked);
    settings.imageTrigger.on = asked.on;
    return resultOf(settings.imageTrigger == asked);
}

CommandResult SettingsRules::setDualSlope(const CameraModel& model, HeadSettings& settings, int percent) {
    if (percent > 0 && settings.exposure.on) {
        setAutoExposure(model, settings, false);
    }
    settings.dualSlope = percent <= 0 ? 0 : std::clamp(percent, model.dualSlopeMin, model.dualSlopeMax);
    return resultOf(settings.dualSlope == percent);
}

CommandResult SettingsRules::setChannel(const CameraModel& model, HeadSettings& settings, int number,
                                        const VariableChannel& content) {
    settings.channel = number;
    settings.rate = content.rate;
    settings.resolution = content.size;
    settings.position = content.position;
    settle(model, settings);
    return CommandResult::Ok;
}

CommandResult SettingsRules::leaveChannel(const CameraModel& model, HeadSettings& settings) {
    if (settings.channel > 0) {
        setResolution(model, settings, settings.resolution);
    }
    return CommandResult::Ok;
}
