#include "livecontrol/web/GUI_SelectBox.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/web/JS_Mediator_SelectBox.h"

#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>

// A tool window, not a popup: a popup would take the mouse from the page under it, which learns of a press
// beside the list and closes it.
GUI_SelectBox::GUI_SelectBox(HostObject* host, const QUrl& page, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint), m_host(host),
      m_items(std::make_unique<JS_Mediator_SelectBox>(host)), m_view(new GUI_WebView(host, this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    m_items->setView(m_view);
    connect(m_view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
            &GUI_SelectBox::addJSObject);
    connect(m_view, &QWebView::loadFinished, this, &GUI_SelectBox::onLoadFinish);
    connect(m_items.get(), &JS_Mediator::close, this, &GUI_SelectBox::onClose);
    connect(m_items.get(), &JS_Mediator::update, this, &GUI_SelectBox::onUpdate);
    onUpdate();
    m_view->load(page);
}

GUI_SelectBox::~GUI_SelectBox() = default;

void GUI_SelectBox::setVisible(bool visible) {
    m_wantVisible = visible;
    QWidget::setVisible(visible && m_loaded);
}

void GUI_SelectBox::addJSObject() {
    reportingFailures(m_host, [this] {
        QWebFrame* const frame = m_view->page()->mainFrame();
        const auto add = [frame](const char* name, QObject* object) {
            if (object) {
                frame->addToJavaScriptWindowObject(QLatin1String(name), object, QWebFrame::QtOwnership);
            }
        };
        add("app", m_host->getAppScriptObject());
        add("main", m_host->getMainScriptObject());
        add("items", m_items.get());
    });
}

void GUI_SelectBox::onLoadFinish(bool ok) {
    m_loaded = ok;
    setVisible(m_wantVisible);
}

void GUI_SelectBox::onClose() { hide(); }

void GUI_SelectBox::onUpdate() {
    reportingFailures(m_host, [this] {
        const QString style = m_host->getPrefString(QStringLiteral("env/style"), QVariant(), 0);
        const bool isLight = style == QLatin1String("light");
        m_view->setStyleSheet(isLight ? QStringLiteral("background:#eee;")
                                      : QStringLiteral("background:#333;"));
    });
}
