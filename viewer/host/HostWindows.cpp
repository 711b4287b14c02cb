#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostWindows";
}

// All windows of this program are document windows.
int ViewerHost::countWindows(bool visible, int kind) {
    OPERATION(visible, kind);
    return m_shell.windowCount(visible);
}
