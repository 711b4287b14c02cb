#include "viewer/host/parts/cameras/VariableSetting.h"

#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/host/parts/cameras/SettingModes.h"
#include "viewer/host/parts/cameras/TriggerSharing.h"
#include "viewer/messages/Messages.h"

void VariableSetting::begin() {
    CameraDocument* const camera = m_documents.currentCamera();
    if (camera == nullptr) {
        return;
    }
    const HeadSettings before = camera->head()->settings();
    try {
        CameraCommands(SettingTable::command("resolution")).run({camera}, [this](CameraHead& head) {
            return m_sharing.keep(head, [](CameraHead& it) { return it.setResolution(it.maxResolution()); });
        });
    } catch (const CameraFailure&) {
        m_modes.end(); // the page does not open, and nobody else would end what it began
        throw;
    }
    m_widened = camera->key();
    m_before = before;
}

void VariableSetting::noteChannelSet(const QList<CameraDocument*>& cameras) {
    if (cameras.contains(widened())) {
        m_widened = kInvalidDockey;
    }
}

void VariableSetting::restore(const VariableBackup& backup) {
    CameraDocument* const camera = widened() ? widened() : m_documents.currentCamera();
    if (camera == nullptr) {
        return;
    }
    HeadSettings before;
    before.channel = int(backup.channel);
    before.rate = backup.recordRate;
    before.resolution = QSize(int(backup.width), int(backup.height));
    before.shutter = backup.shutter;
    before.triggerMode = backup.trigger.mode;
    before.afterFrames = backup.trigger.afterFrames;
    before.randomFrames = backup.trigger.randomFrames;
    before.randomCount = backup.trigger.randomCount;
    CameraCommands().run({camera}, [&before](CameraHead& head) { return head.restoreSettings(before); });
    m_widened = kInvalidDockey;
}

void VariableSetting::leave() {
    CameraDocument* const camera = widened();
    m_widened = kInvalidDockey;
    if (camera == nullptr || !camera->isConnected()) {
        return;
    }
    try {
        CameraCommands().run({camera}, [this](CameraHead& head) { return head.restoreSettings(m_before); });
    } catch (const CameraFailure& failure) {
        m_messages.deviceError(failure.failure());
    }
}

HeadSettings VariableSetting::settingsBefore(const CameraDocument& camera) const {
    return camera.key() == m_widened ? m_before : camera.head()->settings();
}

CameraDocument* VariableSetting::widened() const {
    Document* const document = m_documents.find(m_widened);
    return document && document->kind() == Document::Kind::Camera ? static_cast<CameraDocument*>(document)
                                                                  : nullptr;
}
