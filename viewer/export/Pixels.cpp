#include "viewer/export/Pixels.h"

namespace {

/// A picture of the same size whose 16-bit samples are what `change` makes of them.
template <class Change>
QImage mapped(const QImage& image, const Change& change) {
    QImage result(image.size(), QImage::Format_Grayscale16);
    for (int y = 0; y < image.height(); ++y) {
        const auto* const from = reinterpret_cast<const quint16*>(image.constScanLine(y));
        std::transform(from, from + image.width(), reinterpret_cast<quint16*>(result.scanLine(y)), change);
    }
    return result;
}

} // namespace

Frame Pixels::toEightBits(const Frame& frame) {
    Frame result = frame;
    result.image = frame.displayImage();
    result.bitDepth = 8;
    return result;
}

// The free low bits repeat the highest ones: so 0 stays 0 and the largest value becomes 65535.
QImage Pixels::spread(const Frame& frame) {
    const int up = 16 - frame.bitDepth;
    const int down = frame.bitDepth - up;
    return mapped(frame.image, [=](quint16 sample) { return quint16((sample << up) | (sample >> down)); });
}

Frame Pixels::fromSpread(const QImage& image, int bitDepth) {
    const int down = 16 - bitDepth;
    Frame result;
    result.image = mapped(image, [=](quint16 sample) { return quint16(sample >> down); });
    result.bitDepth = bitDepth;
    return result;
}

QByteArray Pixels::packed(const QImage& image) {
    const int bytes = image.width() * image.depth() / 8;
    QByteArray result;
    result.reserve(bytes * image.height());
    for (int y = 0; y < image.height(); ++y) {
        result.append(reinterpret_cast<const char*>(image.constScanLine(y)), bytes);
    }
    return result;
}

QImage Pixels::fromPacked(const QByteArray& bytes, const QSize& size, QImage::Format format) {
    QImage image(size, format);
    const int line = image.width() * image.depth() / 8;
    if (image.isNull() || qint64(bytes.size()) != qint64(line) * image.height()) {
        return QImage();
    }
    for (int y = 0; y < image.height(); ++y) {
        memcpy(image.scanLine(y), bytes.constData() + qint64(y) * line, size_t(line));
    }
    return image;
}
