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

QSize swapped(const Document& document, const QSize& size) {
    return document.view().isSwapped() ? size.transposed() : size;
}

Frame frameOfPartition(const Document& document, PARTITIONNUMBER partition, int frame) {
    const int last = document.head()->recording(partition).frames - 1;
    const std::unique_ptr<MemoryReader> reader = document.head()->memoryReader(partition);
    return reader ? reader->frame(frame > 0 ? frame - 1 : qMin(document.playPosition(), last)) : Frame();
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
        return swapped(document, document.imageSize());
    }
    const Recording recording = document.head()->recording(other);
    return recording.isEmpty() ? QSize() : swapped(document, recording.settings.resolution);
}

QImage UprightImage::turned(const QImage& image, const ViewState& view) {
    const QImage rotated =
        view.quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * view.quarterTurns));
    return view.flipA || view.flipB ? rotated.mirrored(view.flipA, view.flipB) : rotated;
}

QImage UprightImage::fitted(Document& document, const QSize& limit, PARTITIONNUMBER partition, int frame) {
    if (limit.isEmpty()) {
        return QImage();
    }
    const PARTITIONNUMBER other = otherPartition(document, partition);
    const QSize most = swapped(document, limit);
    const Frame picture = other != 0  ? frameOfPartition(document, other, frame)
                          : frame > 0 ? document.recordedFrame(frame - 1, most)
                                      : document.frame(most);
    if (picture.isNull()) {
        return QImage();
    }
    const QSize original =
        other != 0 ? document.head()->recording(other).settings.resolution : document.imageSize();
    const QImage shown = turned(withoutStamp(picture, original), document.view());
    const QSize fitting = shown.size().scaled(limit, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return shown.size() == fitting ? shown
                                   : shown.scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
