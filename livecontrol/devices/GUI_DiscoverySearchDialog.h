#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Shows the cameras that a search of all network adapters found. Made by the host, whose page it shows.
class GUI_DiscoverySearchDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `title` is untranslated, `url` the host's page, `searchResults` the JSON text that this page reads. A
    /// null parent means the host's dialog parent.
    GUI_DiscoverySearchDialog(HostObject* host, const QString& title, const QString& url,
                              const QString& searchResults, QWidget* parent = nullptr);
};
