#pragma once

#include "viewer/host/doors/DocumentDrivesDoor.h"

/// Tools on documents, the lock of the trigger.
class DocumentToolsDoor : public DocumentDrivesDoor {
public:
    using DocumentDrivesDoor::DocumentDrivesDoor;

    void setToolsDisabled(bool disabled) override {
        OPERATION(disabled);
        if (disabled) {
            m_documents.tools().setQuickTool(QString()); // it is off; the user may take it up again
        }
    }

    bool isMultiLock() override { return OPERATION(); }
    void commitTool(bool commit, const QString& name) override { OPERATION(commit, name); }

    void setToolEffect(const QString& name, bool on, bool notify) override {
        OPERATION(name, on, notify);
        m_documents.tools().setApplied(name, on);
    }

    void cancelTool(const QString& name) override { OPERATION(name); }

    void resetTool(const QString& name) override {
        OPERATION(name);
        m_documents.tools().reset(name);
    }

    void setToolEnabled(const QString& name, bool enabled) override {
        OPERATION(name, enabled);
        m_documents.tools().setAllowed(name, enabled);
    }

    void setActiveTool(const QString& name) override {
        OPERATION(name);
        m_documents.tools().setQuickTool(name);
    }

    void setToolActive(const QString& name, bool active) override {
        OPERATION(name, active);
        m_documents.tools().setActive(name, active);
    }

    bool isWaveDataAcquisition() override { return OPERATION(); }
    bool hasWaveformData() override { return OPERATION(); }

    // Each camera has one partition, so they can't differ.
    bool isConflictPartition(bool selectedOnly) override { return OPERATION(selectedOnly); }

    void setLockTriggerParam(int lock) override {
        OPERATION(lock);
        m_triggerSharing.setLock(lock);
    }

    int getLockTriggerParam() override {
        OPERATION();
        return m_triggerSharing.lock();
    }

private:
    static constexpr char kInterface[] = "HostDocuments";
};
