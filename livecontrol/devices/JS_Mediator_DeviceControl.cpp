#include "livecontrol/devices/JS_Mediator_DeviceControl.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/DeterUpdateScope.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Members.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "livecontrol/overlays/notes/GUI_CommentDialog.h"
#include "livecontrol/overlays/notes/GUI_CustomInfoDialog.h"

bool JS_Mediator_DeviceControl::isDisplayInfoShowing() {
    return guarded([&] { return host()->isDisplayInfoShowing(); }, false);
}

void JS_Mediator_DeviceControl::setDisplayInfoShowing(bool show) {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_DeviceControl::setDisplayInfoShowing"),
                                      traceArgs({{"show", show}}));
    guarded([&] { host()->setDisplayInfoShowing(show); });
}

void JS_Mediator_DeviceControl::selectDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceControl::selectDoc"),
                               traceArgs({{"key", key}}));
    setDocSelected(key.toUInt(), true);
}

void JS_Mediator_DeviceControl::unselectDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceControl::unselectDoc"),
                               traceArgs({{"key", key}}));
    setDocSelected(key.toUInt(), false);
}

void JS_Mediator_DeviceControl::setDocSelected(DOCKEY key, bool selected) {
    guarded([&] {
        const LiveSuspendGuard guard(host(), false, false);
        DOC_Interface* const document = host()->docByKey(key, true);
        if (!document) {
            return;
        }
        auto& members = docAs<DOC_Members>(document);
        const bool isDevice = members.isDeviceDocument();
        if (!isDevice && members.isHeadDocument()) {
            selected ? selectHead(document) : unselectHead(document, key);
            return;
        }
        selected ? host()->selectDocument(key) : host()->unselectDocument(key);
        if (isDevice) {
            selected ? members.onDeviceSelected() : members.onDeviceUnselected();
        }
    });
}

void JS_Mediator_DeviceControl::selectHead(DOC_Interface* head) {
    DOC_Interface* const device = host()->getParentDocument(head);
    if (!device) {
        return;
    }
    auto& members = docAs<DOC_Members>(device);
    if (!device->isSelected()) {
        host()->selectDocumentKeepCurrent(members.getDeviceKey(), true);
        members.setActiveHead(head);
        members.onHeadsChanged();
    }
    members.onDeviceSelected();
}

void JS_Mediator_DeviceControl::unselectHead(DOC_Interface* head, DOCKEY key) {
    DOC_Interface* const device = host()->getParentDocument(head);
    if (!device) {
        return;
    }
    host()->unselectDocument(key);
    const QList<DOC_Interface*> heads = device->getHeads(0);
    for (DOC_Interface* const other : heads) {
        if (other != head && other->isSelected()) {
            host()->setCurrentDocument(other);
            break;
        }
    }
    docAs<DOC_Members>(device).onHeadsChanged();
}

void JS_Mediator_DeviceControl::viewAll() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceControl::viewAll"));
    guarded([&] {
        const DOCKEY current = host()->getCurrentKey();
        const DeterUpdateScope deter(host());
        host()->selectAll(this);
        host()->setCurrentKey(current, true);
    });
}

void JS_Mediator_DeviceControl::editInfo() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceControl::editInfo"));
    guarded([&] { GUI_EditInfoDialog(host()).exec(); });
}

void JS_Mediator_DeviceControl::editComment() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceControl::editComment"));
    guarded([&] { GUI_CommentDialog(host()).exec(); });
}

void JS_Mediator_DeviceControl::editCustom() {
    guarded([&] { GUI_CustomInfoDialog(host()).exec(); });
}
