#include "livecontrol/bridge/UserOperationLog.h"

#include <QDebug>
#include <QMetaObject>
#include <QObject>

namespace {
QString item(QLatin1String key, const QString& value) {
    return QLatin1Char('[') + key + QLatin1Char(':') + value + QLatin1String("] ");
}
} // namespace

void logUserOperation(const QString& url, const QString& operation, const QString& control, const QString& id,
                      const QString& className, const QVariant& value) {
    const bool byClass = id.isEmpty() && !className.isEmpty();
    const QString element = byClass ? item(QLatin1String("Class"), className) : item(QLatin1String("ID"), id);
    const QString text = item(QLatin1String("URL"), url) + element + item(QLatin1String("Control"), control) +
                         item(QLatin1String("Operation"), operation) +
                         item(QLatin1String("Value"), value.toString());
    qInfo() << "[USER]" << text;
}

void logUserOperationError(const QString& message) { qCritical() << "[USER][ERROR]" << message; }

void logNativeClose(const QObject* dialog) {
    logUserOperation(QString::fromLatin1(dialog->metaObject()->className()), QStringLiteral("clicked"),
                     QStringLiteral("Button"), QStringLiteral("close"), QString(), QVariant());
}
