#pragma once

#include "livecontrol/overlays/formats/GUI_FormatDialog.h"

/// Lets the user choose how frame numbers and counts are written.
class GUI_FrameFormatDialog : public GUI_FormatDialog {
    Q_OBJECT

public:
    /// A null parent means the host's dialog parent. Throws what the host throws.
    explicit GUI_FrameFormatDialog(HostObject* host, QWidget* parent = nullptr);
};
