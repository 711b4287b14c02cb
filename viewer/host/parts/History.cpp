#include "viewer/host/parts/History.h"

History::History() {
    connect(&m_stack, &QUndoStack::indexChanged, this, [this] {
        const bool areaOnly = m_areaMoved;
        m_areaMoved = m_macros > 0 && m_areaMoved;
        emit changed(areaOnly);
    });
}

void History::push(std::unique_ptr<QUndoCommand> step) {
    for (const QString& name : qAsConst(m_newMacros)) {
        m_stack.beginMacro(name);
    }
    m_newMacros.clear();
    m_stack.push(step.release()); // owned by the stack
}

void History::pushAreaStep(std::unique_ptr<QUndoCommand> step) {
    m_areaSteps = true;
    noteAreaMoved();
    push(std::move(step));
}

void History::beginMacro(const QString& name) {
    ++m_macros;
    m_newMacros.append(name); // opened by its first step
}

void History::endMacro() {
    if (m_macros == 0) {
        return;
    }
    --m_macros;
    if (m_newMacros.isEmpty()) {
        m_stack.endMacro();
    } else {
        m_newMacros.removeLast();
    }
}

void History::forget() {
    for (; m_macros > m_newMacros.size(); --m_macros) {
        m_stack.endMacro();
    }
    m_newMacros.clear();
    m_macros = 0;
    m_areaMoved = m_areaSteps; // the page leaves the area by itself
    m_areaSteps = false;
    m_stack.clear();
}

void History::forgetAreaSteps() {
    if (m_areaSteps) {
        forget();
    }
}
