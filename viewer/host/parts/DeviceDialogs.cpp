#include "viewer/host/parts/DeviceDialogs.h"

#include "livecontrol/devices/GUI_CameraNetworkSettingDialog.h"
#include "livecontrol/devices/GUI_DiscoverySearchDialog.h"
#include "livecontrol/devices/GUI_EditDeviceDialog.h"
#include "viewer/host/parts/SearchSettingsMediator.h"

bool DeviceDialogs::edit(HostObject& host, DOCKEY key, QWidget* parent) {
    GUI_EditDeviceDialog dialog(&host, key, parent);
    dialog.exec();
    return dialog.isAddressChanged();
}

void DeviceDialogs::search(HostObject& host, const QString& results, QWidget* parent) {
    GUI_DiscoverySearchDialog dialog(&host, QStringLiteral("Camera search"),
                                     QStringLiteral("qrc:/discovery_search.html"), results, parent);
    dialog.addMediator(std::make_unique<SearchSettingsMediator>(&host));
    dialog.exec();
}

bool DeviceDialogs::searchSettings(HostObject& host, QWidget* parent) {
    GUI_CameraNetworkSettingDialog dialog(&host, QStringLiteral("Camera search settings"),
                                          QStringLiteral("qrc:/camera_network_setting.html"), parent);
    dialog.setFixedSize(390, 190);
    return dialog.exec() == QDialog::Accepted;
}
