#pragma once

#include "viewer/cameras/CameraError.h"

#include <QFuture>

#include <functional>
#include <memory>

class QObject;

/// How a command ended that did not fail: the camera took the value, or another one in its place.
enum class CommandResult { Ok, Clamped };

/// A camera's answer to a command, which may still be on its way. Copies are of the same answer. Bound to the
/// GUI thread; a camera that works on another one hands in a future.
class [[nodiscard]] Answer {
public:
    /// How an answer comes to a caller that runs no event loop: `spend` takes up to that many milliseconds,
    /// or however many it needs if that is below 0, and is called again until the answer is there.
    struct Way {
        std::function<void(double ms)> spend;
        bool comesByItself = true; // while an event loop runs
    };

    /// One that is there at once. Not explicit: most conditions of a command are known before it is sent.
    Answer(CommandResult result);     // NOLINT(*-explicit-*)
    Answer(const CameraError& error); // NOLINT(*-explicit-*)
    explicit Answer(const QFuture<CommandResult>& later);

    /// Calls what gives a result or another answer, or throws CameraError.
    template <class Command>
    static Answer of(const Command& command) {
        try {
            return command();
        } catch (const CameraError& error) {
            return error;
        }
    }

    bool isThere() const;
    /// False if an event loop would wait in vain: somebody has to spend() the time.
    bool comesByItself() const;
    /// Waits so many milliseconds for it at most, without an event loop.
    void spend(double ms) const;
    /// Blocks until it is there. Throws CameraError.
    CommandResult result() const;
    /// Does something once it is there, at once if it is, unless the context is destroyed before.
    void whenThere(QObject* context, const std::function<void()>& action) const;
    /// This and then another command, which is not sent if this one fails; its answer is that of both.
    Answer then(const std::function<Answer(CommandResult first)>& next) const;

private:
    friend class AnswerPromise;
    struct State;

    explicit Answer(std::shared_ptr<State> state) : m_state(std::move(state)) {}

    std::shared_ptr<State> m_state;
};

/// The other end of an answer that comes later.
class AnswerPromise {
public:
    AnswerPromise();

    Answer answer() const { return Answer(m_state); }
    void setWay(const Answer::Way& way);
    /// What comes after the first of these is ignored.
    void give(CommandResult result) const;
    void fail(const CameraError& error) const;
    /// As another answer, which is there.
    void giveAs(const Answer& other) const;

private:
    std::shared_ptr<Answer::State> m_state;
};
