#pragma once

#include "viewer/app/panes/LogStore.h"

#include <QWidget>

class QComboBox;
class QPlainTextEdit;
class QToolButton;

/// The log as it grows, with a choice of what is shown.
class LogPane : public QWidget {
    Q_OBJECT

public:
    explicit LogPane(LogStore& log, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    bool isShown(const LogStore::Line& line) const;
    void append(const LogStore::Line& line);
    void fill();
    void clear();
    void follow();
    void retranslate();

    LogStore& m_log;
    QComboBox* m_choice;
    QToolButton* m_clear;
    QPlainTextEdit* m_text;
    qint64 m_clearedAt = 0; // the number of the last line that doesn't show any more
    qint64 m_taken = 0;     // and of the last that was looked at: it may be told later than it was read
    bool m_follows = true;  // the end is in sight, until the user scrolls away from it
};
