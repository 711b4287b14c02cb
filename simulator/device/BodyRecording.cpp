// The ring, its trigger and the ways between live and memory.
#include "simulator/device/SimulatedBody.h"
#include "viewer/cameras/CommandKeys.h"

namespace {

// The three keep their order among themselves: a shot must not begin after it was stopped.
constexpr SimulatedBody::Manner Urgent{0, true};

} // namespace

Answer SimulatedBody::recordReady() {
    const QString& function = CommandKey::RecordReady;
    const auto ready = [=] {
        requireState(function, {CameraState::Live});
        if (anyHead(&SimulatedHead::isLowLight)) {
            throw refusal(function, reason("low light is on"));
        }
        setState(CameraState::WaitingReady);
        laterUnlessChanged(m_model->readyTimeMs, [this] {
            for (const auto& each : m_heads) {
                each->beginRing();
            }
            setState(CameraState::Ready);
        });
        return CommandResult::Ok;
    };
    return command(function, name(), ready, Urgent);
}

bool SimulatedBody::anyHead(bool (SimulatedHead::*has)() const) const {
    return std::any_of(m_heads.begin(), m_heads.end(),
                       [has](const auto& head) { return (head.get()->*has)(); });
}

bool SimulatedBody::acceptsTrigger() const {
    return m_state == CameraState::Ready ||
           (m_state == CameraState::Recording && anyHead(&SimulatedHead::endsByTrigger));
}

Answer SimulatedBody::triggerIn() {
    const QString& function = CommandKey::TriggerIn;
    const auto trigger = [=] {
        if (!acceptsTrigger()) {
            requireState(function, {CameraState::Ready});
        }
        if (m_state == CameraState::Recording) {
            finishShots();
        } else {
            beginShots();
        }
        return CommandResult::Ok;
    };
    return command(function, name(), trigger, Urgent);
}

void SimulatedBody::triggerByPicture() {
    if (m_state == CameraState::Ready) {
        beginShots();
    }
}

void SimulatedBody::beginShots() {
    double longest = 0;
    for (const auto& each : m_heads) {
        each->trigger();
        longest = std::max(longest, each->msToEnd());
    }
    setState(CameraState::Recording);
    laterUnlessChanged(longest, [this] { finishShots(); });
}

void SimulatedBody::endShots() {
    for (const auto& each : m_heads) {
        each->endShot();
    }
}

void SimulatedBody::finishShots() {
    endShots();
    setState(anyHead(&SimulatedHead::wantsMore) ? CameraState::Ready : CameraState::Memory);
}

Answer SimulatedBody::stopRecording() {
    const auto stop = [=] {
        requireState(CommandKey::SetState,
                     {CameraState::WaitingReady, CameraState::Ready, CameraState::Recording});
        endShots();
        const bool waiting = m_state == CameraState::WaitingReady; // the memory still holds what was before
        setState(!waiting && anyHead(&SimulatedHead::hasRecording) ? CameraState::Memory : CameraState::Live);
        return CommandResult::Ok;
    };
    return command(CommandKey::SetState, name(), stop, Urgent);
}

Answer SimulatedBody::goLive() {
    return command(CommandKey::SetState, name(), [=] {
        requireState(CommandKey::SetState, {CameraState::Memory, CameraState::Live});
        setState(CameraState::Live);
        return CommandResult::Ok;
    });
}

Answer SimulatedBody::goMemory() {
    return command(CommandKey::SetState, name(), [=] {
        requireState(CommandKey::SetState, {CameraState::Live, CameraState::Memory});
        if (head()->recording().isEmpty()) {
            throw refusal(CommandKey::SetState, reason("nothing is recorded"));
        }
        setState(CameraState::Memory);
        return CommandResult::Ok;
    });
}
