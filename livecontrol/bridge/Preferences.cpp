// The preference slots of a mediator: a page reads and writes the host's store by key.

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"

#include <optional>

namespace {
const QString kConnectedOnly = QStringLiteral("devicemanager/connectedCameraOnlyShowing");
} // namespace

int JS_Mediator::getPrefInt(const QString& name, const QVariant& defaultValue) {
    return guarded([&] { return m_host->getPrefInt(name, defaultValue); }, 0);
}

bool JS_Mediator::getPrefBool(const QString& name, const QVariant& defaultValue) {
    return guarded([&] { return m_host->getPrefBool(name, defaultValue); }, false);
}

float JS_Mediator::getPrefFloat(const QString& name, const QVariant& defaultValue) {
    return guarded([&] { return m_host->getPrefFloat(name, defaultValue); }, 0.0F);
}

QString JS_Mediator::getPrefString(const QString& name, const QVariant& defaultValue) {
    return guarded([&] { return m_host->getPrefString(name, defaultValue, 0); }, QString());
}

template <class Store>
void JS_Mediator::storePref(const char* operation, bool update, Store&& store) {
    std::optional<OperationEventHandler> scope;
    if (update) {
        scope.emplace(this, QLatin1String(operation));
    }
    guarded(std::forward<Store>(store));
}

void JS_Mediator::setPrefInt(const QString& name, int value, bool update) {
    storePref("JS_Mediator::setPrefInt", update, [&] { m_host->setPrefInt(name, value); });
}

void JS_Mediator::setPrefBool(const QString& name, bool value, bool update) {
    storePref("JS_Mediator::setPrefBool", update, [&] { m_host->setPrefBool(name, value); });
}

void JS_Mediator::setPrefFloat(const QString& name, float value, bool update) {
    storePref("JS_Mediator::setPrefFloat", update, [&] { m_host->setPrefFloat(name, value); });
}

void JS_Mediator::setPrefString(const QString& name, const QString& value, bool update) {
    storePref("JS_Mediator::setPrefString", update, [&] { m_host->setPrefString(name, value); });
}

void JS_Mediator::setPrefDQString(const QString& name, const QString& value, bool update) {
    storePref("JS_Mediator::setPrefDQString", update, [&] { m_host->setPref(name, value); });
}

void JS_Mediator::setConnectedCameraShowing(bool check) {
    guarded([&] { m_host->setPref(kConnectedOnly, check); });
}

bool JS_Mediator::getConnectedCameraShowing() {
    return guarded([&] { return m_host->getPrefBool(kConnectedOnly, false); }, false);
}
