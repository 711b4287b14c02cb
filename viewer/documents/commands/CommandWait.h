#pragma once

#include "viewer/cameras/Answer.h"

#include <QObject>

#include <deque>

/// Where the GUI thread waits for cameras, while images, the console and timers go on. One for the program.
///
/// Waits stack: what an inner one waits for comes first. What must not happen in the middle of an operation
/// that waits, such as a question to the user, is done `afterwards`.
class CommandWait : public QObject {
    Q_OBJECT

public:
    /// A wait that is over within this needs no event loop.
    static constexpr double kBlinkMs = 20;

    static CommandWait& get();

    bool isWaiting() const { return m_depth > 0; }
    /// Names of those who are waited for, for the user.
    QStringList whom() const;

    /// Gives each up to a blink in all, without an event loop. True if all are there.
    static bool spendBlink(const QList<Answer>& answers);
    /// Lets events run until all are there. `whom`: the camera of each.
    void until(const QList<Answer>& answers, const QStringList& whom = {});
    /// From the event loop once nobody waits; at once if nobody does.
    void afterwards(QObject* context, const std::function<void()>& action);

signals:
    /// The first begins, the last has ended.
    void begun();
    void ended();

private:
    struct Open {
        QString name;
        Answer answer;
    };

    void loopUntil(const QList<Answer>& answers);
    void runAfterwards();

    int m_depth = 0;
    std::deque<Open> m_open;
    std::deque<std::function<void()>> m_afterwards;
};
