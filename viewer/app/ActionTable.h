#pragma once

#include <QHash>
#include <QKeySequence>
#include <QObject>

class QAction;
class QActionGroup;

/// The actions of the main window by their names, each with icon, shortcut and a text in the user's language.
class ActionTable : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// text: a source text of the translations; the tool tip is the same followed by the shortcut.
    QAction* add(const QString& name, const char* text, const QKeySequence& shortcut = QKeySequence(),
                 bool checkable = false, QActionGroup* group = nullptr);
    QAction* get(const QString& name) const { return m_actions.value(name); }
    QList<QAction*> all() const { return m_order; }
    /// Sets all texts anew, and the icons in the colors of the style.
    void retranslate();

private:
    struct Texts {
        const char* text;
        QString icon;
    };

    void dress(QAction* action);

    QHash<QString, QAction*> m_actions;
    QHash<QAction*, Texts> m_texts;
    QList<QAction*> m_order;
};
