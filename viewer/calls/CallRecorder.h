#pragma once

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Interface.h"

#include <QList>
#include <QMutex>
#include <QPoint>
#include <QRect>
#include <QStringList>
#include <QVariant>

#include <deque>
#include <functional>

/// Writes down which host and document operations the plug-in called, and lets chosen ones fail.
///
/// Cheap enough for operations that run seventy times an update: two pointers and the arguments a call. The
/// list is bounded, the oldest calls go first. Thread-safe, since a few operations run on worker threads.
class CallRecorder {
public:
    struct Call {
        const char* interface = ""; // of static storage, such as "HostCameraControl"
        const char* operation = "";
        QVariantList args; // document keys as numbers, pointers to other things as null

        QString name() const {
            return QLatin1String(interface) + QLatin1Char('.') + QLatin1String(operation);
        }
    };

    static constexpr size_t Limit = 20000;

    /// Records the call. Throws what was ordered for it.
    template <class... Args>
    void enter(const char* interface, const char* operation, const Args&... args) {
        if (m_isRecording) {
            record(Call{interface, operation, QVariantList{value(args)...}});
        }
    }

    /// What an operation gives that has no task here: the neutral value of its type.
    struct Neutral {
        template <class T>
        operator T() const {
            return T();
        }
    };

    /// As enter(), in two steps, for the macro OPERATION.
    struct Operation {
        CallRecorder& recorder;
        const char* interface;
        const char* operation;

        template <class... Args>
        Neutral operator()(const Args&... args) const {
            recorder.enter(interface, operation, args...);
            return {};
        }
    };
    Operation operation(const char* interface, const char* name) { return {*this, interface, name}; }

    /// As enter(), for who has put the arguments into variants.
    void record(Call&& call);

    /// The calls since the last clearing, oldest first.
    QList<Call> calls() const;
    /// Their names, as "HostDocuments.docByKey".
    QStringList names() const;
    /// Forgets the calls. What is to fail stays.
    void clear();
    /// Off, a call costs nothing, and no order acts. On at first; not while operations run.
    void setRecording(bool on) { m_isRecording = on; }
    /// How often the operation was called.
    int count(const QString& name) const;
    /// Whether each of the operations was called, the first call of each after the first one of the operation
    /// before it.
    bool calledInOrder(const QStringList& operations) const;
    /// The arguments of the latest call; empty if there was none.
    QVariantList lastArgs(const QString& name) const;

    /// A function that throws; see `throwing`.
    using Thrower = std::function<void()>;
    /// Lets the next `times` calls of that operation throw; a negative number means all of them from now on,
    /// none takes the order back. Replaces what was ordered for the same operation before. "*" stands for
    /// every operation.
    void failNext(const QString& name, const Thrower& thrower, int times = 1);
    /// As above with an APP_Exception; `times` below 1 takes the order back.
    void fail(const QString& name, const QString& message, int code, int times) {
        failNext(
            name, [message, code] { throw APP_Exception(message, code); }, qMax(0, times));
    }
    void clearFailures();

    /// How the key of a document is found; without it documents are recorded as null.
    void setKeyOf(const std::function<quint32(DOC_Interface*)>& keyOf) { m_keyOf = keyOf; }

private:
    struct Order {
        QString name;
        Thrower thrower;
        int times;
    };

    template <class T>
    QVariant value(const T& arg) const {
        return QVariant::fromValue(arg);
    }
    QVariant value(unsigned long arg) const { return QVariant(qulonglong(arg)); }
    QVariant value(const QVariant& arg) const { return arg; }
    QVariant value(const char* arg) const { return QString::fromUtf8(arg); }
    QVariant value(DOC_Interface* document) const;
    QVariant value(const QList<DOC_Interface*>& documents) const;
    QVariant value(const QList<quint32>& keys) const;
    template <class T>
    QVariant value(T* const&) const {
        return QVariant();
    }

    bool m_isRecording = true;
    mutable QMutex m_mutex;
    std::deque<Call> m_calls;
    QList<Order> m_orders;
    std::function<quint32(DOC_Interface*)> m_keyOf;
};

/// A thrower for `CallRecorder::failNext` that throws copies of `exception` with its own type.
template <class Exception>
CallRecorder::Thrower throwing(Exception exception) {
    return [exception = std::move(exception)] { throw exception; };
}

/// The first line of an operation that a plug-in calls: records it with these arguments. One without a task
/// here returns it: see Neutral. Needs `recorder()` and `kInterface` in its scope.
#define OPERATION(...) recorder().operation(kInterface, __func__)(__VA_ARGS__)
