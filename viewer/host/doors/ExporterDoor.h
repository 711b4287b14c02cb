#pragma once

#include "viewer/host/doors/PlayerDoor.h"
#include "viewer/host/parts/BackgroundSaving.h"
#include "viewer/host/parts/PendingNames.h"

/// Names of files to be written, what is written in the background, and the clipboard.
class ExporterDoor : public PlayerDoor {
public:
    using PlayerDoor::PlayerDoor;

    /// Without it nothing goes on. It outlives this, or is taken away before.
    void setBackgroundSaving(const BackgroundSaving* saving) { m_saving = saving; }

    bool isAutoExporting() override {
        OPERATION();
        return m_saving && m_saving->isExportingUnasked();
    }
    bool isBackgroundSaving() override {
        OPERATION();
        return m_saving && m_saving->isSaving();
    }
    bool isBackgroundConverting() override {
        OPERATION();
        return m_saving && m_saving->isConverting();
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
        return m_pending.paths.contains(path) || (m_saving && m_saving->isReserved(path));
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
    const BackgroundSaving* m_saving = nullptr;
};
