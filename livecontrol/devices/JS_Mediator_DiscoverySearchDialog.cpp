#include "livecontrol/devices/JS_Mediator_DiscoverySearchDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/UTL_Network.h"
#include "livecontrol/interface/HostObject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

JS_Mediator_DiscoverySearchDialog::JS_Mediator_DiscoverySearchDialog(HostObject* host,
                                                                     const QString& searchResults)
    : JS_Mediator_Dialog(host, QStringLiteral("discoverysearch")), m_searchResults(searchResults) {}

QString JS_Mediator_DiscoverySearchDialog::getSearchResults() {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_DiscoverySearchDialog::getSearchResults"));
    return m_searchResults;
}

QString JS_Mediator_DiscoverySearchDialog::getSearchAgainResults() {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_DiscoverySearchDialog::getSearchAgainResults"));
    return guarded([&] { return host()->discoverySearchAgain(); }, QString());
}

void JS_Mediator_DiscoverySearchDialog::connect(const QString& json) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DiscoverySearchDialog::connect"),
                                      traceArgs({{"json", json}}));
    guarded([&] {
        QStringList cameras;
        const QJsonArray rows = QJsonDocument::fromJson(json.toUtf8()).array();
        for (const QJsonValue& row : rows) {
            cameras.append(row.toVariant().toString());
        }
        if (!cameras.isEmpty()) {
            host()->connectCameras(cameras);
        }
    });
}

void JS_Mediator_DiscoverySearchDialog::setNetworkSettings(const QString& json) {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_DiscoverySearchDialog::setNetworkSettings"),
                                      traceArgs({{"json", json}}));
    guarded([&] {
        const QJsonObject settings = QJsonDocument::fromJson(json.toUtf8()).object();
        const auto address = [&settings](const char* key) {
            return parseIPv4(settings[QLatin1String(key)].toString());
        };
        host()->setDiscoveryNetwork(address("adapteraddress"), address("ipaddress"), address("subnetmask"),
                                    address("defaultgateway"),
                                    settings[QLatin1String("macaddress")].toString());
    });
}
