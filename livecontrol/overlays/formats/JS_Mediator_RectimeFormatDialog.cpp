#include "livecontrol/overlays/formats/JS_Mediator_RectimeFormatDialog.h"

#include "livecontrol/interface/HostObject.h"

namespace {
const QString kUnit = QStringLiteral("info/RecTimeUnit");
} // namespace

JS_Mediator_RectimeFormatDialog::JS_Mediator_RectimeFormatDialog(HostObject* host)
    : JS_Mediator_FormatDialog(host, QStringLiteral("rectime_format_dlg")),
      m_unit(host->getPrefInt(kUnit, QVariant())) {}

int JS_Mediator_RectimeFormatDialog::getRecTimeUnit() {
    return guarded([this] { return host()->getPrefInt(kUnit, QVariant()); }, 0);
}

void JS_Mediator_RectimeFormatDialog::setRecTimeUnit(int unit) {
    guarded([&] {
        host()->setPrefInt(kUnit, unit);
        host()->setToolsDisabled(true);
    });
}

void JS_Mediator_RectimeFormatDialog::ok() { emit accept(); }

void JS_Mediator_RectimeFormatDialog::cancel() {
    restore();
    emit reject();
}

void JS_Mediator_RectimeFormatDialog::restore() { setRecTimeUnit(m_unit); }
