#include "livecontrol/settings/GUI_CameraSettingsDialog.h"

#include "livecontrol/settings/JS_Mediator_CameraSettingsDialog.h"

GUI_CameraSettingsDialog::GUI_CameraSettingsDialog(HostObject* host, QWidget* parent, const QString& title,
                                                   const QString& folder)
    : GUI_WebViewDialog(host, title, QStringLiteral("qrc:/camerasettings.html"),
                        std::make_unique<JS_Mediator_CameraSettingsDialog>(host, folder), parent) {
    setFixedSize(600, 500);
}
