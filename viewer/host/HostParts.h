#pragma once

#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/storage/NamingPreferences.h"
#include "viewer/host/parts/CameraSettingsFiles.h"
#include "viewer/host/parts/CardDrives.h"
#include "viewer/host/parts/History.h"
#include "viewer/host/parts/PluginRegistry.h"
#include "viewer/host/parts/TemporaryDocuments.h"
#include "viewer/host/parts/UpdateGate.h"
#include "viewer/host/parts/cameras/AutoFocusTool.h"
#include "viewer/host/parts/cameras/ChangeNotes.h"
#include "viewer/host/parts/cameras/ImageTriggerWatch.h"
#include "viewer/host/parts/cameras/SettingModes.h"
#include "viewer/host/parts/cameras/ShadingCalibration.h"
#include "viewer/host/parts/cameras/TargetCameras.h"
#include "viewer/host/parts/cameras/TriggerSharing.h"
#include "viewer/host/parts/cameras/VariableSetting.h"

class Messages;
class Preferences;
class HostWindow;

/// What the doors of the host object lead to: the parts that several of them need, connected with each other.
/// A part that one door alone needs stands there.
class HostParts : public QObject, public HostObject {
    Q_OBJECT

public:
    /// Flags of `updateAll`: redraw the views, refresh the tool buttons. All others send `update` to the open
    /// plug-ins and to the mediators of the dialogs. No flag costs a command to a camera.
    enum UpdateFlag { UpdateViews = 1, UpdateTools = 4 };

    /// None is owned; all outlive the host.
    HostParts(DocumentList& documents, Preferences& preferences, Messages& messages, HostWindow& shell,
              CallRecorder& calls);
    ~HostParts() override;

    PluginRegistry& plugins() { return m_plugins; }
    UpdateGate& updates() { return m_updates; }
    History& history() { return m_history; }
    TemporaryDocuments& temporary() { return m_temporary; }
    CardDrives& drives() { return m_drives; }
    DocumentList& documents() { return m_documents; }
    SettingModes& modes() { return m_modes; }
    ChangeNotes& changeNotes() { return m_changeNotes; }
    /// The plug-in is not owned.
    void addPlugin(PLG_Interface* plugin) { m_plugins.add(plugin); }
    /// The program ends.
    void setClosing(bool closing) { m_closing = closing; }

protected:
    /// The head of the current camera and its settings; null without one.
    CameraHead* head() const { return m_cameras.head(); }
    const HeadSettings* settings() const { return head() ? &head()->settings() : nullptr; }
    Document* current() const { return m_documents.current(); }
    /// Names of cameras as the preferences want them.
    void refreshNames();
    CallRecorder& recorder() { return m_calls; }

    DocumentList& m_documents;
    Preferences& m_preferences;
    Messages& m_messages;
    HostWindow& m_shell;
    PluginRegistry m_plugins;
    UpdateGate m_updates;
    SettingModes m_modes;
    History m_history;
    TargetCameras m_cameras;
    ImageTriggerWatch m_imageWatch;
    AutoFocusTool m_autoFocus;
    TriggerSharing m_triggerSharing;
    VariableSetting m_variableSetting;
    ShadingCalibration m_shading;
    ChangeNotes m_changeNotes;
    CameraSettingsFiles m_settingsFiles;
    CardDrives m_drives;
    TemporaryDocuments m_temporary;
    bool m_closing = false;

private:
    void sendUpdate(int flags);
    DisplayFormat displayFormat() const;
    int leastHeadDigits(const Document& document, SaveFamily family) const;
    QString saveSuffix(const Document& document, int saveType, int session, bool& used);
    void connectDocuments();
    void closeGone();
    void connectModes();

    CallRecorder& m_calls;
};
