#pragma once

#include "viewer/recordings/FrameSource.h"

/// Files of recordings, whatever their form.
namespace RecordingFile {

/// Endings of such files, without the point; the first is the one for new files.
const QStringList& suffixes();
/// Throws RecordingError.
FrameSourcePtr open(const QString& path);

} // namespace RecordingFile
