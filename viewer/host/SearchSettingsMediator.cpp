#include "viewer/host/SearchSettingsMediator.h"

#include "livecontrol/plugin/host/HostObject.h"
#include "viewer/host/CameraFinder.h"
#include "viewer/host/DeviceDialogs.h"

SearchSettingsMediator::SearchSettingsMediator(HostObject* host)
    : JS_Mediator(host, QStringLiteral("searchsettings")) {}

bool SearchSettingsMediator::openSettings() {
    return guarded([&] { return DeviceDialogs::searchSettings(*host(), view()->window()); }, false);
}

QString SearchSettingsMediator::place() {
    return guarded(
        [&] {
            const int way = host()->getPrefInt(QStringLiteral("cameraconnection/SearchWay"), 0);
            const QString address =
                host()->getPrefString(QStringLiteral("cameraconnection/SearchIP"), QString(), 0);
            return CameraFinder::placeText(CameraFinder::placeOf(way, address));
        },
        QString());
}
