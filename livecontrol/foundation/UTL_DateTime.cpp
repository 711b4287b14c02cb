#include "livecontrol/foundation/UTL_DateTime.h"

namespace {

constexpr uint kLargestPackedDate = 0xFFFFFF;

/// Byte number `index` from the bottom, in hexadecimal.
QString packedByte(uint value, int index, int digits) {
    return QStringLiteral("%1").arg((value >> (8 * index)) & 0xFFU, digits, 16, QLatin1Char('0'));
}

} // namespace

QString formatPackedDate(uint date) {
    if (date == 0) {
        return {};
    }
    if (date > kLargestPackedDate) {
        return QStringLiteral("%1").arg(date & 0xFFFFU, 3, 10, QLatin1Char('0'));
    }
    return QStringLiteral("2%1/%2/%3")
        .arg(packedByte(date, 2, 3), packedByte(date, 1, 1), packedByte(date, 0, 1));
}

QString formatPackedTime(uint date, uint time) {
    if (date == 0 && time == 0) {
        return {};
    }
    return QStringLiteral("%1:%2:%3")
        .arg(packedByte(time, 2, 2), packedByte(time, 1, 2), packedByte(time, 0, 2));
}

QDateTime dateTimeFromStrings(const QString& date, const QString& time) {
    const QLatin1String shortForm("HH:mm");
    const QString format = time.size() == shortForm.size() ? QStringLiteral("yyyy/M/d HH:mm")
                                                           : QStringLiteral("yyyy/M/d HH:mm:ss");
    return QDateTime::fromString(date + QLatin1Char(' ') + time, format);
}
