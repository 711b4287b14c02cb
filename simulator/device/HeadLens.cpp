// The commands of a head's lens.

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "viewer/cameras/CommandKeys.h"

#include <algorithm>

double SimulatedHead::lensCommandMs() const { return m_model->lensMotion.commandMs; }

void SimulatedHead::requireAxis(LensAxis axis) const {
    if (!m_lens.isKnown()) {
        throw refusal(CommandKey::DriveLens, reason("the lens doesn't answer"));
    }
    if (!m_lens.axis(axis).drivable) {
        throw refusal(CommandKey::DriveLens, reason("the lens doesn't drive this"));
    }
}

Answer SimulatedHead::lensCommand(const std::function<bool()>& act) {
    const auto drive = [=] {
        m_body->requireIdle(CommandKey::DriveLens, fullName());
        if (m_model->lens.type == 0) {
            throw refusal(CommandKey::DriveLens, reason("this camera has no lens of its own"));
        }
        const CommandResult result = act() ? CommandResult::Ok : CommandResult::Clamped;
        followLightSoon();
        judgeImageSoon();
        emit settingsChanged(this);
        tellLensRestSoon();
        return result;
    };
    return m_body->command(CommandKey::DriveLens, fullName(), drive, {m_model->lensMotion.commandMs});
}

// A further command while it moves puts the end off.
void SimulatedHead::tellLensRestSoon() {
    if (m_lensDue) {
        return;
    }
    m_lensDue = true;
    m_body->clock().after(std::max(1.0, m_lens.msToRest()), this, [this] {
        m_lensDue = false;
        if (m_lens.msToRest() > 0) {
            tellLensRestSoon();
        } else {
            emit changedOutside(this);
        }
    });
}

Answer SimulatedHead::moveLens(LensAxis axis, int value) {
    return lensCommand([=] {
        requireAxis(axis);
        return m_lens.moveTo(axis, value);
    });
}

Answer SimulatedHead::stepLens(LensAxis axis, int count, bool large) {
    return lensCommand([=] {
        requireAxis(axis);
        return m_lens.step(axis, count, large);
    });
}

Answer SimulatedHead::closeLens() {
    return lensCommand([=] {
        requireAxis(LensAxis::Iris);
        m_lens.close();
        return true;
    });
}

Answer SimulatedHead::resetLens() {
    return lensCommand([=] {
        if (!m_lens.reset()) {
            throw refusal(CommandKey::DriveLens, reason("the lens doesn't answer"));
        }
        return true;
    });
}
