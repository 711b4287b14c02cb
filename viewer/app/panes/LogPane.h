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
    void follow();
    void retranslate();

    LogStore& m_log;
    QComboBox* m_choice;
    QToolButton* m_clear;
    QPlainTextEdit* m_text;
    qint64 m_clearedAt = 0; // lines of the log until then don't show
    bool m_follows = true;  // the end is in sight, until the user scrolls away from it
};
