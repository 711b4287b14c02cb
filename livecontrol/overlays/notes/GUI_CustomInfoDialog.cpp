#include "livecontrol/overlays/notes/GUI_CustomInfoDialog.h"

#include "livecontrol/overlays/notes/JS_Mediator_CustomInfoDialog.h"

namespace {
JS_Mediator_CustomInfoDialog* items(const GUI_CustomInfoDialog* dialog) {
    return static_cast<JS_Mediator_CustomInfoDialog*>(dialog->mediator());
}
} // namespace

GUI_CustomInfoDialog::GUI_CustomInfoDialog(HostObject* host, QWidget* parent, bool forTemporary)
    : GUI_WebViewDialog(host, QStringLiteral("Custom info"), QStringLiteral("qrc:/custominfo.html"),
                        std::make_unique<JS_Mediator_CustomInfoDialog>(host, forTemporary),
                        parentOr(parent, host)) {
    items(this)->setParentDialog(this);
    setFixedSize(510, 530);
}

void GUI_CustomInfoDialog::setCallbackType(int type) { items(this)->setCallbackType(type); }

void GUI_CustomInfoDialog::closeEvent(QCloseEvent* event) {
    items(this)->cancel();
    GUI_WebViewDialog::closeEvent(event);
}
