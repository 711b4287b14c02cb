#pragma once

#include <QMap>
#include <QPair>
#include <QString>
#include <QVector>

/// The two fields of each entry of "name|folder?name|folder", in their order. What hasn't exactly two fields
/// is left out.
QVector<QPair<QString, QString>> pathPairs(const QString& text);
/// The same as a map; of entries with one name the last counts.
QMap<QString, QString> pathPairMap(const QString& text);
