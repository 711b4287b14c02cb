#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// Base of the script objects of the dialogs that say how a value over the image is written. The setters
/// store at once, so that the image follows while the user chooses; cancel() stores what was there before.
class JS_Mediator_FormatDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    using JS_Mediator_Dialog::JS_Mediator_Dialog;

public slots:
    virtual void ok();
    virtual void cancel();

protected:
    /// Stores what was there when the dialog opened. What fails is shown to the user.
    virtual void restore() = 0;

private:
    QString operation(const char* slot) const;
};
