#include "simulator/picture/SensorFaults.h"

#include <QImage>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

int channelsOf(const QImage& image) { return image.format() == QImage::Format_RGB888 ? 3 : 1; }

/// Where the pixels of a line or column lie, from -1 at one end of the sensor to 1 at the other.
std::vector<double> places(int pixels, int first, int length, int sensor) {
    std::vector<double> result(static_cast<size_t>(pixels));
    for (int i = 0; i < pixels; ++i) {
        result[size_t(i)] = 2 * (first + (i + 0.5) * length / pixels) / sensor - 1;
    }
    return result;
}

template <class Sample>
void darken(QImage& image, const std::vector<double>& across, const std::vector<double>& down, double part) {
    const int channels = channelsOf(image);
    for (int y = 0; y < image.height(); ++y) {
        auto* sample = reinterpret_cast<Sample*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double distance = across[size_t(x)] * across[size_t(x)] + down[size_t(y)] * down[size_t(y)];
            const double kept = 1 - part * distance / 2; // whose square is 2 in a corner
            for (int channel = 0; channel < channels; ++channel, ++sample) {
                *sample = Sample(*sample * kept);
            }
        }
    }
}

} // namespace

void darkenCorners(QImage& image, const QRect& area, const QSize& sensor, double part) {
    if (part <= 0 || image.isNull()) {
        return;
    }
    const auto across = places(image.width(), area.x(), area.width(), sensor.width());
    const auto down = places(image.height(), area.y(), area.height(), sensor.height());
    if (image.format() == QImage::Format_Grayscale16) {
        darken<quint16>(image, across, down, part);
    } else {
        darken<uchar>(image, across, down, part);
    }
}

void drawLaserSpot(QImage& image, const QRect& area, const QSize& sensor, int bitDepth) {
    constexpr double Radius = 0.03; // of half the sensor's width
    const auto across = places(image.width(), area.x(), area.width(), sensor.width());
    const auto down = places(image.height(), area.y(), area.height(), sensor.height());
    const double shape = double(sensor.height()) / sensor.width();
    for (int y = 0; y < image.height(); ++y) {
        uchar* const line = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (std::hypot(across[size_t(x)], down[size_t(y)] * shape) > Radius) {
                continue;
            }
            if (image.format() == QImage::Format_Grayscale16) {
                reinterpret_cast<quint16*>(line)[x] = quint16((1 << bitDepth) - 1);
            } else {
                const int channels = channelsOf(image);
                std::fill_n(line + x * channels, channels, uchar(0));
                line[x * channels] = 255;
            }
        }
    }
}
