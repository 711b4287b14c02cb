#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Holds how and where the search for cameras looks. Made by the host, whose page it shows.
class GUI_CameraNetworkSettingDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `title` is untranslated, `url` the host's page. A null parent means the host's dialog parent.
    GUI_CameraNetworkSettingDialog(HostObject* host, const QString& title, const QString& url,
                                   QWidget* parent = nullptr);

public slots:
    /// For the host's buttons: there is nothing to store, the page stores as it goes.
    void ok() {}
    void cancel();
};
