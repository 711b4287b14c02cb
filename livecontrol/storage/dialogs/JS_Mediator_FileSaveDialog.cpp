#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

JS_Mediator_FileSaveDialog::JS_Mediator_FileSaveDialog(HostObject* host)
    : JS_Mediator_FileDialog(host, QStringLiteral("filesavedialog")) {}

int JS_Mediator_FileSaveDialog::getHeadNo(DOCKEY dockey) {
    return guarded(
        [&] {
            DOC_Interface* const found = document(dockey);
            return found ? docAs<DOC_Settings>(found).getHeadNumber() : 0;
        },
        0);
}

bool JS_Mediator_FileSaveDialog::isMultiTrimming(DOCKEY dockey) {
    return guarded(
        [&] {
            DOC_Interface* const found = document(dockey);
            return found && docAs<DOC_Display>(found).isMultiTrimming();
        },
        false);
}

QString JS_Mediator_FileSaveDialog::getMultiTrimmingLabel(DOCKEY dockey) {
    return guarded(
        [&] {
            DOC_Interface* const found = document(dockey);
            return found ? docAs<DOC_Display>(found).getMultiTrimmingLabel() : QString();
        },
        QString());
}

void JS_Mediator_FileSaveDialog::prevPreivew(DOCKEY dockey) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileSaveDialog::prevPreivew"),
                               traceArgs({{"dockey", dockey}}));
    guarded([&] {
        if (DOC_Interface* const found = document(dockey)) {
            docAs<DOC_Display>(found).showPreviousTrimming();
        }
    });
}

void JS_Mediator_FileSaveDialog::nextPreivew(DOCKEY dockey) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileSaveDialog::nextPreivew"),
                               traceArgs({{"dockey", dockey}}));
    guarded([&] {
        if (DOC_Interface* const found = document(dockey)) {
            docAs<DOC_Display>(found).showNextTrimming();
        }
    });
}
