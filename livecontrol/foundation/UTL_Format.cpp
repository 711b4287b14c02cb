#include "livecontrol/foundation/UTL_Format.h"

QString formatCount(uint value, const QString& unit, bool grouped) {
    const QString number = (grouped ? QStringLiteral("%L1") : QStringLiteral("%1")).arg(value);
    return unit.isEmpty() ? number : QStringLiteral("%1 %2").arg(number, unit);
}

QString formatCountNonZero(uint value, const QString& unit, bool grouped) {
    return value == 0 ? QString() : formatCount(value, unit, grouped);
}
