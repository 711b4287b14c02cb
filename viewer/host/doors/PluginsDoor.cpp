#include "viewer/host/doors/PluginsDoor.h"

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/host/HostWindow.h"

void PluginsDoor::refreshPlugins() {
    OPERATION();
    m_shell.refreshTools();
    m_updates.requestSoon(-1);
}

QString PluginsDoor::getCurrentPluginName() {
    OPERATION();
    return m_plugins.current() ? m_plugins.current()->getName() : QString();
}
