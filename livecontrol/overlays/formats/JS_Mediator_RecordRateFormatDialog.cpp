#include "livecontrol/overlays/formats/JS_Mediator_RecordRateFormatDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/HostObject.h"

namespace {
const QString kDelimiter = QStringLiteral("display/recordRateInsertDelimiter");
} // namespace

JS_Mediator_RecordRateFormatDialog::JS_Mediator_RecordRateFormatDialog(HostObject* host)
    : JS_Mediator_FormatDialog(host, QStringLiteral("recordRateFormatDialog")),
      m_delimiter(host->getPrefBool(kDelimiter, QVariant())) {}

bool JS_Mediator_RecordRateFormatDialog::isRecordRateInsertDelimiter() {
    return guarded([this] { return host()->getPrefBool(kDelimiter, QVariant()); }, false);
}

void JS_Mediator_RecordRateFormatDialog::setRecordRateInsertDelimiter(bool val) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_RecordRateFormatDialog::setRecordRateInsertDelimiter"),
        traceArgs({{"val", val}}));
    guarded([&] { host()->setPrefBool(kDelimiter, val); });
}

void JS_Mediator_RecordRateFormatDialog::restore() {
    guarded([this] { host()->setPrefBool(kDelimiter, m_delimiter); });
}
