#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// A line in the status bar about what a change took along, with a button that takes it back. Hidden without
/// a line.
class ChangeNote : public QWidget {
    Q_OBJECT

public:
    explicit ChangeNote(QWidget* parent = nullptr);

    /// Plain text; cut where there is no room for it, and whole in the tip. Empty: nothing to tell any more.
    void setLine(const QString& line);

signals:
    void undoAsked();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showLine();

    QString m_line;
    QLabel* m_text;
    QPushButton* m_undo;
};
