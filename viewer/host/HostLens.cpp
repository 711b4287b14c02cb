#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostLens";
}

// The cameras expose so since the shutter was set; the views take the new picture at once.
void ViewerHost::applyLowLightShutter() {
    OPERATION();
    m_updates.request(UpdateViews);
}
