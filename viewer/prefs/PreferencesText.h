#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// The text of a settings file.
namespace PreferencesText {

struct Parsed {
    QMap<QString, QVariant> values;
    QList<int> badLines; // from 1
};

/// Reads what makes sense and tells the lines that don't. Of a key that stands twice the last line counts.
Parsed parse(const QByteArray& text);
/// Sections and keys in alphabetical order.
QByteArray compose(const QMap<QString, QVariant>& values);
/// Whether it can be read back: not under an empty key, and no number that isn't finite.
bool canHold(const QString& key, const QVariant& value);
/// The value as it will be read back: JSON knows texts, numbers, bools, lists and maps.
QVariant normalized(const QVariant& value);

} // namespace PreferencesText
