#include "livecontrol/devices/JS_Mediator_DeviceList.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/devices/GUI_AddDeviceDialog.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

void JS_Mediator_DeviceList::selectDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceList::selectDoc"),
                               traceArgs({{"key", key}}));
    guarded([&] {
        DOC_Interface* const document = host()->docByKey(key.toUInt(), true);
        if (!document) {
            return;
        }
        if (document->isConnected()) {
            host()->setCurrentKey(key.toUInt(), true);
        } else {
            document->setSelected(true);
        }
    });
}

void JS_Mediator_DeviceList::unselectDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceList::unselectDoc"),
                               traceArgs({{"key", key}}));
    guarded([&] { host()->unselectDocument(key.toUInt()); });
}

void JS_Mediator_DeviceList::addDoc(bool connect) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceList::addDoc"),
                                      traceArgs({{"connect", connect}}));
    guarded([&] { GUI_AddDeviceDialog::run(host(), connect, m_parentWidget); });
}

void JS_Mediator_DeviceList::deleteDoc(DOCKEY dockey) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceList::deleteDoc"),
                                      traceArgs({{"dockey", dockey}}));
    guarded([&] {
        DOC_Interface* const document = host()->docByKey(dockey, true);
        if (!document) {
            return;
        }
        const QString question =
            docAs<DOC_Settings>(document).isSharedHeadSettings()
                ? QStringLiteral(
                      "Heads connected to the same device are also removed from the list. Is it OK?")
                : QStringLiteral("Do you want to delete?");
        if (host()->confirm(host()->translate(question, nullptr, 0), nullptr,
                            {{QStringLiteral("under"), document->getDisplayName()},
                             {QStringLiteral("default"), QStringLiteral("no")}})) {
            host()->deleteDocument(dockey);
        }
    });
}

void JS_Mediator_DeviceList::deleteAllDocs(bool unselectOnly) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_DeviceList::deleteAllDocs"),
                                      traceArgs({{"unselectOnly", unselectOnly}}));
    guarded([&] { host()->deleteAllDocuments(0, unselectOnly); });
}

bool JS_Mediator_DeviceList::isSelectedDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceList::isSelectedDoc"),
                               traceArgs({{"key", key}}));
    return guarded(
        [&] {
            DOC_Interface* const document = host()->findDocument(key.toUInt());
            return document && document->isSelected() && document->isConnected();
        },
        false);
}

bool JS_Mediator_DeviceList::isSelectedMultiDoc(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceList::isSelectedMultiDoc"),
                               traceArgs({{"key", key}}));
    return guarded(
        [&] {
            DOC_Interface* const document = host()->findDocument(key.toUInt());
            return document && document->isSelectedMulti();
        },
        false);
}

bool JS_Mediator_DeviceList::isMultiHead(const QVariant& key) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_DeviceList::isMultiHead"),
                               traceArgs({{"key", key}}));
    return guarded(
        [&] {
            DOC_Interface* const document = host()->findDocument(key.toUInt());
            return document && docAs<DOC_Settings>(document).getHeadCount() > 1 && document->isConnected();
        },
        false);
}
