#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QStringList>

/// Files that this program, or another one, saved: pictures, sequences, movies.
namespace OpenFile {

/// The suffixes of what fromPictures() reads, without dots, in lower case.
QStringList pictureSuffixes();
/// Opens a BMP, JPEG, PNG, TIFF (each of its pages is a frame), AVI, MOV or MP4. A picture of a sequence
/// ("name_000012.png") opens all pictures of it, in the order of their numbers. What the file tells of the
/// recording stands in the information; without that, its name and the rate of a movie. Throws
/// RecordingError.
FrameSourcePtr fromPictures(const QString& path);

} // namespace OpenFile
