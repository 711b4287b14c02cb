#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Asks for a password.
class GUI_InputPasswordDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// Begins with the text `password`. `maxPassLen` is in bytes of the local 8-bit encoding. A null parent
    /// means the host's dialog parent.
    GUI_InputPasswordDialog(HostObject* host, const QString& password, int maxPassLen,
                            QWidget* parent = nullptr);

    /// Runs the dialog. True if the user agreed, with his text in `password`; it is empty otherwise.
    bool getInputPassword(QString& password);
};
