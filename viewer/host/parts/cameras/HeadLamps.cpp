#include "viewer/host/parts/cameras/HeadLamps.h"

#include "viewer/cameras/CommandKeys.h"

namespace {
bool HeadSettings::*lampOf(bool isLed) { return isLed ? &HeadSettings::led : &HeadSettings::laser; }
} // namespace

bool HeadLamps::isOn(bool isLed) const {
    const CameraHead* const head = m_cameras.head();
    return head && head->settings().*lampOf(isLed);
}

void HeadLamps::set(bool isLed, bool on) {
    const auto lamp = lampOf(isLed);
    const bool isWrittenBack = m_cameras.head() && isOn(isLed) == on;
    if (isWrittenBack && m_refused.value(isLed) == stateText(lamp, on)) {
        return;
    }
    m_refused.remove(isLed);
    try {
        m_cameras.command(CameraFunction::HeadLight, CommandKey::SwitchLamp, [=](CameraHead& head) {
            const bool isLeftAlone = isWrittenBack && head.body()->state() != CameraState::Live;
            if (head.settings().*lamp == on || isLeftAlone) {
                return Answer(CommandResult::Ok);
            }
            return isLed ? head.setLed(on) : head.setLaser(on);
        });
    } catch (const CameraFailure&) {
        m_refused[isLed] = stateText(lamp, on);
        throw;
    }
}

/// What is asked of a lamp and what the lamps of the selected cameras do, as a text to compare.
QString HeadLamps::stateText(bool HeadSettings::*lamp, bool on) const {
    QString state = on ? QStringLiteral("on") : QStringLiteral("off");
    for (const CameraDocument* const camera : m_cameras.with(CameraFunction::HeadLight)) {
        const CameraHead& head = *camera->head();
        state += QStringLiteral(" %1:%2:%3")
                     .arg(camera->key())
                     .arg(head.settings().*lamp)
                     .arg(static_cast<int>(head.body()->state()));
    }
    return state;
}
