#pragma once

#include "viewer/export/ExportFormat.h"
#include "viewer/recordings/FrameSource.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <functional>

/// What is to be saved, and how. Plain values, so that it can go to another thread.
struct ExportRequest {
    static constexpr int kToTheEnd = -1; // as `last`, until the source is known

    FrameSourcePtr source;
    std::optional<RecordingInfo> info; // what is told of it, in place of what the source knows
    int first = 0;                     // of the source's frames
    int last = 0;
    int step = 1; // every step-th frame is saved
    ExportFormat format = ExportFormat::Rchx;
    MovieCodec codec = MovieCodec::H264;
    QString path; // with suffix
    UnfinishedFile::Existing existing = UnfinishedFile::Existing::Refuse;
    int quality = 90;
    double playRate = 30; // fps of a movie
    /// What is drawn into the pictures; empty for nothing. Any thread, several at a time. All results have
    /// the same size and depth. A container never asks for it.
    std::function<Frame(const Frame& frame, int index)> compose;

    int count() const { return step > 0 && last >= first ? (last - first) / step + 1 : 0; }
    int indexOf(int n) const { return first + n * step; }
    /// Nothing of the recording is missing in the file.
    bool isWhole() const;
    /// For the user: which recording, and to which file it goes.
    QString titleFor(const QString& recording) const;

    /// By a name of the formats, or by a file's suffix, in any case. Throws RecordingError if there is none.
    void setFormat(const QString& name);
    /// Throws RecordingError for a name that is none.
    void setCodec(const QString& name);
    /// Throws RecordingError if there are no frames to save.
    void checkSource() const;
    /// Throws RecordingError if this can't be saved, as far as that can be told beforehand.
    void check() const;
};
