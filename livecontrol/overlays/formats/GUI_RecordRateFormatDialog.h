#pragma once

#include "livecontrol/overlays/formats/GUI_FormatDialog.h"

/// Lets the user choose how the frame rate is written.
class GUI_RecordRateFormatDialog : public GUI_FormatDialog {
    Q_OBJECT

public:
    /// A null parent means the host's dialog parent. Throws what the host throws.
    explicit GUI_RecordRateFormatDialog(HostObject* host, QWidget* parent = nullptr);
};
