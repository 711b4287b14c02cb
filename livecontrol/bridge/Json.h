#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

// What a page gets: one compact text. A number that a page only compares and prints goes as a decimal text,
// one that it calculates with as a number; the call shows which.
namespace json {

template <class Number>
QString text(Number number) {
    return QString::number(number);
}

inline QString compact(const QJsonObject& object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

inline QString compact(const QJsonArray& array) {
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

} // namespace json
