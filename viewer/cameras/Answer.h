#pragma once

#include "viewer/cameras/CameraError.h"

#include <QFuture>

/// How a command ended that did not fail: the camera took the value, or another one in its place.
enum class CommandResult { Ok, Clamped };

/// A camera's answer to a command, which may still be on its way. Copies are of the same answer.
class [[nodiscard]] Answer {
public:
    /// One that is there at once. Not explicit: most conditions of a command are known before it is sent.
    Answer(CommandResult result);     // NOLINT(*-explicit-*)
    Answer(const CameraError& error); // NOLINT(*-explicit-*)
    explicit Answer(const QFuture<CommandResult>& later) : m_future(later) {}

    /// Calls what gives a result at once or throws CameraError.
    template <class Command>
    static Answer of(const Command& command) {
        try {
            return command();
        } catch (const CameraError& error) {
            return error;
        }
    }

    bool isThere() const { return m_future.isFinished(); }
    /// To be told when it comes.
    const QFuture<CommandResult>& future() const { return m_future; }
    /// Blocks until it is there. Throws CameraError.
    CommandResult result() const { return m_future.result(); }

private:
    QFuture<CommandResult> m_future;
};
