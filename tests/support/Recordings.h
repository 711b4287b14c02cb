#pragma once

#include "viewer/recordings/FrameList.h"

/// A recording of one camera with these frames.
inline FrameSourcePtr recordingOf(const QVector<QImage>& frames, const QString& camera = QString()) {
    RecordingInfo info;
    info.camera = camera;
    return std::make_shared<FrameList>(info, frames);
}

/// With so many frames of that size, all black.
inline FrameSourcePtr recordingOf(const RecordingInfo& info, int count, const QSize& size) {
    QImage black(size, QImage::Format_Grayscale8);
    black.fill(0);
    return std::make_shared<FrameList>(info, QVector<QImage>(count, black));
}
