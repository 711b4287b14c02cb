#pragma once

#include "viewer/messages/Messages.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

/// Messages as native boxes in the program's style. Every text is shown as plain text: a camera's name or a
/// path can't bring markup. Each call returns when the user has answered, but for those that tell of a
/// failure: their box opens from the event loop. GUI thread only.
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
    bool confirmLoss(const QString& text, const QStringList& lines, QWidget* parent) override;
    void error(const QString& text) override;
    void deviceError(const DeviceFailure& failure) override;
    void gatherFailures(bool gather) override;

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
        QMessageBox::StandardButton chosen = QMessageBox::NoButton; // by Enter; none: as the system has it
        QString under{};                                            // lines under the text
    };

    /// Of the box that tells of failures.
    struct Failure {
        QString operation; // in words; empty if the text says all
        QString text;
        int count = 1;
    };

    QMessageBox::StandardButton show(const Box& content, QWidget* parent);
    QWidget* parentOr(QWidget* parent) const;
    void prepare(QMessageBox& box, const Box& content) const;
    QMessageBox::StandardButton run(QMessageBox& box, const Box& content);
    void addFailure(const QString& operation, const QString& text);
    void showFailures();
    void showUngathered();
    Box failureBox() const;

    Surroundings m_surroundings;
    int m_open = 0;
    int m_gathering = 0;
    std::vector<Failure> m_failures; // that the box shows, or will show
    QPointer<QMessageBox> m_failureBox;
};
