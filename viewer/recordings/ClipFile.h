#pragma once

#include "viewer/recordings/FrameSource.h"

/// The files in which older versions of the program kept a few frames of a recording.
namespace ClipFile {

/// Whether a file begins like one.
bool is(const QString& path);
/// Throws RecordingError.
FrameSourcePtr load(const QString& path);

} // namespace ClipFile
