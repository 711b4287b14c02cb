#include "viewer/console/ConsoleParameters.h"

QString text(const QJsonObject& params, const char* name) {
    const QJsonValue value = params.value(QLatin1String(name));
    if (!value.isString()) {
        throw ConsoleError(QStringLiteral("the parameter \"%1\" (text) is missing").arg(QLatin1String(name)));
    }
    return value.toString();
}

QString optionalText(const QJsonObject& params, const char* name) {
    return params.value(QLatin1String(name)).toString();
}

DOCKEY keyOf(const QJsonObject& params, const char* name) {
    const QJsonValue value = params.value(QLatin1String(name));
    bool ok = value.isDouble();
    const DOCKEY key = ok ? static_cast<DOCKEY>(value.toDouble()) : value.toString().toUInt(&ok);
    if (!ok) {
        throw ConsoleError(
            QStringLiteral("the parameter \"%1\" (document key) is missing").arg(QLatin1String(name)));
    }
    return key;
}
