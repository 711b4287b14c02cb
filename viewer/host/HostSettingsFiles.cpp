// Camera settings files.

#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"

namespace {
constexpr char kInterface[] = "HostDocuments";
}

// Not recorded: it may run on another thread.
void ViewerHost::saveCameraSettings(const QString& path, int reserved) {
    Q_UNUSED(reserved)
    m_settingsFiles.save(path);
}

void ViewerHost::loadCameraSettings(const QString& path, int reserved1, int reserved2) {
    OPERATION(path, reserved1, reserved2);
    m_settingsFiles.load(path);
    m_updates.requestSoon(-1);
}

void ViewerHost::prepareSettingsLoad(bool flag) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(flag);
    m_settingsFiles.forgetMissed();
}

bool ViewerHost::wereSettingsRestored() {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION();
    return !m_settingsFiles.missed().isEmpty();
}

void ViewerHost::reportRestoredSettings(bool show) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(show);
    const QStringList lines = m_settingsFiles.missed();
    m_settingsFiles.forgetMissed();
    if (show && !lines.isEmpty()) {
        m_messages.warnList(translated("Not all settings could be restored:"), lines, nullptr);
    }
}
