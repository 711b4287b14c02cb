#include "viewer/host/parts/SearchSettingsMediator.h"

#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "viewer/host/parts/DeviceDialogs.h"
#include "viewer/host/parts/cameras/CameraFinder.h"

#include <QJsonArray>
#include <QJsonDocument>

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

bool SearchSettingsMediator::areConnected(const QString& addresses) {
    return guarded(
        [&] {
            QStringList missing =
                QVariant(QJsonDocument::fromJson(addresses.toUtf8()).array().toVariantList()).toStringList();
            for (const DOCKEY key : host()->listCameraKeys(true, false)) {
                if (DOC_Interface* const document = host()->docByKey(key, true)) {
                    missing.removeAll(docAs<DOC_Settings>(document).getIPAddress(true));
                }
            }
            return missing.isEmpty();
        },
        false);
}
