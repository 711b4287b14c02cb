#pragma once

#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

/// The script object `filesavedialog` of the dialog that saves.
class JS_Mediator_FileSaveDialog : public JS_Mediator_FileDialog {
    Q_OBJECT

public:
    explicit JS_Mediator_FileSaveDialog(HostObject* host);

signals:
    /// The page hands a row over for export.
    void exportTarget(DOCKEY dockey, PARTITIONNUMBER partitionNo);
    // The page's buttons.
    void saveAction();
    void applyAction();
    void cancelAction();

public slots:
    void exportDocCount(int count) { emit selectedDocCount(count); }
    int getHeadNo(DOCKEY dockey);
    // A recording that is cut in several places shows one of its cuts.
    bool isMultiTrimming(DOCKEY dockey);
    QString getMultiTrimmingLabel(DOCKEY dockey);
    void prevPreivew(DOCKEY dockey);
    void nextPreivew(DOCKEY dockey);
};
