#include "livecontrol/foundation/UTL_Network.h"

#include <QRegularExpression>
#include <QVector>

quint32 parseIPv4(const QString& address) {
    quint32 value = 0;
    const QVector<QStringRef> parts = address.splitRef(QLatin1Char('.'));
    for (const QStringRef& part : parts) {
        value = (value << 8) | part.toUInt();
    }
    return value;
}

bool isValidIPAddress(const QString& text) {
    static const QRegularExpression kForm(QStringLiteral("\\A[0-9]{1,3}(?:\\.[0-9]{1,3}){3}"));
    return kForm.match(text).hasMatch();
}
