#include "livecontrol/bridge/JS_Mediator_ModelessPatternDialog.h"

#include "livecontrol/interface/HostObject.h"

void JS_Mediator_ModelessPatternDialog::setTextBoxFocusState(bool focussed) {
    guarded([&] { host()->setModelessTextFocus(focussed); });
}
