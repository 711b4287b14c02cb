#include "livecontrol/web/GUI_WebPage.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/foundation/UTL_OpenGL.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/PLG_Interface.h"

#include <QDebug>
#include <QHash>
#include <QLabel>
#include <QMouseEvent>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

/// Name of the plug-in whose widget a class id stands for; empty for an unknown class.
QString pluginOfClass(const QString& classId) {
    const QHash<QString, QString> plugins{
        {QStringLiteral("histogram"), QStringLiteral("histogram")},
        {QStringLiteral("lineprofile"), QStringLiteral("lineprofile")},
        {QStringLiteral("lut"), QStringLiteral("lut")},
        {QStringLiteral("sensorlut"), QStringLiteral("m_sensorlut")},
        {QStringLiteral("livecontrol_hwimage_trigger_histogram"), QStringLiteral("livecontrol")},
        {QStringLiteral("livecontrol_auto_exposure_histogram"), QStringLiteral("livecontrol")},
        {QStringLiteral("imagetrigger_histogram"), QStringLiteral("imagetrigger")},
        {QStringLiteral("analoggain"), QStringLiteral("m_analoggain")},
        {QStringLiteral("focuscheck"), QStringLiteral("m_focuscheck")},
        {QStringLiteral("colorcorrection_histgram"), QStringLiteral("colorcorrection")},
    };
    return plugins.value(classId);
}

/// Answers for what lies in the program alone: no page reaches a network or a file.
class OwnResources : public QNetworkAccessManager {
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* data) override {
        const QString scheme = request.url().scheme();
        if (scheme == QLatin1String("qrc") || scheme == QLatin1String("data")) {
            return QNetworkAccessManager::createRequest(operation, request, data);
        }
        return QNetworkAccessManager::createRequest(GetOperation, QNetworkRequest(QUrl()));
    }
};

} // namespace

GUI_WebPage::GUI_WebPage(HostObject* host, QObject* parent) : QWebPage(parent), m_host(host) {
    setNetworkAccessManager(new OwnResources(this));
}

void GUI_WebPage::triggerAction(WebAction action, bool checked) {
    switch (action) {
    case Reload:
    case ReloadAndBypassCache:
    case Stop:
    case Back:
    case Forward:
        return;
    default:
        QWebPage::triggerAction(action, checked);
    }
}

// The engine would take the pointer's place on the screen for one in the view.
bool GUI_WebPage::event(QEvent* event) {
    if (event->type() != QEvent::Leave) {
        return QWebPage::event(event);
    }
    QMouseEvent outside(QEvent::MouseMove, QPoint(-1, -1), QCursor::pos(), Qt::NoButton, Qt::NoButton,
                        Qt::NoModifier);
    return QWebPage::event(&outside);
}

bool GUI_WebPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request,
                                          NavigationType type) {
    const QString scheme = request.url().scheme();
    // What stands in the address itself reaches no further than the page that it came from.
    const bool isOwn =
        scheme == QLatin1String("qrc") || scheme == QLatin1String("about") || scheme == QLatin1String("data");
    if (!isOwn) {
        qWarning().noquote()
            << QStringLiteral("A page was led to %1, which is refused.").arg(request.url().toDisplayString());
    }
    return isOwn && QWebPage::acceptNavigationRequest(frame, request, type);
}

QObject* GUI_WebPage::createPlugin(const QString& classId, const QUrl& /*url*/,
                                   const QStringList& /*paramNames*/, const QStringList& /*paramValues*/) {
    QObject* widget = nullptr;
    reportingFailures(m_host, [&] { widget = widgetOf(classId); });
    return widget;
}

QObject* GUI_WebPage::widgetOf(const QString& classId) {
    if (classId == QLatin1String("mdi")) {
        return m_host->getMdiArea();
    }
    const QString name = pluginOfClass(classId);
    if (name.isEmpty()) {
        return nullptr;
    }
    PLG_Interface* const plugin = m_host->findPlugin(name);
    if (!plugin) {
        return nullptr;
    }
    if (!hasOpenGL()) { // in which they draw
        auto* const note =
            new QLabel(m_host->translate(QStringLiteral("This screen has no OpenGL."), nullptr, 0));
        note->setAlignment(Qt::AlignCenter);
        note->setWordWrap(true);
        return note;
    }
    plugin->createWidget();
    return plugin->getWidget();
}
