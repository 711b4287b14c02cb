#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"

#include "livecontrol/interface/HostObject.h"

JS_Mediator_InputPasswordDialog::JS_Mediator_InputPasswordDialog(HostObject* host, const QString& password,
                                                                 int maxPassLen)
    : JS_Mediator_Dialog(host, QStringLiteral("inputpass")), m_password(password), m_maxPassLen(maxPassLen) {}

void JS_Mediator_InputPasswordDialog::onOk(const QString& pass) {
    m_password = pass;
    emit accept();
}

void JS_Mediator_InputPasswordDialog::onCancel() { emit reject(); }

QString JS_Mediator_InputPasswordDialog::getPassword() { return m_password; }

int JS_Mediator_InputPasswordDialog::getMaxPassLen() { return m_maxPassLen; }

bool JS_Mediator_InputPasswordDialog::checkBytes(const QString& pass) {
    if (pass.toLocal8Bit().size() <= m_maxPassLen) {
        return true;
    }
    guarded([&] {
        host()->warn(
            host()->translate(QStringLiteral("Please input within %1 bytes."), nullptr, 0).arg(m_maxPassLen),
            nullptr);
    });
    return false;
}
