#pragma once

#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <algorithm>

/// How many sensor pixels stand behind one pixel of the document, in each direction: the factor of its image
/// scale times its binning. 1 when it shows the image at full size.
inline int documentScale(HostObject* host, DOC_Interface* document) {
    int scale = document->hasImageScale(0) ? std::max(1, docAs<DOC_Settings>(document).getImageScale()) : 1;
    if (host->isToolActive(QStringLiteral("binning"), document, 0)) {
        scale *= 1 << std::max(0, docAs<DOC_Display>(document).getBinningLevel());
    }
    return scale;
}
