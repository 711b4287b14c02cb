#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `inputpass`. The page asks checkBytes() before onOk(). Passwords are never logged.
class JS_Mediator_InputPasswordDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `maxPassLen` is in bytes of the local 8-bit encoding.
    JS_Mediator_InputPasswordDialog(HostObject* host, const QString& password, int maxPassLen);

public slots:
    void onOk(const QString& pass);
    void onCancel();
    QString getPassword();
    int getMaxPassLen();
    /// True if the text isn't too long; warns the user otherwise.
    bool checkBytes(const QString& pass);

private:
    QString m_password;
    int m_maxPassLen;
};
