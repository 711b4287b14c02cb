#include "viewer/documents/ShutterFormat.h"

#include "viewer/messages/Translated.h"

#include <QLocale>

unsigned long ShutterFormat::fromCamera(quint32 value, int unit) {
    if (unit == CameraUnit || value == 0) {
        return value;
    }
    return (1000000000UL + value / 2) / value;
}

QString ShutterFormat::text(unsigned long value) const { return translated(words(value)); }

Reason ShutterFormat::words(unsigned long value) const {
    if (value == 0) {
        return {};
    }
    QLocale locale;
    locale.setNumberOptions(grouped ? QLocale::DefaultNumberOptions : QLocale::OmitGroupSeparator);
    if (unit == CameraUnit) {
        return reason("1/%1 sec", {locale.toString(qulonglong(value))});
    }
    return timeText(double(value), locale);
}

// Whatever the unit, two exposures that differ by 10 ns read differently; where it fits itself to the value,
// fewer decimals do.
QString ShutterFormat::timeText(double nanoseconds, const QLocale& locale) const {
    constexpr double kMillisecond = 1e6;
    switch (timeUnit) {
    case Seconds:
        return QStringLiteral("%1 s").arg(locale.toString(nanoseconds / 1e9, 'f', 8));
    case Milliseconds:
        return QStringLiteral("%1 ms").arg(locale.toString(nanoseconds / kMillisecond, 'f', 5));
    case Microseconds:
        break;
    default:
        if (nanoseconds >= kMillisecond) {
            return QStringLiteral("%1 ms").arg(locale.toString(nanoseconds / kMillisecond, 'f', 2));
        }
    }
    return QStringLiteral("%1 \u00b5s").arg(locale.toString(nanoseconds / 1e3, 'f', 2));
}
