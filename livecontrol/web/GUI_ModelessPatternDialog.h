#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// The modeless dialog that a plug-in may have beside its panel. A plug-in that makes one decides when the
/// signals are emitted.
class GUI_ModelessPatternDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    using GUI_WebViewDialog::GUI_WebViewDialog;

    /// Asked before the dialog goes.
    virtual bool canClose() { return true; }
    /// The host changed its mode: 0 live, 1 memory, 2 file.
    virtual void onModeChanged(int /*mode*/) {}

signals:
    void shown();
    void closed();
};
