#pragma once

#include <QString>

/// Undo. GUI thread only; any operation may throw an exception derived from `std::exception`.
class HostHistory {
public:
    virtual ~HostHistory() = default;

    /// One step back.
    virtual void undo() = 0;
    /// One step forward.
    virtual void redo() = 0;
    /// Forgets the undo steps.
    virtual void resetHistory() = 0;
    /// True if there is a step to undo.
    virtual bool canUndo() = 0;
    /// True if there is a step to redo.
    virtual bool canRedo() = 0;
    /// Opens a macro: all steps up to `endMacro` are one undo step. `name` may be empty.
    virtual void beginMacro(const QString& name) = 0;
    /// Closes the macro.
    virtual void endMacro() = 0;
};
