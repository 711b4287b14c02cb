#pragma once

#include "livecontrol/interface/JS_Mediator.h"

/// Offers a page names for cameras, from the list that the user keeps in a file. Trouble with the file stands
/// in the log only; the page then offers no names.
class JS_Mediator_AutoCameraName : public JS_Mediator {
    Q_OBJECT

public:
    /// `parentWidget` is the view of the dialog; not owned.
    JS_Mediator_AutoCameraName(HostObject* host, const QString& name, QWidget* parentWidget);

    QWidget* parentWidget() const { return m_parentWidget; }

public slots:
    bool existsAutoCompleteFile();
    /// JSON array of objects with `label` and `category`: first the names without a category in the order of
    /// the file, then the others by category. Reads the file anew.
    QString autoCompleteCameraList();

private:
    QWidget* m_parentWidget;
};
