#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `cameranetworksetting`: how and where the search for cameras looks.
class JS_Mediator_CameraNetworkSettingDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    explicit JS_Mediator_CameraNetworkSettingDialog(HostObject* host);

public slots:
    /// A number of the host's; 0 at the start.
    int getCameraSearchWay();
    QString getCameraSearchIPAddress();
    void setCameraSearchWay(int mode);
    void setCameraSearchIPAddress(const QString& ipAddress);
    void ok();
    void cancel();
};
