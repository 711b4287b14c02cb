#include "livecontrol/foundation/UTL_Format.h"

#include <cmath>

QString formatCount(uint value, const QString& unit, bool grouped) {
    const QString number = (grouped ? QStringLiteral("%L1") : QStringLiteral("%1")).arg(value);
    return unit.isEmpty() ? number : QStringLiteral("%1 %2").arg(number, unit);
}

QString formatCountNonZero(uint value, const QString& unit, bool grouped) {
    return value == 0 ? QString() : formatCount(value, unit, grouped);
}

QString formatFileSize(quint64 bytes) {
    constexpr const char* kUnits[] = {"KB", "MB", "GB", "TB"};
    constexpr int kLargest = 3;
    int unit = 0;
    double factor = 1024.0;
    while (unit < kLargest && static_cast<double>(bytes) >= factor * 1024.0) {
        factor *= 1024.0;
        ++unit;
    }
    const double value = std::round(static_cast<double>(bytes) / factor * 100.0) / 100.0;
    return QString::number(value, 'f', 2) + QLatin1String(kUnits[unit]);
}

QString asMarkup(const QString& lines) {
    QString escaped = lines.toHtmlEscaped();
    return lines.isEmpty()
               ? lines
               : QStringLiteral("<p>%1</p>").arg(escaped.replace(QLatin1Char('\n'), QLatin1String("<br>")));
}
