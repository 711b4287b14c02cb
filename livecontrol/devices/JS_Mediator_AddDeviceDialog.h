#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// What the user has typed into the dialog that adds a camera.
struct TypedCamera {
    QString name;
    QString ipAddress;
    bool isDummy = false;
    bool hasFailed = false; // it could not be added
};

/// The script object `adddevice` of the dialog that adds a camera.
class JS_Mediator_AddDeviceDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// With `connectOnAdd` the camera is connected when it is added.
    /// `typed` is what a dialog before could not add, and gets what this one can't; null forgets that. Not
    /// owned.
    JS_Mediator_AddDeviceDialog(HostObject* host, bool connectOnAdd, TypedCamera* typed = nullptr);

public slots:
    /// JSON: what the dialog proposes, with the next free address of a dummy.
    QString getAddDeviceDialogSettings();
    /// JSON: `name`, `ipAddress` and `isDummy` as they were typed before and could not be added; empty if
    /// there are none.
    QString getTyped();
    /// Adds the camera, unless name or address can't be right, and closes the dialog in any case.
    void ok(const QString& cameraNeme, const QString& ipAddress, bool isDummy);
    void cancel();

private:
    QString nextDummyAddress();

    bool m_connectOnAdd;
    TypedCamera m_before;
    TypedCamera* m_typed;
};
