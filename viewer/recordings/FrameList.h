#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QVector>

/// Frames that lie in the computer's memory: few ones, as of an old file or of a picture.
class FrameList : public FrameSource {
public:
    /// Size, color, and count of the information follow from the frames.
    FrameList(const RecordingInfo& info, const QVector<QImage>& images);

    Frame frame(int index) const override;

private:
    QVector<QImage> m_images; // of one size, in a format of Frame
};
