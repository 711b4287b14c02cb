#include "livecontrol/storage/PathPairs.h"

#include <QStringList>

QVector<QPair<QString, QString>> pathPairs(const QString& text) {
    QVector<QPair<QString, QString>> pairs;
    const QStringList entries = text.split(QLatin1Char('?'));
    for (const QString& entry : entries) {
        const QStringList fields = entry.split(QLatin1Char('|'));
        if (fields.size() == 2) {
            pairs.append({fields.at(0), fields.at(1)});
        }
    }
    return pairs;
}

QMap<QString, QString> pathPairMap(const QString& text) {
    QMap<QString, QString> map;
    const QVector<QPair<QString, QString>> pairs = pathPairs(text);
    for (const auto& [name, folder] : pairs) {
        map.insert(name, folder);
    }
    return map;
}
