#include "viewer/host/HostRooms.h"

#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/cameras/Rig.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/Shell.h"
#include "viewer/host/SupportFile.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <algorithm>

HostRooms::HostRooms(DocumentList& documents, Preferences& preferences, Messages& messages, Shell& shell)
    : m_documents(documents), m_preferences(preferences), m_messages(messages), m_shell(shell),
      m_plugins(shell), m_updates([this](int flags) { sendUpdate(flags); }), m_modes(documents) {
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
    connect(&m_history, &QUndoStack::indexChanged, this, &HostRooms::onHistoryChanged);
    connectModes();
    connectLinkObserver();
    connectAutoFocus();
    m_documents.live().setReduced(m_preferences.value(QStringLiteral("live/reduceData"), false).toBool());
}

HostRooms::~HostRooms() {
    endLinkObserver();
    m_documents.setShutterFormat({});
}

void HostRooms::watchImageOf(CameraHead* head) {
    if (m_watched == head) {
        return;
    }
    if (m_watched) {
        m_watched->observeImage(false); // which is the last that is heard of it
        m_watched->disconnect(this);
    }
    m_watched = head;
    if (head) {
        // Not the page, whose typed but unapplied numbers an update takes back: it asks for the status by
        // itself.
        connect(head, &CameraHead::imageTriggerChanged, this,
                [this] { m_updates.requestSoon(UpdateViews | UpdateTools); });
        head->observeImage(true);
    }
}

void HostRooms::connectModes() {
    connect(&m_modes, &SettingModes::left, this, [this] {
        watchImageOf(nullptr);
        if (m_areaSteps) {
            forgetHistory();
        }
    });
    m_modes.setCountsRealLevels([this] {
        return m_preferences.value(QStringLiteral("display/DisplayWithRealBitDepth"), false).toBool();
    });
    // Later: the box runs events, and this comes from the middle of a change of the link.
    connect(
        &m_modes, &SettingModes::stayedChanged, this,
        [this](const QString& camera, const QStringList& changes) {
            m_messages.warnList(translated("The link to %1 broke while its settings were edited. These "
                                           "settings of the camera stayed changed:")
                                    .arg(camera),
                                changes, nullptr);
        },
        Qt::QueuedConnection);
    // A page that edits an area begins anew when the panel opens again.
    connect(&m_plugins, &Plugins::currentChanged, this, [this] {
        if (!m_plugins.current() &&
            (m_modes.isOn(SettingModes::AutoExposure) || m_modes.isOn(SettingModes::HwTrigger))) {
            m_modes.end();
        }
    });
}

void HostRooms::pushStep(std::unique_ptr<QUndoCommand> step) {
    for (const QString& name : qAsConst(m_newMacros)) {
        m_history.beginMacro(name);
    }
    m_newMacros.clear();
    m_history.push(step.release()); // owned by the stack
}

void HostRooms::pushAreaStep(std::unique_ptr<QUndoCommand> step) {
    m_areaSteps = true;
    noteAreaMoved();
    pushStep(std::move(step));
}

void HostRooms::forgetHistory() {
    for (; m_macros > m_newMacros.size(); --m_macros) {
        m_history.endMacro();
    }
    m_newMacros.clear();
    m_macros = 0;
    m_areaMoved = m_areaSteps; // the page leaves the area by itself
    m_areaSteps = false;
    m_history.clear();
}

// A page that was told of the area needs no update, which would take back what else was edited on it.
void HostRooms::onHistoryChanged() {
    const bool onlyArea = m_areaMoved;
    m_areaMoved = m_macros > 0 && m_areaMoved;
    m_updates.request(onlyArea ? UpdateViews | UpdateTools : -1);
}

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
