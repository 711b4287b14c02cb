#include "viewer/prefs/PreferencesText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSize>
#include <QUrl>

#include <cmath>
#include <limits>

namespace {

// Keys may hold anything; "=", brackets, line ends and a leading ";" would break the file, a blank at an end
// gets lost.
const QByteArray kPlain = QByteArrayLiteral("/+,()");

QByteArray encoded(const QString& name) { return QUrl::toPercentEncoding(name, kPlain); }

QString decoded(const QByteArray& text) { return QUrl::fromPercentEncoding(text); }

// JSON has no sizes: an object with this name alone stands for one.
const QString kSize = QStringLiteral("@size");

QVariant withSize(const QVariantMap& map) {
    const QVariantList sides = map.value(kSize).toList();
    return map.size() == 1 && sides.size() == 2 ? QVariant(QSize(sides[0].toInt(), sides[1].toInt()))
                                                : QVariant(map);
}

// JSON has one kind of number; a whole one in the range of int reads as int, as it was most likely written.
QVariant narrowed(const QJsonValue& value) {
    if (value.isObject()) {
        return withSize(value.toObject().toVariantMap());
    }
    if (!value.isDouble()) {
        return value.toVariant();
    }
    const double number = value.toDouble();
    const bool isInt = std::nearbyint(number) == number && number >= std::numeric_limits<int>::min() &&
                       number <= std::numeric_limits<int>::max();
    return isInt ? QVariant(static_cast<int>(number)) : QVariant(number);
}

// JSON texts are objects or arrays, so a single value travels in an array of one.
bool parseValue(const QByteArray& text, QVariant& value) {
    QJsonParseError error{};
    const QJsonArray array = QJsonDocument::fromJson('[' + text + ']', &error).array();
    if (error.error != QJsonParseError::NoError || array.size() != 1 || array.first().isNull()) {
        return false;
    }
    value = narrowed(array.first());
    return true;
}

QJsonValue toJson(const QVariant& value) {
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Float:
        // The shortest text that reads back as the same float: 0.1, not 0.10000000149.
        return QString::number(value.toFloat()).toDouble();
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Double:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        return QJsonValue::fromVariant(value);
    case QMetaType::QSize:
        return QJsonObject{{kSize, QJsonArray{value.toSize().width(), value.toSize().height()}}};
    default:
        return value.toString();
    }
}

QByteArray valueText(const QVariant& value) {
    const QByteArray array = QJsonDocument(QJsonArray{toJson(value)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

PreferencesText::Parsed PreferencesText::parse(const QByteArray& text) {
    Parsed result;
    QByteArray section;
    int number = 0;
    for (const QByteArray& raw : text.split('\n')) {
        ++number;
        const QByteArray line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(';')) {
            continue;
        }
        if (line.startsWith('[') && line.endsWith(']')) {
            section = line.mid(1, line.size() - 2);
            continue;
        }
        const int equals = line.indexOf('=');
        QVariant value;
        if (equals < 1 || !parseValue(line.mid(equals + 1), value)) {
            result.badLines.append(number);
            continue;
        }
        const QByteArray name = line.left(equals);
        result.values.insert(decoded(section.isEmpty() ? name : section + '/' + name), value);
    }
    return result;
}

QByteArray PreferencesText::compose(const QMap<QString, QVariant>& values) {
    // A section each for the first part of a key; keys without a slash come first, before any section.
    QMap<QString, QMap<QString, QVariant>> sections;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const int slash = it.key().indexOf(QLatin1Char('/'));
        const bool split = slash > 0 && slash + 1 < it.key().size();
        const QString section = split ? it.key().left(slash) : QString();
        sections[section].insert(split ? it.key().mid(slash + 1) : it.key(), it.value());
    }
    QByteArray text;
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        if (!section.key().isEmpty()) {
            text += '[' + encoded(section.key()) + "]\n";
        }
        for (auto it = section->begin(); it != section->end(); ++it) {
            text += encoded(it.key()) + '=' + valueText(it.value()) + '\n';
        }
        text += '\n';
    }
    return text;
}

// The text of a value that isn't finite reads as none.
bool PreferencesText::canHold(const QString& key, const QVariant& value) {
    QVariant back;
    return !key.isEmpty() && parseValue(valueText(value), back);
}

QVariant PreferencesText::normalized(const QVariant& value) { return narrowed(toJson(value)); }
