#pragma once

#include <QDialog>
#include <QString>

class QAction;
class QFutureWatcherBase;
class QLabel;

/// A modal window that says that something takes a while. The user can't close it.
class BusyDialog : public QDialog {
    Q_OBJECT

public:
    BusyDialog(const QString& title, const QString& text, QWidget* parent);

    void setText(const QString& text);
    /// Runs until the watcher's job has ended; returns at once if it has.
    void runUntilFinished(QFutureWatcherBase& watcher);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* m_label;
};

/// Shows the keys of the actions that have one, and those of lists and fields of the pages. Modal.
void showShortcuts(QWidget* parent, const QList<QAction*>& actions);

/// Shows name, version and what the program runs on. Modal.
void showAbout(QWidget* parent, const QString& rigTitle);
