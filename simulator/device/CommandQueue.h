#pragma once

#include "viewer/cameras/Answer.h"

#include <QObject>

#include <deque>

class Clock;

/// The wire to one camera: its commands go one after the other, each in its own time, and nobody stands still
/// for it. Several cameras' go at the same time. Bound to the thread of its clock.
class CommandQueue : public QObject {
    Q_OBJECT

public:
    struct Command {
        /// Called when its turn comes: gives its time in milliseconds. Throws CameraError if it ends at once.
        std::function<double()> begin;
        /// Called when its time is over. Throws CameraError.
        std::function<CommandResult()> end;
        /// What came of it.
        std::function<void(const Answer& answer)> ended;
    };

    explicit CommandQueue(Clock& clock, QObject* parent = nullptr) : QObject(parent), m_clock(clock) {}
    /// Fails what waits.
    ~CommandQueue() override;

    /// An urgent one passes those that wait and are not.
    Answer send(const Command& command, bool urgent = false);
    /// All that run or wait end so.
    void failAll(const CameraError& error);

private:
    struct Entry {
        Command command;
        bool isUrgent = false;
        AnswerPromise promise;
    };

    void beginNext();
    void endRunning();
    void spend(double ms);
    static void settle(const Entry& entry, const Answer& answer);

    Clock& m_clock;
    std::deque<Entry> m_waiting;
    std::deque<Entry> m_running; // one or none
    qint64 m_due = 0;            // ns of the clock: the end of the one that runs
    quint64 m_turn = 0;          // counts those that have run
};
