#include "viewer/host/HostRooms.h"

#include "livecontrol/plugin/PLG_Interface.h"
#include "viewer/cameras/Rig.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/Shell.h"
#include "viewer/prefs/Preferences.h"

#include <algorithm>

HostRooms::HostRooms(DocumentList& documents, Preferences& preferences, Messages& messages, Shell& shell)
    : m_documents(documents), m_preferences(preferences), m_messages(messages), m_shell(shell),
      m_plugins(shell), m_updates([this](int flags) { sendUpdate(flags); }) {
    m_documents.setShutterFormat([this] {
        ShutterFormat format;
        format.unit =
            m_preferences.value(QStringLiteral("display/ShutterSpeed"), ShutterFormat::CameraUnit).toInt();
        format.grouped =
            m_preferences.value(QStringLiteral("display/shutterSpeedInsertDelimiter"), false).toBool();
        return format;
    });
    refreshNames();
    // What changes without the plug-in having asked for it. Its own changes end in an update of their own.
    const auto soon = [this] { m_updates.requestSoon(-1); };
    connect(&m_documents.rig(), &Rig::changedOutside, this, soon);
    connect(&m_documents.rig(), &Rig::stateChanged, this, soon);
    connect(&m_documents, &DocumentList::connectionChanged, this, soon);
    connect(&m_documents, &DocumentList::documentAdded, this, soon);
    connect(&m_documents, &DocumentList::documentRemoved, this, soon);
    connect(&m_documents, &DocumentList::currentChanged, this, soon);
    connect(&m_documents, &DocumentList::modeChanged, this, soon);
    connect(&m_documents, &DocumentList::namesChanged, this, soon);
}

HostRooms::~HostRooms() { m_documents.setShutterFormat({}); }

void HostRooms::refreshNames() {
    m_documents.setNamesAreAddresses(
        m_preferences.value(QStringLiteral("devicemanager/useipcameraname"), false).toBool());
}

void HostRooms::sendUpdate(int flags) {
    if (m_closing) {
        return;
    }
    if (flags & UpdateViews) {
        m_shell.refreshViews();
    }
    if (flags & UpdateTools) {
        m_shell.refreshTools();
    }
    if (flags & ~(UpdateViews | UpdateTools)) {
        const QList<PLG_Interface*> plugins = m_plugins.open(); // a copy: a page may close one
        for (PLG_Interface* const plugin : plugins) {
            plugin->update();
        }
        m_shell.updateAttachedMediators();
    }
}

CameraHead* HostRooms::head() const {
    const CameraDocument* const camera = m_documents.currentCamera();
    return camera && camera->isConnected() ? camera->head() : nullptr;
}

const HeadSettings* HostRooms::settings() const {
    const CameraHead* const current = head();
    return current ? &current->settings() : nullptr;
}

int HostRooms::supportLevel(const std::function<bool(const CameraHead&)>& has) const {
    const QList<CameraDocument*> cameras = m_documents.targetCameras();
    const auto hasIt = [&has](const CameraDocument* camera) { return has(*camera->head()); };
    const int count = int(std::count_if(cameras.cbegin(), cameras.cend(), hasIt));
    if (count == 0) {
        return MULTIPLE_DOCS_NOTHING;
    }
    const CameraDocument* const current = m_documents.currentCamera();
    if (current == nullptr || !cameras.contains(const_cast<CameraDocument*>(current)) || !hasIt(current)) {
        return MULTIPLE_DOCS_NOT_IN_CURRENT;
    }
    return count == cameras.size() ? MULTIPLE_DOCS_ALL : MULTIPLE_DOCS_CURRENT_AND_ANY;
}

int HostRooms::supportLevel(CameraFunction function) const {
    return supportLevel([function](const CameraHead& camera) { return camera.model().supports(function); });
}

bool HostRooms::anyInState(CameraState state) const {
    const auto isInState = [](const CameraDocument& camera, int wanted) {
        return camera.body()->state() == CameraState(wanted);
    };
    return m_documents.anyTarget(isInState, int(state));
}
