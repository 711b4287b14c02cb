#pragma once

/// The document windows. GUI thread only; may throw an exception derived from `std::exception`.
class HostWindows {
public:
    virtual ~HostWindows() = default;

    /// Number of windows of `kind` (2: document windows); with `visible` only those that show.
    virtual int countWindows(bool visible, int kind) = 0;
};
