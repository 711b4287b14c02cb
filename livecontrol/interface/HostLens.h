#pragma once

/// Low light shutter. GUI thread only; may throw an exception derived from `std::exception`.
class HostLens {
public:
    virtual ~HostLens() = default;

    /// Sets the shutter of the selected cameras as their low light setting asks.
    virtual void applyLowLightShutter() = 0;
};
