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

    /// What a job that failed in the middle has left, in the user's language; empty if that is nothing.
    static QString leftText(const ExportJobs::Entry& job);

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
    void dropGone(const QHash<int, Row>& gone);

    QList<ExportJobs::Entry> entries() const;

    ExportJobs& m_jobs;
    RecordingShelf* m_shelf;
    QVBoxLayout* m_rows;
    QLabel* m_none;
    QPushButton* m_clear;
    QHash<int, Row> m_shown;
    QTimer m_settled;  // runs while rows stay where they are, since a button was pressed
    int m_pressed = 0; // the job whose button that was
};
