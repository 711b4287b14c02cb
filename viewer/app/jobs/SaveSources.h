#pragma once

#include "viewer/export/ExportJob.h"
#include "viewer/overlay/SavedViewPictures.h"

class CameraDocument;
class Document;
class RecordingShelf;

/// Where the frames of what is saved come from, and what is drawn into them.
namespace SaveSources {

/// The recording of a file, of a camera's memory, or the picture of a live camera. Null if there is none;
/// the memory of another partition than the current one can't be read.
FrameSourcePtr framesOf(Document& document, PARTITIONNUMBER partition, const RecordingShelf& shelf);

/// As ExportRequest has it: turns the pictures as the user sees them, and with `withInfo` puts the
/// information round them. `path`: of the file to be saved.
std::function<Frame(const Frame&, int)> drawing(Document& document, SavedViewPictures& pictures,
                                                bool withInfo, const QString& path);

} // namespace SaveSources
