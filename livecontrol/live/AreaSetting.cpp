#include "livecontrol/live/AreaSetting.h"

#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <QStringList>

namespace {

const QStringList kForbidden{QStringLiteral("binning"), QStringLiteral("warp"), QStringLiteral("lenscalib")};

} // namespace

void holdImageForArea(HostObject* host) {
    host->setProcessingDisabled(true, kForbidden);
    if (DOC_Interface* const document = host->currentDocument()) {
        docAs<DOC_Transfer>(document).beginViewSelection();
    }
}

void releaseImageOfArea(HostObject* host) {
    host->setProcessingDisabled(false, kForbidden);
    if (DOC_Interface* const document = host->currentDocument()) {
        docAs<DOC_Transfer>(document).endViewSelection();
    }
}
