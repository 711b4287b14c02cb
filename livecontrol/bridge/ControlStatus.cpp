// The flags by which pages switch their controls. They are asked at each update of each page, so all that is
// called here are cheap state reads of the host.

#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Lock.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"

namespace {

/// One compact JSON object of booleans that keeps the order in which they were added.
class Flags {
public:
    Flags() { m_text.reserve(2048); }

    void add(const char* key, bool value) {
        m_text += m_text.isEmpty() ? QLatin1String("{\"") : QLatin1String(",\"");
        m_text += QLatin1String(key);
        m_text += value ? QLatin1String("\":true") : QLatin1String("\":false");
    }

    QString text() const { return m_text + QLatin1Char('}'); }

private:
    QString m_text;
};

/// `HostRecorder::getRecordingState`.
enum RecordingState { NotRecording = 0, WaitingForReady = 1, Ready = 2, Failed = 4 };

void addWindowsAndRecording(Flags& flags, HostObject& host) {
    const int windowCount = host.countWindows(true, 0);
    flags.add("IsNoneWindow", windowCount < 1);
    flags.add("IsSingleWindow", windowCount == 1);
    flags.add("IsMultiWindow", windowCount >= 2);
    flags.add("IsRecording", host.isRecording());
    flags.add("IsBgSaving", host.isBackgroundSaving());
    flags.add("IsBgConverting", host.isBackgroundConverting());
    flags.add("IsDirectSaving", host.isDirectSaving(true));
    flags.add("IsNoneDocument", host.getDocumentCount() < 1);
    flags.add("IsSingleSelectedDocument", host.getSelectedCount() == 1);
    const int state = host.getRecordingState();
    flags.add("IsCTSReady", state == WaitingForReady);
    flags.add("IsReady", state == Ready);
    flags.add("IsLiveMode", host.isLiveMode());
    flags.add("IsMemoryMode", host.isMemoryMode());
    flags.add("IsFileMode", host.isFileMode());
    flags.add("IsNotRecording", state == NotRecording);
    flags.add("IsRecordingError", state == Failed);
    flags.add("IsNotUndo", !host.canUndo());
    flags.add("IsNotRedo", !host.canRedo());
}

void addSettings(Flags& flags, HostObject& host, const QString& currentPlugin, bool autoDownload) {
    flags.add("IsLowlight", host.isLowLight());
    flags.add("ExistLowlight", host.existsLowLight());
    flags.add("IsAllLowlightON", host.isAllLowLight(true));
    flags.add("IsAllLowlightOFF", host.isAllLowLight(false));
    flags.add("IsAutoExposureSetting", host.isAutoExposureSetting());
    flags.add("IsHwTriggerSetting", host.isHwTriggerSetting());
    flags.add("IsVariableSetting", host.isVariableSetting());
    flags.add("IsTracking", host.isTracking());
    flags.add("IsActiveLensCalibration", currentPlugin == QLatin1String("lenscalib"));
    flags.add("IsLensCalibration", host.isLensCalibration());
    flags.add("IsNoneWaveformData", !host.hasWaveformData());
    flags.add("IsLiveNoAutoDownloadSetting", !autoDownload && host.isLiveMode());
}

void addActivities(Flags& flags, HostObject& host, DOC_Interface* document, const QString& currentPlugin) {
    flags.add("IsCurrentDisconnected", document && !document->isConnected());
    flags.add("IsConflictPartition", host.isConflictPartition(true));
    flags.add("IsSendingNodeCommand", host.isSendingNodeCommand());
    flags.add("IsAdjustingImage", host.isAdjustingImage());
    flags.add("IsDetectingPixelDefect", host.isDetectingPixelDefect());
    HostApplication& application = host;
    HostViews& views = host;
    flags.add("IsCycleView", application.isCycleView() || views.isCycleView());
    flags.add("IsImageOverlay", currentPlugin == QLatin1String("imageoverlay"));
    flags.add("IsImageTriggerCapturing", host.isImageTriggerCapturing());
    flags.add("IsImageTriggerDetecting", host.isImageTriggerDetecting());
    PLG_Interface* const plugin = host.getCurrentPlugin();
    flags.add("IsMouseDragging", plugin && plugin->isDragging());
    flags.add("IsAutoFocussing", host.isAutoFocussing());
    flags.add("IsNotlivePage", host.isNotPage(false));
    flags.add("IsNotLiveAndDeviceSettingPage", host.isNotPage(true));
    flags.add("IsPrefDialogOpening", host.isPrefDialogOpening());
    flags.add("IsModalDialogOpening", host.isModalDialogOpening());
    flags.add("IsPhaseAdjusting", host.isPhaseAdjusting());
    const QWidget* const window = host.getMainWindow();
    flags.add("IsFullScreen", window && window->isFullScreen());
    flags.add("IsModalessDialogTextFocussing", host.isModelessTextFocused());
    flags.add("IsShading", host.isShading());
}

void addLocks(Flags& flags, HostObject& host, DOC_Interface* document) {
    const bool qmon = host.isQmonRunning();
    const bool live = host.isLiveMode();
    flags.add("IsQmon", qmon);
    flags.add("IsActiveZelOnQmon", host.isActiveOnQmon());
    flags.add("IsQmonLockDevice", qmon && live && document && docAs<DOC_Lock>(document).isQmonLocked());
    flags.add("IsAllQmonLockDevice", qmon && live && host.isAllQmonLocked());
    flags.add("IsOtherPluginOpen", host.isOtherPluginOpen());
    flags.add("IsNotCurrentAutoFocus", !host.isAutoFocusActive(true) && live);
}

void addDocument(Flags& flags, HostObject& host, DOC_Interface* document, const QString& currentPlugin,
                 bool autoDownload) {
    const bool is3D = document && docAs<DOC_Settings>(document).is3D();
    flags.add("Is2DFile", document && !is3D);
    flags.add("Is3DFile", is3D);
    flags.add("IsNt3DFile", host.isNt3DFile());
    flags.add("IsImageOverlayEx", currentPlugin == QLatin1String("imageoverlayex"));
    flags.add("IsOpenExceptFilecontrol", host.isOpenExceptFilecontrol());
    flags.add("IsAssigningPointMe", document && host.isAssigningPointMe(document));
    flags.add("IsAssigningPointOther", document && host.isAssigningPointOther(document));
    flags.add("IsDisplayingPersmatch", document && host.isDisplayingPersmatch(document));
    flags.add("IsLimited3DTool", document && host.isLimited3DTool(document));
    flags.add("IsAutoExpoting", host.isAutoExporting() && host.isLiveMode());
    flags.add("HideTriggerTest",
              !autoDownload || !host.getPrefBool(QStringLiteral("recording/useTriggerTest"), QVariant()));
    flags.add("IsLutCurve", document && docAs<DOC_Display>(document).isLutCurve());
    flags.add("IsSuspendReduce", document && docAs<DOC_Transfer>(document).isSuspendReduce());
}

} // namespace

QString JS_Mediator::getControlStatus(DOC_Interface* pDoc) {
    return guarded([&] { return statusText(pDoc ? pDoc : m_host->currentDocument()); }, QString());
}

QString JS_Mediator::statusText(DOC_Interface* document) {
    Flags flags;
    const QString currentPlugin = m_host->getCurrentPluginName();
    const bool autoDownload = m_host->getPrefBool(QStringLiteral("recording/AutoDownload"), QVariant());
    addWindowsAndRecording(flags, *m_host);
    addSettings(flags, *m_host, currentPlugin, autoDownload);
    addActivities(flags, *m_host, document, currentPlugin);
    addLocks(flags, *m_host, document);
    addDocument(flags, *m_host, document, currentPlugin, autoDownload);
    return flags.text();
}
