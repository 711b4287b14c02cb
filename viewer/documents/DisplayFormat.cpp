#include "viewer/documents/DisplayFormat.h"

#include <QLocale>

namespace {

QString count(qint64 number, bool grouped) {
    QLocale locale;
    locale.setNumberOptions(grouped ? QLocale::DefaultNumberOptions : QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

QString inUnit(double value, int decimals, const char* unit) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return QStringLiteral("%1 %2").arg(locale.toString(value, 'f', decimals), QString::fromUtf8(unit));
}

QString clock(qint64 milliseconds) {
    constexpr qint64 kMinute = 60000;
    return QStringLiteral("%1:%2:%3.%4")
        .arg(milliseconds / (60 * kMinute), 2, 10, QLatin1Char('0'))
        .arg(milliseconds / kMinute % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds % kMinute / 1000, 2, 10, QLatin1Char('0'))
        .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
}

} // namespace

QString DisplayFormat::rate(quint32 framesPerSecond) const { return count(framesPerSecond, groupsRates); }

QString DisplayFormat::frames(qint64 number) const { return count(number, groupsFrames); }

QString DisplayFormat::recordingTime(qint64 frameCount, quint32 framesPerSecond) const {
    if (framesPerSecond == 0) {
        return {};
    }
    const double seconds = double(frameCount) / framesPerSecond;
    switch (recordingTimeUnit) {
    case Seconds:
        return inUnit(seconds, 6, "s");
    case Milliseconds:
        return inUnit(seconds * 1e3, 3, "ms");
    case Microseconds:
        return inUnit(seconds * 1e6, 0, "\xc2\xb5s");
    default:
        return clock(qRound64(seconds * 1e3));
    }
}
