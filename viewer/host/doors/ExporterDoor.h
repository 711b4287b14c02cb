#pragma once

#include "viewer/host/doors/PlayerDoor.h"
#include "viewer/host/parts/PendingNames.h"

/// Names of files to be written, and the clipboard. Nothing here saves or converts in the background.
class ExporterDoor : public PlayerDoor {
public:
    using PlayerDoor::PlayerDoor;

    bool isAutoExporting() override { return OPERATION(); }
    bool isBackgroundSaving() override { return OPERATION(); }
    bool isBackgroundConverting() override { return OPERATION(); }
    void endNaming() override;
    void beginGroupNaming() override { OPERATION(); }
    void beginFileNaming() override { OPERATION(); }

    void setGroupDir(const QString& dir) override {
        OPERATION(dir);
        m_pending.groupDir = dir;
    }

    void addPendingFolder(const QString& folder) override {
        OPERATION(folder);
        m_pending.folders.insert(folder);
    }

    void addPendingPath(const QString& path) override {
        OPERATION(path);
        m_pending.paths.insert(path);
    }

    bool isPendingFolder(const QString& folder) override {
        OPERATION(folder);
        return m_pending.folders.contains(folder);
    }

    bool isPendingPath(const QString& path) override {
        OPERATION(path);
        return m_pending.paths.contains(path);
    }

    QString getGroupDir() override {
        OPERATION();
        return m_pending.groupDir;
    }

    QString getReplacementFolder() override { return OPERATION(); }
    void copyToClipboard(int mode) override;

private:
    static constexpr char kInterface[] = "HostExporter";

    PendingNames m_pending;
};
