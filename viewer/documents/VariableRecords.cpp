#include "viewer/documents/VariableRecords.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DisplayFormat.h"
#include "viewer/messages/Translated.h"

namespace {

constexpr quint32 DualSlopeMode = 18;

VariableChannel content(const CameraHead& head, unsigned channel) {
    return head.body()->variableChannel(int(qMin(channel, unsigned(LastVariableChannel + 1))));
}

} // namespace

bool VariableRecords::isStored(const CameraHead& head, unsigned channel) {
    return content(head, channel).isStored();
}

VariableChannelInfo VariableRecords::info(const CameraHead& head, unsigned channel) {
    const VariableChannel stored = content(head, channel);
    VariableChannelInfo record;
    if (stored.isStored()) {
        record.rate = stored.rate;
        record.width = quint32(stored.size.width());
        record.height = quint32(stored.size.height());
        record.posX = quint32(stored.position.x());
        record.posY = quint32(stored.position.y());
        const HeadSettings& now = head.settings();
        record.shutterMode = now.channel == int(channel) && now.dualSlope > 0 ? DualSlopeMode : 0;
    }
    return record;
}

QString VariableRecords::text(const CameraHead& head, unsigned channel, const DisplayFormat& format) {
    const VariableChannel stored = content(head, channel);
    const QString what = stored.isStored() ? QStringLiteral("%1 x %2, %3 %4")
                                                 .arg(stored.size.width())
                                                 .arg(stored.size.height())
                                                 .arg(format.rate(stored.rate), translated("fps"))
                                           : translated("(empty)");
    return QStringLiteral("%1: %2").arg(QString::number(channel), what);
}

VariableRestriction VariableRecords::restriction(const CameraHead& head) {
    const CameraModel& model = head.model();
    VariableRestriction limits;
    if (!model.supports(CameraFunction::VariableChannels)) {
        return limits;
    }
    limits.widthStep = quint32(model.sizeStep.width());
    limits.heightStep = quint32(model.sizeStep.height());
    limits.posXStep = quint32(model.positionStep.width());
    limits.posYStep = quint32(model.positionStep.height());
    limits.widthMin = quint32(model.sizeMin.width());
    limits.heightMin = quint32(model.sizeMin.height());
    limits.posXFree = model.positionFreeX;
    limits.posYFree = model.positionFreeY;
    limits.widthFrameMax = limits.widthMax = quint32(model.sensor.width());
    limits.heightFrameMax = limits.heightMax = quint32(model.sensor.height());
    return limits;
}
