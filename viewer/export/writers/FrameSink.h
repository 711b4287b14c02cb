#pragma once

#include "viewer/cameras/Frame.h"
#include "viewer/recordings/UnfinishedFile.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// What a sink is told of the frames before the first of them comes. All have the same size and depth.
struct SinkPlan {
    QString path; // with the format's suffix; of a sequence the number of each frame is put in before it
    UnfinishedFile::Existing existing = UnfinishedFile::Existing::Refuse;
    QSize size;       // of the pictures as they are saved
    int bitDepth = 8; // of the frames that come
    bool isColor = false;
    int frames = 0;
    quint32 rate = 0;     // fps with which they were recorded
    double playRate = 30; // fps with which a movie plays
    int quality = 90;     // of lossy pictures, 0 to 100
    QJsonObject info;     // of the recording, kept with the pictures where the format has a place for it
};

/// Which frame it is.
struct FrameMark {
    int index = 0;      // in the recording, from 0; it names the file of a sequence
    quint32 number = 0; // the camera's running number
    qint64 time = 0;    // ns
};

/// Where the frames of a job go. A sink that goes before finish() leaves nothing behind but the files that
/// were whole.
///
/// copy() and encode() may be called by several threads at a time; everything else by one thread, and
/// append() in the order of the frames. All throw RecordingError.
class FrameSink {
public:
    FrameSink() = default;
    FrameSink(const FrameSink&) = delete;
    FrameSink& operator=(const FrameSink&) = delete;
    virtual ~FrameSink() = default;

    /// A frame of the recording as it stands there, for append(); false if it has to be encoded.
    virtual bool copy(int /*index*/, QByteArray& /*encoded*/, FrameMark& /*mark*/) const { return false; }
    /// The frame as append() takes it.
    virtual QByteArray encode(const Frame& frame) const = 0;
    virtual void append(const QByteArray& encoded, const FrameMark& mark) = 0;
    /// What is left to be written is written, and stands under its final name.
    virtual void finish() = 0;
};
