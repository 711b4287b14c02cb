#include "livecontrol/web/GUI_WebViewDialog.h"

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/WindowHelpers.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/HostObject.h"

#include <QPropertyAnimation>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>

#include <algorithm>

namespace {
const Qt::WindowFlags kFlags = Qt::WindowCloseButtonHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
} // namespace

GUI_WebViewDialog::GUI_WebViewDialog(HostObject* host, const QString& title, const QString& url,
                                     std::unique_ptr<JS_Mediator_Dialog> mediator, QWidget* parent)
    : GUI_Dialog(parent, kFlags, true), m_host(host), m_mediator(std::move(mediator)),
      m_layout(std::make_unique<QVBoxLayout>()), m_view(std::make_unique<GUI_WebView>(host, this)) {
    m_modal.emplace(m_host, ModalScope::AtShutdown::StaySilent);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_view.get());
    setLayout(m_layout.get());
    setWindowTitle(m_host->translate(title, nullptr, 0));
    connect(m_mediator.get(), &JS_Mediator_Dialog::accept, this, &QDialog::accept);
    connect(m_mediator.get(), &JS_Mediator_Dialog::reject, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, &GUI_WebViewDialog::slotRejected);
    connect(m_view.get(), &QWebView::loadStarted, this, &GUI_WebViewDialog::loadStarted);
    connect(m_view.get(), &QWebView::loadProgress, this, &GUI_WebViewDialog::loadProgress);
    connect(m_view.get(), &QWebView::loadFinished, this, &GUI_WebViewDialog::loadFinished);
    m_host->attachMediator(m_view.get(), m_mediator.get());
    m_view->load(QUrl(url));
}

QWidget* GUI_WebViewDialog::parentOr(QWidget* parent, HostObject* host) {
    return parent ? parent : host->getDialogParent();
}

GUI_WebViewDialog::~GUI_WebViewDialog() {
    m_modal.reset();
    m_refused = 0;
    reportingFailures(m_host, [this] {
        while (m_loading > 0 && !m_host->isClosing()) {
            endLoading(); // closed before its page was there
        }
    });
    m_mediator.reset();
    m_extraMediators.clear();
    m_view->close();
    m_view.reset();
    m_layout.reset();
}

void GUI_WebViewDialog::addMediator(std::unique_ptr<JS_Mediator> extra) {
    m_host->attachMediator(m_view.get(), extra.get());
    m_extraMediators.push_back(std::move(extra));
}

void GUI_WebViewDialog::slotRejected() {
    if (m_mediator) { // which may wait for its worker, and events with it, as it goes
        emit m_mediator->rejected();
    }
}

void GUI_WebViewDialog::loadStarted() {
    const OperationTrace trace(QStringLiteral("GUI_WebViewDialog::loadStarted"));
    ++m_refused; // until the host has taken it
    reportingFailures(m_host, [this] {
        m_host->deterUpdateUI(true);
        --m_refused;
        ++m_loading;
    });
    m_view->setFocus(Qt::OtherFocusReason);
    setWindowOpacity(0.0);
}

void GUI_WebViewDialog::loadProgress(int /*progress*/) {}

void GUI_WebViewDialog::loadFinished(bool ok) {
    const OperationTrace trace(QStringLiteral("GUI_WebViewDialog::loadFinished"), traceArgs({{"ok", ok}}));
    reportingFailures(m_host, [this] { centerOnScreen(m_host, this); });
    createFadeIn(this)->start(QAbstractAnimation::DeleteWhenStopped);
    reportingFailures(m_host, [this] { endLoading(); });
    if (m_refreshOnLoad) {
        reportingFailures(m_host, [this] { m_host->updateAll(-1, true); });
    }
    if (ok) {
        requireScriptObject();
    }
}

// Without it nothing on the page answers, its buttons neither: the user would have to guess.
void GUI_WebViewDialog::requireScriptObject() {
    const QString name = m_mediator->scriptName();
    const QVariant type =
        m_view->page()->mainFrame()->evaluateJavaScript(QStringLiteral("typeof window['%1']").arg(name));
    if (type.toString() == QLatin1String("undefined")) {
        const QString text = QStringLiteral("The page of \"%1\" can't work: its script object is missing.");
        std::runtime_error failure(text.arg(windowTitle()).toStdString());
        reportFailure(m_host, failure);
        reject();
    }
}

void GUI_WebViewDialog::endLoading() {
    if (m_refused > 0) { // what the host didn't hold is not ours to release
        --m_refused;
        return;
    }
    m_loading = std::max(0, m_loading - 1);
    m_host->deterUpdateUI(false);
}

void GUI_WebViewDialog::closeEvent(QCloseEvent* /*event*/) {
    const OperationTrace trace(QStringLiteral("GUI_WebViewDialog::closeEvent"));
    reject();
}
