#include "viewer/app/PageMediators.h"

#include "livecontrol/interface/JS_Mediator.h"

#include <QEvent>
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
    object->installEventFilter(this);
    view->page()->mainFrame()->addToJavaScriptWindowObject(name, object, QWebFrame::QtOwnership);
}

// A script can call deleteLater(), but who made an object ends it.
bool PageMediators::eventFilter(QObject* watched, QEvent* event) {
    return event->type() == QEvent::DeferredDelete || QObject::eventFilter(watched, event);
}

void PageMediators::addMediator(QWebView* view, JS_Mediator* mediator) {
    mediator->setView(view);
    m_mediators[view].append(mediator);
    add(view, mediator->scriptName(), mediator);
}

// What is not the program's own must not reach the cameras.
void PageMediators::populate(QWebView* view) {
    const QString scheme = view->page()->mainFrame()->url().scheme();
    if (!scheme.isEmpty() && scheme != QLatin1String("qrc") && scheme != QLatin1String("about")) {
        return;
    }
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
