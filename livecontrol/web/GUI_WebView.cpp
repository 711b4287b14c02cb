#include "livecontrol/interface/GUI_WebView.h"

#include "livecontrol/web/GUI_WebPage.h"

GUI_WebView::GUI_WebView(HostObject* host, QWidget* parent)
    : QWebView(parent), m_page(std::make_unique<GUI_WebPage>(host)) {
    setPage(m_page.get());
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
}

GUI_WebView::~GUI_WebView() {
    if (m_inspector) {
        m_inspector->close();
        delete m_inspector;
    }
    setPage(nullptr); // the page goes before the view does
}

void GUI_WebView::showCustomContextMenu(const QPoint& pos) {
    if (!m_menu.isEmpty()) {
        m_menu.exec(mapToGlobal(pos));
    }
}

void GUI_WebView::execWebInspector() {
    if (m_inspector) {
        triggerPageAction(QWebPage::InspectElement);
    }
}
