#pragma once

/// The live image. GUI thread only; any operation may throw an exception derived from `std::exception`.
class HostLive {
public:
    virtual ~HostLive() = default;

    /// Starts the live image again after `suspendLive` or `stopLiveForRefresh`.
    virtual void resumeLive() = 0;
    /// Stops the live image for a change after which all settings are read anew. Callers pass false, true,
    /// true.
    virtual void stopLiveForRefresh(bool wait, bool documents, bool views) = 0;
    /// Stops the live image for a change. Callers pass false for `wait`.
    virtual void suspendLive(bool wait) = 0;
    /// True if a change needs the image transfer restarted.
    virtual bool isRestartNeeded() = 0;
    /// Holds the live image while a dialog is open. Calls nest.
    virtual void beginLiveHold() = 0;
    /// Ends the hold.
    virtual void endLiveHold() = 0;
};
