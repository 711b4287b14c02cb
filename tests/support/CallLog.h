#pragma once

#include <QList>
#include <QMap>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

/// What the fakes were called with, and what they are to fail with. Thread-safe.
class CallLog {
public:
    struct Call {
        QString name; ///< "HostApplication.setPref"
        QVariantList args;
    };
    /// A function that throws; see `throwing`.
    using Thrower = std::function<void()>;

    /// Records a call, then throws if the operation is to fail. The fakes call this first of all.
    void enter(const char* name, const QVariantList& args);

    /// Lets the next `times` calls of `operation` throw; a negative number means all of them from now on.
    /// Replaces what was asked for the same operation before.
    void failNext(const QString& operation, Thrower thrower, int times = 1);

    QList<Call> calls() const;
    /// The names of the calls, in order.
    QStringList names() const;
    /// How often the operation was called.
    int count(const QString& name) const;
    /// Whether each of the operations was called, the first call of each behind the first one of the
    /// operation before it. An operation is named as "HostLive.suspendLive".
    bool calledInOrder(const QStringList& operations) const;
    /// The arguments of the latest call; empty if there was none.
    QVariantList lastArgs(const QString& name) const;
    /// Forgets the calls. What is to fail stays.
    void clear();

private:
    struct Failure {
        Thrower thrower;
        int times = 0;
    };

    mutable QMutex m_mutex;
    QList<Call> m_calls;
    QMap<QString, Failure> m_failures;
};

/// A thrower for `CallLog::failNext` that throws copies of `exception` with its own type.
template <class Exception>
CallLog::Thrower throwing(Exception exception) {
    return [exception = std::move(exception)] { throw exception; };
}

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

/// An argument as the log keeps it: its value where a variant can hold it, else the name of its type; "null"
/// for a null pointer. Lists are kept item by item.
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
