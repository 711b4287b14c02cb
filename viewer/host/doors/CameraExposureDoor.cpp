#include "viewer/host/doors/CameraExposureDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/documents/CameraDocument.h"

#include <algorithm>

namespace {
/// Saturates far above any sensor, so that a number out of range is cut by the camera and not here.
int whole(quint32 value) { return int(std::min(value, 1U << 24)); }

QString text(const MeteringArea& judge) {
    const QRect& area = judge.area;
    return QStringLiteral("area %1 x %2 at %3, %4, target %5, range %6")
        .arg(area.width())
        .arg(area.height())
        .arg(area.x())
        .arg(area.y())
        .arg(judge.value)
        .arg(judge.range);
}

/// Both records begin with the same six fields.
template <class Info>
void fill(Info& info, const MeteringArea& judge) {
    info.width = quint32(judge.area.width());
    info.height = quint32(judge.area.height());
    info.posX = quint32(judge.area.x());
    info.posY = quint32(judge.area.y());
    info.value = judge.value;
    info.range = judge.range;
}

template <class Info>
MeteringArea judgeOf(const Info& info) {
    MeteringArea judge;
    judge.area =
        QRect(QPoint(whole(info.posX), whole(info.posY)), QSize(whole(info.width), whole(info.height)));
    judge.value = info.value;
    judge.range = info.range;
    return judge;
}

AutoExposureLimits limitsOf(const CameraHead& head) {
    const ExposureMeter& meter = head.model().meter;
    const QSize image = head.settings().resolution;
    const auto number = [](int value) { return quint32(value); };
    AutoExposureLimits limits;
    limits.widthStep = number(meter.areaStep.width());
    limits.heightStep = number(meter.areaStep.height());
    limits.posXStep = number(meter.posStep.width());
    limits.posYStep = number(meter.posStep.height());
    limits.widthMin = number(std::min(meter.areaMin.width(), image.width()));
    limits.heightMin = number(std::min(meter.areaMin.height(), image.height()));
    limits.valueMax = meter.valueMax;
    limits.rangeMax = meter.rangeMax;
    limits.widthFrameMax = number(head.maxResolution().width());
    limits.heightFrameMax = number(head.maxResolution().height());
    limits.widthMax = number(image.width());
    limits.heightMax = number(image.height());
    return limits;
}
} // namespace

void CameraExposureDoor::getAutoExposureInfo(AutoExposureInfo& current, AutoExposureLimits& limits) {
    OPERATION();
    current = AutoExposureInfo();
    limits = AutoExposureLimits();
    if (!head() || !head()->model().supports(CameraFunction::AutoExposure)) {
        return;
    }
    const ExposureControl& control = head()->settings().exposure;
    fill(current, control);
    current.maxTime = control.maxTime;
    limits = limitsOf(*head());
}

void CameraExposureDoor::setAutoExposureInfo(const AutoExposureInfo& current) {
    ExposureControl wish;
    static_cast<MeteringArea&>(wish) = judgeOf(current);
    wish.maxTime = current.maxTime;
    OPERATION(wish.area, wish.value, wish.range, wish.maxTime);
    CameraCommands(CommandKey::SetExposureControl, [](const CameraHead& head) {
        return text(head.settings().exposure);
    }).run(m_cameras.all(), [&wish](CameraHead& head) { return head.setExposureControl(wish); });
}

void CameraExposureDoor::getAutoExposureMaxTimeList(int displayUnit, QList<unsigned long>& list) {
    OPERATION(displayUnit);
    list.clear();
    if (!head() || !head()->model().supports(CameraFunction::AutoExposure)) {
        return;
    }
    for (const quint32 value : head()->shutterList()) {
        list.append(ShutterFormat::fromCamera(value, displayUnit));
    }
}

void CameraExposureDoor::getImageTriggerInfo(ImageTriggerInfo& current, ImageTriggerLimits& limits) {
    OPERATION();
    current = ImageTriggerInfo();
    limits = ImageTriggerLimits();
    if (head() && head()->model().supports(CameraFunction::ImageTrigger)) {
        fill(current, head()->settings().imageTrigger);
        limits = limitsOf(*head());
    }
}

void CameraExposureDoor::setImageTriggerInfo(const ImageTriggerInfo& current) {
    const MeteringArea wish = judgeOf(current);
    OPERATION(wish.area, wish.value, wish.range);
    CameraCommands(CommandKey::SetImageTrigger, [](const CameraHead& head) {
        return text(head.settings().imageTrigger);
    }).run(m_cameras.all(), [&wish](CameraHead& head) { return head.setImageTriggerControl(wish); });
}

int CameraExposureDoor::getImageTriggerState() {
    OPERATION();
    constexpr int kNotJudging = 2;
    if (!head() || !head()->isImageMonitored()) {
        return kNotJudging;
    }
    return head()->isImageTriggered() ? 1 : 0;
}
