#include "viewer/app/ActionTable.h"

#include "viewer/app/look/Icons.h"
#include "viewer/messages/Translated.h"

#include <QAction>
#include <QActionGroup>

QAction* ActionTable::add(const QString& name, const char* text, const QKeySequence& shortcut, bool checkable,
                          QActionGroup* group) {
    auto* const action = new QAction(this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setCheckable(checkable);
    if (group) {
        group->addAction(action);
    }
    m_actions.insert(name, action);
    m_texts.insert(action, {text, name});
    m_order.append(action);
    dress(action);
    return action;
}

void ActionTable::dress(QAction* action) {
    const Texts& texts = m_texts[action];
    const QString text = translated(texts.text);
    const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
    action->setText(text);
    action->setToolTip(shortcut.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, shortcut));
    action->setIcon(Icons::get(texts.icon));
}

void ActionTable::retranslate() {
    for (QAction* const action : m_order) {
        dress(action);
    }
}
