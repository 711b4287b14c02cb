#include "livecontrol/overlays/formats/GUI_FrameFormatDialog.h"

#include "livecontrol/overlays/formats/JS_Mediator_FrameFormatDialog.h"

GUI_FrameFormatDialog::GUI_FrameFormatDialog(HostObject* host, QWidget* parent)
    : GUI_FormatDialog(host, QStringLiteral("frame disp"), QStringLiteral("qrc:/frame_format_dialog.html"),
                       std::make_unique<JS_Mediator_FrameFormatDialog>(host), parent, QSize(300, 100)) {}
