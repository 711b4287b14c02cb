#pragma once

#include "livecontrol/interface/types.h"

/// Playback of a document. GUI thread only; any operation may throw an exception derived from
/// `std::exception`.
class DOC_Playback {
public:
    virtual ~DOC_Playback() = default;

    /// True while its recording plays.
    virtual bool isPlaying() = 0;
    /// Number of frames recorded in a partition. Callers pass 0 for `kind`.
    virtual unsigned int getPartitionFrames(PARTITIONNUMBER partition, int kind) = 0;
};
