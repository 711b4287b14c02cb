#pragma once

#include "viewer/cameras/Frame.h"

/// Frames as file formats want them.
namespace Pixels {

/// The same with samples of 8 bits: more bits are cut to the upper 8.
Frame toEightBits(const Frame& frame);
/// Samples of 9 to 16 bits spread over 16, so that full scale is full scale; fromSpread() gives them back
/// exactly.
QImage spread(const Frame& frame);
Frame fromSpread(const QImage& image, int bitDepth);
/// The rows one after the other without gaps, as the machine orders the bytes of a sample.
QByteArray packed(const QImage& image);
/// The opposite; null if the bytes are not as many as needed.
QImage fromPacked(const QByteArray& bytes, const QSize& size, QImage::Format format);

} // namespace Pixels
