#include "livecontrol/devices/GUI_EditDeviceDialog.h"

#include "livecontrol/devices/JS_Mediator_AutoCameraName.h"
#include "livecontrol/devices/JS_Mediator_EditDeviceDialog.h"
#include "livecontrol/interface/GUI_WebView.h"

GUI_EditDeviceDialog::GUI_EditDeviceDialog(HostObject* host, DOCKEY docKey, QWidget* parent)
    : GUI_WebViewDialog(
          host, QStringLiteral("Edit Device"), QStringLiteral("qrc:/livecontrol_editdevice.html"),
          std::make_unique<JS_Mediator_EditDeviceDialog>(host, docKey), parentOr(parent, host)) {
    addMediator(std::make_unique<JS_Mediator_AutoCameraName>(host, QStringLiteral("editdeviceAutoCameraName"),
                                                             view()));
    setFixedSize(395, 430);
}

bool GUI_EditDeviceDialog::isAddressChanged() const {
    return static_cast<JS_Mediator_EditDeviceDialog*>(mediator())->isAddressChanged();
}
