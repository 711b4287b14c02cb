#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/interface/types.h"
#include "livecontrol/storage/dialogs/DialogKind.h"

#include <QDateTime>
#include <QMap>
#include <QPair>
#include <QVariantList>

class DOC_Interface;

/// The script object of a dialog that saves or opens: its page sees it under the name of the widget that
/// holds the page, which also tells what the dialog is for.
///
/// It shows what can be saved (documents and their partitions), opens drives and folders, and shows the names
/// that a save would use. It knows nothing of drawing. A dialog that the user leaves with Cancel changes
/// nothing.
class JS_Mediator_FileDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Ends the host's naming of what was saved before. Throws what the host throws.
    JS_Mediator_FileDialog(HostObject* host, const QString& parentWidgetName);

    /// When the dialog opened: one time for all its names and pictures.
    const QDateTime& dateTime() const { return m_dateTime; }

    // How many frames a save leaves out. These are slots of the base; declared as slots once more they would
    // be ambiguous to a page.
    /// 0: the skip counts frames, 1: milliseconds.
    void setSkipMode(int mode) override;
    int getSkipMode() override;
    void setSkipFrames(double val) override;
    void setSkipValue(double value) override;
    double getSkipFrames() override;

signals:
    void selectedDocCount(int count);
    /// How many heads the camera of the row in hand has.
    void selectedDocHeadCount(int count);

public slots:
    /// Finds the limits of the skip for the rows in hand: lists of partition numbers by document key.
    void refreshSkipFrame(const QVariantMap& targets);

    // What can be opened.
    /// Opens all recordings below a folder that the user chooses; false if he cancels.
    bool openFolder();
    /// JSON: the drives, and which of them is open.
    QString getSDDrives();
    void selectSDDrive(int recid);
    QString getFDDrives();
    /// Asks for the password of a drive that has one.
    void selectFDDrive(int fdType, int driveNo, int slotNo, const QString& driveName);
    QString getCFDrives();
    void selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName);
    void importTarget(const QVariantList& dockeyList);

    // Drives.
    QString getFDUseRatio(ulong type, ulong driveNo, ulong slotNo);
    QString getCFUseRatio(ulong type, ulong driveNo, ulong slotNo);
    QString getTotalWrittenAmount(ulong type, ulong driveNo, ulong slotNo);
    /// Empty a drive. The page has asked.
    void formatDockStore(ulong type, ulong driveNo, ulong slotNo);
    void formatCFast(ulong type, ulong driveNo, ulong slotNo);
    void setDockStorePassword(int fdType, int driveNo);
    /// Whether the host can set the password of that drive at all.
    bool existSetDockStorePassword(int fdType, int driveNo);

    // Rows.
    /// JSON: a row for each partition with frames, of the documents that are open for a dialog or of those
    /// that can be saved.
    virtual QString list(bool temporary);
    QString list() { return list(false); }
    /// Makes a row the one in hand, and gives its picture as PNG in base64; empty in live mode.
    virtual QString select(DOCKEY dockey, PARTITIONNUMBER partitionNo, int width, int height);
    ulong getSelectDocKey() { return m_selectDocKey; }
    void setSelectDocKey(ulong dockey) { m_selectDocKey = DOCKEY(dockey); }
    int getSelectPartitionNo() { return m_selectPartitionNo; }
    void setSelectPartitionNo(int partitionNo) { m_selectPartitionNo = partitionNo; }
    bool canConvertDataName(DOCKEY docKey);
    bool canSavedCheck(DOCKEY docKey);
    void convertDataName(DOCKEY docKey, const QString& dataName, int sequence, bool fd);
    bool checkDeleteFile(DOCKEY docKey);
    bool deleteFile(DOCKEY docKey);
    /// The sum of sizes in bytes; empty for none.
    QString capcityToString(const QVariantList& selects);
    /// Asks for a folder and looks which of the records lie there; the next list() marks the others.
    bool savedCheck(const QVariantList& list);
    int countSelectedDocs();

    // Dialogs of what is saved. They stay closed while a conversion runs.
    bool openCustumTimeCodeDialog();
    bool openConvertParameterEditDialog(const QVariantList& dockeyList);
    bool saveInfoView(const QVariantList& targets);

    // The names that a save of the row in hand would use.
    virtual QString getExportPath();
    QString getExportFile();
    QString getExportGroupDir(DOCKEY docKey, PARTITIONNUMBER partitionNo);
    QString getExportGroupDir(DOCKEY docKey) { return getExportGroupDir(docKey, 1); }
    QString getExportGroupDir();
    QString getExportSubDir();

protected:
    DialogKind kind() const { return m_kind; }
    int saveType() const { return saveTypeOf(m_kind); }
    DOC_Interface* document(DOCKEY key);
    DOC_Interface* selectedDocument() { return document(m_selectDocKey); }
    void setSelectedRow(DOCKEY key, PARTITIONNUMBER partitionNo);
    /// The name of the row in hand; with `full` with number and time. Throws what the host throws.
    virtual QString getExportFileName(bool full);

private:
    using Pair = QPair<QString, QString>;
    /// Partitions by document.
    using Targets = QList<QPair<DOC_Interface*, QList<PARTITIONNUMBER>>>;
    struct RowFlags {
        bool info = false;
        bool correct = false;
        bool scale = false;
    };

    // Skip.
    QString skipKey(const char* name) const;
    void storeSkipMode(int mode);
    int skipMode();
    double skipFrames();
    void storeSkip(double value);
    Targets targetsOf(const QVariantMap& map);
    bool findMillisecondLimits(const Targets& targets);
    void findFrameLimits(const Targets& targets);
    void holdSkip();

    // Rows.
    RowFlags rowFlags();
    QList<DOCKEY> rowKeys(bool temporary);
    QList<DOC_Interface*> rowDocuments(bool temporary);
    void addRows(QJsonArray& rows, DOC_Interface* document, const RowFlags& flags, bool isFileMode);
    QJsonObject fileRow(DOC_Interface* document, const QVariantMap& map);
    QJsonObject cameraRow(DOC_Interface* document, const QVariantMap& map);
    QString selectedText(DOC_Interface* document, PARTITIONNUMBER partition, PARTITIONNUMBER current);
    bool isListed(PARTITIONNUMBER partition, PARTITIONNUMBER current);
    bool isMissing(const QVariantMap& map) const;

    // Drives.
    bool isConverting();
    QString chooseFolder(const QString& start);
    bool openDockStore(int fdType, int driveNo, int slotNo, const QString& driveName);
    bool unlockDockStore(int fdType, int driveNo);
    bool closeOtherCFast(int driveNo);

    // Names.
    QString groupDirOf(DOCKEY docKey, PARTITIONNUMBER partitionNo);
    void announceGroupDir();
    bool nameOption(const char* name, bool hasLayout);

    DialogKind m_kind;
    QMap<uint, QString> m_sdDrives;
    DOCKEY m_selectDocKey = 0;
    PARTITIONNUMBER m_selectPartitionNo = 0;
    DOCKEY m_exportDocKey = 0;
    PARTITIONNUMBER m_exportPartitionNo = 0;
    bool m_savedCheckDone = false;
    QList<Pair> m_savedPairs;                            ///< serial and data numbers
    QDateTime m_dateTime = QDateTime::currentDateTime(); ///< one for all names and pictures of the dialog
};
