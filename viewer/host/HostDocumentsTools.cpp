// Tools on documents, the trigger's lock.

#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostDocuments";
}

void ViewerHost::setToolsDisabled(bool disabled) {
    OPERATION(disabled);
    if (disabled) {
        m_documents.tools().setQuickTool(QString()); // it is off; the user may take it up again
    }
}

bool ViewerHost::isMultiLock() {
    OPERATION();
    return false;
}

void ViewerHost::commitTool(bool commit, const QString& name) { OPERATION(commit, name); }

void ViewerHost::setToolEffect(const QString& name, bool on, bool notify) {
    OPERATION(name, on, notify);
    m_documents.tools().setApplied(name, on);
}

void ViewerHost::cancelTool(const QString& name) { OPERATION(name); }

void ViewerHost::resetTool(const QString& name) {
    OPERATION(name);
    m_documents.tools().reset(name);
}

void ViewerHost::setToolEnabled(const QString& name, bool enabled) {
    OPERATION(name, enabled);
    m_documents.tools().setAllowed(name, enabled);
}

void ViewerHost::setActiveTool(const QString& name) {
    OPERATION(name);
    m_documents.tools().setQuickTool(name);
}

void ViewerHost::setToolActive(const QString& name, bool active) {
    OPERATION(name, active);
    m_documents.tools().setActive(name, active);
}

bool ViewerHost::isWaveDataAcquisition() {
    OPERATION();
    return false;
}

bool ViewerHost::hasWaveformData() {
    OPERATION();
    return false;
}

// Each camera has one partition, so they can't differ.
bool ViewerHost::isConflictPartition(bool selectedOnly) {
    OPERATION(selectedOnly);
    return false;
}

void ViewerHost::setLockTriggerParam(int lock) {
    OPERATION(lock);
    m_triggerSharing.setLock(lock);
}

int ViewerHost::getLockTriggerParam() {
    OPERATION();
    return m_triggerSharing.lock();
}
