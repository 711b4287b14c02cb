#include "viewer/host/DeviceDialogs.h"

#include "livecontrol/devices/GUI_DiscoverySearchDialog.h"
#include "livecontrol/devices/GUI_EditDeviceDialog.h"

void DeviceDialogs::edit(HostObject& host, DOCKEY key, QWidget* parent) {
    GUI_EditDeviceDialog(&host, key, parent).exec();
}

void DeviceDialogs::search(HostObject& host, const QString& results, QWidget* parent) {
    GUI_DiscoverySearchDialog(&host, QStringLiteral("Camera search"),
                              QStringLiteral("qrc:/discovery_search.html"), results, parent)
        .exec();
}
