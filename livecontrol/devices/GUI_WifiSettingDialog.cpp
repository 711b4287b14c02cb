#include "livecontrol/devices/GUI_WifiSettingDialog.h"

#include "livecontrol/devices/JS_Mediator_WifiSettingDialog.h"

GUI_WifiSettingDialog::GUI_WifiSettingDialog(HostObject* host, DOC_Interface* document, QWidget* parent)
    : GUI_WebViewDialog(
          host, QStringLiteral("Camera WiFi Setting"), QStringLiteral("qrc:/wifi_setting_dialog.html"),
          std::make_unique<JS_Mediator_WifiSettingDialog>(host, document, this), parentOr(parent, host)) {
    setFixedSize(300, 470);
}
