#pragma once

#include "viewer/export/ExportJobs.h"

#include <QDialog>
#include <QHash>

class RecordingShelf;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// The jobs in the background, the newest at the top: frames, speed, remaining time, and a way to stop each.
/// The user works on beside it.
class JobsDialog : public QDialog {
    Q_OBJECT

public:
    /// Both outlive it. `shelf`: keeps recordings, which are jobs as well; may be null.
    JobsDialog(ExportJobs& jobs, RecordingShelf* shelf, QWidget* parent);

    /// Brings all up to date.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        QWidget* box = nullptr;
        QLabel* title = nullptr;
        QLabel* note = nullptr;
        QProgressBar* bar = nullptr;
        QPushButton* button = nullptr; // stops it, or takes it out of the list
    };

    Row addRow(int id);
    void showEntry(const Row& row, const ExportJobs::Entry& entry) const;
    void onButton(int id);
    void clearEnded();

    QList<ExportJobs::Entry> entries() const;

    ExportJobs& m_jobs;
    RecordingShelf* m_shelf;
    QVBoxLayout* m_rows;
    QLabel* m_none;
    QPushButton* m_clear;
    QHash<int, Row> m_shown;
};
