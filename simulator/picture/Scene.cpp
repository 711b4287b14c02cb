#include "simulator/picture/Scene.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// Places of the map: walls of that many shades, then the wheel by angle, in an outer and an inner ring.
constexpr int WallShades = 256;
constexpr int Angles = 1024;
constexpr int RimStart = WallShades;
constexpr int HubStart = RimStart + Angles;
constexpr int Places = HubStart + Angles;

constexpr double ReferenceExposure = 0.001; // s; see the class
constexpr double WheelTurns = 12.3;         // a second
constexpr double DropPeriod = 0.5;          // s
constexpr double FallTime = 0.4;            // s from the top to the bottom
constexpr int RimSpokes = 7;
constexpr int HubSpokes = 3;
constexpr double Knee = 0.6; // of full scale, from where the dual slope acts

quint32 mix(quint32 value) { // an integer hash
    value = (value ^ 61U ^ value >> 16) * 9U;
    value = (value ^ value >> 4) * 0x27d4eb2dU;
    return value ^ value >> 15;
}

double fraction(quint32 seed, quint32 what) { return mix(seed * 31U + what) / 4294967296.0; }

// What the sensor makes of light: a fraction of full scale.
double response(double light, const FrameRequest& request) {
    const double sum = light * request.gain * request.exposure / ReferenceExposure;
    const double slope = 1.0 - request.dualSlope / 100.0;
    return std::clamp(sum <= Knee ? sum : Knee + (sum - Knee) * slope, 0.0, 1.0);
}

// The part of an angle's light that a wheel turning from `from` to `from + turned` (in turns) gives it: of
// each of the equal spokes one half is light.
double spokeLight(double angle, double from, double turned, int spokes) {
    const auto lightUpTo = [](double position) { // integral of the pattern, which has period 1
        const double whole = std::floor(position);
        return whole * 0.5 + std::min(position - whole, 0.5);
    };
    const double end = (angle - from) * spokes;
    const double length = turned * spokes;
    if (length < 1e-6) {
        return end - std::floor(end) < 0.5 ? 1.0 : 0.0;
    }
    return (lightUpTo(end) - lightUpTo(end - length)) / length;
}

} // namespace

// In pixels of the sensor; it falls straight down, and during an exposure evenly.
struct Scene::Drop {
    double x;
    double top; // of its way during the exposure
    double bottom;
    double radius;
    // The part of the exposure in which it covers this point.
    double cover(double px, double py) const {
        const double half2 = radius * radius - (px - x) * (px - x);
        if (half2 <= 0) {
            return 0;
        }
        const double half = std::sqrt(half2);
        const double way = bottom - top;
        if (way < 1e-3) {
            return std::abs(py - top) < half ? 1 : 0;
        }
        return std::max(0.0, std::min(bottom, py + half) - std::max(top, py - half)) / way;
    }
};

Scene::Drop Scene::dropOf(const FrameRequest& request) const {
    const double start = request.time / 1e9 + fraction(m_seed, 2) * DropPeriod;
    const double period = std::floor(start / DropPeriod);
    const double since = start - period * DropPeriod;
    const double height = m_sensor.height();
    const auto place = [height](double t) {
        return -0.05 * height + 1.15 * height * t * t / (FallTime * FallTime);
    };
    Drop drop{};
    drop.radius = height / 32.0;
    // Each drop falls at a place of its own, right of the wheel.
    drop.x = m_sensor.width() * (0.8 + 0.1 * fraction(m_seed, 100U + quint32(qint64(period))));
    drop.top = place(since);
    drop.bottom = place(since + request.exposure);
    return drop;
}

void Scene::prepareMap(const FrameRequest& request) {
    if (m_mapArea == request.area && m_mapSize == request.size) {
        return;
    }
    m_mapArea = request.area;
    m_mapSize = request.size;
    const int width = request.size.width();
    const int height = request.size.height();
    m_map.resize(size_t(width) * size_t(height));
    for (int y = 0; y < height; ++y) {
        const int sy = request.area.top() + y * request.area.height() / height;
        for (int x = 0; x < width; ++x) {
            const int sx = request.area.left() + x * request.area.width() / width;
            // Darker to the left and upwards, with bricks of slightly different shade.
            const int slope = sx * 90 / m_sensor.width() + sy * 40 / m_sensor.height();
            const quint32 brick = mix(m_seed + quint32(sx / 64) * 7919U + quint32(sy / 32) * 104729U) % 24;
            m_map[size_t(y) * size_t(width) + size_t(x)] = quint16(slope + int(brick) + 20);
        }
    }
    mapWheel(request);
}

void Scene::mapWheel(const FrameRequest& request) {
    const double centerX = m_sensor.width() * 0.42;
    const double centerY = m_sensor.height() * 0.52;
    const double radius = std::min(m_sensor.width(), m_sensor.height()) * 0.34;
    const int width = request.size.width();
    const int height = request.size.height();
    for (int y = 0; y < height; ++y) {
        const double dy = request.area.top() + (y + 0.5) * request.area.height() / height - centerY;
        for (int x = 0; x < width && std::abs(dy) < radius; ++x) {
            const double dx = request.area.left() + (x + 0.5) * request.area.width() / width - centerX;
            const double distance = std::hypot(dx, dy);
            if (distance >= radius) {
                continue;
            }
            const int angle = int((std::atan2(dy, dx) / (2 * M_PI) + 0.5) * Angles) % Angles;
            const int ring = distance > radius * 0.5 ? RimStart : HubStart;
            m_map[size_t(y) * size_t(width) + size_t(x)] = quint16(ring + angle);
        }
    }
}

std::vector<Scene::Light> Scene::lights(const FrameRequest& request) const {
    std::vector<Light> table(Places);
    for (int i = 0; i < WallShades; ++i) {
        const float shade = float(i) / WallShades;
        table[size_t(i)] = {shade, shade * 0.95F, shade * 0.8F};
    }
    const double from = std::fmod(request.time / 1e9 * WheelTurns + fraction(m_seed, 1), 1.0);
    const double turned = request.exposure * WheelTurns;
    for (int i = 0; i < Angles; ++i) {
        const double angle = (i + 0.5) / Angles;
        const auto rim = float(spokeLight(angle, from, turned, RimSpokes));
        const auto hub = float(spokeLight(angle, from, turned, HubSpokes));
        table[size_t(RimStart + i)] = {0.06F + 0.94F * rim, 0.05F + 0.55F * rim, 0.05F + 0.1F * rim};
        table[size_t(HubStart + i)] = {0.05F + 0.2F * hub, 0.08F + 0.6F * hub, 0.15F + 0.85F * hub};
    }
    return table;
}

template <class Write>
void Scene::drawDrop(const FrameRequest& request, const std::vector<Light>& table, Write write) const {
    constexpr Light Water{0.55F, 0.8F, 1.0F};
    const Drop drop = dropOf(request);
    const double scaleX = double(request.area.width()) / request.size.width();
    const double scaleY = double(request.area.height()) / request.size.height();
    const auto column = [&](double x) {
        return std::clamp(int((x - request.area.left()) / scaleX), 0, request.size.width() - 1);
    };
    const auto row = [&](double y) {
        return std::clamp(int((y - request.area.top()) / scaleY), 0, request.size.height() - 1);
    };
    const int lastRow = row(drop.bottom + drop.radius);
    const int lastColumn = column(drop.x + drop.radius);
    for (int y = row(drop.top - drop.radius); y <= lastRow; ++y) {
        for (int x = column(drop.x - drop.radius); x <= lastColumn; ++x) {
            const auto cover = float(drop.cover(request.area.left() + (x + 0.5) * scaleX,
                                                request.area.top() + (y + 0.5) * scaleY));
            if (cover <= 0) {
                continue;
            }
            const Light& behind = table[m_map[size_t(y) * size_t(request.size.width()) + size_t(x)]];
            const auto blend = [cover](float before, float back) { return back + (before - back) * cover; };
            write(x, y,
                  Light{blend(Water.red, behind.red), blend(Water.green, behind.green),
                        blend(Water.blue, behind.blue)});
        }
    }
}

// Both tables: one sample or three for each place, looked up by the map, and the drop over it.
template <class Sample>
void Scene::drawGrey(QImage& image, const FrameRequest& request, const std::vector<Light>& table) const {
    const int full = (1 << request.bitDepth) - 1;
    const auto sample = [&](const Light& l) {
        return Sample(response(0.3F * l.red + 0.6F * l.green + 0.1F * l.blue, request) * full + 0.5);
    };
    std::vector<Sample> samples(table.size());
    std::transform(table.begin(), table.end(), samples.begin(), sample);
    const quint16* place = m_map.data();
    const auto line = [&image](int y) { return reinterpret_cast<Sample*>(image.scanLine(y)); };
    for (int y = 0; y < image.height(); ++y) {
        Sample* const to = line(y);
        for (int x = 0; x < image.width(); ++x) {
            to[x] = samples[*place++];
        }
    }
    drawDrop(request, table, [&](int x, int y, const Light& l) { line(y)[x] = sample(l); });
}

void Scene::drawColour(QImage& image, const FrameRequest& request, const std::vector<Light>& table) const {
    const auto sample = [&](float light) { return uchar(response(light, request) * 255 + 0.5); };
    const auto put = [&](uchar* to, const Light& l) {
        to[0] = sample(l.red);
        to[1] = sample(l.green);
        to[2] = sample(l.blue);
    };
    std::vector<uchar> samples(table.size() * 3);
    for (size_t i = 0; i < table.size(); ++i) {
        put(&samples[i * 3], table[i]);
    }
    const quint16* place = m_map.data();
    for (int y = 0; y < image.height(); ++y) {
        uchar* to = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, to += 3) {
            std::copy_n(&samples[size_t(*place++) * 3], 3, to);
        }
    }
    drawDrop(request, table, [&](int x, int y, const Light& l) { put(image.scanLine(y) + 3 * x, l); });
}

QImage Scene::render(const FrameRequest& request) {
    prepareMap(request);
    const std::vector<Light> table = lights(request);
    const bool wide = request.bitDepth > 8;
    QImage image(request.size, request.color ? QImage::Format_RGB888
                               : wide        ? QImage::Format_Grayscale16
                                             : QImage::Format_Grayscale8);
    if (request.color) {
        drawColour(image, request, table);
    } else if (wide) {
        drawGrey<quint16>(image, request, table);
    } else {
        drawGrey<uchar>(image, request, table);
    }
    return image;
}
