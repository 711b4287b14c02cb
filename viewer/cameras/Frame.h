#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <optional>

/// One picture of a camera head.
//
/// Storage: 8-bit color is Format_RGB888, 8-bit mono Format_Grayscale8; more than 8 bits are
/// Format_Grayscale16 with the value in the low bits as a camera delivers it (0..4095 for 12 bits), so such
/// an image is dark as it stands: displayImage() gives the one to show.
struct Frame {
    QImage image;       // null: no picture
    int bitDepth = 8;   // significant bits of a sample
    quint32 number = 0; // running number, also in the pixels: see FrameStamp
    qint64 time = 0;    // rig time of the start of the exposure, ns
    QRect area;         // the part of the sensor that the image shows; the image may be reduced

    bool isNull() const { return image.isNull(); }
    QImage displayImage() const; // 8 bits a sample
};

/// The frame number in the pixels: the first 40 pixels of the first row are bits, black for 0 and full scale
/// for 1: the marker 10100101, then the number with its highest bit first. They survive a reduction to 8
/// bits.
namespace FrameStamp {
constexpr int Width = 40;

/// Writes the bits, and the number as readable digits into the lower left corner if there is room for them.
/// An image narrower than the stamp stays as it is.
void write(QImage& image, quint32 number, int bitDepth);
/// The number, or nothing if the image has no stamp.
std::optional<quint32> read(const QImage& image);
/// The image scaled to fit into the size, in its shape, with what stands below a stamp in place of it: the
/// bits would be specks that nobody can read any more.
QImage scaled(const QImage& image, const QSize& size);
} // namespace FrameStamp
