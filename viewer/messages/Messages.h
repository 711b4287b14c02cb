#pragma once

#include "viewer/messages/DeviceFailure.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

/// The boxes by which the program speaks to the user. A null parent means the main window. All are modal.
class Messages {
public:
    virtual ~Messages() = default;

    virtual void info(const QString& text, QWidget* parent) = 0;
    virtual void warn(const QString& text, QWidget* parent) = 0;
    virtual void warnList(const QString& text, const QStringList& lines, QWidget* parent) = 0;
    virtual void alert(const QString& text, QWidget* parent) = 0;
    virtual void alertList(const QString& text, const QStringList& lines, QWidget* parent) = 0;
    /// True means proceed. The options are labels by button: "yes", "no".
    virtual bool confirm(const QString& text, QWidget* parent, const QMap<QString, QString>& options) = 0;
    virtual bool confirmOkCancel(const QString& text, QWidget* parent) = 0;
    /// Whether to go on although something will be lost, told in the lines; Cancel unless the user says so.
    virtual bool confirmLoss(const QString& text, const QStringList& lines, QWidget* parent) = 0;
    /// A failure with a text of its own. A box that already tells of failures in front takes it too.
    virtual void error(const QString& text) = 0;
    /// A failure of cameras: names the operation in words, and each camera with its reason.
    virtual void deviceError(const DeviceFailure& failure) = 0;
    /// Between true and false, which may nest, failures are kept back and told in one box at the end: cameras
    /// that fail one after another, or the getters of a page, make no pile of boxes.
    virtual void gatherFailures(bool gather) = 0;
};
