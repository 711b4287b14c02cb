#include "simulator/settings/AutoExposure.h"

#include "simulator/settings/SettingsRules.h"

#include <QImage>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MostChange = 2; // of the light in one step
constexpr double Damping = 0.5;  // of the way in stops that one step goes

int lowered(int value, int from, int step) { return value - (value - from) % step; }

int fittedLength(int wish, int smallest, int step, int image) {
    return lowered(std::clamp(wish, std::min(smallest, image), image), std::min(smallest, image), step);
}

int fittedPlace(int wish, int length, int step, int image) {
    return lowered(std::clamp(wish, 0, image - length), 0, step);
}

} // namespace

ExposureControl AutoExposure::initial(const CameraModel& model, const HeadSettings& settings) {
    const QSize size = settings.resolution / 2;
    ExposureControl control;
    control.area = QRect(QPoint(size.width() / 2, size.height() / 2), size);
    control.value = (model.meter.valueMax + 1) / 2;
    control.range = (model.meter.rangeMax + 1) / 16;
    return fitted(model, settings, control);
}

ExposureControl AutoExposure::fitted(const CameraModel& model, const HeadSettings& settings,
                                     ExposureControl wish) {
    static_cast<MeteringArea&>(wish) = fittedArea(model, settings, wish);
    if (!model.meter.areaStep.isEmpty()) {
        wish.maxTime = SettingsRules::fittingShutter(model, settings.rate, wish.maxTime);
    }
    return wish;
}

MeteringArea AutoExposure::fittedArea(const CameraModel& model, const HeadSettings& settings,
                                      MeteringArea wish) {
    const ExposureMeter& meter = model.meter;
    if (meter.areaStep.isEmpty()) {
        return {};
    }
    const QSize image = settings.resolution;
    const QSize size(
        fittedLength(wish.area.width(), meter.areaMin.width(), meter.areaStep.width(), image.width()),
        fittedLength(wish.area.height(), meter.areaMin.height(), meter.areaStep.height(), image.height()));
    wish.area =
        QRect(QPoint(fittedPlace(wish.area.left(), size.width(), meter.posStep.width(), image.width()),
                     fittedPlace(wish.area.top(), size.height(), meter.posStep.height(), image.height())),
              size);
    wish.value = std::min(wish.value, meter.valueMax);
    wish.range = std::min(wish.range, meter.rangeMax);
    return wish;
}

quint32 AutoExposure::limited(const CameraModel& model, const HeadSettings& settings, quint32 shutter) {
    const quint32 longest = std::max(settings.rate, settings.exposure.maxTime);
    return std::clamp(shutter, longest, std::max(longest, model.shutters.last()));
}

quint32 AutoExposure::next(const CameraModel& model, const HeadSettings& settings, double level) {
    const ExposureControl& control = settings.exposure;
    if (control.isMet(model.meter, level)) {
        return settings.shutter;
    }
    const double target = control.value / (model.meter.valueMax + 1.0);
    const double wanted = std::clamp(target / std::max(level, 1e-6), 1 / MostChange, MostChange);
    const double exact = settings.shutter / std::pow(wanted, Damping);
    // A step that is lost in rounding would never arrive.
    const auto rounded = static_cast<quint32>(wanted > 1 ? std::floor(exact) : std::ceil(exact));
    return limited(model, settings, rounded);
}

double AutoExposure::meanLevel(const QImage& image, int bitDepth) {
    if (image.isNull()) {
        return 0;
    }
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const line = image.constScanLine(y);
        quint64 row = 0;
        if (image.format() == QImage::Format_Grayscale16) {
            const auto* const samples = reinterpret_cast<const quint16*>(line);
            for (int x = 0; x < image.width(); ++x) {
                row += samples[x];
            }
        } else {
            const int samples = image.width() * image.depth() / 8;
            for (int x = 0; x < samples; ++x) {
                row += line[x];
            }
        }
        sum += double(row);
    }
    const double full = image.format() == QImage::Format_Grayscale16 ? (1 << bitDepth) - 1 : 255;
    const double channels = image.format() == QImage::Format_Grayscale16 ? 1 : image.depth() / 8.0;
    return sum / (double(image.width()) * image.height() * channels * full);
}
