#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class PLG_Interface;
class HostWindow;

/// The plug-ins that were loaded, and which of them are open. They belong to whoever loaded them.
class PluginRegistry : public QObject {
    Q_OBJECT

public:
    explicit PluginRegistry(HostWindow& shell) : m_shell(shell) {}

    void add(PLG_Interface* plugin) { m_plugins.append(plugin); }
    void remove(PLG_Interface* plugin);

    PLG_Interface* find(const QString& name) const;
    const QList<PLG_Interface*>& all() const { return m_plugins; }
    const QList<PLG_Interface*>& open() const { return m_open; }
    QStringList openNames() const;
    /// The one whose panel shows; null without one.
    PLG_Interface* current() const { return m_open.isEmpty() ? nullptr : m_open.last(); }

    /// Shows the panel of a plug-in. Without effect for a name that nobody has: other tools aren't there.
    void openPanel(const QString& name);
    void closePanel(const QString& name);
    void closeCurrent();

signals:
    void currentChanged();

private:
    HostWindow& m_shell;
    QList<PLG_Interface*> m_plugins;
    QList<PLG_Interface*> m_open; // the current one last
};
