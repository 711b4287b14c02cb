#pragma once

#include "livecontrol/interface/types.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class DOC_Interface;
class DeviceObject;
class JS_Mediator;
class QMutex;
class RUN_ObservePhaseAdjustWarningThread;

/// The open documents, the selection, and tools on documents.
///
/// Every operation may throw an exception derived from std::exception. Keys are `DOCKEY`, kInvalidDockey for
/// none.
class HostDocuments {
public:
    virtual ~HostDocuments() = default;

    /// Writes the settings of the cameras to a .zcsx file. Runs on a worker of the global pool.
    virtual void saveCameraSettings(const QString& path, int reserved) = 0;
    /// Reads a .zcsx file and applies it.
    virtual void loadCameraSettings(const QString& path, int reserved1, int reserved2) = 0;
    /// The SD drives: bit n stands for the drive letter A+n.
    virtual uint getSDDriveMask() = 0;
    /// Opens the drives of the mask.
    virtual void openSDDrive(uint mask) = 0;
    /// The mask of the SD drive that is open; false when none is.
    virtual bool getCurrentSDDrive(uint& mask) = 0;
    /// The docked stores, one map of texts each: driveno, slotno, drivename, drivetype.
    virtual QList<QMap<QString, QString>> listDockStores() = 0;
    /// Opens a docked store. Throws APP_Exception with the code 407 when a password is needed.
    virtual void openDockStore(int type, int driveNo, int slotNo, const QString& name) = 0;
    /// Whether the password opens the store.
    virtual bool checkDockStorePassword(int type, int driveNo, const QString& password) = 0;
    /// Changes the password; false if the old one is wrong.
    virtual bool setDockStorePassword(int type, int driveNo, const QString& oldPassword,
                                      const QString& newPassword) = 0;
    /// The CFast cards, one map of texts each, as of the docked stores.
    virtual QList<QMap<QString, QString>> listCFastCards() = 0;
    /// Opens a CFast card.
    virtual void openCFastCard(int type, int driveNo, int slotNo, const QString& name) = 0;
    /// The drive number of the CFast card that is open; false when none is.
    virtual bool getCurrentCFastCard(int& driveNo) = 0;
    /// Opens files as documents. The options are 1, 1, 1, 0, 0 from every caller.
    virtual void openFiles(const QStringList& paths, int option1, int option2, int option3, int option4,
                           int option5) = 0;
    /// The key of an open document.
    virtual DOCKEY keyOfDocument(DOC_Interface* document) = 0;
    /// The document of `key`, or null. `includeCameras` is true from every caller.
    virtual DOC_Interface* docByKey(DOCKEY key, bool includeCameras) = 0;
    /// The document of `key`, or null.
    virtual DOC_Interface* findDocument(DOCKEY key) = 0;
    /// Makes `key` the current document; `notify` is true from every caller.
    virtual void setCurrentKey(DOCKEY key, bool notify) = 0;
    /// Makes the document the current one.
    virtual void setCurrentDocument(DOC_Interface* document) = 0;
    /// Selects the document and makes it current.
    virtual void selectDocument(DOCKEY key) = 0;
    /// Selects the document, the current one stays; `notify` is true from every caller.
    virtual void selectDocumentKeepCurrent(DOCKEY key, bool notify) = 0;
    /// Takes the document out of the selection.
    virtual void unselectDocument(DOCKEY key) = 0;
    /// The current document, or null when none is open.
    virtual DOC_Interface* currentDocument() = 0;
    /// The current document's key; -1 if none.
    virtual DOCKEY getCurrentKey() = 0;
    /// Whether the document is the current one.
    virtual bool isCurrentDocument(DOC_Interface* document) = 0;
    /// Reads the records of a drive anew after a format; `kind` 1 to 4.
    virtual void refreshDriveDocuments(int kind) = 0;
    /// Where the documents of file mode come from: 0 folder, 5 SD, 7 DockStore, 8 CFast.
    virtual void setDocumentSource(int source) = 0;
    /// Removes the entry from the device list.
    virtual void deleteDocument(DOCKEY key) = 0;
    /// Removes all entries from the device list, or only the selection of them.
    virtual void deleteAllDocuments(int reserved, bool unselectOnly) = 0;
    /// Closes the records of SD cards.
    virtual void closeSDDocuments() = 0;
    /// Closes the records of the docked store of a camera.
    virtual void closeDockStoreRecords(int cameraIndex) = 0;
    /// Closes the records of CFast cards.
    virtual void closeCFastDocuments(int reserved) = 0;
    /// Closes the records of the CFast card of a camera.
    virtual void closeCFastRecords(int cameraIndex) = 0;
    /// Selects all documents; the mediator that asks is passed along.
    virtual void selectAll(JS_Mediator* mediator) = 0;
    /// Replaces the selection. Callers pass false for `reserved`.
    virtual void setSelection(const QList<DOCKEY>& keys, bool reserved) = 0;
    /// With true, the quick tools are off.
    virtual void setToolsDisabled(bool disabled) = 0;
    /// True while the multi-camera lock is on.
    virtual bool isMultiLock() = 0;
    /// Applies the edit of the tool `name`; `commit` is true from every caller.
    virtual void commitTool(bool commit, const QString& name) = 0;
    /// Switches the effect of a tool on the images.
    virtual void setToolEffect(const QString& name, bool on, bool notify) = 0;
    /// Drops the tool's edit.
    virtual void cancelTool(const QString& name) = 0;
    /// Sets the tool back.
    virtual void resetTool(const QString& name) = 0;
    /// Enables or disables the tool.
    virtual void setToolEnabled(const QString& name, bool enabled) = 0;
    /// An empty name deselects the image view quick tool.
    virtual void setActiveTool(const QString& name) = 0;
    /// Marks the tool as running.
    virtual void setToolActive(const QString& name, bool active) = 0;
    /// True while waveform data is acquired.
    virtual bool isWaveDataAcquisition() = 0;
    /// Whether there is waveform data.
    virtual bool hasWaveformData() = 0;
    /// How many documents are open.
    virtual int getDocumentCount() = 0;
    /// How many documents are selected.
    virtual int getSelectedCount() = 0;
    /// Keys of the selected documents.
    virtual QList<DOCKEY> listSelectedKeys(int reserved) = 0;
    /// The keys of all open documents.
    virtual QList<DOCKEY> getAllKeys(bool includeHidden) = 0;
    /// Keys of the documents that are open for a dialog only.
    virtual QList<DOCKEY> listTemporaryKeys() = 0;
    /// Keys of the documents just opened.
    virtual QList<DOCKEY> listNewKeys() = 0;
    /// Keys of the camera documents. In file mode, where no camera is shown, `connectedOnly` gives those of
    /// the recordings that are open.
    virtual QList<DOCKEY> listCameraKeys(bool connectedOnly, bool selectedOnly) = 0;
    /// The keys of the selected camera documents.
    virtual QList<DOCKEY> getSelectedCameraKeys(int reserved) = 0;
    /// The keys of all selected documents, cameras among them. `reserved` has no meaning.
    virtual QList<DOCKEY> getSelectedKeys(bool reserved) = 0;
    /// Used with findDocument for a mode on all views.
    virtual QList<DOCKEY> listViewKeys(int reserved) = 0;
    /// The mutex that guards the document list; it is only ever tried.
    virtual QMutex* getDocumentMutex() = 0;
    /// The device objects, one for each camera body.
    virtual QList<DeviceObject*> listDevices() = 0;
    /// Whether the selected cameras are in different partitions.
    virtual bool isConflictPartition(bool selectedOnly) = 0;
    /// Closes a document; with `ask` the user may keep it.
    virtual void closeDocument(DOCKEY key, bool ask) = 0;
    /// Ends the link to the camera of a document.
    virtual void disconnectDocument(DOCKEY key) = 0;
    /// Ends the Wi-Fi link of the camera of a document.
    virtual void disconnectWifi(DOCKEY key) = 0;
    /// Reads the settings of all documents anew.
    virtual void refreshDocuments() = 0;
    /// Before a change that LiveSuspendGuard with refreshSettings brackets.
    virtual void prepareRefreshDocuments() = 0;
    /// The device document of a head.
    virtual DOC_Interface* getParentDocument(DOC_Interface* document) = 0;
    /// The thread that watches the camera links; its `signalWarning(bool)` is connected. May be null.
    virtual RUN_ObservePhaseAdjustWarningThread* getPhaseAdjustObserver() = 0;
    /// Redraws all views.
    virtual void refreshViews() = 0;
    /// Same.
    virtual void prepareRefreshViews() = 0;
    /// Fills the documents whose links can be adjusted; none when no camera supports it.
    virtual void getPhaseAdjustTargets(QList<DOC_Interface*>& documents) = 0;
    /// Runs the adjustment of the links.
    virtual void execPhaseAdjust() = 0;
    /// True while the links are adjusted.
    virtual bool isPhaseAdjusting() = 0;
    /// Which trigger parameter is locked: -1 none, 0 before frames, 1 after frames, 2 percent.
    virtual void setLockTriggerParam(int lock) = 0;
    /// -1 none, 0 before frames, 1 after frames, 2 percent.
    virtual int getLockTriggerParam() = 0;
    /// Opens the dialog that edits the device of a document.
    virtual void editDocument(DOCKEY key) = 0;
};
