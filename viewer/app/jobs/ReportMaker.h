#pragma once

#include "viewer/export/report/Report.h"
#include "viewer/recordings/FrameSource.h"
#include "viewer/saving/SaveRequest.h"

class Document;

/// Writes down what is known of recordings, in the user's language.
namespace ReportMaker {

struct Subject {
    Document* document;
    PARTITIONNUMBER partition; // that the frames are of
    FrameSourcePtr source;
};

/// A section each, with the frame at the trigger, the first, the last, and those that the user marked; where
/// frames are skipped also those that are saved.
/// Throws RecordingError for a frame that can't be read.
Report make(const QList<Subject>& subjects, const QString& title, const FrameSkip& skip = {});

} // namespace ReportMaker
