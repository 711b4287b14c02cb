#pragma once

#include <QWebPage>

class HostObject;

/// A page of the application: creates the native widgets that pages embed with an `object` element, and keeps
/// the pages' console output out of the log.
class GUI_WebPage : public QWebPage {
    Q_OBJECT

public:
    /// `host` is not owned and must outlive the page.
    explicit GUI_WebPage(HostObject* host, QObject* parent = nullptr);

    /// The widget for `classId`: the host's document area for "mdi", else the widget of the plug-in that
    /// serves the class, or a text in its place on a screen without OpenGL. Null for a class or a plug-in
    /// that isn't there; the engine then shows nothing. The engine owns the result.
    QObject* createPlugin(const QString& classId, const QUrl& url, const QStringList& paramNames,
                          const QStringList& paramValues) override;

    /// What leads away from a page or loads it anew is no action of ours.
    void triggerAction(WebAction action, bool checked = false) override;

    /// A pointer that leaves the view is told as one outside of it, and marks nothing there any more.
    bool event(QEvent* event) override;

protected:
    /// Pages lie in the program; what leads elsewhere is refused.
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request,
                                 NavigationType type) override;
    void javaScriptConsoleMessage(const QString&, int, const QString&) override {}

private:
    QObject* widgetOf(const QString& classId);

    HostObject* m_host;
};
