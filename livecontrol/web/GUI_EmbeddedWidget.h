#pragma once

#include <QOpenGLFunctions>
#include <QOpenGLWidget>

class HostObject;
class PLG_Interface;

/// Base of the native OpenGL widgets that pages embed with an `object` element; tells the host of the
/// pointer.
class GUI_EmbeddedWidget : public QOpenGLWidget, protected QOpenGLFunctions {
    Q_OBJECT

public:
    /// `pluginName` finds the plug-in that the widget belongs to; it may be missing.
    GUI_EmbeddedWidget(HostObject* host, const QString& pluginName, QWidget* parent);

protected:
    void initializeGL() override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

    HostObject* m_host;      ///< Not owned.
    PLG_Interface* m_plugin; ///< Not owned; null if the host has no such plug-in.
};
