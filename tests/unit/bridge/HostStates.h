#pragma once

// States of a host and of a camera, each with the flags that tell it.

#include "livecontrol/plugin/PLG_HTML.h"
#include "tests/support/TestRig.h"

#include <QWidget>

#include <functional>
#include <memory>

/// One state of the host.
struct State {
    const char* name;
    const char* changed; ///< The flags that differ from a host with one connected camera in live mode.
    std::function<void(TestRig&)> set;
};

/// A plug-in under the pointer, being dragged.
struct DraggedPlugin : PLG_HTML {
    bool isDragging() override { return true; }
};

/// These preferences are on, all others off.
inline void setPrefs(TestRig& rig, const QStringList& on) {
    rig.host.onGetPrefBool = [on](const QString& key, const QVariant&) { return on.contains(key); };
}

inline void openPlugin(TestRig& rig, const char* name) {
    rig.host.onGetCurrentPluginName = [name] { return QString::fromLatin1(name); };
}

/// All that a host tells of itself by a plain yes.
inline QList<State> plainStates() {
    const auto yes = [] { return true; };
    return {
        {"recording", "IsRecording", [=](TestRig& rig) { rig.host.onIsRecording = yes; }},
        {"saving", "IsBgSaving", [=](TestRig& rig) { rig.host.onIsBackgroundSaving = yes; }},
        {"converting", "IsBgConverting", [=](TestRig& rig) { rig.host.onIsBackgroundConverting = yes; }},
        {"memory mode", "IsMemoryMode", [=](TestRig& rig) { rig.host.onIsMemoryMode = yes; }},
        {"file mode", "IsFileMode", [=](TestRig& rig) { rig.host.onIsFileMode = yes; }},
        {"undo", "IsNotUndo", [=](TestRig& rig) { rig.host.onCanUndo = yes; }},
        {"redo", "IsNotRedo", [=](TestRig& rig) { rig.host.onCanRedo = yes; }},
        {"low light", "IsLowlight", [=](TestRig& rig) { rig.host.onIsLowLight = yes; }},
        {"has low light", "ExistLowlight", [=](TestRig& rig) { rig.host.onExistsLowLight = yes; }},
        {"exposure", "IsAutoExposureSetting", [=](TestRig& rig) { rig.host.onIsAutoExposureSetting = yes; }},
        {"image trigger", "IsHwTriggerSetting", [=](TestRig& rig) { rig.host.onIsHwTriggerSetting = yes; }},
        {"variable", "IsVariableSetting", [=](TestRig& rig) { rig.host.onIsVariableSetting = yes; }},
        {"tracking", "IsTracking", [=](TestRig& rig) { rig.host.onIsTracking = yes; }},
        {"calibration", "IsLensCalibration", [=](TestRig& rig) { rig.host.onIsLensCalibration = yes; }},
        {"waveform", "IsNoneWaveformData", [=](TestRig& rig) { rig.host.onHasWaveformData = yes; }},
        {"node", "IsSendingNodeCommand", [=](TestRig& rig) { rig.host.onIsSendingNodeCommand = yes; }},
        {"adjusting", "IsAdjustingImage", [=](TestRig& rig) { rig.host.onIsAdjustingImage = yes; }},
        {"defects", "IsDetectingPixelDefect", [=](TestRig& rig) { rig.host.onIsDetectingPixelDefect = yes; }},
        {"cycling", "IsCycleView", [=](TestRig& rig) { rig.host.onIsCycleView = yes; }},
        {"capturing", "IsImageTriggerCapturing",
         [=](TestRig& rig) { rig.host.onIsImageTriggerCapturing = yes; }},
        {"detecting", "IsImageTriggerDetecting",
         [=](TestRig& rig) { rig.host.onIsImageTriggerDetecting = yes; }},
        {"focussing", "IsAutoFocussing", [=](TestRig& rig) { rig.host.onIsAutoFocussing = yes; }},
        {"preferences", "IsPrefDialogOpening", [=](TestRig& rig) { rig.host.onIsPrefDialogOpening = yes; }},
        {"modal", "IsModalDialogOpening", [=](TestRig& rig) { rig.host.onIsModalDialogOpening = yes; }},
        {"phases", "IsPhaseAdjusting", [=](TestRig& rig) { rig.host.onIsPhaseAdjusting = yes; }},
        {"typing", "IsModalessDialogTextFocussing",
         [=](TestRig& rig) { rig.host.onIsModelessTextFocused = yes; }},
        {"shading", "IsShading", [=](TestRig& rig) { rig.host.onIsShading = yes; }},
        {"multi-camera tool", "IsQmon", [=](TestRig& rig) { rig.host.onIsQmonRunning = yes; }},
        {"tool in front", "IsActiveZelOnQmon", [=](TestRig& rig) { rig.host.onIsActiveOnQmon = yes; }},
        {"all locked without the tool", "", [=](TestRig& rig) { rig.host.onIsAllQmonLocked = yes; }},
        {"locked without the tool", "", [=](TestRig& rig) { rig.camera.onIsQmonLocked = yes; }},
        {"other plug-in", "IsOtherPluginOpen", [=](TestRig& rig) { rig.host.onIsOtherPluginOpen = yes; }},
        {"3D", "Is2DFile Is3DFile", [=](TestRig& rig) { rig.camera.onIs3D = yes; }},
        {"3D file of another kind", "IsNt3DFile", [=](TestRig& rig) { rig.host.onIsNt3DFile = yes; }},
        {"any plug-in", "IsOpenExceptFilecontrol",
         [=](TestRig& rig) { rig.host.onIsOpenExceptFilecontrol = yes; }},
        {"exporting", "IsAutoExpoting", [=](TestRig& rig) { rig.host.onIsAutoExporting = yes; }},
        {"curve", "IsLutCurve", [=](TestRig& rig) { rig.camera.onIsLutCurve = yes; }},
        {"full size", "IsSuspendReduce", [=](TestRig& rig) { rig.camera.onIsSuspendReduce = yes; }},
    };
}

/// What depends on an argument, on a number or on several things.
inline QList<State> otherStates() {
    const auto dragged = std::make_shared<DraggedPlugin>();
    const auto full = std::make_shared<QWidget>();
    full->setWindowState(Qt::WindowFullScreen);
    const auto yes = [] { return true; };
    const auto same = [](bool asked) { return asked; };
    const auto opposite = [](bool asked) { return !asked; };
    const auto windows = [](int count) {
        return [=](TestRig& rig) {
            rig.host.onCountWindows = [=](bool visible, int kind) {
                return visible && kind == 0 ? count : 0;
            };
        };
    };
    const auto recording = [](int state) {
        return [=](TestRig& rig) { rig.host.onGetRecordingState = [=] { return state; }; };
    };
    // Of the document in question alone.
    const auto own = [](TestRig& rig) {
        return [&rig](DOC_Interface* document) { return document == &rig.camera; };
    };
    return {
        {"one window", "IsNoneWindow IsSingleWindow", windows(1)},
        {"two windows", "IsNoneWindow IsMultiWindow", windows(2)},
        {"getting ready", "IsCTSReady IsNotRecording", recording(1)},
        {"ready", "IsReady IsNotRecording", recording(2)},
        {"neither", "IsNotRecording", recording(3)},
        {"failed", "IsRecordingError IsNotRecording", recording(4)},
        {"saving to the card", "IsDirectSaving", [=](TestRig& rig) { rig.host.onIsDirectSaving = same; }},
        {"documents", "IsNoneDocument", [](TestRig& rig) { rig.host.onGetDocumentCount = [] { return 1; }; }},
        {"one selected", "IsSingleSelectedDocument",
         [](TestRig& rig) { rig.host.onGetSelectedCount = [] { return 1; }; }},
        {"two selected", "", [](TestRig& rig) { rig.host.onGetSelectedCount = [] { return 2; }; }},
        {"not live", "IsLiveMode IsLiveNoAutoDownloadSetting IsNotCurrentAutoFocus",
         [](TestRig& rig) { rig.host.onIsLiveMode = [] { return false; }; }},
        {"all on", "IsAllLowlightON", [=](TestRig& rig) { rig.host.onIsAllLowLight = same; }},
        {"all off", "IsAllLowlightOFF", [=](TestRig& rig) { rig.host.onIsAllLowLight = opposite; }},
        {"lens tool", "IsActiveLensCalibration", [](TestRig& rig) { openPlugin(rig, "lenscalib"); }},
        {"overlay tool", "IsImageOverlay", [](TestRig& rig) { openPlugin(rig, "imageoverlay"); }},
        {"overlay tool, new", "IsImageOverlayEx", [](TestRig& rig) { openPlugin(rig, "imageoverlayex"); }},
        {"keeps", "IsLiveNoAutoDownloadSetting",
         [](TestRig& rig) { setPrefs(rig, {QStringLiteral("recording/AutoDownload")}); }},
        {"keeps and tests", "IsLiveNoAutoDownloadSetting HideTriggerTest",
         [](TestRig& rig) {
             setPrefs(rig,
                      {QStringLiteral("recording/AutoDownload"), QStringLiteral("recording/useTriggerTest")});
         }},
        {"tests alone", "",
         [](TestRig& rig) { setPrefs(rig, {QStringLiteral("recording/useTriggerTest")}); }},
        {"no link", "IsCurrentDisconnected",
         [](TestRig& rig) { rig.camera.onIsConnected = [] { return false; }; }},
        {"partitions", "IsConflictPartition", [=](TestRig& rig) { rig.host.onIsConflictPartition = same; }},
        {"dragging", "IsMouseDragging",
         [=](TestRig& rig) { rig.host.onGetCurrentPlugin = [=] { return dragged.get(); }; }},
        {"not the live page", "IsNotlivePage", [=](TestRig& rig) { rig.host.onIsNotPage = opposite; }},
        {"neither page", "IsNotLiveAndDeviceSettingPage", [=](TestRig& rig) { rig.host.onIsNotPage = same; }},
        {"full screen", "IsFullScreen",
         [=](TestRig& rig) { rig.host.onGetMainWindow = [=] { return full.get(); }; }},
        {"locked by the tool", "IsQmon IsQmonLockDevice",
         [=](TestRig& rig) { rig.host.onIsQmonRunning = rig.camera.onIsQmonLocked = yes; }},
        {"all locked by the tool", "IsQmon IsAllQmonLockDevice",
         [=](TestRig& rig) { rig.host.onIsQmonRunning = rig.host.onIsAllQmonLocked = yes; }},
        {"autofocus", "IsNotCurrentAutoFocus", [=](TestRig& rig) { rig.host.onIsAutoFocusActive = same; }},
        {"point of mine", "IsAssigningPointMe",
         [=](TestRig& rig) { rig.host.onIsAssigningPointMe = own(rig); }},
        {"point of others", "IsAssigningPointOther",
         [=](TestRig& rig) { rig.host.onIsAssigningPointOther = own(rig); }},
        {"matches", "IsDisplayingPersmatch",
         [=](TestRig& rig) { rig.host.onIsDisplayingPersmatch = own(rig); }},
        {"few tools", "IsLimited3DTool", [=](TestRig& rig) { rig.host.onIsLimited3DTool = own(rig); }},
        {"no document", "Is2DFile",
         [=](TestRig& rig) {
             rig.host.onCurrentDocument = [] { return nullptr; };
             rig.host.onIsAssigningPointMe = rig.host.onIsLimited3DTool = [](DOC_Interface*) { return true; };
         }},
    };
}

inline QList<State> states() { return plainStates() + otherStates(); }

/// A flag of a row in a list of cameras, and what switches it on.
struct RowFlag {
    std::function<void()> on;
    const char* key;
    const char* text;
};

/// The flags of a row in a list of cameras, off at first.
inline QList<RowFlag> rowFlags(TestRig& rig) {
    const auto yes = [] { return true; };
    const auto supports = [&rig](int code) {
        return [&rig, code] {
            rig.camera.onIsFunctionSupported = [code](int asked, bool) { return asked == code; };
        };
    };
    return {
        {[&rig, yes] { rig.camera.onIsSelected = yes; }, "selected", "ui-selected"},
        {[&rig, yes] { rig.camera.onIsMobile = yes; }, "mobile", "mobile"},
        {[&rig, yes] { rig.camera.onIsDummy = yes; }, "dummy", "dummy"},
        {supports(117), "shutdown", "sup-shutdown"},
        {supports(112), "sup-wifi", "sup-wifi"},
        {[&rig] { rig.camera.onGetLinkSpeedState = [] { return 1; }; }, "sup-linkspeed", "sup-linkspeed"}};
}
