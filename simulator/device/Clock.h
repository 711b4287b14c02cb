#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <functional>
#include <map>

/// The time of a rig: one clock for all its cameras, in nanoseconds since the clock was made.
//
/// A real clock runs by itself and waits by sleeping. A stepped clock stands still until somebody advances
/// it, and waiting advances it, so a test needs no real time and has the same times in each run. Bound to the
/// thread that made it.
class Clock : public QObject {
    Q_OBJECT

public:
    enum class Mode { Real, Stepped };

    explicit Clock(Mode mode = Mode::Real, QObject* parent = nullptr);

    Mode mode() const { return m_mode; }

    /// Nanoseconds since the start.
    qint64 now() const;

    /// Spends milliseconds: sleeps on a real clock, advances a stepped one. Nothing happens for 0 or less.
    void wait(double milliseconds);

    /// Moves a stepped clock on and runs what falls due on the way, in order, each at its own time.
    /// Must not be called on a real clock.
    void advance(qint64 nanoseconds);
    void advanceMs(double milliseconds) { advance(qint64(milliseconds * 1e6)); }

    /// Runs the action once after that time, unless the context is destroyed before. On a real clock this
    /// needs an event loop; on a stepped one it happens inside advance() or wait().
    void after(double milliseconds, QObject* context, const std::function<void()>& action);

signals:
    /// A stepped clock has reached this time.
    void advanced(qint64 now);

private:
    Mode m_mode;
    QElapsedTimer m_timer;
    qint64 m_now = 0;
    std::multimap<qint64, std::function<void()>> m_due;
};
