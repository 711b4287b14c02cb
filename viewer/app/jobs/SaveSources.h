#pragma once

#include "viewer/export/ExportJob.h"
#include "viewer/overlay/SavedViewPictures.h"

class CameraDocument;
class Document;
class RecordingShelf;

/// Where the frames of what is saved come from, and what is drawn into them.
namespace SaveSources {

/// The recording of a file, of a partition of a camera's memory (from 1; 0: the current one), or the picture
/// of a live camera. Null if there is none.
FrameSourcePtr framesOf(Document& document, PARTITIONNUMBER partition, const RecordingShelf& shelf);

/// As ExportRequest has it: turns the pictures as the user sees them, and with `withInfo` puts the
/// information round them. `path`: of the file to be saved.
std::function<Frame(const Frame&, int)> drawing(const SavedPictures::Shot& shot, SavedViewPictures& pictures,
                                                bool withInfo, const std::function<QString(int)>& pathOf);

} // namespace SaveSources
