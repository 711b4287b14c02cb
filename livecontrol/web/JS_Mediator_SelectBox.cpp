#include "livecontrol/web/JS_Mediator_SelectBox.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/PLG_Interface.h"

JS_Mediator_SelectBox::JS_Mediator_SelectBox(HostObject* host) : JS_Mediator(host, QStringLiteral("items")) {
    // A page can't call a slot whose types have no name.
    qRegisterMetaType<PARTITIONNUMBER>("PARTITIONNUMBER");
}

PLG_Interface* JS_Mediator_SelectBox::openLiveControl() {
    PLG_Interface* const plugin = host()->getCurrentPlugin();
    const bool isOpen = plugin && plugin->getName() == QLatin1String("livecontrol") && host()->isLiveMode();
    return isOpen ? plugin : nullptr;
}

void JS_Mediator_SelectBox::slotNotifyPartition(QString value) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_SelectBox::slotNotifyPartition"),
                                      traceArgs({{"value", value}}));
    guarded([&] {
        emit close();
        selectPartition(value.toInt());
    });
}

void JS_Mediator_SelectBox::selectPartition(int number) {
    DOC_Interface* const current = host()->currentDocument();
    if (!current) {
        return;
    }
    if (docAs<DOC_Settings>(current).getPartitionCount(false, false) < number) {
        if (host()->isLiveMode()) {
            openPrefsDialog(QStringLiteral("s_record"));
        }
        return;
    }
    host()->setCurrentPartition(number, true);
    const QList<DOCKEY> keys = host()->getSelectedKeys(false);
    for (const DOCKEY key : keys) {
        if (DOC_Interface* const document = host()->docByKey(key, true)) {
            docAs<DOC_Settings>(document).refreshPartition(false);
        }
    }
}

void JS_Mediator_SelectBox::slotNotifyVariable(QString value) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_SelectBox::slotNotifyVariable"),
                                      traceArgs({{"value", value}}));
    guarded([&] {
        emit close();
        if (value == QLatin1String("go-variable")) {
            if (PLG_Interface* const plugin = openLiveControl()) {
                plugin->callPage(LIVE_PAGE_VARIABLE);
            }
            return;
        }
        const unsigned channel = value.toUInt();
        const LiveSuspendGuard suspended(host(), false, true);
        host()->setVariableChannel(channel);
    });
}

PARTITIONNUMBER JS_Mediator_SelectBox::getCurrentPartition() {
    return guarded(
        [&] {
            DOC_Interface* const current = host()->currentDocument();
            return current ? docAs<DOC_Settings>(current).getPartitionNumber(true) : 0;
        },
        0);
}

void JS_Mediator_SelectBox::slotNotifyVariableRegist(QString value) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_SelectBox::slotNotifyVariableRegist"),
                                      traceArgs({{"value", value}}));
    guarded([&] {
        emit close();
        if (PLG_Interface* const plugin = openLiveControl()) {
            plugin->setVariableRegist(value);
        }
    });
}
