#include "livecontrol/overlays/formats/JS_Mediator_FrameFormatDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/HostObject.h"

namespace {
const QString kDelimiter = QStringLiteral("display/frameInsertDelimiter");
} // namespace

JS_Mediator_FrameFormatDialog::JS_Mediator_FrameFormatDialog(HostObject* host)
    : JS_Mediator_FormatDialog(host, QStringLiteral("frameFormatDialog")),
      m_delimiter(host->getPrefBool(kDelimiter, QVariant())) {}

bool JS_Mediator_FrameFormatDialog::isFrameInsertDelimiter() {
    return guarded([this] { return host()->getPrefBool(kDelimiter, QVariant()); }, false);
}

void JS_Mediator_FrameFormatDialog::setFrameInsertDelimiter(bool val) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_FrameFormatDialog::setFrameInsertDelimiter"),
        traceArgs({{"val", val}}));
    guarded([&] { host()->setPrefBool(kDelimiter, val); });
}

void JS_Mediator_FrameFormatDialog::restore() {
    guarded([this] { host()->setPrefBool(kDelimiter, m_delimiter); });
}
