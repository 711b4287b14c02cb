#pragma once

#include <QMenu>
#include <QWebView>
#include <memory>

class GUI_WebPage;
class HostObject;

/// A web view without the habits of a browser: no context menu of its own, no drops.
class GUI_WebView : public QWebView {
    Q_OBJECT

public:
    /// `host` is not owned and must outlive the view.
    explicit GUI_WebView(HostObject* host, QWidget* parent = nullptr);
    ~GUI_WebView() override;

    /// Actions of the custom context menu; empty at the start.
    QMenu& menu() { return m_menu; }

public slots:
    /// Runs the custom menu at `pos` (view coordinates), if it has actions.
    void showCustomContextMenu(const QPoint& pos);
    /// Inspects the element under the pointer, if an inspector window is set.
    void execWebInspector();

private:
    std::unique_ptr<GUI_WebPage> m_page;
    QMenu m_menu;
    QWidget* m_inspector = nullptr;
};
