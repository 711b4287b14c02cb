// The image trigger of a head: it judges an area of its pictures and triggers its camera.

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "simulator/settings/AutoExposure.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/CommandKeys.h"

namespace {

constexpr qint64 HoldNs = 500'000'000; // that an onlooker sees a met target

} // namespace

Answer SimulatedHead::setImageTriggerControl(const MeteringArea& wish) {
    return change(CommandKey::SetImageTrigger, [=](HeadSettings& s) {
        requireFunction(CameraFunction::ImageTrigger, CommandKey::SetImageTrigger);
        return SettingsRules::setImageTriggerControl(*m_model, s, wish);
    });
}

void SimulatedHead::observeImage(bool on) {
    if (m_imageObserved != on) {
        m_imageObserved = on;
        judgeImageSoon();
        emit imageTriggerChanged(this);
    }
}

void SimulatedHead::judgeImageSoon() {
    if (m_imageDue || !isImageMonitored() || !m_model->supports(CameraFunction::ImageTrigger)) {
        return;
    }
    m_imageDue = true;
    m_body->clock().after(AutoExposure::StepMs, this, [this] {
        m_imageDue = false;
        judgeImage();
        judgeImageSoon();
    });
}

void SimulatedHead::judgeImage() {
    const CameraState state = m_body->state();
    const bool sees = state == CameraState::Live || state == CameraState::WaitingReady ||
                      state == CameraState::Ready || state == CameraState::Recording;
    const bool met =
        isImageMonitored() && sees &&
        m_settings.imageTrigger.isMet(m_model->meter, measuredLevel(m_settings.imageTrigger.area));
    if (met) {
        m_imageMetAt = m_body->clock().now();
    }
    const bool holds = isImageMonitored() && sees && m_imageMet;
    setImageMet(met || (holds && m_body->clock().now() - m_imageMetAt < HoldNs));
    if (met && m_settings.imageTrigger.on) {
        m_body->triggerByPicture();
    }
}

void SimulatedHead::setImageMet(bool met) {
    if (m_imageMet != met) {
        m_imageMet = met;
        emit imageTriggerChanged(this);
    }
}
