#include "livecontrol/devices/JS_Mediator_ChangePasswordDialog.h"

#include "livecontrol/interface/HostObject.h"

JS_Mediator_ChangePasswordDialog::JS_Mediator_ChangePasswordDialog(HostObject* host,
                                                                   const QString& oldPassword,
                                                                   const QString& newPassword, int maxPassLen)
    : JS_Mediator_Dialog(host, QStringLiteral("changepass")), m_oldPassword(oldPassword),
      m_newPassword(newPassword), m_maxPassLen(maxPassLen) {}

void JS_Mediator_ChangePasswordDialog::onOk(const QString& oldPass, const QString& newPass) {
    m_oldPassword = oldPass;
    m_newPassword = newPass;
    emit accept();
}

void JS_Mediator_ChangePasswordDialog::onCancel() { emit reject(); }

QString JS_Mediator_ChangePasswordDialog::getOldPassword() { return m_oldPassword; }

QString JS_Mediator_ChangePasswordDialog::getNewPassword() { return m_newPassword; }

int JS_Mediator_ChangePasswordDialog::getMaxPassLen() { return m_maxPassLen; }

bool JS_Mediator_ChangePasswordDialog::checkPass(const QString& oldPass, const QString& newPass1,
                                                 const QString& newPass2) {
    return guarded(
        [&] {
            const QString newTooLong = QStringLiteral("Please New Password input within %1 bytes.");
            if (!fits(oldPass, QStringLiteral("Please Old Password input within %1 bytes.")) ||
                !fits(newPass1, newTooLong) || !fits(newPass2, newTooLong)) {
                return false;
            }
            if (newPass1 != newPass2) {
                host()->alert(host()->translate(QStringLiteral("New Password is different."), nullptr, 0),
                              nullptr);
                return false;
            }
            return true;
        },
        false);
}

bool JS_Mediator_ChangePasswordDialog::fits(const QString& pass, const QString& warning) {
    if (pass.toLocal8Bit().size() <= m_maxPassLen) {
        return true;
    }
    host()->warn(host()->translate(warning, nullptr, 0).arg(m_maxPassLen), nullptr);
    return false;
}
