#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

class JS_Mediator_ChangePasswordDialog;

/// Asks for an old and a new password.
class GUI_ChangePasswordDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// Begins with the two texts. `maxPassLen` is in bytes of the local 8-bit encoding. A null parent means
    /// the host's dialog parent.
    GUI_ChangePasswordDialog(HostObject* host, const QString& oldPassword, const QString& newPassword,
                             int maxPassLen, QWidget* parent = nullptr);

    /// What the user entered, once he agreed.
    QString oldPassword() const;
    QString newPassword() const;

private:
    JS_Mediator_ChangePasswordDialog& passwords() const;
};
