#pragma once

#include "livecontrol/interface/JS_Mediator.h"

/// The mediator of a plain page.
class JS_Mediator_Page : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;
};
