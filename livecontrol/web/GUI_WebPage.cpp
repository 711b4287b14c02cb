#include "livecontrol/web/GUI_WebPage.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/PLG_Interface.h"

#include <QHash>

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

} // namespace

GUI_WebPage::GUI_WebPage(HostObject* host, QObject* parent) : QWebPage(parent), m_host(host) {}

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
    plugin->createWidget();
    return plugin->getWidget();
}
