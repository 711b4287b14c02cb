#pragma once

#include "livecontrol/interface/JS_Mediator.h"

class PLG_Interface;

/// The script object `items` of the select box's list page: hands the row that the user picked to the camera,
/// or to the live control page.
class JS_Mediator_SelectBox : public JS_Mediator {
    Q_OBJECT

public:
    /// `host` is not owned and outlives the mediator.
    explicit JS_Mediator_SelectBox(HostObject* host);

signals:
    /// The rows of the lists; the host, which shows the box, and its list page agree on what a row is.
    void signalShowPartition(QVariantList items);
    void signalShowVariable(QString items);
    void signalShowVariableRegist(QString items);
    /// Height of the list, page pixels.
    void signalSetHeight(int height);

public slots:
    /// A number of a partition. One that the camera doesn't have leads to the record settings in live mode.
    void slotNotifyPartition(QString value);
    /// A number of a variable channel, or "go-variable" for the page that sets them up.
    void slotNotifyVariable(QString value);
    /// 0 without a current document.
    PARTITIONNUMBER getCurrentPartition();
    /// The number of the channel that the live control page is to write.
    void slotNotifyVariableRegist(QString value);

private:
    /// The live control plug-in, if it is open in live mode; null otherwise.
    PLG_Interface* openLiveControl();
    void selectPartition(int number);
};
