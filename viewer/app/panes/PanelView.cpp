#include "viewer/app/panes/PanelView.h"

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "pagelib/PageResources.h"
#include "viewer/app/PageMediators.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebPage>
#include <QWebSettings>

namespace {

// A JSON text is a script text but for two line ends that JSON allows in a text and the old engine does not.
QString scriptText(const QString& text) {
    QString literal = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    literal = literal.mid(1, literal.size() - 2);
    literal.replace(QChar(0x2028), QStringLiteral("\\u2028"));
    return literal.replace(QChar(0x2029), QStringLiteral("\\u2029"));
}

QString errorText(const QVariantMap& error) {
    return QStringLiteral("%1 (%2:%3)")
        .arg(error.value(QStringLiteral("message")).toString(),
             error.value(QStringLiteral("source")).toString(),
             error.value(QStringLiteral("line")).toString());
}

} // namespace

PanelView::PanelView(HostObject* host, PageMediators& mediators, QWidget* parent)
    : QWidget(parent), m_view(new GUI_WebView(host)), m_mediators(mediators),
      m_signals(new PanelSignals(this)) {
    pages::registerResources();
    QWebSettings* const settings = QWebSettings::globalSettings();
    settings->setAttribute(QWebSettings::PluginsEnabled, true);
    settings->setAttribute(QWebSettings::JavascriptEnabled, true);
    settings->setAttribute(QWebSettings::LocalContentCanAccessRemoteUrls, false);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setMinimumWidth(300);
    setFocusProxy(m_view);

    m_mediators.add(m_view, QStringLiteral("zelpanel_signals"), m_signals);
    // Queued: the page is opened outside the script that has reported that it is ready.
    connect(m_signals, &PanelSignals::ready, this, &PanelView::onReady);
    connect(m_signals, &PanelSignals::ready, this, &PanelView::onPageReady, Qt::QueuedConnection);
    connect(m_view, &QWebView::loadStarted, this, &PanelView::onLoadStarted);
    connect(m_view, &QWebView::loadFinished, this, &PanelView::onLoaded);
    m_view->load(QUrl(QStringLiteral("qrc:/zelpanel.html")));
}

PanelView::~PanelView() = default;

void PanelView::addMediator(JS_Mediator* mediator) { m_mediators.addMediator(m_view, mediator); }

QVariant PanelView::evaluate(const QString& script) {
    return m_loaded ? m_view->page()->mainFrame()->evaluateJavaScript(script) : QVariant();
}

// The engine makes a QVariant of whatever a script ends in; of a jQuery object that is the whole document,
// node by node, which takes longer than the page takes to load.
void PanelView::runScript(const QString& script) { evaluate(script + QLatin1String("\n;void 0")); }

// Whatever made the document load anew: the page in it goes, and comes up again.
void PanelView::onLoadStarted() {
    m_loaded = false;
    m_loading.clear();
    closePage();
}

void PanelView::onLoaded(bool ok) {
    if (!ok) {
        qCritical("The panel's page can't be loaded.");
        return;
    }
    m_loaded = true;
    setStyle(m_style);
    loadPage();
}

void PanelView::setStyle(const QString& name) {
    m_style = name;
    if (!name.isEmpty()) {
        runScript(QStringLiteral("zel4func.applyStyle(%1)").arg(scriptText(name)));
    }
}

void PanelView::showPlugin(PLG_Interface* plugin) {
    if (m_isParked && m_pluginObject) {
        if (!plugin) {
            return;
        }
        m_isParked = false;
        if (plugin == m_plugin) {
            if (m_pageOpen) {
                emit pageOpened();
            }
            return;
        }
    }
    closePage();
    m_plugin = plugin;
    m_pluginObject = plugin;
    loadPage();
}

void PanelView::drop() {
    m_isParked = false;
    showPlugin(nullptr);
}

// A parked one is built when it shows again.
void PanelView::reload() {
    if (m_isParked) {
        drop();
        return;
    }
    closePage();
    loadPage();
}

void PanelView::loadPage() {
    if (!m_loaded || !m_plugin) {
        return;
    }
    const QString html = m_plugin->getHtml();
    m_loading.insert(++m_load, {m_pluginObject, m_plugin});
    // Ready handlers run in their order, so this one comes after those of the page.
    runScript(QStringLiteral("panel.load(%1); jQuery(function () { zelpanel_signals.pageReady(%2); });")
                  .arg(scriptText(html))
                  .arg(m_load));
}

// A page that was replaced before it got ready has connected itself to its mediator all the same: it has to
// go before the one that took its place gets ready.
void PanelView::onReady(int load) {
    const Loading page = m_loading.take(load);
    if (load != m_load && page.object) {
        if (JS_Mediator* const mediator = page.plugin->getMediator()) {
            emit mediator->close();
        }
    }
}

void PanelView::onPageReady(int load) {
    if (load != m_load || !m_pluginObject || m_pageOpen) {
        return;
    }
    m_pageOpen = true;
    if (JS_Mediator* const mediator = m_plugin->getMediator()) {
        emit mediator->open();
    }
    emit pageOpened();
}

void PanelView::closePage() {
    ++m_load;
    m_isParked = false;
    if (m_pageOpen && m_pluginObject) {
        m_pageOpen = false;
        if (JS_Mediator* const mediator = m_plugin->getMediator()) {
            emit mediator->close();
        }
    }
    m_pageOpen = false;
    runScript(QStringLiteral("panel.clear()"));
}

QStringList PanelView::takeScriptErrors() {
    QStringList errors;
    const QVariant found =
        evaluate(QStringLiteral("window.zel_errors ? zel_errors.splice(0, zel_errors.length) : []"));
    for (const QVariant& error : found.toList()) {
        errors.append(errorText(error.toMap()));
    }
    return errors;
}
