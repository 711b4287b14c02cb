#pragma once

#include "viewer/host/doors/WindowsDoor.h"

/// The steps that the user can take back.
class HistoryDoor : public WindowsDoor {
public:
    using WindowsDoor::WindowsDoor;

    void undo() override {
        OPERATION();
        if (!m_history.isInMacro()) {
            m_history.undo();
        }
    }

    void redo() override {
        OPERATION();
        if (!m_history.isInMacro()) {
            m_history.redo();
        }
    }

    void resetHistory() override {
        OPERATION();
        m_history.forget();
    }

    bool canUndo() override {
        OPERATION();
        return m_history.stack().canUndo();
    }

    bool canRedo() override {
        OPERATION();
        return m_history.stack().canRedo();
    }

    void beginMacro(const QString& name) override {
        OPERATION(name);
        m_history.beginMacro(name);
    }

    void endMacro() override {
        OPERATION();
        m_history.endMacro();
    }

private:
    static constexpr char kInterface[] = "HostHistory";
};
