#include "livecontrol/bridge/JS_Mediator_Plugin.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/PLG_Interface.h"

JS_Mediator_Plugin::JS_Mediator_Plugin(HostObject* host, const QString& name, PLG_Interface* plugin)
    : JS_Mediator(host, name), m_plugin(plugin) {}

QString JS_Mediator_Plugin::name() { return scriptName(); }

QString JS_Mediator_Plugin::uiName() {
    return guarded([&] { return host()->translate(scriptName(), nullptr, 0); }, QString());
}

void JS_Mediator_Plugin::onOpen() {
    onPlugin([](PLG_Interface& plugin) { plugin.onOpen(); });
}

void JS_Mediator_Plugin::onApply() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::onApply"));
    onPlugin([](PLG_Interface& plugin) { plugin.onApply(); });
}

void JS_Mediator_Plugin::onOK() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::onOK"));
    onPlugin([](PLG_Interface& plugin) { plugin.onOK(); });
}

void JS_Mediator_Plugin::onCancel() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::onCancel"));
    onPlugin([](PLG_Interface& plugin) { plugin.onCancel(); });
}

void JS_Mediator_Plugin::onReset() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::onReset"));
    onPlugin([](PLG_Interface& plugin) { plugin.onReset(true); });
}

void JS_Mediator_Plugin::onClose() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::onClose"));
    onPlugin([](PLG_Interface& plugin) { plugin.onClose(); });
}

void JS_Mediator_Plugin::onClosed() {
    onPlugin([](PLG_Interface& plugin) { plugin.onClosed(); });
}

void JS_Mediator_Plugin::undo() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::undo"));
    guarded([&] { host()->undo(); });
}

void JS_Mediator_Plugin::redo() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::redo"));
    guarded([&] { host()->redo(); });
}

void JS_Mediator_Plugin::beginMacro() {
    guarded([&] { host()->beginMacro(QString()); });
}

void JS_Mediator_Plugin::endMacro() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_Plugin::endMacro"));
    guarded([&] { host()->endMacro(); });
}

bool JS_Mediator_Plugin::isCurrentDummy() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            return document && docAs<DOC_Settings>(document).isDummy();
        },
        false);
}

QString JS_Mediator_Plugin::getCurrentWindowTitle() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            return document ? document->getDisplayName() : QString();
        },
        QString());
}
