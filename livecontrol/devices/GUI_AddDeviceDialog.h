#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Lets the user enter a camera by hand, or a dummy that stands in for one.
class GUI_AddDeviceDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// With `connect` an added camera is connected at once. A null parent means the host's dialog parent.
    GUI_AddDeviceDialog(HostObject* host, bool connect, QWidget* parent = nullptr);
};
