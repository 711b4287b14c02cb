#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/web/GUI_WebViewDialog.h"

/// Lets the user change name and addresses of a camera. Made by the host, when a document is to be edited.
class GUI_EditDeviceDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `docKey` is the document whose device is edited. A null parent means the host's dialog parent.
    GUI_EditDeviceDialog(HostObject* host, DOCKEY docKey, QWidget* parent = nullptr);

    /// After the dialog: the camera was given another address, mask or gateway.
    bool isAddressChanged() const;
};
