#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostHistory";
}

void ViewerHost::undo() {
    OPERATION();
    if (!m_history.isInMacro()) {
        m_history.undo();
    }
}

void ViewerHost::redo() {
    OPERATION();
    if (!m_history.isInMacro()) {
        m_history.redo();
    }
}

void ViewerHost::resetHistory() {
    OPERATION();
    m_history.forget();
}

bool ViewerHost::canUndo() {
    OPERATION();
    return m_history.stack().canUndo();
}

bool ViewerHost::canRedo() {
    OPERATION();
    return m_history.stack().canRedo();
}

void ViewerHost::beginMacro(const QString& name) {
    OPERATION(name);
    m_history.beginMacro(name);
}

void ViewerHost::endMacro() {
    OPERATION();
    m_history.endMacro();
}
