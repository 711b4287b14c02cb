#pragma once

/// The multi-camera tool's lock on a document. GUI thread only.
class DOC_Lock {
public:
    virtual ~DOC_Lock() = default;

    /// True while the multi-camera tool holds the camera of the document.
    virtual bool isQmonLocked() = 0;
};
