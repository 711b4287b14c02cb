#include "livecontrol/devices/GUI_AddDeviceDialog.h"

#include "livecontrol/devices/JS_Mediator_AddDeviceDialog.h"
#include "livecontrol/devices/JS_Mediator_AutoCameraName.h"
#include "livecontrol/interface/GUI_WebView.h"

#include <QPointer>

GUI_AddDeviceDialog::GUI_AddDeviceDialog(HostObject* host, bool connect, QWidget* parent, TypedCamera* typed)
    : GUI_WebViewDialog(host, QStringLiteral("Add Device"), QStringLiteral("qrc:/livecontrol_adddevice.html"),
                        std::make_unique<JS_Mediator_AddDeviceDialog>(host, connect, typed),
                        parentOr(parent, host)) {
    addMediator(std::make_unique<JS_Mediator_AutoCameraName>(host, QStringLiteral("adddeviceAutoCameraName"),
                                                             view()));
    setWindowFlags(windowFlags() & ~(Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint |
                                     Qt::WindowMinMaxButtonsHint | Qt::WindowStaysOnTopHint));
    setFixedSize(395, 195);
}

void GUI_AddDeviceDialog::run(HostObject* host, bool connect, QWidget* parent) {
    const QPointer<QWidget> over(parent);
    TypedCamera typed;
    do {
        GUI_AddDeviceDialog(host, connect, over, &typed).exec();
    } while (typed.hasFailed);
}
