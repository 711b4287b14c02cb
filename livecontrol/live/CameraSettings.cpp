// Opens the dialogs that keep the settings of the cameras and bring them back.

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/settings/CameraRows.h"
#include "livecontrol/settings/GUI_CameraFileDialog.h"
#include "livecontrol/settings/GUI_CameraSettingsDialog.h"

void JS_Mediator_LiveControl::save() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::save"));
    guarded([&] {
        if (host()->isAnyLowLightOn()) {
            host()->alert(translate(QStringLiteral(
                              "The setting can not be saved because low light ON camera is included.")),
                          host()->getDialogParent());
            return;
        }
        GUI_CameraSettingsDialog(host(), host()->getDialogParent(), QStringLiteral("Device Save"),
                                 settingsFolder(*host()))
            .exec();
    });
}

void JS_Mediator_LiveControl::load() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::load"));
    guarded([&] {
        if (host()->isAnyLowLightOn()) {
            host()->alert(
                translate(QStringLiteral(
                    "The settings cannot be loaded because a camera with low light ON is included.")),
                host()->getDialogParent());
            return;
        }
        host()->prepareSettingsLoad(false);
        GUI_CameraFileDialog(host(), host()->getDialogParent(), translate(QStringLiteral("Device Open")),
                             settingsFolder(*host()), QString())
            .exec();
    });
}
