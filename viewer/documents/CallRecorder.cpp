#include "viewer/documents/CallRecorder.h"

#include "livecontrol/foundation/APP_Exception.h"

#include <QMutexLocker>

#include <algorithm>

QList<CallRecorder::Call> CallRecorder::calls() const {
    const QMutexLocker lock(&m_mutex);
    QList<Call> list;
    list.reserve(int(m_calls.size()));
    for (const Call& call : m_calls) {
        list.append(call);
    }
    return list;
}

void CallRecorder::clear() {
    const QMutexLocker lock(&m_mutex);
    m_calls.clear();
}

int CallRecorder::count(const QString& name) const {
    const QMutexLocker lock(&m_mutex);
    return int(std::count_if(m_calls.begin(), m_calls.end(),
                             [&name](const Call& call) { return call.name() == name; }));
}

void CallRecorder::fail(const QString& name, const QString& message, int code, int times) {
    failWith(
        name, [message, code] { throw APP_Exception(message, code); }, times);
}

void CallRecorder::failWith(const QString& name, const std::function<void()>& thrower, int times) {
    const QMutexLocker lock(&m_mutex);
    const auto isOfThatName = [&name](const Order& order) { return order.name == name; };
    m_orders.erase(std::remove_if(m_orders.begin(), m_orders.end(), isOfThatName), m_orders.end());
    if (times > 0) {
        m_orders.append({name, thrower, times});
    }
}

void CallRecorder::clearFailures() {
    const QMutexLocker lock(&m_mutex);
    m_orders.clear();
}

void CallRecorder::record(Call&& call) {
    std::function<void()> thrower;
    {
        const QMutexLocker lock(&m_mutex);
        for (int i = 0; i < m_orders.size() && !thrower; ++i) {
            Order& order = m_orders[i];
            if (order.name == QLatin1String("*") || order.name == call.name()) {
                thrower = order.thrower;
                if (--order.times == 0) {
                    m_orders.removeAt(i);
                }
            }
        }
        if (m_calls.size() >= Limit) {
            m_calls.pop_front();
        }
        m_calls.push_back(std::move(call));
    }
    if (thrower) {
        thrower();
    }
}

QVariant CallRecorder::value(DOC_Interface* document) const {
    return document && m_keyOf ? QVariant(m_keyOf(document)) : QVariant();
}

QVariant CallRecorder::value(const QList<DOC_Interface*>& documents) const {
    QVariantList list;
    for (DOC_Interface* const document : documents) {
        list.append(value(document));
    }
    return list;
}

QVariant CallRecorder::value(const QList<quint32>& keys) const {
    QVariantList list;
    for (const quint32 key : keys) {
        list.append(key);
    }
    return list;
}
