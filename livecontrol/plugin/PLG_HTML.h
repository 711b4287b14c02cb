#pragma once

#include "livecontrol/plugin/PLG_Common.h"

/// A plug-in whose panel is an HTML page.
class PLG_HTML : public PLG_Common {
    Q_OBJECT

public:
    PLG_HTML() { m_pageType = 0; }
};
