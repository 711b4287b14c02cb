#include "simulator/device/CommandQueue.h"

#include "simulator/device/Clock.h"
#include "viewer/cameras/CommandKeys.h"

#include <QPointer>

#include <algorithm>

CommandQueue::~CommandQueue() {
    failAll(CameraError(CameraError::Kind::LinkLost, CommandKey::Link, QString(),
                        reason("no link to the camera")));
}

Answer CommandQueue::send(const Command& command, bool urgent) {
    Entry entry{command, urgent, AnswerPromise()};
    entry.promise.setWay({[this](double ms) { spend(ms); }, m_clock.mode() == Clock::Mode::Real});
    const auto isUsual = [](const Entry& each) { return !each.isUrgent; };
    m_waiting.insert(urgent ? std::find_if(m_waiting.begin(), m_waiting.end(), isUsual) : m_waiting.end(),
                     entry);
    beginNext();
    return entry.promise.answer();
}

void CommandQueue::beginNext() {
    const QPointer<CommandQueue> alive(this);
    while (alive && m_running.empty() && !m_waiting.empty()) {
        const Entry entry = m_waiting.front();
        m_waiting.pop_front();
        try {
            const double ms = entry.command.begin();
            m_running.push_back(entry);
            m_due = m_clock.now() + qint64(std::max(ms, 0.0) * 1e6);
            m_clock.after(ms, this, [this, turn = ++m_turn] {
                if (turn == m_turn && !m_running.empty()) {
                    endRunning();
                }
            });
        } catch (const CameraError& error) {
            settle(entry, error);
        }
    }
}

// The next may run while this one does its work, which may send and await it.
void CommandQueue::endRunning() {
    const QPointer<CommandQueue> alive(this);
    const Entry entry = m_running.front();
    m_running.clear();
    settle(entry, Answer::of(entry.command.end));
    if (alive) {
        beginNext();
    }
}

void CommandQueue::settle(const Entry& entry, const Answer& answer) {
    entry.command.ended(answer);
    entry.promise.giveAs(answer);
}

void CommandQueue::failAll(const CameraError& error) {
    std::deque<Entry> entries = std::exchange(m_running, {});
    const std::deque<Entry> waiting = std::exchange(m_waiting, {});
    entries.insert(entries.end(), waiting.begin(), waiting.end());
    for (const Entry& entry : entries) {
        settle(entry, error);
    }
}

void CommandQueue::spend(double ms) {
    const qint64 left = m_running.empty() ? 0 : m_due - m_clock.now();
    if (m_clock.mode() == Clock::Mode::Stepped) {
        m_clock.advance(left);
        return;
    }
    const double wait = double(left) / 1e6;
    m_clock.wait(ms < 0 ? wait : std::min(wait, ms));
    if (!m_running.empty() && m_clock.now() >= m_due) {
        endRunning();
    }
}
