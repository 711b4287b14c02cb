#include "livecontrol/web/GUI_EmbeddedWidget.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/HostObject.h"

GUI_EmbeddedWidget::GUI_EmbeddedWidget(HostObject* host, const QString& pluginName, QWidget* parent)
    : QOpenGLWidget(parent), m_host(host), m_plugin(host->findPlugin(pluginName)) {
    setMouseTracking(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
}

void GUI_EmbeddedWidget::initializeGL() { initializeOpenGLFunctions(); }

void GUI_EmbeddedWidget::enterEvent(QEvent* event) {
    reportingFailures(m_host, [&] { m_host->enterNativeWidget(event); });
}

void GUI_EmbeddedWidget::leaveEvent(QEvent* event) {
    reportingFailures(m_host, [&] { m_host->leaveNativeWidget(event); });
}

void GUI_EmbeddedWidget::mousePressEvent(QMouseEvent* event) {
    reportingFailures(m_host, [&] { m_host->nativeWidgetPressed(event); });
}
