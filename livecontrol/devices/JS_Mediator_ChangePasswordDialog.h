#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `changepass`. The page asks checkPass() before onOk(). Passwords are never logged.
class JS_Mediator_ChangePasswordDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `maxPassLen` is in bytes of the local 8-bit encoding.
    JS_Mediator_ChangePasswordDialog(HostObject* host, const QString& oldPassword, const QString& newPassword,
                                     int maxPassLen);

public slots:
    void onOk(const QString& oldPass, const QString& newPass);
    void onCancel();
    QString getOldPassword();
    QString getNewPassword();
    int getMaxPassLen();
    /// True if no text is too long and both new ones are alike; tells the user the first failure otherwise.
    bool checkPass(const QString& oldPass, const QString& newPass1, const QString& newPass2);

private:
    bool fits(const QString& pass, const QString& warning);

    QString m_oldPassword;
    QString m_newPassword;
    int m_maxPassLen;
};
