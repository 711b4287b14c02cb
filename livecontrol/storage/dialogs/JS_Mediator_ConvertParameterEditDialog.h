#pragma once

#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

/// The script object `convertparametereditdialog`: how the files of a batch will be called and where they go.
class JS_Mediator_ConvertParameterEditDialog : public JS_Mediator_FileDialog {
    Q_OBJECT

public:
    /// `dockeyList` holds the keys of the batch, `docKey` and `partitionNo` are the row in hand.
    JS_Mediator_ConvertParameterEditDialog(HostObject* host, const QVariantList& dockeyList, DOCKEY docKey,
                                           PARTITIONNUMBER partitionNo);

    using JS_Mediator_FileDialog::list;
    // Slots of the base.
    /// Tells the documents of the batch whether information is saved with them. There are no rows here.
    QString list(bool temporary) override;
    /// The folder of the row in hand, that of its own file if the user wants that.
    QString getExportPath() override;

public slots:
    QVariantList getTargetItems() { return m_targets; }

private:
    QString originalPath();

    QVariantList m_targets;
};
