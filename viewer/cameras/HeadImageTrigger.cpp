// The image trigger of a head: it judges an area of its pictures and triggers its camera.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/cameras/SettingsRules.h"

namespace {

const QString SetInfo = QStringLiteral("KVC_SetImageTriggerInfo");
constexpr qint64 HoldNs = 500'000'000; // that an onlooker sees a met target

} // namespace

CommandResult CameraHead::setImageTrigger(bool on) { return setByKey("imageTrigger", SetInfo, on); }

CommandResult CameraHead::setImageTriggerControl(const AreaJudge& wish) {
    return change(SetInfo, [&](HeadSettings& s) {
        requireFunction(CameraFunction::ImageTrigger, SetInfo);
        return SettingsRules::setImageTriggerControl(*m_model, s, wish);
    });
}

void CameraHead::observeImage(bool on) {
    if (m_imageObserved != on) {
        m_imageObserved = on;
        judgeImageSoon();
        emit imageTriggerChanged(this);
    }
}

void CameraHead::judgeImageSoon() {
    if (m_imageDue || !isImageJudged() || !m_model->supports(CameraFunction::ImageTrigger))
        return;
    m_imageDue = true;
    m_body->clock().after(AutoExposure::StepMs, this, [this] {
        m_imageDue = false;
        judgeImage();
        judgeImageSoon();
    });
}

void CameraHead::judgeImage() {
    const CameraState state = m_body->state();
    const bool sees = state == CameraState::Live || state == CameraState::WaitingReady ||
                      state == CameraState::Ready || state == CameraState::Recording;
    const bool met =
        isImageJudged() && sees &&
        m_settings.imageTrigger.isMet(m_model->meter, measuredLevel(m_settings.imageTrigger.area));
    if (met)
        m_imageMetAt = m_body->clock().now();
    const bool holds = isImageJudged() && sees && m_imageMet;
    setImageMet(met || (holds && m_body->clock().now() - m_imageMetAt < HoldNs));
    if (met && m_settings.imageTrigger.on)
        m_body->triggerByPicture();
}

void CameraHead::setImageMet(bool met) {
    if (m_imageMet != met) {
        m_imageMet = met;
        emit imageTriggerChanged(this);
    }
}
