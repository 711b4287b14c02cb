#include "livecontrol/overlays/formats/GUI_ShutterSpeedFormatDialog.h"

#include "livecontrol/overlays/formats/JS_Mediator_ShutterSpeedFormatDialog.h"

GUI_ShutterSpeedFormatDialog::GUI_ShutterSpeedFormatDialog(HostObject* host, QWidget* parent)
    : GUI_FormatDialog(
          host, QStringLiteral("Shutter speed disp"), QStringLiteral("qrc:/shutterspeed_format_dialog.html"),
          std::make_unique<JS_Mediator_ShutterSpeedFormatDialog>(host), parent, QSize(300, 150)) {}
