#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The mediator of a plug-in's modeless dialog. The plug-in that owns the dialog says what opening and
/// closing do.
class JS_Mediator_ModelessPatternDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    using JS_Mediator_Dialog::JS_Mediator_Dialog;

public slots:
    virtual void onOpen() {}
    virtual void onClose() {}
    /// A text box of the page took or lost the focus, so that the host keeps its keys off it.
    void setTextBoxFocusState(bool focussed);
};
