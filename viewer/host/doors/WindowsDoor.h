#pragma once

#include "viewer/host/HostWindow.h"
#include "viewer/host/doors/LensDoor.h"

class WindowsDoor : public LensDoor {
public:
    using LensDoor::LensDoor;

    // All windows of this program are document windows.
    int countWindows(bool visible, int kind) override {
        OPERATION(visible, kind);
        return m_shell.windowCount(visible);
    }

private:
    static constexpr char kInterface[] = "HostWindows";
};
