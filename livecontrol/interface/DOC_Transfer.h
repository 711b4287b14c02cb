#pragma once

/// The image transfer of a document. GUI thread only; any operation may throw an exception derived from
/// `std::exception`.
class DOC_Transfer {
public:
    virtual ~DOC_Transfer() = default;

    /// Ends what shows or moves the head's images, before its camera goes down. Callers pass true three
    /// times.
    virtual void prepareShutdown(bool stopTransfer, bool closeView, bool wait) = 0;
    /// Starts the image transfer anew; with `wait` it returns when images come again.
    virtual void restartTransfer(bool wait) = 0;
    /// The user begins to select an area on the view: the image stays at full size meanwhile.
    virtual void beginViewSelection() = 0;
    /// True while the reduction of the live image is suspended.
    virtual bool isSuspendReduce() = 0;
    /// Pair of `beginViewSelection`.
    virtual void endViewSelection() = 0;
};
