#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

class DOC_Interface;

/// Connects a camera with an access point.
class GUI_WifiSettingDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `document` is the camera's; not owned, not null, outlives the dialog. A null parent means the host's
    /// dialog parent.
    GUI_WifiSettingDialog(HostObject* host, DOC_Interface* document, QWidget* parent = nullptr);
};
