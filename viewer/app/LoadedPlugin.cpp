#include "viewer/app/LoadedPlugin.h"

#include "livecontrol/interface/PLG_Interface.h"

#include "viewer/messages/Translated.h"

#include <QDir>
#include <QFileInfo>

namespace {

using MakePlugin = PLG_Interface* (*)();

} // namespace

LoadedPlugin::LoadedPlugin(const QString& path) : m_module(QFileInfo(path).absoluteFilePath()) {
    // The loader's own text about a missing file names every other name that it has tried.
    if (!QFileInfo::exists(m_module.fileName())) {
        throw PluginError(translated("There is no plug-in %1.").arg(m_module.fileName()));
    }
    m_module.setLoadHints(QLibrary::PreventUnloadHint);
    if (!m_module.load()) {
        throw PluginError(translated("The plug-in can't be loaded: %1").arg(m_module.errorString()));
    }
    const auto make = reinterpret_cast<MakePlugin>(m_module.resolve("makeHTMLPlugin"));
    if (!make) {
        throw PluginError(
            translated("%1 is no plug-in: it exports no makeHTMLPlugin.").arg(m_module.fileName()));
    }
    m_plugin.reset(make());
    if (!m_plugin) {
        throw PluginError(translated("The plug-in %1 made no object.").arg(m_module.fileName()));
    }
}

LoadedPlugin::~LoadedPlugin() = default;

void LoadedPlugin::init(HostObject* host) {
    m_plugin->init(host);
    m_plugin->setCustomInfoEnabled(true);
}

QString LoadedPlugin::defaultPath() {
    const QDir folder(QCoreApplication::applicationDirPath());
    const QString beside = folder.filePath(QStringLiteral("livecontrol.zel"));
    return QFileInfo::exists(beside) ? beside
                                     : QDir::cleanPath(folder.filePath(QStringLiteral("../livecontrol.zel")));
}
