#include "viewer/documents/Tones.h"

#include <cmath>

namespace {

using Table = std::array<uchar, 256>;

Table tableOf(int lut) {
    constexpr std::array<double, 3> kExponents = {1, 1 / 1.5, 1 / 2.2};
    Table table{};
    for (int i = 0; i < 256; ++i) {
        table[size_t(i)] = size_t(lut) < kExponents.size()
                               ? uchar(std::lround(255 * std::pow(i / 255.0, kExponents[size_t(lut)])))
                               : uchar(255 - i);
    }
    return table;
}

/// Moves the three samples away from the pixel's gray, or towards it.
void saturate(uchar* pixel, int percent) {
    const int gray = qGray(pixel[0], pixel[1], pixel[2]);
    for (int i = 0; i < 3; ++i) {
        pixel[i] = uchar(qBound(0, gray + (pixel[i] - gray) * percent / 100, 255));
    }
}

} // namespace

QImage Tones::applied(const QImage& image) const {
    if (isPlain() || image.isNull()) {
        return image;
    }
    const bool isGray = image.format() == QImage::Format_Grayscale8;
    QImage result = isGray ? image.copy() : image.convertToFormat(QImage::Format_RGB888).copy();
    const Table table = tableOf(lut);
    for (int y = 0; y < result.height(); ++y) {
        uchar* const line = result.scanLine(y);
        const int samples = result.width() * (isGray ? 1 : 3);
        for (int i = 0; !isGray && saturation != 100 && i < samples; i += 3) {
            saturate(line + i, saturation);
        }
        std::transform(line, line + samples, line, [&table](uchar sample) { return table[sample]; });
    }
    return result;
}
