#include "livecontrol/overlays/formats/GUI_RectimeFormatDialog.h"

#include "livecontrol/overlays/formats/JS_Mediator_RectimeFormatDialog.h"

GUI_RectimeFormatDialog::GUI_RectimeFormatDialog(HostObject* host, QWidget* parent)
    : GUI_FormatDialog(host, QStringLiteral("Recording time disp"),
                       QStringLiteral("qrc:/rectime_format_dialog.html"),
                       std::make_unique<JS_Mediator_RectimeFormatDialog>(host), parent, QSize(330, 110)) {}
