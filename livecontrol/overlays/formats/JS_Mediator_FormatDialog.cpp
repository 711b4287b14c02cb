#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"

QString JS_Mediator_FormatDialog::operation(const char* slot) const {
    return QLatin1String(metaObject()->className()) + QLatin1String("::") + QLatin1String(slot);
}

void JS_Mediator_FormatDialog::ok() {
    const OperationEventHandler scope(this, operation("ok"));
    emit accept();
}

void JS_Mediator_FormatDialog::cancel() {
    const OperationEventHandler scope(this, operation("cancel"));
    restore();
    emit reject();
}
