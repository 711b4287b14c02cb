#include "viewer/cameras/settings/TriggerRules.h"

#include <algorithm>

namespace {

int memory(const CameraModel& model, const HeadSettings& settings) {
    return model.memoryFrames(settings.resolution);
}

bool countsAlways(int mode) { return mode == TriggerRandomCenter || mode == TriggerRandomManual; }

bool usesCount(const HeadSettings& settings) {
    const bool choice = settings.triggerMode == TriggerRandom || settings.triggerMode == TriggerRandomReset;
    return countsAlways(settings.triggerMode) || (choice && settings.randomTimes);
}

int largestCount(const CameraModel& model, const HeadSettings& settings) {
    const int limit = countsAlways(settings.triggerMode) ? model.randomCountMaxAlways : model.randomCountMax;
    return std::max(1, std::min(limit, TriggerRules::fittingCount(model, settings)));
}

// The frames of a limit that lie before the trigger; halves are rounded up, as on the page.
int framesOfPercent(int limit, double percent) {
    constexpr qint64 kWhole = 10000; // hundredths of a percent
    return int((limit * qint64(qRound(percent * 100)) + kWhole / 2) / kWhole);
}

TriggerRules::Span split(int frames, int after, int step = 1) { return {frames - after, after, step}; }

} // namespace

bool TriggerRules::isShared(int mode) { return mode == TriggerManual || mode == TriggerRandomManual; }

bool TriggerRules::isRandom(int mode) {
    return mode == TriggerRandom || mode == TriggerRandomLoop ||
           (mode >= TriggerRandomReset && mode <= TriggerRandomManual);
}

int TriggerRules::limit(const CameraModel& model, const HeadSettings& settings) {
    return limit(settings.triggerMode, settings.randomFrames, memory(model, settings));
}

int TriggerRules::limit(int mode, int randomFrames, int memoryFrames) {
    return mode == TriggerRandomManual && randomFrames > 0 ? randomFrames : memoryFrames;
}

int TriggerRules::framesAfter(int limit, int lock, int before, int after, double percentBefore) {
    switch (lock) {
    case LockBefore:
        return std::max(1, limit - before);
    case LockPercent:
        return std::max(1, limit - framesOfPercent(limit, percentBefore));
    default:
        return after;
    }
}

int TriggerRules::sharedAnew(int limit, int lock, int oldLimit, int oldAfter) {
    const int before = oldLimit - oldAfter;
    return std::clamp(framesAfter(limit, lock, before, oldAfter, 100.0 * before / oldLimit), 1, limit);
}

bool TriggerRules::restartsAtTrigger(int mode) { return mode == TriggerReset || mode == TriggerRandomReset; }

bool TriggerRules::endsByTrigger(int mode) { return mode == TriggerRecordOnCommand; }

bool TriggerRules::keepsRing(int mode) {
    return !isRandom(mode) && !restartsAtTrigger(mode) && !endsByTrigger(mode);
}

int TriggerRules::fittingCount(const CameraModel& model, const HeadSettings& settings) {
    return memory(model, settings) / std::max(1, settings.randomFrames + model.randomOffset);
}

TriggerRules::Span TriggerRules::span(const CameraModel& model, const HeadSettings& settings) {
    const int frames = isRandom(settings.triggerMode) ? settings.randomFrames : memory(model, settings);
    switch (settings.triggerMode) {
    case TriggerCenter:
    case TriggerRandomCenter:
    case TriggerTwoStage:
        return split(frames, frames / 2);
    case TriggerTwoStageHalf:
        return split(frames, frames / 2, 2);
    case TriggerTwoStageQuarter:
        return split(frames, frames / 2, 4);
    case TriggerTwoStageEighth:
        return split(frames, frames / 2, 8);
    case TriggerEnd:
        return split(frames, 0);
    case TriggerManual:
    case TriggerRandomManual:
        return split(frames, settings.afterFrames);
    default:
        return split(frames, frames);
    }
}

bool TriggerRules::wantsMore(const CameraModel& model, const HeadSettings& settings, int recordings) {
    if (recordings == 0 || settings.triggerMode == TriggerRandomLoop) {
        return true;
    }
    if (!isRandom(settings.triggerMode) || recordings >= fittingCount(model, settings)) {
        return false;
    }
    return !usesCount(settings) || recordings < settings.randomCount;
}

CommandResult TriggerRules::set(const CameraModel& model, HeadSettings& settings, int mode, int afterFrames,
                                int randomFrames, int randomCount) {
    const auto take = [](int& value, int wish) { value = wish >= 1 ? wish : value; };
    settings.triggerMode = mode;
    take(settings.afterFrames, afterFrames);
    take(settings.randomFrames, randomFrames);
    take(settings.randomCount, randomCount);
    settle(model, settings);
    const auto took = [](int value, int wish) { return wish < 1 || value == wish; };
    const bool asAsked = (!isShared(mode) || took(settings.afterFrames, afterFrames)) &&
                         (!isRandom(mode) || took(settings.randomFrames, randomFrames)) &&
                         (!usesCount(settings) || took(settings.randomCount, randomCount));
    return asAsked ? CommandResult::Ok : CommandResult::Clamped;
}

void TriggerRules::settle(const CameraModel& model, HeadSettings& settings) {
    settings.randomFrames = std::clamp(settings.randomFrames, 1, memory(model, settings));
    settings.randomCount = std::clamp(settings.randomCount, 1, largestCount(model, settings));
    settings.afterFrames = std::clamp(settings.afterFrames, 1, limit(model, settings));
}
