#include "viewer/documents/UprightImage.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"

#include <cstring>

namespace {

/// The partition if it is not the one that the memory shows, else 0.
PARTITIONNUMBER otherPartition(const Document& document, PARTITIONNUMBER partition) {
    const CameraBody* const body = document.body();
    const bool isMemory = body && document.list().mode() == HOST_MODE_MEMORY;
    return isMemory && int(partition) != body->partition() ? partition : 0;
}

QSize turned(const Document& document, const QSize& size) {
    return document.view().isSwapped() ? size.transposed() : size;
}

/// The bits of the frame's number are as wide in a reduced frame as in a whole one, where they look like a
/// mistake above the picture: what is only shown does without.
QImage withoutStamp(const Frame& frame, const QSize& original) {
    QImage image = frame.displayImage();
    if (frame.image.size() != original && image.height() > 1 && FrameStamp::read(frame.image)) {
        const size_t bytes = size_t(FrameStamp::Width) * size_t(image.depth() / 8);
        std::memcpy(image.scanLine(0), image.constScanLine(1), bytes);
    }
    return image;
}

} // namespace

QSize UprightImage::size(const Document& document, PARTITIONNUMBER partition) {
    const PARTITIONNUMBER other = otherPartition(document, partition);
    if (other == 0) {
        return turned(document, document.imageSize());
    }
    const Recording recording = document.head()->recording(other);
    return recording.isEmpty() ? QSize() : turned(document, recording.settings.resolution);
}

QImage UprightImage::fitted(Document& document, const QSize& limit, PARTITIONNUMBER partition, int frame) {
    if (limit.isEmpty() || otherPartition(document, partition) != 0 || frame > document.recordedFrames()) {
        return QImage();
    }
    const QSize most = turned(document, limit);
    const Frame picture = frame > 0 ? document.recordedFrame(frame - 1, most) : document.frame(most);
    if (picture.isNull()) {
        return QImage();
    }
    const QImage image = withoutStamp(picture, document.imageSize());
    ViewState upright = document.view();
    upright.binning = 0;
    upright.imageScale = 1;
    const QTransform transform = upright.userviewTransform(image.size());
    const QImage shown = transform.isIdentity() ? image : image.transformed(transform);
    const QSize fitting = shown.size().scaled(limit, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return shown.size() == fitting ? shown
                                   : shown.scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
