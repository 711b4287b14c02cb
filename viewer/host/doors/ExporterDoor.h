#pragma once

#include "viewer/host/doors/PlayerDoor.h"
#include "viewer/host/parts/PendingNames.h"

/// Names of files to be written, what is written in the background, and the clipboard.
class ExporterDoor : public PlayerDoor {
public:
    using PlayerDoor::PlayerDoor;

    /// Who knows of what is saved in the background; without it nothing is.
    void setSavingState(std::function<bool()> isSaving, std::function<bool()> isConverting,
                        std::function<bool()> isKeeping) {
        m_isSaving = std::move(isSaving);
        m_isConverting = std::move(isConverting);
        m_isKeeping = std::move(isKeeping);
    }
    /// What was begun has been written.
    void forgetPendingNames() { m_pending = {}; }

    bool isAutoExporting() override {
        OPERATION();
        return m_isKeeping && m_isKeeping();
    }
    bool isBackgroundSaving() override {
        OPERATION();
        return m_isSaving && m_isSaving();
    }
    bool isBackgroundConverting() override {
        OPERATION();
        return m_isConverting && m_isConverting();
    }
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
    std::function<bool()> m_isSaving;
    std::function<bool()> m_isConverting;
    std::function<bool()> m_isKeeping;
};
