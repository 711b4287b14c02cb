#pragma once

#include <QPointer>
#include <QWebPage>
#include <QWebView>

class JS_Mediator;
class PLG_Interface;

/// The page of the side panel, with the native widgets that the plug-in's page embeds.
class SmallPage : public QWebPage {
    Q_OBJECT

public:
    using QWebPage::QWebPage;

    PLG_Interface* plugin = nullptr;

protected:
    QObject* createPlugin(const QString& classId, const QUrl& url, const QStringList& names,
                          const QStringList& values) override;
    void javaScriptConsoleMessage(const QString& message, int line, const QString& source) override;
};

/// The side panel: puts the plug-in's fragment into a document of its own and opens it.
class SmallPanel : public QWebView {
    Q_OBJECT

public:
    explicit SmallPanel(QWidget* parent = nullptr);

    /// Adds script objects to a page, now and whenever its scripts begin anew.
    static void attach(QWebView* view, JS_Mediator* mediator);

    void open(PLG_Interface* plugin);
    void close();

public slots:
    /// Called by the document once the page's own ready handlers have run.
    void ready();

signals:
    /// The page has been opened: the host updates everything once.
    void opened();

private:
    SmallPage* m_page;
    QPointer<QObject> m_pluginObject;
};
