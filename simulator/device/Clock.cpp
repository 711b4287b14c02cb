#include "simulator/device/Clock.h"

#include <QPointer>
#include <QThread>
#include <QTimer>

#include <algorithm>

Clock::Clock(Mode mode, QObject* parent) : QObject(parent), m_mode(mode) { m_timer.start(); }

qint64 Clock::now() const { return m_mode == Mode::Real ? m_timer.nsecsElapsed() : m_now; }

void Clock::wait(double milliseconds) {
    if (milliseconds <= 0) {
        return;
    }
    if (m_mode == Mode::Stepped) {
        advanceMs(milliseconds);
    } else {
        QThread::usleep(static_cast<unsigned long>(milliseconds * 1000));
    }
}

void Clock::advance(qint64 nanoseconds) {
    Q_ASSERT(m_mode == Mode::Stepped);
    const qint64 target = m_now + std::max<qint64>(nanoseconds, 0);
    while (!m_due.empty() && m_due.begin()->first <= target) {
        const auto first = m_due.begin();
        m_now = std::max(m_now, first->first);
        const auto action = first->second;
        m_due.erase(first);
        action();
    }
    // An action may have waited itself, past the target.
    m_now = std::max(m_now, target);
    emit advanced(m_now);
}

void Clock::after(double milliseconds, QObject* context, const std::function<void()>& action) {
    if (m_mode == Mode::Real) {
        QTimer::singleShot(static_cast<int>(std::max(milliseconds, 0.0) + 0.5), Qt::PreciseTimer, context,
                           action);
        return;
    }
    const QPointer<QObject> alive(context);
    m_due.emplace(m_now + static_cast<qint64>(std::max(milliseconds, 0.0) * 1e6), [alive, action] {
        if (alive) {
            action();
        }
    });
}
