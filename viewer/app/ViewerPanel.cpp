// The live panel: the plug-in whose page it shows, and how it goes with the mode.

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/app/LoadedPlugin.h"
#include "viewer/app/MainHostWindow.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/FilePreferences.h"

namespace {

const QString kOpensOnDevices = QStringLiteral("livecontrol/viewdevicesetting");
const QString kLivePlugin = QStringLiteral("livecontrol");

} // namespace

void Viewer::loadPlugin() {
    try {
        m_plugin = std::make_unique<LoadedPlugin>(m_options.plugin.isEmpty() ? LoadedPlugin::defaultPath()
                                                                             : m_options.plugin);
    } catch (const PluginError& error) {
        m_window->setPanelNote(QString::fromStdString(error.what()));
        qCritical("%s", error.what());
        return;
    }
    m_plugin->init(m_host.get());
    m_host->addPlugin(&m_plugin->get());
    m_host->plugins().openPanel(kLivePlugin);
}

void Viewer::onModeChanged(HostMode mode) {
    if (!m_plugin) {
        return;
    }
    PLG_Interface& plugin = m_plugin->get();
    plugin.onModeChanged(mode);
    const bool shows = plugin.isEnabledInMode(mode);
    // Its page takes a second to build. Those where something is being edited end with the mode.
    if (!shows && m_host->plugins().current() == &plugin && m_shell->isLivePage(true)) {
        m_window->panel()->park();
    }
    if (shows && !m_window->panel()->plugin() && m_preferences->value(kOpensOnDevices, false).toBool()) {
        m_window->panel()->drop(); // a page looks at it when it opens
    }
    showLivePanel(shows);
    m_host->updates().request(-1);
}

void Viewer::showLivePanel(bool show) {
    if (show) {
        m_host->plugins().openPanel(kLivePlugin);
    } else {
        m_host->plugins().closePanel(kLivePlugin);
        m_window->notePanelClosed(); // it may have been closed before, in another mode
    }
    m_window->refreshActions();
}
