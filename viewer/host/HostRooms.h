#pragma once

#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "viewer/host/parts/AutoFocusTool.h"
#include "viewer/host/parts/CameraSettingsFiles.h"
#include "viewer/host/parts/HeadLamps.h"
#include "viewer/host/parts/History.h"
#include "viewer/host/parts/ImageTriggerWatch.h"
#include "viewer/host/parts/LinkWatch.h"
#include "viewer/host/parts/PendingNames.h"
#include "viewer/host/parts/Plugins.h"
#include "viewer/host/parts/SettingModes.h"
#include "viewer/host/parts/ShadingCalibration.h"
#include "viewer/host/parts/SupportExport.h"
#include "viewer/host/parts/TriggerSharing.h"
#include "viewer/host/parts/UpdateGate.h"
#include "viewer/host/parts/VariableSetting.h"

class Messages;
class Preferences;
class Shell;

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
    History& history() { return m_history; }
    SettingModes& modes() { return m_modes; }
    /// The plug-in is not owned.
    void addPlugin(PLG_Interface* plugin) { m_plugins.add(plugin); }
    /// The program ends.
    void setClosing(bool closing) { m_closing = closing; }

protected:
    /// The settings of the current camera; null without one.
    const HeadSettings* settings() const;
    /// Its head; null without one.
    CameraHead* head() const { return m_cameras.head(); }
    Document* current() const { return m_documents.current(); }
    void sendUpdate(int flags);
    void connectModes();
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
    History m_history;
    TargetCameras m_cameras;
    ImageTriggerWatch m_imageWatch;
    LinkWatch m_links;
    AutoFocusTool m_autoFocus;
    TriggerSharing m_triggerSharing;
    VariableSetting m_variableSetting;
    ShadingCalibration m_shading;
    HeadLamps m_lamps;
    CameraSettingsFiles m_settingsFiles;
    SupportExport m_support;
    PendingNames m_pending;

    bool m_closing = false;
    int m_modals = 0; // windows of plug-ins that are open
    bool m_modelessTextFocus = false;
    TimeCodeSetting m_timeCode;
    QList<DOCKEY> m_newKeys;
    QList<DOCKEY> m_paused; // documents that played when playback was paused
    int m_pauses = 0;
};
