#pragma once

#include "viewer/cameras/Reason.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QSize>
#include <QStringList>

#include <memory>
#include <stdexcept>

/// A rig, model or settings file is wrong: which one, where, and what.
class RigFileError : public std::runtime_error {
public:
    /// line: from 1; 0 when the file could not be read at all.
    RigFileError(const QString& file, int line, const Reason& problem);

    const QString& file() const { return m_file; }
    int line() const { return m_line; }
    const Reason& problem() const { return m_problem; }

private:
    QString m_file;
    int m_line;
    Reason m_problem;
};

/// Reading of an object of a rig or model file that complains precisely: every getter throws RigFileError
/// with file, line and the key if the key is missing (in the form without default), of the wrong type or out
/// of range.
class CheckedJson {
public:
    /// The top object of a text. Throws RigFileError for a syntax error or a top that is no object.
    static CheckedJson parse(const QByteArray& text, const QString& fileName);

    /// Throws if the object has any other key.
    void allowOnly(const QStringList& keys) const;
    bool has(const QString& key) const { return m_object.contains(key); }

    QString text(const QString& key) const; // not empty
    QString text(const QString& key, const QString& fallback) const;
    double number(const QString& key, double min, double max) const;
    double number(const QString& key, double min, double max, double fallback) const;
    int integer(const QString& key, int min, int max) const;
    int integer(const QString& key, int min, int max, int fallback) const;
    bool boolean(const QString& key, bool fallback) const;
    QStringList texts(const QString& key) const;                     // empty if missing
    QList<int> integers(const QString& key, int min, int max) const; // at least one
    QSize size(const QString& key) const;                            // [width, height], positive
    QList<QSize> sizes(const QString& key) const;                    // at least one
    CheckedJson object(const QString& key) const;                    // empty if missing
    QList<CheckedJson> objects(const QString& key) const;
    const QJsonObject& raw() const { return m_object; }

    /// Throws RigFileError at a key of this object, or at the object itself for an empty one.
    [[noreturn]] void fail(const QString& key, const Reason& problem) const;

private:
    struct Source {
        QByteArray text;
        QString fileName;
    };

    CheckedJson(std::shared_ptr<const Source> source, const QJsonObject& object, const QString& path)
        : m_source(std::move(source)), m_object(object), m_path(path) {}
    QJsonValue need(const QString& key, QJsonValue::Type type, const Reason& typeName) const;
    QSize sizeOf(const QString& key, const QJsonValue& value) const;

    std::shared_ptr<const Source> m_source;
    QJsonObject m_object;
    QString m_path;
};
