#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

/// One argument of a traced operation, named as the page sees it.
struct TraceItem {
    const char* name;
    QVariant value;
};

/// The items as a trace shows them: "[name:value] " for each.
inline QString traceArgs(const QVector<TraceItem>& items) {
    QString text;
    for (const TraceItem& item : items) {
        text += QLatin1Char('[') + QLatin1String(item.name) + QLatin1Char(':') + item.value.toString() +
                QLatin1String("] ");
    }
    return text;
}
