// The commands of a head's lens.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/OwnFunctions.h"

#include <algorithm>

void CameraHead::requireAxis(LensAxis axis) const {
    if (!m_lens.isKnown())
        refuse(OwnFunction::DriveLens, reason("the lens doesn't answer"));
    if (!m_lens.axis(axis).drivable)
        refuse(OwnFunction::DriveLens, reason("the lens doesn't drive this"));
}

CommandResult CameraHead::lensCommand(const std::function<bool()>& act) {
    return m_body->command(OwnFunction::DriveLens, fullName(), [&] {
        m_body->requireIdle(OwnFunction::DriveLens, fullName());
        if (m_model->lens.type == 0)
            refuse(OwnFunction::DriveLens, reason("this camera has no lens of its own"));
        m_body->clock().wait(m_model->lens.commandMs);
        const CommandResult result = act() ? CommandResult::Ok : CommandResult::Clamped;
        followLightSoon();
        judgeImageSoon();
        emit settingsChanged(this);
        tellLensRestSoon();
        return result;
    });
}

// A further command while it moves puts the end off.
void CameraHead::tellLensRestSoon() {
    if (m_lensDue)
        return;
    m_lensDue = true;
    m_body->clock().after(std::max(1.0, m_lens.msToRest()), this, [this] {
        m_lensDue = false;
        if (m_lens.msToRest() > 0)
            tellLensRestSoon();
        else
            emit changedOutside(this);
    });
}

CommandResult CameraHead::moveLens(LensAxis axis, int value) {
    return lensCommand([&] {
        requireAxis(axis);
        return m_lens.moveTo(axis, value);
    });
}

CommandResult CameraHead::stepLens(LensAxis axis, int count, bool large) {
    return lensCommand([&] {
        requireAxis(axis);
        return m_lens.step(axis, count, large);
    });
}

CommandResult CameraHead::closeLens() {
    return lensCommand([&] {
        requireAxis(LensAxis::Iris);
        m_lens.close();
        return true;
    });
}

CommandResult CameraHead::resetLens() {
    return lensCommand([&] {
        if (!m_lens.reset())
            refuse(OwnFunction::DriveLens, reason("the lens doesn't answer"));
        return true;
    });
}
