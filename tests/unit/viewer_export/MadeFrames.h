#pragma once

#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingError.h"

#include <QRandomGenerator>

/// Recordings of frames that are made up: a slope, noise in the low bits, and another one each time.
namespace MadeFrames {

inline QImage picture(const QSize& size, int bitDepth, bool color, int index) {
    const QImage::Format format = color          ? QImage::Format_RGB888
                                  : bitDepth > 8 ? QImage::Format_Grayscale16
                                                 : QImage::Format_Grayscale8;
    QImage image(size, format);
    QRandomGenerator random(quint32(index) + 1);
    const int top = (1 << bitDepth) - 1;
    const int samples = size.width() * (color ? 3 : 1);
    for (int y = 0; y < size.height(); ++y) {
        for (int i = 0; i < samples; ++i) {
            const int value = qBound(
                0, (i + y + 5 * index) * top / (samples + size.height()) + int(random.bounded(3)), top);
            if (bitDepth > 8) {
                reinterpret_cast<quint16*>(image.scanLine(y))[i] = quint16(value);
            } else {
                image.scanLine(y)[i] = uchar(value);
            }
        }
    }
    return image;
}

inline RecordingInfo info(int bitDepth = 8) {
    RecordingInfo info;
    info.camera = QStringLiteral("カメラ <b>1</b>");
    info.device = QStringLiteral("Body");
    info.rate = 1000;
    info.shutter = 2000;
    info.bitDepth = bitDepth;
    info.triggerIndex = 2;
    info.firstNumber = 40;
    info.comment = QStringLiteral("first \"line\"\nsecond=line");
    return info;
}

inline FrameSourcePtr source(const QSize& size, int bitDepth, bool color, int count) {
    QVector<QImage> images;
    for (int i = 0; i < count; ++i) {
        images.append(picture(size, bitDepth, color, i));
    }
    return std::make_shared<FrameList>(info(bitDepth), images);
}

} // namespace MadeFrames
