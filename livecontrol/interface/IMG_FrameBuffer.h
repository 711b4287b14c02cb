#pragma once

#include <QtGlobal>

class QRect;

/// A frame as the host hands it to the overlay pass. The host owns the planes and fills the fields, whose
/// order is part of the interface.
class IMG_FrameBuffer {
public:
    /// Counts the samples of a region into bins, each channel into a row of its own: bin =
    /// sample * (binCount - 1) / (2^depth - 1), cut to a whole number; larger ones count in the last bin.
    ///
    /// `bins` holds `channels * binCount` counters, which are only added to. `binCount` is at most 256 for
    /// the 8-bit plane and 65536 for the wide one. A `bitDepth` below 1 means the frame's own depth. Without
    /// `rect` (image pixels) the region is the whole frame; with `ellipse` it is the ellipse inscribed in it.
    /// `inside` tells which side counts. A region that isn't within the frame is logged as critical and
    /// counts nothing, and so does a frame without the plane that the depth asks for.
    ///
    /// A depth below 9 reads the 8-bit plane, which is made from the wide one first where there is one.
    void getHistogramBins(quint32* bins, int channels, int binCount, qint8 bitDepth, const QRect* rect,
                          bool ellipse, bool inside);

    int width = 0;                ///< Pixels.
    int height = 0;               ///< Pixels.
    int stride = 0;               ///< Samples from one row to the next.
    quint8 bitsPerSample = 8;     ///< Width of the stored samples: up to 8 the 8-bit plane is the data.
    quint8 significantBits = 8;   ///< Bits of a sample that carry image; used above 8 bits.
    bool isColor = false;         ///< Three samples a pixel, else one.
    quint16* samples16 = nullptr; ///< Wide samples; may be null. Not owned.
    quint8* samples8 = nullptr;   ///< 8-bit samples; may be null. Not owned.

private:
    bool contains(const QRect& region) const;
    void fillSamples8();
};
