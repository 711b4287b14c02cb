#pragma once

#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/RUN_ObservePhaseAdjustWarningThread.h"
#include "livecontrol/interface/records.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraCommands.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/AutoFocus.h"
#include "viewer/host/Plugins.h"
#include "viewer/host/SettingModes.h"
#include "viewer/host/UpdateGate.h"

#include <QMutex>
#include <QPointer>
#include <QSet>
#include <QUndoStack>

class Messages;
class Preferences;
class Shell;
class SupportFolder;

/// The rooms behind the host object, and what it keeps for itself.
class HostRooms : public QObject, public HostObject {
    Q_OBJECT

public:
    /// Flags of `updateAll`: redraw the views, refresh the tool buttons. All others send `update` to the open
    /// plug-ins and to the mediators of the dialogs. No flag costs a command to a camera.
    enum UpdateFlag { UpdateViews = 1, UpdateTools = 4 };

    /// None is owned; all outlive the host.
    HostRooms(DocumentList& documents, Preferences& preferences, Messages& messages, Shell& shell,
              CallRecorder& calls);
    ~HostRooms() override;

    DocumentList& documents() { return m_documents; }
    Plugins& plugins() { return m_plugins; }
    UpdateGate& updates() { return m_updates; }
    QUndoStack& history() { return m_history; }
    SettingModes& modes() { return m_modes; }
    /// Takes a step into the history, inside the macro that is open. A macro without a step leaves no trace.
    void pushStep(std::unique_ptr<QUndoCommand> step);
    /// The same of a step that moves the area of a setting mode: it is forgotten with the end of the mode.
    void pushAreaStep(std::unique_ptr<QUndoCommand> step);
    /// The area has been moved by a step, of which its page knows already.
    void noteAreaMoved() { m_areaMoved = true; }
    /// The plug-in is not owned.
    void addPlugin(PLG_Interface* plugin) { m_plugins.add(plugin); }
    /// The program ends.
    void setClosing(bool closing) { m_closing = closing; }

protected:
    /// A function of the selected cameras against the current one.
    int supportLevel(const std::function<bool(const CameraHead&)>& has) const;
    int supportLevel(CameraFunction function) const;
    bool anyInState(CameraState state) const;
    /// The settings of the current camera; null without one.
    const HeadSettings* settings() const;
    /// Its head; null without one.
    CameraHead* head() const;
    Document* current() const { return m_documents.current(); }
    void sendUpdate(int flags);
    void connectModes();
    void connectAutoFocus();
    /// Whether the current camera's lens can be focused.
    bool canFocus() const;
    void startAutoFocus();
    void releaseViews();
    void connectLinkObserver();
    void endLinkObserver();
    void watchPhases();
    /// The connected cameras whose link can be adjusted.
    QList<CameraDocument*> linkedCameras() const;
    /// Observes what the head's image trigger judges, and no other's: views and tools follow each change of
    /// it. Null ends it.
    void watchImageOf(CameraHead* head);
    void onHistoryChanged();
    void forgetHistory();
    /// Names of cameras as the preferences want them.
    void refreshNames();
    CallRecorder& recorder() { return m_calls; }

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    Shell& m_shell;
    CallRecorder& m_calls;
    Plugins m_plugins;
    UpdateGate m_updates;
    SettingModes m_modes;
    QPointer<CameraHead> m_watched; // whose image trigger is observed
    QUndoStack m_history;
    int m_macros = 0;        // open ones
    QStringList m_newMacros; // of these the innermost, in which nothing has happened yet
    bool m_areaSteps = false;
    bool m_areaMoved = false;
    RUN_ObservePhaseAdjustWarningThread m_phaseObserver;
    QObject m_linkWatch; // lives in that thread
    bool m_phaseWarning = false;
    bool m_isPhaseAdjusting = false;
    AutoFocus m_autoFocus;
    DOCKEY m_focusedKey = kInvalidDockey; // the view that says so

    QStringList m_notRestored; // what the cameras did not take of a settings file, a line each
    QMutex m_supportMutex;
    std::unique_ptr<SupportFolder> m_support; // what the last export gathered

    bool m_closing = false;
    int m_modals = 0; // windows of plug-ins that are open
    bool m_modelessTextFocus = false;
    TimeCodeSetting m_timeCode;
    int m_documentSource = 0;
    int m_triggerLock = 2; // what a changed total leaves as it is: 0 before frames, 1 after frames, 2 percent
    QList<DOCKEY> m_newKeys;
    QList<DOCKEY> m_paused; // documents that played when playback was paused
    int m_pauses = 0;

    // Names of a composing run that are handed out and not yet written.
    QSet<QString> m_pendingFolders;
    QSet<QString> m_pendingPaths;
    QString m_groupDir;
};
