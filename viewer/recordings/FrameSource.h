#pragma once

#include "viewer/cameras/Frame.h"
#include "viewer/recordings/RecordingInfo.h"

#include <memory>

/// The frames of one recording, wherever they lie. Thread-safe: any number of threads may read at a time, and
/// nothing of it changes.
class FrameSource {
public:
    FrameSource() = default;
    virtual ~FrameSource() = default;
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;

    const RecordingInfo& info() const { return m_info; }
    int count() const { return m_info.frames; }
    /// A frame, from 0 to count(). Throws RecordingError for one that can't be read.
    virtual Frame frame(int index) const = 0;

protected:
    RecordingInfo m_info; // set by the constructors alone
};

using FrameSourcePtr = std::shared_ptr<const FrameSource>;
