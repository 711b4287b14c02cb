#pragma once

#include "viewer/export/report/Report.h"
#include "viewer/recordings/FrameSource.h"

class Document;

/// Writes down what is known of recordings, in the user's language.
namespace ReportMaker {

struct Subject {
    Document* document;
    PARTITIONNUMBER partition; // that the frames are of
    FrameSourcePtr source;
};

/// A section each, with the frame at the trigger, the first, the last, and those that the user marked; with
/// `every` above 1 also each frame of so many from the first.
/// Throws RecordingError for a frame that can't be read.
Report make(const QList<Subject>& subjects, const QString& title, int every = 1);

} // namespace ReportMaker
