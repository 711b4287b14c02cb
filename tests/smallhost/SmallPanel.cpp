#include "tests/smallhost/SmallPanel.h"

#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"

#include <QWebFrame>
#include <QWebSettings>

namespace {

// The order of docs/host-interface.md, then what the host's own script objects are to be.
QString documentAround(const QString& fragment) {
    QString head;
    for (const char* const sheet : {"ui.css", "ui-light.css"}) {
        head += QStringLiteral("<link rel='stylesheet' href='qrc:/%1'>").arg(QLatin1String(sheet));
    }
    for (const char* const script :
         {"zelerrors.js", "jquery.js", "jquery-ui.js", "sumoselect.js", "hogan.js", "const_types.js",
          "const_pref.js", "custom_control.js", "zel4func.js", "prefs_util.js", "ui.js", "devicelist.js"}) {
        head += QStringLiteral("<script src='qrc:/%1'></script>").arg(QLatin1String(script));
    }
    head +=
        QStringLiteral("<script>var zel4_obj = {openCameraList: true}, timeline = {translate: function "
                       "(text) { return text; }},"
                       "main = {showVariable: function () {}, showVariableRegist: function () {}};</script>");
    return QStringLiteral("<!DOCTYPE html><html class='style-light'><head>%1</head><body>%2"
                          "<script>jQuery(function () { smallpanel.ready(); });</script></body></html>")
        .arg(head, fragment);
}

} // namespace

QObject* SmallPage::createPlugin(const QString& classId, const QUrl& /*url*/, const QStringList& /*names*/,
                                 const QStringList& /*values*/) {
    if (!plugin || !classId.startsWith(plugin->getName() + QLatin1Char('_'))) {
        return nullptr;
    }
    plugin->createWidget();
    return plugin->getWidget();
}

void SmallPage::javaScriptConsoleMessage(const QString& message, int line, const QString& source) {
    qWarning().noquote() << "script:" << message << source << line;
}

SmallPanel::SmallPanel(QWidget* parent) : QWebView(parent), m_page(new SmallPage(this)) {
    QWebSettings::globalSettings()->setAttribute(QWebSettings::PluginsEnabled, true);
    setPage(m_page);
    QWebFrame* const frame = m_page->mainFrame();
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, this,
            [this, frame] { frame->addToJavaScriptWindowObject(QStringLiteral("smallpanel"), this); });
}

void SmallPanel::attach(QWebView* view, JS_Mediator* mediator) {
    mediator->setView(view);
    QWebFrame* const frame = view->page()->mainFrame();
    const auto add = [frame, alive = QPointer<QObject>(mediator), name = mediator->scriptName()] {
        if (alive) {
            frame->addToJavaScriptWindowObject(name, alive);
        }
    };
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, mediator, add);
    add();
}

void SmallPanel::open(PLG_Interface* plugin) {
    m_page->plugin = plugin;
    m_pluginObject = plugin;
    setHtml(documentAround(plugin->getHtml()), QUrl(QStringLiteral("qrc:/")));
}

// Ready handlers run in their order, and this one's is the last. Queued: what is opened is not opened by a
// script.
void SmallPanel::ready() {
    const auto openPage = [this] {
        if (m_pluginObject) {
            QMetaObject::invokeMethod(m_page->plugin->getMediator(), "open");
            emit opened();
        }
    };
    QMetaObject::invokeMethod(this, openPage, Qt::QueuedConnection);
}

void SmallPanel::close() {
    if (m_pluginObject) {
        QMetaObject::invokeMethod(m_page->plugin->getMediator(), "close");
    }
    m_pluginObject.clear();
    m_page->plugin = nullptr;
}
