#pragma once

/// Recording. GUI thread only; any operation may throw an exception derived from `std::exception`.
class HostRecorder {
public:
    virtual ~HostRecorder() = default;

    /// True while recording runs.
    virtual bool isRecording() = 0;
    /// 0 none, 1 ready for a continuous trigger sequence (CTS), 2 ready, 4 error.
    virtual int getRecordingState() = 0;
};
