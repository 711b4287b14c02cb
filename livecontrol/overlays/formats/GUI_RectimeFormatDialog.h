#pragma once

#include "livecontrol/overlays/formats/GUI_FormatDialog.h"

/// Lets the user choose how the recording time is written.
class GUI_RectimeFormatDialog : public GUI_FormatDialog {
    Q_OBJECT

public:
    /// A null parent means the host's dialog parent. Throws what the host throws.
    explicit GUI_RectimeFormatDialog(HostObject* host, QWidget* parent = nullptr);
};
