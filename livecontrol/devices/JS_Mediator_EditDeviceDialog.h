#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `editdevice` of the dialog that edits a camera.
class JS_Mediator_EditDeviceDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    JS_Mediator_EditDeviceDialog(HostObject* host, DOCKEY docKey);

    /// True once ok() gave the camera another address, mask or gateway.
    bool isAddressChanged() const { return m_addressChanged; }

public slots:
    /// JSON: name, addresses and versions of the camera.
    QString getEditDeviceDialogSettings();
    /// Changes the camera and closes the dialog, in any case.
    void ok(const QString& cameraName, const QString& ipAddress, const QString& subnetmask,
            const QString& defaultGateway);
    void cancel();
    /// 0 Ethernet, 1 Wi-Fi.
    void setEditEtherType(int type);

private:
    class DOC_Settings& settings();

    DOCKEY m_docKey;
    bool m_addressChanged = false;
};
