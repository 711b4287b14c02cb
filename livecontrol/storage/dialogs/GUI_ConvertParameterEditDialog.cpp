#include "livecontrol/storage/dialogs/GUI_ConvertParameterEditDialog.h"

#include "livecontrol/storage/dialogs/JS_Mediator_ConvertParameterEditDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"

GUI_ConvertParameterEditDialog::GUI_ConvertParameterEditDialog(HostObject* host, QWidget* parent,
                                                               const QVariantList& dockeyList, DOCKEY docKey,
                                                               PARTITIONNUMBER partitionNo)
    : GUI_WebViewDialog(
          host, QStringLiteral("Saved after the automatic conversion"),
          QStringLiteral("qrc:/convertparametereditdialog.html"),
          std::make_unique<JS_Mediator_ConvertParameterEditDialog>(host, dockeyList, docKey, partitionNo),
          parentOr(parent, host)) {
    setFixedSize(600, 920);
    addMediator(std::make_unique<JS_Mediator_SaveFile>(host, QStringLiteral("convertparametereditdialog")));
}
