#pragma once

#include "viewer/host/parts/SupportFile.h"

#include <QMutex>

#include <memory>

class DocumentList;
class Preferences;
class HostWindow;

/// What the support file holds: gathered on the GUI thread, packed on another.
class SupportExport {
public:
    /// None is owned; all outlive it.
    SupportExport(DocumentList& documents, const Preferences& preferences, HostWindow& shell)
        : m_documents(documents), m_preferences(preferences), m_shell(shell) {}

    /// Gathers it, in place of that of an export that did not come to its end. Gives the paths. GUI thread.
    /// Throws APP_Exception.
    QStringList gather();
    /// Packs these; what was gathered goes with this call, whatever happens. Any thread. Throws
    /// APP_Exception.
    void pack(const QString& path, const QStringList& files);

private:
    DocumentList& m_documents;
    const Preferences& m_preferences;
    HostWindow& m_shell;
    QMutex m_mutex;
    std::unique_ptr<SupportFolder> m_gathered;
};
