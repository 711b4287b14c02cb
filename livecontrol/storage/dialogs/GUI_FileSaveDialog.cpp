#include "livecontrol/storage/dialogs/GUI_FileSaveDialog.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"

GUI_FileSaveDialog::GUI_FileSaveDialog(HostObject* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Save"), QStringLiteral("qrc:/filesavedialog.html"),
                        std::make_unique<JS_Mediator_FileSaveDialog>(host), parentOr(parent, host)) {
    setFixedSize(900, 680);
    auto settings = std::make_unique<JS_Mediator_SaveFile>(host, page().scriptName());
    settings->follow(page());
    addMediator(std::move(settings));
    connect(&page(), &JS_Mediator_FileSaveDialog::exportTarget, this, &GUI_FileSaveDialog::exportTarget);
}

JS_Mediator_FileSaveDialog& GUI_FileSaveDialog::page() const {
    return *static_cast<JS_Mediator_FileSaveDialog*>(mediator());
}

void GUI_FileSaveDialog::exportTarget(DOCKEY dockey, PARTITIONNUMBER partitionNo) {
    reportingFailures(m_host, [&] {
        DOC_Interface* const document = m_host->docByKey(dockey, true);
        if (!document) { // it just went
            return;
        }
        docAs<DOC_Save>(document).setSavePartition(partitionNo);
        if (!m_exportKeys.contains(dockey)) {
            m_exportKeys.append(dockey);
        }
    });
}
