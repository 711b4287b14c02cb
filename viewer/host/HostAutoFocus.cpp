// The autofocus, a tool of the viewer's own that pages open like a plug-in.

#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostApplication";
} // namespace

bool ViewerHost::isAutoFocusActive(bool currentOnly) {
    OPERATION(currentOnly);
    return m_autoFocus.isAvailable();
}

bool ViewerHost::isAutoFocussing() {
    OPERATION();
    return m_autoFocus.isFocusing();
}
