#pragma once

#include "viewer/recordings/FrameSource.h"

/// Files of recordings, whatever their form.
namespace RecordingFile {

/// Endings of such files, without the point; the first is the one for new files.
const QStringList& suffixes();
/// Reads files with these endings, too, by that function, which throws RecordingError. GUI thread only.
void addReader(const QStringList& suffixes, FrameSourcePtr (*read)(const QString& path));
/// Endings of all files that can be opened.
QStringList readableSuffixes();
/// Throws RecordingError.
FrameSourcePtr open(const QString& path);

} // namespace RecordingFile
