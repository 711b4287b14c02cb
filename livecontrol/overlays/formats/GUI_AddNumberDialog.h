#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Lets the user choose how many digits the numbers in the names of saved files and folders have.
class GUI_AddNumberDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// See JS_Mediator_AddNumberDialog. A null parent means the host's dialog parent. Throws what the host
    /// throws.
    GUI_AddNumberDialog(HostObject* host, QWidget* parent, int callbackType, int deviceCount, int headCount);
};
