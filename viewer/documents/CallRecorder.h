#pragma once

#include "livecontrol/interface/DOC_Interface.h"

#include <QList>
#include <QMutex>
#include <QPoint>
#include <QRect>
#include <QString>
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

    /// As enter(), in two steps, for the macro OPERATION.
    struct Operation {
        CallRecorder& recorder;
        const char* interface;
        const char* operation;

        template <class... Args>
        void operator()(const Args&... args) const {
            recorder.enter(interface, operation, args...);
        }
    };
    Operation operation(const char* interface, const char* name) { return {*this, interface, name}; }

    /// The calls since the last clearing, oldest first.
    QList<Call> calls() const;
    void clear();
    /// Off, a call costs nothing, and no order acts. On at first; not while operations run.
    void setRecording(bool on) { m_isRecording = on; }
    /// How often the operation was called, as "HostDocuments.docByKey".
    int count(const QString& name) const;

    /// The next calls of that operation throw an APP_Exception with that text and code; `times` below 1 takes
    /// the order back. "*" stands for every operation.
    void fail(const QString& name, const QString& message, int code, int times);
    /// As above with an exception of one's own.
    void failWith(const QString& name, const std::function<void()>& thrower, int times);
    void clearFailures();

    /// How the key of a document is found; without it documents are recorded as null.
    void setKeyOf(const std::function<quint32(DOC_Interface*)>& keyOf) { m_keyOf = keyOf; }

private:
    struct Order {
        QString name;
        std::function<void()> thrower;
        int times;
    };

    void record(Call&& call);

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

/// The first line of an operation that a plug-in calls: records it with these arguments. Needs `recorder()`
/// and `kInterface` in its scope.
#define OPERATION(...) recorder().operation(kInterface, __func__)(__VA_ARGS__)
