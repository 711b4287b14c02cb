// The Wi-Fi unit of a camera. Its operations are called on a worker thread too; they touch nothing but the
// unit.

#include "livecontrol/interface/records.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/Wifi.h"
#include "viewer/documents/adapters/SettingsAdapter.h"
#include "viewer/documents/commands/CameraCommands.h"

namespace {
constexpr char kInterface[] = "DOC_Settings";
} // namespace

// The caller's thread swallows what is thrown.
void SettingsAdapter::runWifi(const std::function<void()>& command) {
    list().takeWifiFailure(); // of an operation before, which was shown or given up
    try {
        CameraCommands(CommandKey::Link).runNamed(body()->name(), command);
    } catch (const CameraFailure& error) {
        list().keepWifiFailure(error.failure());
        throw;
    }
}

Wifi* SettingsAdapter::wifi() const { return body() ? body()->wifi() : nullptr; }

int SettingsAdapter::getWifiState() {
    OPERATION();
    return wifi() && wifi()->isConnected() ? 1 : 0;
}

int SettingsAdapter::getEtherType() {
    OPERATION();
    return document().etherType();
}

void SettingsAdapter::setEtherType(int type) {
    OPERATION(type);
    document().setEtherType(wifi() ? type : 0);
}

void SettingsAdapter::scanAccessPoints() {
    OPERATION();
    if (wifi()) {
        runWifi([&] { wifi()->scan(); });
    }
}

int SettingsAdapter::getAccessPointCount() {
    OPERATION();
    return wifi() ? wifi()->found().size() : 0;
}

void SettingsAdapter::getAccessPoint(AccessPointInfo& info, int index) {
    OPERATION(index);
    info = AccessPointInfo();
    const Wifi::AccessPoint point =
        wifi() ? wifi()->found().value(index, Wifi::AccessPoint()) : Wifi::AccessPoint();
    info.ssid = point.ssid;
    info.mac = point.mac;
    info.security = point.security;
    info.password = point.password;
    info.connected = point.connected;
    info.receive = point.receive;
}

void SettingsAdapter::setAccessPointPassword(int index, const QString& password) {
    OPERATION(index); // not the password: the list of calls is shown
    if (wifi()) {
        wifi()->setPassword(index, password);
    }
}

void SettingsAdapter::connectAccessPoint(int index) {
    OPERATION(index);
    if (wifi()) {
        runWifi([&] { wifi()->join(index); });
    }
}
