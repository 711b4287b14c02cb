#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostLens";
}

void ViewerHost::applyLowLightShutter() {
    OPERATION();
    refuseFunction(QStringLiteral("KVC_SetLowLightMode"));
}
