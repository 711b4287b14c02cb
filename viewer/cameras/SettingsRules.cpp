#include "viewer/cameras/SettingsRules.h"

#include <algorithm>

namespace {

constexpr quint32 FirstRate = 1000; // fps of a camera that was just switched on, if it can

CommandResult resultOf(bool asAsked) { return asAsked ? CommandResult::Ok : CommandResult::Clamped; }

// The highest of a rising list that is not above the limit, else the first.
quint32 highestUpTo(const QList<quint32>& rising, quint32 limit) {
    const auto above = std::upper_bound(rising.begin(), rising.end(), limit);
    return above == rising.begin() ? rising.first() : *(above - 1);
}

// The exposure for a wish: no longer than a frame, and one of the model's unless it is exactly a frame.
quint32 fittingShutter(const CameraModel& model, quint32 rate, quint32 wish) {
    if (wish <= rate)
        return rate;
    const auto shorter = std::lower_bound(model.shutters.begin(), model.shutters.end(), wish);
    return std::max(rate, shorter == model.shutters.end() ? model.shutters.last() : *shorter);
}

// After a change of rate or size: all that depends on them.
void settle(const CameraModel& model, HeadSettings& settings) {
    settings.shutter =
        fittingShutter(model, settings.rate, settings.shutterLock ? settings.shutterWish : settings.shutter);
    if (!settings.shutterLock)
        settings.shutterWish = settings.shutter;
    if (!SettingsRules::isDualSlopeAvailable(model, settings))
        settings.dualSlope = 0;
    settings.afterFrames = std::clamp(settings.afterFrames, 1, model.memoryFrames(settings.resolution));
}

} // namespace

HeadSettings SettingsRules::initial(const CameraModel& model) {
    HeadSettings settings;
    if (model.resolutions.isEmpty())
        return settings;
    settings.resolution = model.resolutions.first();
    settings.rate = highestUpTo(model.rates, std::min(FirstRate, model.maxRate(settings.resolution)));
    settings.shutter = settings.shutterWish = settings.rate;
    settings.triggerMode = model.triggerModes.first();
    settings.afterFrames = model.memoryFrames(settings.resolution);
    settle(model, settings);
    return settings;
}

QList<quint32> SettingsRules::rateList(const CameraModel& model, const HeadSettings& settings) {
    quint32 limit = settings.resolutionLock ? model.maxRate(settings.resolution) : 0;
    if (!settings.resolutionLock)
        for (const QSize& size : model.resolutions)
            limit = std::max(limit, model.maxRate(size));
    QList<quint32> list;
    for (const quint32 rate : model.rates)
        if (rate <= limit)
            list << rate;
    return list;
}

QList<quint32> SettingsRules::shutterList(const CameraModel& model, const HeadSettings& settings) {
    QList<quint32> list;
    if (settings.rate > 0)
        list << settings.rate;
    for (const quint32 shutter : model.shutters)
        if (shutter > settings.rate)
            list << shutter;
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

int SettingsRules::framesAfterTrigger(const CameraModel& model, const HeadSettings& settings) {
    const int total = model.memoryFrames(settings.resolution);
    switch (settings.triggerMode) {
    case TriggerCentre:
        return total / 2;
    case TriggerEnd:
        return 0;
    case TriggerManual:
        return settings.afterFrames;
    default:
        return total;
    }
}

CommandResult SettingsRules::setResolution(const CameraModel& model, HeadSettings& settings,
                                           const QSize& size) {
    // Presets stand from the largest to the smallest.
    const auto fits = [&size](const QSize& preset) { return preset.boundedTo(size) == preset; };
    const auto found = std::find_if(model.resolutions.begin(), model.resolutions.end(), fits);
    settings.resolution = found == model.resolutions.end() ? model.resolutions.last() : *found;
    settings.rate = highestUpTo(model.rates, std::min(settings.rate, model.maxRate(settings.resolution)));
    settle(model, settings);
    return resultOf(settings.resolution == size);
}

CommandResult SettingsRules::setRate(const CameraModel& model, HeadSettings& settings, quint32 rate) {
    settings.rate = highestUpTo(rateList(model, settings), rate);
    if (settings.rate > model.maxRate(settings.resolution)) {
        const auto runs = [&](const QSize& preset) { return model.maxRate(preset) >= settings.rate; };
        settings.resolution = *std::find_if(model.resolutions.begin(), model.resolutions.end(), runs);
    }
    settle(model, settings);
    return resultOf(settings.rate == rate);
}

CommandResult SettingsRules::setShutter(const CameraModel& model, HeadSettings& settings, quint32 shutter) {
    settings.shutter = settings.shutterWish = fittingShutter(model, settings.rate, shutter);
    return resultOf(settings.shutter == shutter);
}

CommandResult SettingsRules::setShutterLock(HeadSettings& settings, bool on) {
    settings.shutterLock = on;
    settings.shutterWish = settings.shutter;
    return CommandResult::Ok;
}

CommandResult SettingsRules::setDualSlope(const CameraModel& model, HeadSettings& settings, int percent) {
    settings.dualSlope = percent <= 0 ? 0 : std::clamp(percent, model.dualSlopeMin, model.dualSlopeMax);
    return resultOf(settings.dualSlope == percent);
}

CommandResult SettingsRules::setAfterFrames(const CameraModel& model, HeadSettings& settings, int frames) {
    settings.afterFrames = std::clamp(frames, 1, model.memoryFrames(settings.resolution));
    return resultOf(settings.afterFrames == frames);
}
