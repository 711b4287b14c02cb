#pragma once

#include "viewer/messages/Messages.h"

/// Notes what the user is told, and answers for him.
struct NotedMessages : Messages {
    void info(const QString& text, QWidget*) override { told += text; }
    void warn(const QString& text, QWidget*) override { told += text; }
    void warnList(const QString& text, const QStringList& lines, QWidget*) override {
        told += (QStringList(text) + lines).join(QLatin1Char('\n'));
    }
    void alert(const QString& text, QWidget*) override { told += text; }
    void alertList(const QString& text, const QStringList&, QWidget*) override { told += text; }
    bool confirm(const QString& text, QWidget*, const QMap<QString, QString>&) override {
        told += text;
        return answer;
    }
    bool confirmLoss(const QString& text, const QStringList& lines, QWidget*) override {
        return confirm(text + QLatin1Char('\n') + lines.join(QLatin1Char('\n')), nullptr, {});
    }
    bool confirmOkCancel(const QString& text, QWidget* parent) override { return confirm(text, parent, {}); }
    void error(const QString& text) override { told += text; }
    void gatherFailures(bool) override {}
    void deviceError(const DeviceFailure& failure) override {
        for (const DeviceFailure::Camera& camera : failure.cameras) {
            told += QStringLiteral("%1 %2: %3").arg(failure.operation, camera.name, camera.reason.english());
        }
    }

    QStringList told;
    bool answer = true;
};
