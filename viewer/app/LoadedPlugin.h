#pragma once

#include <QLibrary>
#include <QString>

#include <memory>
#include <stdexcept>

class HostObject;
class PLG_Interface;

/// Why a plug-in could not be loaded, for a person.
class PluginError : public std::runtime_error {
public:
    explicit PluginError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// A plug-in from a module file. Life: loaded and made by the constructor; init() hands it the host, and only
/// from then on may anything else be called; the destructor destroys the plug-in. The module itself stays in
/// memory until the program ends, since types that it has made known to Qt outlive it.
class LoadedPlugin {
public:
    /// Throws PluginError if there is no such module, it exports nothing or it makes nothing.
    explicit LoadedPlugin(const QString& path);
    ~LoadedPlugin();
    LoadedPlugin(const LoadedPlugin&) = delete;
    LoadedPlugin& operator=(const LoadedPlugin&) = delete;

    void init(HostObject* host);
    PLG_Interface& get() const { return *m_plugin; }

    /// livecontrol.zel in the folder of the program or, where a build puts it, in the one above.
    static QString defaultPath();

private:
    QLibrary m_module;
    std::unique_ptr<PLG_Interface> m_plugin;
};
