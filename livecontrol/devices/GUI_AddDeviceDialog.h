#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

struct TypedCamera;

/// Lets the user enter a camera by hand, or a dummy that stands in for one.
class GUI_AddDeviceDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// With `connect` an added camera is connected at once. A null parent means the host's dialog parent.
    GUI_AddDeviceDialog(HostObject* host, bool connect, QWidget* parent = nullptr,
                        TypedCamera* typed = nullptr);

    /// Shows it, and again with what was typed as long as the camera could not be added and the user does not
    /// cancel.
    static void run(HostObject* host, bool connect, QWidget* parent);
};
