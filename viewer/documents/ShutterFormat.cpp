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
    return value >= 1000000UL
               ? QStringLiteral("%1 ms").arg(locale.toString(double(value) / 1e6, 'f', 2))
               : QStringLiteral("%1 \u00b5s").arg(locale.toString(double(value) / 1e3, 'f', 2));
}
