#include "viewer/app/PageMediators.h"

#include "livecontrol/bridge/JS_Mediator.h"

#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

void PageMediators::add(QWebView* view, const QString& name, QObject* object) {
    if (!m_entries.contains(view)) {
        connect(view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
                [this, view] { populate(view); });
        connect(view, &QObject::destroyed, this, [this, view] {
            m_entries.remove(view);
            m_mediators.remove(view);
        });
    }
    m_entries[view].append({name, object});
    view->page()->mainFrame()->addToJavaScriptWindowObject(name, object, QWebFrame::QtOwnership);
}

void PageMediators::addMediator(QWebView* view, JS_Mediator* mediator) {
    mediator->setView(view);
    m_mediators[view].append(mediator);
    add(view, mediator->scriptName(), mediator);
}

void PageMediators::populate(QWebView* view) {
    for (const Entry& entry : m_entries.value(view)) {
        if (entry.object) {
            view->page()->mainFrame()->addToJavaScriptWindowObject(entry.name, entry.object,
                                                                   QWebFrame::QtOwnership);
        }
    }
}

void PageMediators::updateAllBut(const QWebView* view) {
    // Over a copy: an update may open or close a dialog.
    const auto mediators = m_mediators;
    for (auto it = mediators.begin(); it != mediators.end(); ++it) {
        if (it.key() == view) {
            continue;
        }
        for (const QPointer<JS_Mediator>& mediator : it.value()) {
            if (mediator) {
                emit mediator->update();
            }
        }
    }
}
