#include "livecontrol/web/GUI_PageDialog.h"

#include "livecontrol/foundation/WindowHelpers.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/HostObject.h"

#include <QPropertyAnimation>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>

GUI_PageDialog::GUI_PageDialog(HostObject* host, const QString& title, QWidget* parent, Qt::WindowFlags flags)
    : GUI_Dialog(parent, flags, false), m_host(host), m_view(std::make_unique<GUI_WebView>(host, this)) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_modal.emplace(m_host, ModalScope::AtShutdown::StaySilent);
    setWindowTitle(m_host->translate(title, nullptr, 0));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view.get());
    connect(m_view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
            &GUI_PageDialog::populateJavaScriptWindowObject);
    connect(m_view.get(), &QWebView::loadFinished, this, &GUI_PageDialog::onLoaded);
}

GUI_PageDialog::~GUI_PageDialog() {
    m_modal.reset();
    m_view->disconnect(this); // its page may still be loading
    m_view->page()->mainFrame()->disconnect(this);
    m_view->close();
    m_view.reset();
}

void GUI_PageDialog::loadPage(const QString& url) {
    m_view->setFocus(Qt::OtherFocusReason);
    setWindowOpacity(0.0);
    m_view->load(QUrl(url));
}

void GUI_PageDialog::onLoaded() {
    reportingFailures(m_host, [this] { centerOnScreen(m_host, this); });
    createFadeIn(this)->start(QAbstractAnimation::DeleteWhenStopped);
}

void GUI_PageDialog::addToPage(const QString& name, QObject* object) {
    if (object) {
        m_view->page()->mainFrame()->addToJavaScriptWindowObject(name, object, QWebFrame::QtOwnership);
    }
}

QString GUI_PageDialog::translate(const QString& text) {
    return guarded([&] { return m_host->translate(text, nullptr, 0); }, QString());
}

QString GUI_PageDialog::style() const {
    return m_host->getPref(QStringLiteral("env/style"), QStringLiteral("dark")).toString();
}

QString GUI_PageDialog::getStyle() {
    return guarded([this] { return style(); }, QStringLiteral("dark"));
}
