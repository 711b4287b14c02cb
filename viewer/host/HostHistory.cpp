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
    while (m_macros > 0) {
        --m_macros;
        m_history.endMacro();
    }
    m_history.clear();
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
    m_history.beginMacro(name);
}

void ViewerHost::endMacro() {
    OPERATION();
    if (m_macros > 0) {
        --m_macros;
        m_history.endMacro();
    }
}
