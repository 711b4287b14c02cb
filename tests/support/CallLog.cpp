#include "tests/support/CallLog.h"

#include <QMutexLocker>

#include <algorithm>

void CallLog::enter(const char* name, const QVariantList& args) {
    Thrower thrower;
    {
        const QMutexLocker lock(&m_mutex);
        const QString operation = QString::fromLatin1(name);
        m_calls.append({operation, args});
        const auto failure = m_failures.find(operation);
        if (failure == m_failures.end()) {
            return;
        }
        thrower = failure->thrower;
        if (failure->times > 0 && --failure->times == 0) {
            m_failures.erase(failure);
        }
    }
    thrower();
}

void CallLog::failNext(const QString& operation, Thrower thrower, int times) {
    const QMutexLocker lock(&m_mutex);
    if (times == 0) {
        m_failures.remove(operation);
    } else {
        m_failures.insert(operation, {std::move(thrower), times});
    }
}

QList<CallLog::Call> CallLog::calls() const {
    const QMutexLocker lock(&m_mutex);
    return m_calls;
}

QStringList CallLog::names() const {
    QStringList names;
    for (const Call& call : calls()) {
        names.append(call.name);
    }
    return names;
}

int CallLog::count(const QString& name) const { return names().count(name); }

bool CallLog::calledInOrder(const QStringList& operations) const {
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

QVariantList CallLog::lastArgs(const QString& name) const {
    const QList<Call> all = calls();
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&name](const Call& call) { return call.name == name; });
    return found == all.rend() ? QVariantList() : found->args;
}

void CallLog::clear() {
    const QMutexLocker lock(&m_mutex);
    m_calls.clear();
}
