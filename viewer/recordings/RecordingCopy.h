#pragma once

#include "viewer/recordings/FrameSource.h"
#include "viewer/recordings/RecordingWriter.h"

#include <functional>

/// Copies frames of a recording into a new container. Frames that a file holds in the same storage are copied
/// as they stand there.
struct RecordingCopy {
    /// The storage in which a source's frames can be copied as they are.
    static Container::Storage storageOf(const FrameSource& from);

    int first = 0;
    int count = -1; // to the end
    Container::Storage storage = Container::Storage::Raw;
    UnfinishedFile::Existing existing = UnfinishedFile::Existing::Refuse;
    /// Asked before each frame, with how many are copied; false ends it.
    std::function<bool(int copied)> goesOn;

    /// `info` is that of all of the source's frames as it shall stand in the file. False, and no file, if it
    /// was ended. Throws RecordingError.
    bool run(const FrameSource& from, const RecordingInfo& info, const QString& path) const;
};
