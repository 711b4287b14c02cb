#include "livecontrol/devices/GUI_InputPasswordDialog.h"

#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/interface/GUI_WebView.h"

GUI_InputPasswordDialog::GUI_InputPasswordDialog(HostObject* host, const QString& password, int maxPassLen,
                                                 QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Input password"),
                        QStringLiteral("qrc:/input_password_dialog.html"),
                        std::make_unique<JS_Mediator_InputPasswordDialog>(host, password, maxPassLen),
                        parentOr(parent, host)) {
    setFixedSize(240, 120);
    view()->setFocus();
}

bool GUI_InputPasswordDialog::getInputPassword(QString& password) {
    password.clear();
    if (exec() != QDialog::Accepted) {
        return false;
    }
    password = static_cast<JS_Mediator_InputPasswordDialog*>(mediator())->getPassword();
    return true;
}
