#pragma once

#include "viewer/messages/Messages.h"

#include <QMessageBox>
#include <QObject>

#include <functional>

/// Messages as native boxes in the program's style. Every text is shown as plain text: a camera's name or a
/// path can't bring markup. Each call returns when the user has answered. GUI thread only.
class MessageBoxes : public QObject, public Messages {
    Q_OBJECT

public:
    /// What the boxes take from the program around them.
    struct Surroundings {
        std::function<QWidget*()> parent; // for a box without one of its own
        std::function<bool()> isDark;     // which style sheet
        std::function<QString(const QString&)>
            operationWords; // of a camera library's function; empty: no words
    };

    explicit MessageBoxes(Surroundings surroundings, QObject* parent = nullptr);

    void info(const QString& text, QWidget* parent) override;
    void warn(const QString& text, QWidget* parent) override;
    void warnList(const QString& text, const QStringList& lines, QWidget* parent) override;
    void alert(const QString& text, QWidget* parent) override;
    void alertList(const QString& text, const QStringList& lines, QWidget* parent) override;
    bool confirm(const QString& text, QWidget* parent, const QMap<QString, QString>& options) override;
    bool confirmOkCancel(const QString& text, QWidget* parent) override;
    void error(const QString& text) override;
    void deviceError(const DeviceFailure& failure) override;

    /// How many boxes wait for an answer.
    int openCount() const { return m_open; }

signals:
    void openCountChanged(int count);

private:
    struct Box {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QStringList lines{};
        QMessageBox::StandardButtons buttons = QMessageBox::Ok;
        QMap<QMessageBox::StandardButton, QString> labels{};
    };

    QMessageBox::StandardButton show(const Box& content, QWidget* parent);

    Surroundings m_surroundings;
    int m_open = 0;
};
