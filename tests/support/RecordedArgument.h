#pragma once

#include "viewer/calls/CallRecorder.h"

#include <QMap>

#include <exception>
#include <type_traits>

template <class T>
QVariant recordedArgument(const T& value, const char* type);

template <class T>
QVariant recordedArgument(const QList<T>& values, const char* type) {
    QVariantList list;
    for (const T& value : values) {
        list.append(recordedArgument(value, type));
    }
    return list;
}

inline QVariant recordedArgument(const QStringList& values, const char*) { return values; }
inline QVariant recordedArgument(const std::exception& value, const char*) {
    return QString::fromUtf8(value.what());
}
inline QVariant recordedArgument(const char* value, const char*) { return QString::fromUtf8(value); }

/// An argument as the fakes record it: its value where a variant can hold it, else the name of its type;
/// "null" for a null pointer. Lists are kept item by item.
template <class T>
QVariant recordedArgument(const T& value, const char* type) {
    if constexpr (std::is_same_v<T, unsigned long>) {
        return QVariant::fromValue<qulonglong>(value);
    } else if constexpr (std::is_pointer_v<T>) {
        return value ? QString::fromLatin1(type) : QStringLiteral("null");
    } else if constexpr (std::is_convertible_v<T, QVariant>) {
        return value;
    } else if constexpr (std::is_same_v<T, QMap<QString, QString>>) {
        QVariantMap map;
        for (auto it = value.begin(); it != value.end(); ++it) {
            map.insert(it.key(), it.value());
        }
        return map;
    } else {
        return QString::fromLatin1(type);
    }
}
