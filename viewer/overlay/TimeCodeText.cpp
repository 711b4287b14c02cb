#include "viewer/overlay/TimeCodeText.h"

#include "livecontrol/foundation/TimeCodeMath.h"
#include "livecontrol/interface/records.h"
#include "viewer/cameras/FrameTime.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

QString padded(qint64 number, int digits) {
    return QString::number(number).rightJustified(digits, QLatin1Char('0'));
}

/// After how many frames the value starts anew; 0 if it never does, as it never comes to the reset value.
qint64 framesToReset(const TimeCodeSetting& setting) {
    const auto with = [&](auto&& call) {
        return call(setting.reset, setting.oneFrame, setting.resetValue, setting.startValue);
    };
    return with(timecode::isReached) ? with(timecode::countFromValue) : 0;
}

/// In whole steps, so that many frames add up to no digits that nobody has set. What is no number counts as
/// 0.
double inSteps(double value) { return std::isnan(value) ? 0 : std::round(value * timecode::kScale); }

} // namespace

double TimeCodeText::value(const TimeCodeSetting& setting, qint64 frames) {
    const qint64 period = framesToReset(setting);
    const qint64 count = period > 0 ? (frames % period + period) % period : frames;
    return (inSteps(setting.startValue) + double(count) * inSteps(setting.oneFrame)) * (1 / timecode::kScale);
}

QString TimeCodeText::text(const TimeCodeSetting& setting, qint64 frames, quint32 rate) {
    if (setting.index != 0) {
        const double number = value(setting, frames);
        return (QLatin1Char(number < 0 ? '-' : '+') +
                timecode::valueText(std::min(std::fabs(number), timecode::kMaxShown), setting.displayUnit))
            .trimmed();
    }
    if (rate == 0) {
        return QString();
    }
    const qint64 time = FrameTime::startOf(quint64(qAbs(frames)), rate);
    const timecode::TimeFormat format{setting.scopeDisplayIndex, setting.decimalPlaceIndex,
                                      setting.decimalDivide};
    return (QLatin1Char(frames < 0 ? '-' : '+') + timecode::timeText(time, format)).trimmed();
}

QString TimeCodeText::irig(const QDateTime& moment, qint64 nanoseconds) {
    constexpr qint64 kMicro = 1000;
    const qint64 micros = moment.time().msec() * kMicro + nanoseconds / kMicro;
    constexpr qint64 kSecond = 1000000; // in microseconds
    const qint64 seconds = micros >= 0 ? micros / kSecond : -((-micros + kSecond - 1) / kSecond);
    const QDateTime second = moment.addMSecs(-moment.time().msec()).addSecs(seconds);
    return padded(second.date().dayOfYear(), 3) + second.time().toString(QStringLiteral(":HH:mm:ss.")) +
           padded(micros - seconds * kSecond, 6);
}
