// What a head keeps of its frames: the ring, the shots round the triggers, and the memory that they fill.
#include "simulator/device/SimulatedBody.h"
#include "simulator/picture/Scene.h"
#include "viewer/cameras/FrameTime.h"
#include "viewer/cameras/settings/TriggerRules.h"

#include <algorithm>

namespace {

/// Works on copies of what the frames are made of.
class SimulatedMemoryReader : public MemoryReader {
public:
    SimulatedMemoryReader(const SimulatedRecording& memory, FrameMaker maker, quint32 seed,
                          std::shared_ptr<const std::atomic<bool>> link)
        : m_memory(memory), m_maker(std::move(maker)), m_scene(m_maker.model->sensor, seed),
          m_link(std::move(link)) {}

    Frame frame(int index) override {
        int inShot = 0;
        const Shot* const shot = m_memory.shotOf(index, inShot);
        if (!shot || !*m_link || !*m_memory.isThere) {
            return {};
        }
        const Frame made = m_maker.make(m_scene, shot->numberOf(inShot), m_memory.settings, m_memory.lens,
                                        QSize(), shot->origin);
        return *m_link && *m_memory.isThere ? made : Frame();
    }

private:
    const SimulatedRecording m_memory;
    const FrameMaker m_maker;
    Scene m_scene;
    std::shared_ptr<const std::atomic<bool>> m_link;
};

} // namespace

const SimulatedRecording& SimulatedHead::recording() const {
    return m_recordings.at(size_t(m_body->partition() - 1));
}

Recording SimulatedHead::recording(int partition) const {
    const bool isThere = partition >= 1 && partition <= int(m_recordings.size());
    return isThere ? Recording(m_recordings.at(size_t(partition - 1))) : Recording();
}

void SimulatedHead::clearRecordings() {
    for (SimulatedRecording& each : m_recordings) {
        replace(each, SimulatedRecording());
    }
}

// Other threads may be reading what was there.
void SimulatedHead::replace(SimulatedRecording& memory, const SimulatedRecording& with) {
    const std::shared_ptr<std::atomic<bool>> before = memory.isThere;
    memory = with;
    memory.isThere = std::make_shared<std::atomic<bool>>(true);
    memory.id = ++m_recordingId;
    *before = false;
}

quint64 SimulatedHead::currentNumber() const {
    return FrameTime::numberAt(m_body->clock().now(), m_settings.rate);
}

Frame SimulatedHead::memoryFrame(int index, const QSize& maxSize) {
    const SimulatedRecording& memory = recording();
    int inShot = 0;
    const Shot* const shot = memory.shotOf(index, inShot);
    if (!shot || !m_body->isConnected()) {
        return {};
    }
    return frameMaker().make(*m_scene, shot->numberOf(inShot), memory.settings, memory.lens, maxSize,
                             shot->origin);
}

std::unique_ptr<MemoryReader> SimulatedHead::memoryReader(int partition) {
    if (partition < 1 || partition > int(m_recordings.size())) {
        return nullptr;
    }
    const SimulatedRecording& memory = m_recordings.at(size_t(partition - 1));
    if (memory.isEmpty() || !m_body->isConnected()) {
        return nullptr;
    }
    return std::make_unique<SimulatedMemoryReader>(memory, frameMaker(), m_body->seed(), m_body->link());
}

void SimulatedHead::beginRing() {
    m_ringStart = currentNumber();
    SimulatedRecording fresh;
    fresh.settings = m_settings;
    fresh.lens = m_lens.view();
    replace(m_recordings.at(size_t(m_body->partition() - 1)), fresh);
}

bool SimulatedHead::wantsMore() const {
    return TriggerRules::wantsMore(*m_model, m_settings, recording().shots.size());
}

bool SimulatedHead::endsByTrigger() const { return TriggerRules::endsByTrigger(m_settings.triggerMode); }

void SimulatedHead::trigger() {
    m_triggered = wantsMore();
    const bool restarts = TriggerRules::restartsAtTrigger(m_settings.triggerMode);
    m_origin = restarts ? m_body->clock().now() : 0;
    m_triggerNumber = restarts ? 0 : currentNumber() + 1;
    m_endNumber = m_triggerNumber + quint64(TriggerRules::span(*m_model, m_settings).after);
}

ShotProgress SimulatedHead::shotProgress() const {
    const CameraState state = m_body->state();
    ShotProgress progress;
    if (state == CameraState::Recording && m_triggered) {
        progress.restMs = std::max(0.0, msToEnd());
    } else if (state == CameraState::Ready) {
        const TriggerRules::Span span = TriggerRules::span(*m_model, m_settings);
        const quint64 held = (currentNumber() - m_ringStart) / quint64(std::max(1, span.step));
        progress.wantedBefore = span.before;
        progress.before = int(std::min<quint64>(held, quint64(std::max(0, span.before))));
    }
    return progress;
}

double SimulatedHead::msToEnd() const {
    const qint64 end = m_origin + FrameTime::startOf(m_endNumber, m_settings.rate);
    return m_triggered ? double(end - m_body->clock().now()) / 1e6 : 0;
}

void SimulatedHead::endShot() {
    if (!m_triggered) {
        return;
    }
    m_triggered = false;
    const int mode = m_settings.triggerMode;
    const TriggerRules::Span span = TriggerRules::span(*m_model, m_settings);
    const quint64 now = FrameTime::numberAt(m_body->clock().now() - m_origin, m_settings.rate);
    // Stopped early, the frame that is being exposed is lost, unless there is no other.
    const quint64 ringStart = TriggerRules::restartsAtTrigger(mode) ? 0 : m_ringStart;
    const quint64 least = TriggerRules::keepsRing(mode) ? ringStart + 1 : m_triggerNumber + 1;
    const quint64 end = std::min(std::max(m_endNumber, least), std::max(now, least));

    Shot shot;
    shot.origin = m_origin;
    shot.step = span.step;
    shot.triggerNumber = std::min(m_triggerNumber, end);
    shot.after = int(end - shot.triggerNumber);
    const int most = TriggerRules::keepsRing(mode)
                         ? totalFrames() - shot.after
                         : std::min(span.before, span.before + span.after - shot.after);
    const auto held = int(std::min<quint64>((shot.triggerNumber - ringStart) / quint64(span.step), INT_MAX));
    shot.before = std::clamp(held, 0, most);
    addShot(shot);
    m_ringStart = currentNumber();
}

// A loop throws away its oldest shots for a new one; the other modes end before the memory is full.
void SimulatedHead::addShot(const Shot& shot) {
    SimulatedRecording& held = m_recordings.at(size_t(m_body->partition() - 1));
    SimulatedRecording memory = held;
    memory.shots.append(shot);
    if (m_settings.triggerMode == TriggerRandomLoop) {
        const int most = std::max(1, TriggerRules::fittingCount(*m_model, m_settings));
        memory.shots.remove(0, std::max(0, memory.shots.size() - most));
    }
    memory.frames = 0;
    for (const Shot& each : qAsConst(memory.shots)) {
        memory.frames += each.frames();
    }
    replace(held, memory);
}
