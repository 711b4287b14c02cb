#include "viewer/calls/CallRecorder.h"

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

QStringList CallRecorder::names() const {
    QStringList names;
    for (const Call& call : calls()) {
        names.append(call.name());
    }
    return names;
}

int CallRecorder::count(const QString& name) const {
    const QMutexLocker lock(&m_mutex);
    return int(std::count_if(m_calls.begin(), m_calls.end(),
                             [&name](const Call& call) { return call.name() == name; }));
}

bool CallRecorder::calledInOrder(const QStringList& operations) const {
    const QStringList called = names();
    int last = -1;
    for (const QString& operation : operations) {
        const int first = called.indexOf(operation);
        if (first <= last) {
            return false; // too early, or never
        }
        last = first;
    }
    return true;
}

QVariantList CallRecorder::lastArgs(const QString& name) const {
    const QMutexLocker lock(&m_mutex);
    const auto found = std::find_if(m_calls.rbegin(), m_calls.rend(),
                                    [&name](const Call& call) { return call.name() == name; });
    return found == m_calls.rend() ? QVariantList() : found->args;
}

void CallRecorder::failNext(const QString& name, const Thrower& thrower, int times) {
    const QMutexLocker lock(&m_mutex);
    const auto isOfThatName = [&name](const Order& order) { return order.name == name; };
    m_orders.erase(std::remove_if(m_orders.begin(), m_orders.end(), isOfThatName), m_orders.end());
    if (times != 0) {
        m_orders.append({name, thrower, times});
    }
}

void CallRecorder::clearFailures() {
    const QMutexLocker lock(&m_mutex);
    m_orders.clear();
}

void CallRecorder::record(Call&& call) {
    Thrower thrower;
    {
        const QMutexLocker lock(&m_mutex);
        for (int i = 0; i < m_orders.size() && !thrower; ++i) {
            Order& order = m_orders[i];
            if (order.name == QLatin1String("*") || order.name == call.name()) {
                thrower = order.thrower;
                if (order.times > 0 && --order.times == 0) {
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
