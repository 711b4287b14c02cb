#pragma once

#include "viewer/export/ExportJobs.h"

#include <QTimer>
#include <QWidget>

class DocumentList;
class FileDocument;
class PlayControls;
class Preferences;
class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class RecordingShelf;

/// What stands at the side in memory and file mode: the recordings outside of the cameras, each with what is
/// known of it, to be shown, saved and closed; what is being kept and saved; and the controls of the replay.
class RecordingList : public QWidget {
    Q_OBJECT

public:
    /// All outlive it.
    RecordingList(DocumentList& documents, RecordingShelf& shelf, Preferences& preferences,
                  QWidget* parent = nullptr);

    /// What stands below the list.
    void setNote(const QString& text);
    /// A preference of the replay, or of how its numbers are written, has changed.
    void refreshReplay();

signals:
    void showAsked(FileDocument* document);
    void saveAsked(FileDocument* document);
    void saveAllAsked();
    void closeAsked(FileDocument* document);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    void fitColumns();
    void showTitles();
    void fillRow(QTreeWidgetItem& row, FileDocument& document);
    void addButtons(QTreeWidgetItem& row, FileDocument& document);
    void addCancel(QTreeWidgetItem& row, const ExportJobs::Entry& keeping);
    void showKeepings();
    void showProgress();
    void retranslate();

    DocumentList& m_documents;
    RecordingShelf& m_shelf;
    QTreeWidget* m_list;
    QPushButton* m_saveAll;
    QProgressBar* m_progress;
    QToolButton* m_cancel;
    PlayControls* m_controls;
    QLabel* m_note;
    QTimer m_fillSoon; // several changes at once lead to one
};
