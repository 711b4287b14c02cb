#pragma once

#include "viewer/host/doors/ViewsDoor.h"

class LensDoor : public ViewsDoor {
public:
    using ViewsDoor::ViewsDoor;

    // The cameras expose so since the shutter was set; the views take the new picture at once.
    void applyLowLightShutter() override {
        OPERATION();
        m_updates.request(UpdateViews);
    }

private:
    static constexpr char kInterface[] = "HostLens";
};
