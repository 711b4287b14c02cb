#include "livecontrol/devices/GUI_ChangePasswordDialog.h"

#include "livecontrol/devices/JS_Mediator_ChangePasswordDialog.h"
#include "livecontrol/interface/GUI_WebView.h"

GUI_ChangePasswordDialog::GUI_ChangePasswordDialog(HostObject* host, const QString& oldPassword,
                                                   const QString& newPassword, int maxPassLen,
                                                   QWidget* parent)
    : GUI_WebViewDialog(
          host, QStringLiteral("Change Password"), QStringLiteral("qrc:/change_password_dialog.html"),
          std::make_unique<JS_Mediator_ChangePasswordDialog>(host, oldPassword, newPassword, maxPassLen),
          parentOr(parent, host)) {
    setFixedSize(400, 185);
    view()->setFocus();
}

JS_Mediator_ChangePasswordDialog& GUI_ChangePasswordDialog::passwords() const {
    return *static_cast<JS_Mediator_ChangePasswordDialog*>(mediator());
}

QString GUI_ChangePasswordDialog::oldPassword() const { return passwords().getOldPassword(); }

QString GUI_ChangePasswordDialog::newPassword() const { return passwords().getNewPassword(); }
