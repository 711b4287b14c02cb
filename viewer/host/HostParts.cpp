#include "viewer/host/HostParts.h"

#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/commands/CommandWait.h"
#include "viewer/host/HostWindow.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QScopeGuard>

HostParts::HostParts(DocumentList& documents, Preferences& preferences, Messages& messages, HostWindow& shell,
                     CallRecorder& calls)
    : m_documents(documents), m_preferences(preferences), m_messages(messages), m_shell(shell),
      m_plugins(shell), m_updates([this](int flags) { sendUpdate(flags); }), m_modes(documents),
      m_cameras(documents), m_autoFocus({documents, m_cameras, m_updates, messages, shell}),
      m_variableSetting(documents, m_modes, m_triggerSharing, messages), m_shading(m_cameras),
      m_changeNotes(documents, messages), m_settingsFiles(documents), m_drives(documents),
      m_temporary(documents), m_calls(calls) {
    connectDocuments();
    // A page that was told of the area needs no update, which would take back what else was edited on it.
    connect(&m_history, &History::changed, this,
            [this](bool areaOnly) { m_updates.request(areaOnly ? UpdateViews | UpdateTools : -1); });
    // Not the page, whose typed but unapplied numbers an update takes back: it asks for the status by itself.
    connect(&m_imageWatch, &ImageTriggerWatch::changed, this,
            [this] { m_updates.requestSoon(UpdateViews | UpdateTools); });
    connectModes();
    // A page would show what the cameras had before, and the operation that waits ends in an update anyway.
    connect(&CommandWait::get(), &CommandWait::begun, this, [this] { m_updates.hold(); });
    connect(&CommandWait::get(), &CommandWait::ended, this, [this] { m_updates.releaseSoon(); });
    m_documents.live().setReduced(m_preferences.value(QStringLiteral("live/reduceData"), false).toBool());
}

HostParts::~HostParts() {
    m_documents.setDisplayFormat({});
    m_documents.setSaveSuffix({});
}

void HostParts::connectDocuments() {
    m_documents.setDisplayFormat([this] { return displayFormat(); });
    m_documents.setSaveSuffix([this](const Document& document, int saveType, int session, bool& used) {
        return saveSuffix(document, saveType, session, used);
    });
    refreshNames();
    // What changes without the plug-in having asked for it. Its own changes end in an update of their own.
    const auto soon = [this] { m_updates.requestSoon(-1); };
    connect(&m_documents.source(), &CameraSource::changedOutside, this, soon);
    connect(&m_documents.source(), &CameraSource::stateChanged, this, soon);
    connect(&m_documents, &DocumentList::connectionChanged, this, soon);
    // Later: a card may be pulled while something of it is read.
    connect(&m_documents.source(), &CameraSource::changedOutside, this, &HostParts::closeGone,
            Qt::QueuedConnection);
    connect(&m_documents, &DocumentList::connectionChanged, this, &HostParts::closeGone,
            Qt::QueuedConnection);
    connect(&m_documents, &DocumentList::documentAdded, this, soon);
    connect(&m_documents, &DocumentList::documentRemoved, this, soon);
    connect(&m_documents, &DocumentList::currentChanged, this, soon);
    connect(&m_documents, &DocumentList::modeChanged, this, soon);
    connect(&m_documents, &DocumentList::namesChanged, this, soon);
}

// What a dialog lists of a card that was pulled can't be taken from it any more.
void HostParts::closeGone() {
    m_temporary.close([this](const Document& document) { return m_drives.isGone(document); });
}

// Heads of one camera are told apart in names, unless the user has chosen digits himself.
int HostParts::leastHeadDigits(const Document& document, SaveFamily family) const {
    const QString key = QStringLiteral("%1/filenameaddnumberheadnodigits")
                            .arg(QLatin1String(family == SaveFamily::Snap ? "snap" : "export"));
    const bool isNumbered = family == SaveFamily::Export || family == SaveFamily::Snap;
    return isNumbered && document.kind() == Document::Kind::Camera && document.body()->heads().size() > 1 &&
                   !m_preferences.keys().contains(key)
               ? 1
               : 0;
}

// The number of a saved file; a file that is converted or saved anew has neither camera nor head.
QString HostParts::saveSuffix(const Document& document, int saveType, int session, bool& used) {
    const SaveFamily family = saveFamily(saveType);
    if (!NamingPreferences(this, family).flag("filenameaddnumber")) {
        return QString();
    }
    DigitCounts digits = addNumberDigits(this, numberTarget(family, NameKind::File));
    if (family == SaveFamily::Convert || document.kind() == Document::Kind::File) {
        digits.camera = digits.head = 0;
    }
    digits.head = qMax(digits.head, leastHeadDigits(document, family));
    used = digits.session > 0;
    int camera = 0;
    const QList<DeviceDocument*> devices = m_documents.devices();
    while (camera < devices.size() && devices.at(camera)->body() != document.body()) {
        ++camera;
    }
    const int head = document.head() ? document.head()->index() : 0;
    return composeSequenceNumber(camera + 1, head + 1, session, digits.camera, digits.head, digits.session);
}

DisplayFormat HostParts::displayFormat() const {
    const auto number = [this](const char* key, int start) {
        return m_preferences.value(QLatin1String(key), start).toInt();
    };
    const auto flag = [this](const char* key) {
        return m_preferences.value(QLatin1String(key), false).toBool();
    };
    DisplayFormat format;
    format.shutter.unit = number("display/ShutterSpeed", ShutterFormat::CameraUnit);
    format.shutter.timeUnit = number("display/ShutterSpeedUnit", ShutterFormat::Fitting);
    format.shutter.grouped = flag("display/shutterSpeedInsertDelimiter");
    format.groupsRates = flag("display/recordRateInsertDelimiter");
    format.groupsFrames = flag("display/frameInsertDelimiter");
    format.recordingTimeUnit = number("info/RecTimeUnit", DisplayFormat::Clock);
    return format;
}

void HostParts::connectModes() {
    connect(&m_modes, &SettingModes::left, this, [this] {
        m_imageWatch.watch(nullptr);
        m_history.forgetAreaSteps();
    });
    m_modes.setCountsRealLevels([this] {
        return m_preferences.value(QStringLiteral("display/DisplayWithRealBitDepth"), false).toBool();
    });
    // Later: the box runs events, and this comes from the middle of a change of the link.
    connect(
        &m_modes, &SettingModes::stayedChanged, this,
        [this](const QString& camera, const QStringList& changes) {
            CommandWait::get().afterwards(this, [this, camera, changes] {
                m_messages.warnList(translated("The link to %1 broke while its settings were edited. These "
                                               "settings of the camera stayed changed:")
                                        .arg(camera),
                                    changes, nullptr);
            });
        },
        Qt::QueuedConnection);
    // A page that edits an area begins anew when the panel opens again.
    connect(&m_plugins, &PluginRegistry::currentChanged, this, [this] {
        if (!m_plugins.current() &&
            (m_modes.isOn(SettingModes::AutoExposure) || m_modes.isOn(SettingModes::HwTrigger))) {
            m_modes.end();
        }
    });
}

void HostParts::refreshNames() {
    m_documents.setNamesAreAddresses(
        m_preferences.value(QStringLiteral("devicemanager/useipcameraname"), false).toBool());
}

void HostParts::sendUpdate(int flags) {
    if (m_closing) {
        return;
    }
    m_messages.gatherFailures(true);
    const auto tell = qScopeGuard([this] { m_messages.gatherFailures(false); });
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
