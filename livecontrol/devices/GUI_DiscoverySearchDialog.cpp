#include "livecontrol/devices/GUI_DiscoverySearchDialog.h"

#include "livecontrol/devices/JS_Mediator_DiscoverySearchDialog.h"

GUI_DiscoverySearchDialog::GUI_DiscoverySearchDialog(HostObject* host, const QString& title,
                                                     const QString& url, const QString& searchResults,
                                                     QWidget* parent)
    : GUI_WebViewDialog(host, title, url,
                        std::make_unique<JS_Mediator_DiscoverySearchDialog>(host, searchResults),
                        parentOr(parent, host)) {}
