#include "livecontrol/foundation/TimeCodeMath.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

using timecode::kScale;
constexpr double kMostSteps = 4e18; // two of them can be added in 64 bits
constexpr int kFractionDigits = 9;
constexpr int kThousand = 3;

struct Scope {
    qint64 divisor; ///< In ns.
    qint64 factor;  ///< From the remainder to billionths.
    const char* unit;
};
constexpr qint64 kSecond = 1000000000;
constexpr Scope kScopes[] = {{kSecond, 1, ""},        {kSecond, 1, ""},        {kSecond, 1, "sec"},
                             {1000000, 1000, "msec"}, {1000, 1000000, "usec"}, {1, kSecond, "nsec"}};
constexpr int kHours = 0;
constexpr int kMinutes = 1;

QString padded(qint64 number, int digits) {
    return QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
}

QString wholeText(qint64 whole, int scope) {
    if (scope != kHours && scope != kMinutes) {
        return padded(whole, kThousand);
    }
    const QString seconds = padded(whole % 60, 2);
    const qint64 minutes = whole / 60;
    return scope == kMinutes
               ? padded(minutes, 2) + QLatin1Char(':') + seconds
               : QStringLiteral("%1:%2:%3").arg(padded(minutes / 60, 2), padded(minutes % 60, 2), seconds);
}

QString fractionText(const QString& all, const timecode::TimeFormat& format) {
    const QString kept = format.places > 0 ? all.left(format.places) : all;
    QString text(QLatin1Char('.'));
    for (int i = 0; i < kept.size(); ++i) {
        if (format.divided && i > 0 && i % kThousand == 0) {
            text += QLatin1Char(' ');
        }
        text += kept.at(i);
    }
    if (format.places <= 0) {
        while (!text.isEmpty() && QStringLiteral("0 .").contains(text.back())) {
            text.chop(1);
        }
    }
    return text;
}

} // namespace

qint64 timecode::scaled(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    double whole = 0;
    const bool up = std::modf(std::clamp(value * kScale, -kMostSteps, kMostSteps), &whole) > 0.5;
    return qint64(whole) + (up ? 1 : 0);
}

double timecode::numberOf(const QString& text) {
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(number) ? number : 0;
}

QString timecode::fourDecimals(double value) {
    return QString::number(std::isfinite(value) ? value : 0.0, 'f', 4);
}

bool timecode::isReached(bool reset, double oneFrame, double resetValue, double start) {
    const qint64 step = scaled(oneFrame);
    const qint64 way = scaled(resetValue) - scaled(start);
    return reset && step != 0 && way != 0 && (step > 0) == (way > 0);
}

qint64 timecode::countFromValue(bool reset, double oneFrame, double resetValue, double start) {
    if (!isReached(reset, oneFrame, resetValue, start)) {
        return 1;
    }
    const qint64 step = scaled(oneFrame);
    const qint64 way = scaled(resetValue) - scaled(start);
    return way / step + (way % step != 0 ? 1 : 0);
}

double timecode::valueFromCount(int count, double oneFrame, double start) {
    const qint64 from = scaled(start);
    const qint64 step = scaled(oneFrame);
    const double way = double(count) * double(step);
    const double steps = std::fabs(way) < kMostSteps ? double(from + count * step) : double(from) + way;
    return steps * (1 / kScale);
}

double timecode::guardedValueFromCount(int count, double oneFrame, double start) {
    const double value = valueFromCount(count, oneFrame, start);
    return std::fabs(value) > kMaxShown ? value - oneFrame : value;
}

QString timecode::timeText(qint64 nanoseconds, const TimeFormat& format) {
    const int scope = format.scope >= 0 && format.scope < int(std::size(kScopes)) ? format.scope : 0;
    const Scope& unit = kScopes[scope];
    const QString fraction = padded(nanoseconds % unit.divisor * unit.factor, kFractionDigits);
    return QStringLiteral("%1 %2").arg(wholeText(nanoseconds / unit.divisor, scope) +
                                           fractionText(fraction, format),
                                       QLatin1String(unit.unit));
}

QString timecode::valueText(double value, const QString& unit) {
    const QString number = fourDecimals(std::fabs(value));
    const int point = number.indexOf(QLatin1Char('.'));
    return number.left(point).rightJustified(kThousand, QLatin1Char('0')) + number.mid(point) +
           QLatin1Char(' ') + unit;
}
