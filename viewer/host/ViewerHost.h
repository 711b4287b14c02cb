#pragma once

#include "viewer/host/CameraControlDoor.h"

/// The host object: what the plug-in calls. One source file an interface; each operation is recorded and is a
/// thin door to a room, and the program itself uses the rooms, so that the record shows the plug-in's calls
/// alone.
class ViewerHost final : public CameraControlDoor {
public:
    using CameraControlDoor::CameraControlDoor;

    // HostApplication
    void updateAll(int flags, bool force) override;
    QVariant getPrefDefault(const QString& key) override;
    void removePref(const QString& key) override;
    void enterNativeWidget(QEvent* event) override;
    void leaveNativeWidget(QEvent* event) override;
    void hideSelectBox() override;
    bool isShownDropBox() override;
    void showDropDownBox(const QString& key, const QRect& rect) override;
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override;
    void hideDropDownBox(const QString& key) override;
    bool canStartModal() override;
    int getMode() override;
    bool isLiveMode() override;
    bool isMemoryMode() override;
    bool isFileMode() override;
    QWidget* getDialogParent() override;
    QWidget* getMainWindow() override;
    QObject* getAppScriptObject() override;
    QObject* getMainScriptObject() override;
    QObject* getMdiArea() override;
    void attachMediator(GUI_WebView* view, JS_Mediator* mediator) override;
    void addMediator(JS_Mediator* mediator) override;
    void handleError(std::exception& error) override;
    void info(const QString& text, QWidget* parent) override;
    void showWarningList(const QString& message, const QStringList& list, QWidget* parent) override;
    void warn(const QString& text, QWidget* parent) override;
    void showAlertList(const QString& message, const QStringList& list, QWidget* parent) override;
    void alert(const QString& text, QWidget* parent) override;
    bool confirm(const QString& message, QWidget* parent, const QMap<QString, QString>& options) override;
    bool confirmOkCancel(const QString& text, QWidget* parent) override;
    QStringList getFontNameList() override;
    QString translate(const QString& text, const char* context, int n) override;
    QString getInfoItemLabel(const QString& key) override;
    QString getDefaultInfoDisplay() override;
    void refreshTools() override;
    HostPrefsDialog* getPrefsDialog() override;
    bool isDisplayInfoShowing() override;
    void openAboutDialog() override;
    void setDisplayInfoShowing(bool showing) override;
    bool isToolActive(const QString& name) override;
    bool isToolActive(const QString& name, DOC_Interface* document, bool flag) override;
    bool isTracking() override;
    bool isStepTracking() override;
    bool hasOpenViews(bool flag) override;
    void runPageScript(const QString& script) override;
    TimeCodeSetting getTimeCodeSetting() override;
    void setTimeCodeSetting(const TimeCodeSetting& setting) override;
    void refreshCameraNames() override;
    bool isReady() override;
    bool isClosing() override;
    bool isUpdateIgnore() override;
    void deterUpdateUI(bool deter) override;
    void collectSupportFiles(QStringList& files) override;
    bool writeSupportFile(const QString& path, QStringList* files) override;
    bool isCameraNameFileEnabled() override;
    QVariant getPref(const QString& name, const QVariant& defaultValue) override;
    int getPrefInt(const QString& name, const QVariant& defaultValue) override;
    bool getPrefBool(const QString& name, const QVariant& defaultValue) override;
    float getPrefFloat(const QString& name, const QVariant& defaultValue) override;
    QString getPrefString(const QString& name, const QVariant& defaultValue, int variant) override;
    void setPref(const QString& name, const QVariant& value) override;
    void setPrefInt(const QString& name, int value) override;
    void setPrefBool(const QString& name, bool value) override;
    void setPrefFloat(const QString& name, float value) override;
    void setPrefString(const QString& name, const QString& value) override;
    void setSaveViewFontName(const QString& name, int index) override;
    void nativeWidgetPressed(QMouseEvent* event) override;
    bool isCycleView() override;
    bool isAutoFocusActive(bool currentOnly) override;
    bool isAutoFocussing() override;
    bool isNotPage(bool withDeviceSetting) override;
    bool isPrefDialogOpening() override;
    bool isShading() override;
    bool isModalDialogOpening() override;
    void setModelessTextFocus(bool focussed) override;
    bool isModelessTextFocused() override;
    void endModal() override;
    void beginModal() override;
    QDialog* getPowerWaitDialog() override;
    void showBusyText(const QString& text, DOCKEY key) override;
    void hideBusyText(DOCKEY key) override;
    QString getVersionText() override;
    QList<QPair<QString, QString>> findSavedData(const QList<QPair<QString, QString>>& pairs,
                                                 const QString& folder) override;
    void setHeadLedLaser(bool isLed, unsigned long status) override;
    bool getHeadLedLaser(bool isLed) override;
    void prepareSettingsLoad(bool flag) override;
    bool wereSettingsRestored() override;
    void reportRestoredSettings(bool show) override;
    int getEventPumpInterval() override;
    void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) override;
    bool isActiveOnQmon() override;
    bool isOtherPluginOpen() override;
    bool isQmonWindowShown() override;
    void openPrefsEthernetSettings() override;
    bool isNt3DFile() override;
    bool isLimited3DTool(DOC_Interface* document) override;
    bool isOpenExceptFilecontrol() override;

    // HostPlugins
    void refreshPlugins() override;
    PLG_Interface* findPlugin(const QString& name) override;
    void closePanel() override;
    void openPlugin(const QString& name) override;
    void closePlugin(const QString& name) override;
    void closeCurrentPlugin() override;
    PLG_Interface* getCurrentPlugin() override;
    QString getCurrentPluginName() override;
    bool isVariableSetting() override;
    void setVariableSetting(bool on) override;
    void setAutoExposureSetting(bool on) override;
    bool isAutoExposureSetting() override;
    void setHwTriggerSetting(bool on) override;
    bool isHwTriggerSetting() override;
    QStringList getOpenTools() override;
    bool isSendingNodeCommand() override;
    bool isAdjustingImage() override;
    bool isDetectingPixelDefect() override;
    bool isImageTriggerCapturing() override;
    bool isImageTriggerDetecting() override;
    bool isCustomInfoAvailable() override;
    bool isQmonRunning() override;
    bool isDisplayingPersmatch(DOC_Interface* document) override;
    bool isAssigningPointMe(DOC_Interface* document) override;
    bool isAssigningPointOther(DOC_Interface* document) override;

    // HostDocuments
    void saveCameraSettings(const QString& path, int reserved) override;
    void loadCameraSettings(const QString& path, int reserved1, int reserved2) override;
    uint getSDDriveMask() override;
    void openSDDrive(uint mask) override;
    bool getCurrentSDDrive() override;
    QList<QMap<QString, QString>> listDockStores() override;
    void openDockStore(int type, int driveNo, int slotNo, const QString& name) override;
    bool checkDockStorePassword(int type, int driveNo, const QString& password) override;
    bool setDockStorePassword(int type, int driveNo, const QString& oldPassword,
                              const QString& newPassword) override;
    QList<QMap<QString, QString>> listCFastCards() override;
    void openCFastCard(int type, int driveNo, int slotNo, const QString& name) override;
    bool getCurrentCFastCard() override;
    void openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                   int option5) override;
    DOCKEY keyOfDocument(DOC_Interface* document) override;
    DOC_Interface* docByKey(DOCKEY key, bool includeCameras) override;
    DOC_Interface* findDocument(DOCKEY key) override;
    void setCurrentKey(DOCKEY key, bool notify) override;
    void setCurrentDocument(DOC_Interface* document) override;
    void selectDocument(DOCKEY key) override;
    void selectDocumentKeepCurrent(DOCKEY key, bool notify) override;
    void unselectDocument(DOCKEY key) override;
    DOC_Interface* currentDocument() override;
    DOCKEY getCurrentKey() override;
    bool isCurrentDocument(DOC_Interface* document) override;
    void refreshDriveDocuments(int kind) override;
    void setDocumentSource(int source) override;
    void deleteDocument(DOCKEY key) override;
    void deleteAllDocuments(int reserved, bool unselectOnly) override;
    void closeSDDocuments() override;
    void closeDockStoreRecords(int cameraIndex) override;
    void closeCFastDocuments(int reserved) override;
    void closeCFastRecords(int cameraIndex) override;
    void selectAll(JS_Mediator* mediator) override;
    void setSelection(const QList<DOCKEY>& keys, bool reserved) override;
    void setToolsDisabled(bool disabled) override;
    bool isMultiLock() override;
    void commitTool(bool commit, const QString& name) override;
    void setToolEffect(const QString& name, bool on, bool notify) override;
    void cancelTool(const QString& name) override;
    void resetTool(const QString& name) override;
    void setToolEnabled(const QString& name, bool enabled) override;
    void setActiveTool(const QString& name) override;
    void setToolActive(const QString& name, bool active) override;
    bool isWaveDataAcquisition() override;
    bool hasWaveformData() override;
    int getDocumentCount() override;
    int getSelectedCount() override;
    QList<DOCKEY> listSelectedKeys(int reserved) override;
    QList<DOCKEY> getAllKeys(bool includeHidden) override;
    QList<DOCKEY> listTemporaryKeys() override;
    QList<DOCKEY> listNewKeys() override;
    QList<DOCKEY> listCameraKeys(bool connectedOnly, bool selectedOnly) override;
    QList<DOCKEY> getSelectedCameraKeys(int reserved) override;
    QList<DOCKEY> getSelectedKeys(bool reserved) override;
    QList<DOCKEY> listViewKeys(int reserved) override;
    QMutex* getDocumentMutex() override;
    QList<DeviceObject*> listDevices() override;
    bool isConflictPartition(bool selectedOnly) override;
    void closeDocument(DOCKEY key, bool ask) override;
    void disconnectDocument(DOCKEY key) override;
    void disconnectWifi(DOCKEY key) override;
    void refreshDocuments() override;
    void prepareRefreshDocuments() override;
    DOC_Interface* getParentDocument(DOC_Interface* document) override;
    RUN_ObservePhaseAdjustWarningThread* getPhaseAdjustObserver() override;
    void refreshViews() override;
    void prepareRefreshViews() override;
    void getPhaseAdjustTargets(QList<DOC_Interface*>& documents) override;
    void execPhaseAdjust() override;
    bool isPhaseAdjusting() override;
    void setLockTriggerParam(int lock) override;
    int getLockTriggerParam() override;
    void editDocument(DOCKEY key) override;

    // HostLive
    void resumeLive() override;
    void stopLiveForRefresh(bool wait, bool documents, bool views) override;
    void suspendLive(bool wait) override;
    bool isRestartNeeded() override;
    void beginLiveHold() override;
    void endLiveHold() override;

    // HostRecorder
    bool isRecording() override;
    int getRecordingState() override;

    // HostPlayer
    void pausePlayback() override;
    void resumePlayback() override;
    void importTargets(const QList<DOCKEY>& keys) override;

    // HostExporter
    bool isAutoExporting() override;
    bool isBackgroundSaving() override;
    bool isBackgroundConverting() override;
    void endNaming() override;
    void beginGroupNaming() override;
    void beginFileNaming() override;
    void setGroupDir(const QString& dir) override;
    void addPendingFolder(const QString& folder) override;
    void addPendingPath(const QString& path) override;
    bool isPendingFolder(const QString& folder) override;
    bool isPendingPath(const QString& path) override;
    QString getGroupDir() override;
    QString getReplacementFolder() override;
    void copyToClipboard(int mode) override;

    // HostViews
    void setProcessingDisabled(bool disabled, const QStringList& names) override;
    void closeTools(const QStringList& names, int index) override;
    float getRotation(DOCKEY key) override;
    bool getFlipA(DOCKEY key) override;
    bool getFlipB(DOCKEY key) override;
    float getZoom(DOC_Interface* document) override;
    bool isAngleLocked3D() override;
    bool isTexture3D() override;
    bool isWireframe3D() override;
    bool isBoundingBox3D() override;
    bool isCompass3D() override;

    // HostLens
    void applyLowLightShutter() override;

    // HostWindows
    int countWindows(bool visible, int kind) override;

    // HostHistory
    void undo() override;
    void redo() override;
    void resetHistory() override;
    bool canUndo() override;
    bool canRedo() override;
    void beginMacro(const QString& name) override;
    void endMacro() override;

private:
    void showWifiFailure(const DeviceFailure& failure);
};
