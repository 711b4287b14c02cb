#include "livecontrol/overlays/formats/GUI_FormatDialog.h"

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

GUI_FormatDialog::GUI_FormatDialog(HostObject* host, const QString& title, const QString& url,
                                   std::unique_ptr<JS_Mediator_FormatDialog> mediator, QWidget* parent,
                                   const QSize& size)
    : GUI_WebViewDialog(host, title, url, std::move(mediator), parentOr(parent, host)) {
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setFixedSize(size);
}

void GUI_FormatDialog::closeEvent(QCloseEvent* /*event*/) {
    const OperationTrace trace(QStringLiteral("GUI_WebViewDialog::closeEvent"));
    static_cast<JS_Mediator_FormatDialog*>(mediator())->cancel();
}
