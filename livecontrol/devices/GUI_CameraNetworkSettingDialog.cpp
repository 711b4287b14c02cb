#include "livecontrol/devices/GUI_CameraNetworkSettingDialog.h"

#include "livecontrol/devices/JS_Mediator_CameraNetworkSettingDialog.h"

GUI_CameraNetworkSettingDialog::GUI_CameraNetworkSettingDialog(HostObject* host, const QString& title,
                                                               const QString& url, QWidget* parent)
    : GUI_WebViewDialog(host, title, url, std::make_unique<JS_Mediator_CameraNetworkSettingDialog>(host),
                        parentOr(parent, host)) {}

void GUI_CameraNetworkSettingDialog::cancel() {
    reject();
    close();
}
