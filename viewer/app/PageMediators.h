#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class JS_Mediator;
class QWebView;

/// Which script object stands in which page. A page's objects go with each load, so they are added whenever
/// the frame asks. Neither views nor objects are owned; what is destroyed is forgotten.
class PageMediators : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Adds the object to the view's main frame under the name, now and after every load.
    void add(QWebView* view, const QString& name, QObject* object);
    /// The same for a mediator under its script name; stores the view in it.
    void addMediator(QWebView* view, JS_Mediator* mediator);
    /// Emits `update` of the mediators of all views but that one.
    void updateAllBut(const QWebView* view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry {
        QString name;
        QPointer<QObject> object;
    };

    void populate(QWebView* view);

    QHash<QWebView*, QList<Entry>> m_entries;
    QHash<QWebView*, QList<QPointer<JS_Mediator>>> m_mediators;
};
