#include "simulator/picture/Blur.h"

#include <QImage>

#include <algorithm>
#include <vector>

namespace {

// The mean along one line of samples that lie `stride` apart; what lies outside is as the last inside. Costs
// the same for each radius.
template <class Sample>
void blurRow(Sample* line, std::vector<Sample>& copy, int width, int stride, int radius) {
    for (int x = 0; x < width; ++x) {
        copy[size_t(x)] = line[x * stride];
    }
    const auto at = [&](int x) { return quint32(copy[size_t(std::clamp(x, 0, width - 1))]); };
    quint32 sum = 0;
    for (int x = -radius; x <= radius; ++x) {
        sum += at(x);
    }
    const quint32 count = quint32(2 * radius + 1);
    for (int x = 0; x < width; ++x) {
        line[x * stride] = Sample(sum / count);
        sum += at(x + radius + 1) - at(x - radius);
    }
}

// All columns at once, so that memory is read line by line.
template <class Sample>
void blurColumns(QImage& image, int samples, int radius) {
    const QImage copy = image.copy();
    const auto row = [&copy](int y) {
        return reinterpret_cast<const Sample*>(copy.constScanLine(std::clamp(y, 0, copy.height() - 1)));
    };
    std::vector<quint32> sums(static_cast<size_t>(samples));
    for (int y = -radius; y <= radius; ++y) {
        for (int x = 0; x < samples; ++x) {
            sums[size_t(x)] += row(y)[x];
        }
    }
    const quint32 count = quint32(2 * radius + 1);
    for (int y = 0; y < image.height(); ++y) {
        auto* const to = reinterpret_cast<Sample*>(image.scanLine(y));
        const Sample* const enters = row(y + radius + 1);
        const Sample* const leaves = row(y - radius);
        for (int x = 0; x < samples; ++x) {
            to[x] = Sample(sums[size_t(x)] / count);
            sums[size_t(x)] += quint32(enters[x]) - quint32(leaves[x]);
        }
    }
}

template <class Sample>
void blur(QImage& image, int channels, int radius) {
    std::vector<Sample> copy(static_cast<size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        for (int channel = 0; channel < channels; ++channel) {
            blurRow(reinterpret_cast<Sample*>(image.scanLine(y)) + channel, copy, image.width(), channels,
                    radius);
        }
    }
    blurColumns<Sample>(image, image.width() * channels, radius);
}

} // namespace

void blurImage(QImage& image, int radius) {
    if (image.isNull() || radius < 1) {
        return;
    }
    if (image.format() == QImage::Format_Grayscale16) {
        blur<quint16>(image, 1, radius);
    } else {
        blur<uchar>(image, image.format() == QImage::Format_RGB888 ? 3 : 1, radius);
    }
}
