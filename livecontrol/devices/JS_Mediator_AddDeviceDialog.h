#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `adddevice` of the dialog that adds a camera.
class JS_Mediator_AddDeviceDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// With `connectOnAdd` the camera is connected when it is added.
    JS_Mediator_AddDeviceDialog(HostObject* host, bool connectOnAdd);

public slots:
    /// JSON: what the dialog proposes, with the next free address of a dummy.
    QString getAddDeviceDialogSettings();
    /// Adds the camera, unless name or address can't be right, and closes the dialog in any case.
    void ok(const QString& cameraNeme, const QString& ipAddress, bool isDummy);
    void cancel();

private:
    QString nextDummyAddress();

    bool m_connectOnAdd;
};
