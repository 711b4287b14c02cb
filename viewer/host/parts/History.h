#pragma once

#include <QUndoStack>

#include <memory>

/// The steps that a user can take back. A macro joins several into one; one without a step leaves no trace.
class History : public QObject {
    Q_OBJECT

public:
    History();

    const QUndoStack& stack() const { return m_stack; }
    /// Takes a step in, inside the macro that is open.
    void push(std::unique_ptr<QUndoCommand> step);
    /// The same of a step that moves the area of a setting mode: it is forgotten with the end of the mode.
    void pushAreaStep(std::unique_ptr<QUndoCommand> step);
    /// The area has been moved by a step, of which its page knows already.
    void noteAreaMoved() { m_areaMoved = true; }
    void undo() { m_stack.undo(); }
    void redo() { m_stack.redo(); }
    bool isInMacro() const { return m_macros > 0; }
    void beginMacro(const QString& name);
    /// Without effect if none is open.
    void endMacro();
    void forget();
    /// The same if one of the steps has moved an area.
    void forgetAreaSteps();

signals:
    /// `areaOnly`: nothing else has moved, and the page knows.
    void changed(bool areaOnly);

private:
    QUndoStack m_stack;
    int m_macros = 0;        // open ones
    QStringList m_newMacros; // of these the innermost, in which nothing has happened yet
    bool m_areaSteps = false;
    bool m_areaMoved = false;
};
