#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostHistory";
}

void ViewerHost::undo() {
    OPERATION();
    if (m_macros == 0) {
        m_history.undo();
    }
}

void ViewerHost::redo() {
    OPERATION();
    if (m_macros == 0) {
        m_history.redo();
    }
}

void ViewerHost::resetHistory() {
    OPERATION();
    forgetHistory();
}

bool ViewerHost::canUndo() {
    OPERATION();
    return m_history.canUndo();
}

bool ViewerHost::canRedo() {
    OPERATION();
    return m_history.canRedo();
}

void ViewerHost::beginMacro(const QString& name) {
    OPERATION(name);
    ++m_macros;
    m_newMacros.append(name); // opened by its first step
}

void ViewerHost::endMacro() {
    OPERATION();
    if (m_macros > 0) {
        --m_macros;
        if (m_newMacros.isEmpty()) {
            m_history.endMacro();
        } else {
            m_newMacros.removeLast();
        }
    }
}
