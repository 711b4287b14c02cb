#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `discoverysearch`: cameras that a search found. The layout of the results is a matter
/// between the host and its page.
class JS_Mediator_DiscoverySearchDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    JS_Mediator_DiscoverySearchDialog(HostObject* host, const QString& searchResults);

public slots:
    /// What the first search found.
    QString getSearchResults();
    /// Searches again; the result isn't kept.
    QString getSearchAgainResults();
    /// Connects cameras; `json` is an array of the host's identifiers.
    void connect(const QString& json);
    /// Changes the addresses of a camera: an object with the texts `adapteraddress`, `ipaddress`,
    /// `subnetmask`, `defaultgateway` and `macaddress`.
    void setNetworkSettings(const QString& json);

private:
    QString m_searchResults;
};
