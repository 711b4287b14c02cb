#pragma once

#include "livecontrol/interface/types.h"

#include <QList>

/// Playback. GUI thread only; any operation may throw an exception derived from `std::exception`.
class HostPlayer {
public:
    virtual ~HostPlayer() = default;

    /// Pauses playback for a change.
    virtual void pausePlayback() = 0;
    /// Resumes it.
    virtual void resumePlayback() = 0;
    /// Takes over the documents of `keys` for playback.
    virtual void importTargets(const QList<DOCKEY>& keys) = 0;
};
