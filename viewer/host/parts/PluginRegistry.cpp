#include "viewer/host/parts/PluginRegistry.h"

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/host/HostWindow.h"

void PluginRegistry::remove(PLG_Interface* plugin) {
    m_plugins.removeAll(plugin);
    m_open.removeAll(plugin);
}

PLG_Interface* PluginRegistry::find(const QString& name) const {
    for (PLG_Interface* const plugin : m_plugins) {
        if (plugin->getName() == name) {
            return plugin;
        }
    }
    return nullptr;
}

QStringList PluginRegistry::openNames() const {
    QStringList names;
    for (PLG_Interface* const plugin : m_open) {
        names.append(plugin->getName());
    }
    return names;
}

void PluginRegistry::openPanel(const QString& name) {
    PLG_Interface* const plugin = find(name);
    if (plugin == nullptr || plugin == current()) {
        return;
    }
    m_open.removeAll(plugin);
    m_open.append(plugin);
    m_shell.showPanel(plugin);
    emit currentChanged();
}

void PluginRegistry::closePanel(const QString& name) {
    PLG_Interface* const plugin = find(name);
    const bool shown = plugin != nullptr && plugin == current();
    if (plugin == nullptr || m_open.removeAll(plugin) == 0) {
        return;
    }
    if (shown) {
        m_shell.showPanel(current());
        emit currentChanged();
    }
}

void PluginRegistry::closeCurrent() {
    if (PLG_Interface* const plugin = current()) {
        closePanel(plugin->getName());
    }
}
