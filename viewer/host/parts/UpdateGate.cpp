#include "viewer/host/parts/UpdateGate.h"

#include <QScopedValueRollback>
#include <QTimer>

UpdateGate::UpdateGate(const Send& send, QObject* parent) : QObject(parent), m_send(send) {}

void UpdateGate::request(int flags) {
    m_pending |= flags;
    if (m_holds > 0) {
        return;
    }
    if (m_sending) {
        post();
    } else {
        deliver();
    }
}

void UpdateGate::requestSoon(int flags) {
    m_pending |= flags;
    post();
}

void UpdateGate::post() {
    if (m_posted || m_pending == 0) {
        return;
    }
    m_posted = true;
    QTimer::singleShot(0, this, [this] {
        m_posted = false;
        if (m_holds == 0) {
            deliver();
        }
    });
}

void UpdateGate::release() {
    if (m_holds > 0 && --m_holds == 0) {
        request(0);
    }
}

void UpdateGate::releaseSoon() {
    if (m_holds > 0 && --m_holds == 0) {
        post();
    }
}

void UpdateGate::deliver() {
    if (m_pending == 0) {
        return;
    }
    const int flags = m_pending;
    m_pending = 0;
    const QScopedValueRollback<bool> sending(m_sending, true);
    m_send(flags);
}
