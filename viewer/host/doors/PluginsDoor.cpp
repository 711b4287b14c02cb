#include "viewer/host/doors/PluginsDoor.h"

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/host/Shell.h"

void PluginsDoor::refreshPlugins() {
    OPERATION();
    m_shell.refreshTools();
    m_updates.requestSoon(-1);
}

void PluginsDoor::openPlugin(const QString& name) {
    OPERATION(name);
    if (name == QLatin1String("autofocus")) {
        m_autoFocus.start();
        return;
    }
    m_plugins.openPanel(name);
}

QString PluginsDoor::getCurrentPluginName() {
    OPERATION();
    return m_plugins.current() ? m_plugins.current()->getName() : QString();
}

void PluginsDoor::setVariableSetting(bool on) {
    OPERATION(on);
    m_modes.set(SettingModes::Variable, on);
    if (!on) {
        m_variableSetting.leave();
    }
}
