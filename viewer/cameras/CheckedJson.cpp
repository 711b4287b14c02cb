#include "viewer/cameras/CheckedJson.h"

#include "viewer/cameras/JsonLines.h"

#include <QJsonDocument>

#include <cmath>

namespace {
bool isWhole(const QJsonValue& value, int min, int max) {
    const double number = value.toDouble();
    return value.isDouble() && number == std::floor(number) && number >= min && number <= max;
}
} // namespace

RigFileError::RigFileError(const QString& file, int line, const Reason& problem)
    : std::runtime_error(
          (line > 0 ? QStringLiteral("%1:%2: %3").arg(file, QString::number(line), problem.english())
                    : QStringLiteral("%1: %2").arg(file, problem.english()))
              .toStdString()),
      m_file(file), m_line(line), m_problem(problem) {}

CheckedJson CheckedJson::parse(const QByteArray& text, const QString& fileName) {
    if (text.trimmed().isEmpty()) {
        throw RigFileError(fileName, 0, reason("the file is empty"));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        throw RigFileError(fileName, JsonLines::lineOfOffset(text, error.offset), error.errorString());
    }
    if (!document.isObject()) {
        throw RigFileError(fileName, 1, reason("an object is expected"));
    }
    return {std::make_shared<Source>(Source{text, fileName}), document.object(), QString()};
}

void CheckedJson::fail(const QString& key, const Reason& problem) const {
    const QString path = key.isEmpty() ? m_path : m_path + QLatin1Char('/') + key;
    const Reason at = key.isEmpty() ? problem : reason("\"%1\": %2", {key, problem});
    throw RigFileError(m_source->fileName, JsonLines::lineOfPath(m_source->text, path), at);
}

void CheckedJson::allowOnly(const QStringList& keys) const {
    for (auto it = m_object.begin(); it != m_object.end(); ++it) {
        if (!keys.contains(it.key())) {
            fail(it.key(), reason("unknown key; known are %1", {keys.join(QStringLiteral(", "))}));
        }
    }
}

QJsonValue CheckedJson::need(const QString& key, QJsonValue::Type type, const Reason& typeName) const {
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined()) {
        fail(QString(), reason("the key \"%1\" is missing", {key}));
    }
    if (value.type() != type) {
        fail(key, reason("%1 is expected", {typeName}));
    }
    return value;
}

QString CheckedJson::text(const QString& key) const {
    const QString text = need(key, QJsonValue::String, reason("a text")).toString();
    if (text.trimmed().isEmpty()) {
        fail(key, reason("must not be empty"));
    }
    return text;
}

QString CheckedJson::text(const QString& key, const QString& fallback) const {
    return has(key) ? need(key, QJsonValue::String, reason("a text")).toString() : fallback;
}

double CheckedJson::number(const QString& key, double min, double max) const {
    const double value = need(key, QJsonValue::Double, reason("a number")).toDouble();
    if (value < min || value > max) {
        fail(key, reason("must be from %1 to %2", {QString::number(min), QString::number(max)}));
    }
    return value;
}

double CheckedJson::number(const QString& key, double min, double max, double fallback) const {
    return has(key) ? number(key, min, max) : fallback;
}

int CheckedJson::integer(const QString& key, int min, int max) const {
    const QJsonValue value = need(key, QJsonValue::Double, reason("a whole number"));
    if (!isWhole(value, min, max)) {
        fail(key, reason("must be a whole number from %1 to %2", {min, max}));
    }
    return value.toInt();
}

int CheckedJson::integer(const QString& key, int min, int max, int fallback) const {
    return has(key) ? integer(key, min, max) : fallback;
}

bool CheckedJson::boolean(const QString& key, bool fallback) const {
    return has(key) ? need(key, QJsonValue::Bool, reason("true or false")).toBool() : fallback;
}

QStringList CheckedJson::texts(const QString& key) const {
    QStringList result;
    if (!has(key)) {
        return result;
    }
    for (const QJsonValue& value : need(key, QJsonValue::Array, reason("a list of texts")).toArray()) {
        if (!value.isString()) {
            fail(key, reason("a list of texts is expected"));
        }
        result << value.toString();
    }
    return result;
}

QList<int> CheckedJson::integers(const QString& key, int min, int max) const {
    QList<int> result;
    for (const QJsonValue& value : need(key, QJsonValue::Array, reason("a list of numbers")).toArray()) {
        if (!isWhole(value, min, max)) {
            fail(key, reason("whole numbers from %1 to %2 are expected", {min, max}));
        }
        result << value.toInt();
    }
    if (result.isEmpty()) {
        fail(key, reason("must not be empty"));
    }
    return result;
}

QSize CheckedJson::sizeOf(const QString& key, const QJsonValue& value) const {
    const QJsonArray pair = value.toArray();
    if (pair.size() != 2 || !isWhole(pair.at(0), 1, 65535) || !isWhole(pair.at(1), 1, 65535)) {
        fail(key, reason("[width, height] in pixels is expected"));
    }
    return {pair.at(0).toInt(), pair.at(1).toInt()};
}

QSize CheckedJson::size(const QString& key) const {
    return sizeOf(key, need(key, QJsonValue::Array, reason("[width, height] in pixels")));
}

QList<QSize> CheckedJson::sizes(const QString& key) const {
    QList<QSize> result;
    for (const QJsonValue& value : need(key, QJsonValue::Array, reason("a list of sizes")).toArray()) {
        result << sizeOf(key, value);
    }
    if (result.isEmpty()) {
        fail(key, reason("must not be empty"));
    }
    return result;
}

CheckedJson CheckedJson::object(const QString& key) const {
    const QJsonObject inner =
        has(key) ? need(key, QJsonValue::Object, reason("an object")).toObject() : QJsonObject();
    return {m_source, inner, m_path + QLatin1Char('/') + key};
}

QList<CheckedJson> CheckedJson::objects(const QString& key) const {
    QList<CheckedJson> result;
    const QJsonArray array = need(key, QJsonValue::Array, reason("a list of objects")).toArray();
    for (int i = 0; i < array.size(); ++i) {
        const QString path = QStringLiteral("%1/%2/%3").arg(m_path, key).arg(i);
        if (!array.at(i).isObject()) {
            throw RigFileError(m_source->fileName, JsonLines::lineOfPath(m_source->text, path),
                               reason("an object is expected"));
        }
        result << CheckedJson(m_source, array.at(i).toObject(), path);
    }
    return result;
}
