// Opens the Wi-Fi dialog of a camera.

#include "livecontrol/devices/GUI_WifiSettingDialog.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

void JS_Mediator_LiveControl::wifiSetting(int docKey) {
    guarded([&] {
        if (DOC_Interface* const document = host()->docByKey(static_cast<DOCKEY>(docKey), true)) {
            GUI_WifiSettingDialog(host(), document, host()->getDialogParent()).exec();
        }
    });
}
