#include "livecontrol/overlays/formats/GUI_RecordRateFormatDialog.h"

#include "livecontrol/overlays/formats/JS_Mediator_RecordRateFormatDialog.h"

GUI_RecordRateFormatDialog::GUI_RecordRateFormatDialog(HostObject* host, QWidget* parent)
    : GUI_FormatDialog(host, QStringLiteral("recordrate disp"),
                       QStringLiteral("qrc:/recordrate_format_dialog.html"),
                       std::make_unique<JS_Mediator_RecordRateFormatDialog>(host), parent, QSize(300, 100)) {}
