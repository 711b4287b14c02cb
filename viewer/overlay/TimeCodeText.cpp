#include "viewer/overlay/TimeCodeText.h"

#include "livecontrol/interface/records.h"
#include "viewer/cameras/FrameTime.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr qint64 kSteps = 10000; // a value counts in steps of this part
constexpr double kMost = 999900000.0;

/// How a time is split: what a unit has in nanoseconds, and its sign.
struct Scope {
    qint64 unit;
    int digits; // of the fraction
    const char* suffix;
};
constexpr Scope kScopes[] = {{1000000000, 9, ""},  {1000000000, 9, ""}, {1000000000, 9, "sec"},
                             {1000000, 6, "msec"}, {1000, 3, "usec"},   {1, 0, "nsec"}};
constexpr int kAllDigits = 9;

QString padded(qint64 number, int digits) {
    return QString::number(number).rightJustified(digits, QLatin1Char('0'));
}

qint64 stepsOf(double value) {
    return std::isfinite(value) ? std::llround(std::max(-kMost, std::min(kMost, value)) * kSteps) : 0;
}

QString fraction(qint64 rest, const Scope& scope, const TimeCodeSetting& setting) {
    QString digits = scope.digits > 0 ? padded(rest, scope.digits) : QString();
    digits = digits.leftJustified(kAllDigits, QLatin1Char('0'));
    const int places = qBound(0, setting.decimalPlaceIndex, kAllDigits);
    if (places > 0) {
        digits.truncate(places);
    } else {
        while (digits.endsWith(QLatin1Char('0'))) {
            digits.chop(1);
        }
    }
    if (setting.decimalDivide) {
        for (int at = (digits.size() - 1) / 3 * 3; at > 0; at -= 3) {
            digits.insert(at, QLatin1Char(' '));
        }
    }
    return digits.isEmpty() ? digits : QLatin1Char('.') + digits;
}

QString whole(qint64 count, int scope) {
    switch (scope) {
    case 0:
        return padded(count / 3600, 2) + QLatin1Char(':') + padded(count / 60 % 60, 2) + QLatin1Char(':') +
               padded(count % 60, 2);
    case 1:
        return padded(count / 60, 2) + QLatin1Char(':') + padded(count % 60, 2);
    default:
        return padded(count, 3);
    }
}

QString timeText(const TimeCodeSetting& setting, qint64 nanoseconds) {
    const int index = setting.scopeDisplayIndex >= 0 && setting.scopeDisplayIndex < int(std::size(kScopes))
                          ? setting.scopeDisplayIndex
                          : 0;
    const Scope& scope = kScopes[index];
    return (whole(nanoseconds / scope.unit, index) + fraction(nanoseconds % scope.unit, scope, setting) +
            QLatin1Char(' ') + QLatin1String(scope.suffix))
        .trimmed();
}

/// After how many frames the value starts anew; 0 if it never does, as it never comes to the reset value.
qint64 framesToReset(const TimeCodeSetting& setting) {
    const qint64 step = stepsOf(setting.oneFrame);
    const qint64 way = stepsOf(setting.resetValue) - stepsOf(setting.startValue);
    if (!setting.reset || step == 0 || way == 0 || (step > 0) != (way > 0)) {
        return 0;
    }
    return way / step + (way % step != 0 ? 1 : 0);
}

} // namespace

double TimeCodeText::value(const TimeCodeSetting& setting, qint64 frames) {
    const qint64 period = framesToReset(setting);
    const qint64 count = period > 0 ? (frames % period + period) % period : frames;
    return double(stepsOf(setting.startValue)) / kSteps +
           double(count) * (double(stepsOf(setting.oneFrame)) / kSteps);
}

QString TimeCodeText::text(const TimeCodeSetting& setting, qint64 frames, quint32 rate) {
    if (setting.index != 0) {
        const double number = value(setting, frames);
        QString digits = QString::number(std::fabs(number), 'f', 4);
        const int point = digits.indexOf(QLatin1Char('.'));
        digits.prepend(QString(qMax(0, 3 - point), QLatin1Char('0')));
        return (QLatin1Char(number < 0 ? '-' : '+') + digits + QLatin1Char(' ') + setting.displayUnit)
            .trimmed();
    }
    if (rate == 0) {
        return QString();
    }
    return QLatin1Char(frames < 0 ? '-' : '+') +
           timeText(setting, FrameTime::startOf(quint64(qAbs(frames)), rate));
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
