#pragma once

#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/storage/dialogs/DialogKind.h"

class JS_Mediator_FileDialog;

/// The script object `savefile` of the pages on which the user decides folder, file name and format of what
/// is saved. It shows what a name would be and opens the small dialogs; the page stores the preferences.
class JS_Mediator_SaveFile : public JS_Mediator {
    Q_OBJECT

public:
    /// The name of the widget that holds the page tells what is saved.
    JS_Mediator_SaveFile(HostObject* host, const QString& parentWidgetName);

    /// Hears from a page's own object how many are saved.
    void follow(const JS_Mediator_FileDialog& page);

signals:
    void accepted();
    void rejected();
    void refreshed();
    // For the host, which connects them as it needs.
    void decision();
    void cancel();
    void apply();

public slots:
    void accept() { emit accepted(); }
    void reject() { emit rejected(); }
    void refresh() { emit refreshed(); }

    /// How many documents are saved, and how many heads the camera with most has.
    void selectedDocCount(int count) { m_documents = count; }
    void selectedDocHeadCount(int count) { m_heads = count; }

    /// Asks for a folder, beginning in `dir`. It ends in "/"; empty if the user cancels.
    QString selectFolder(const QString& dir);
    /// Let the user choose the digits of the number in a name.
    void numberSetting4GroupDir();
    void numberSetting4SubDir();
    void numberSetting4FileName();
    /// The number of the first camera, head and session with those digits; of a file it is the session's.
    QString addNumber4GroupDir();
    QString addNumber4SubDir();
    QString addNumber4FileName();
    QString addDateTime(const QString& format);
    QString getFreeSpace(const QString& path);

    bool isSnapMode() { return m_kind == DialogKind::Snapshot; }
    bool isConvertMode() { return m_kind == DialogKind::Convert; }
    bool isReportMode() { return m_kind == DialogKind::Report; }
    bool isLayoutMode() { return m_kind == DialogKind::Layout; }
    QString getParentWidgetName() { return m_parentWidgetName; }

    /// Upper case, in the order of the page's list.
    QStringList getFileFormats(bool fromDevice);
    QStringList getSnapFileFormats();
    QStringList getLayoutFileFormats();
    QStringList getCodecFilters();
    bool isMovieFormat(const QString& format);
    /// Frames as the camera has them. Pictures, layouts and reports have none.
    bool isRawFormat(const QString& format);

    /// Lets the user choose which custom items the file name has.
    void editCustom(bool forTemporary);
    /// JSON: the folders that cameras can be given.
    QString getMultiPaths();
    /// JSON: the cameras by address, and which folder each has.
    QString getMultiPathDevices();
    /// The preview shows the file name only if what is saved shows it.
    bool isNeedRefreshPreview();

private:
    void runNumberSetting(int target);
    QString sampleNumber(int target);
    int fileNameTarget() const;

    QString m_parentWidgetName;
    DialogKind m_kind;
    int m_documents = 0;
    int m_heads = 0;
};
