#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"

#include "livecontrol/overlays/formats/JS_Mediator_AddNumberDialog.h"

GUI_AddNumberDialog::GUI_AddNumberDialog(HostObject* host, QWidget* parent, int callbackType, int deviceCount,
                                         int headCount)
    : GUI_WebViewDialog(
          host, QStringLiteral("Adding a number"), QStringLiteral("qrc:/addnumberdialog.html"),
          std::make_unique<JS_Mediator_AddNumberDialog>(host, callbackType, deviceCount, headCount),
          parentOr(parent, host)) {
    setFixedSize(540, 270);
}
