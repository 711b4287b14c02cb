#pragma once

#include "livecontrol/interface/JS_Mediator.h"

/// The script object `searchsettings` of the page that shows what a search found.
class SearchSettingsMediator : public JS_Mediator {
    Q_OBJECT

public:
    explicit SearchSettingsMediator(HostObject* host);

public slots:
    /// Runs the dialog that holds where a search looks, over the page's own. False if it was cancelled.
    bool openSettings();
    /// The network that a search looks in, such as "192.168.0.*"; empty for everywhere.
    QString place();
    /// Whether a connected camera has each of the addresses, a JSON array of texts.
    bool areConnected(const QString& addresses);
};
