#include "simulator/device/FrameMaker.h"

#include "simulator/picture/Blur.h"
#include "simulator/picture/Scene.h"
#include "simulator/picture/SensorFaults.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/FrameTime.h"

#include <algorithm>

namespace {

// The part of the scene that a longer focal length spreads over the same part of the sensor.
QRect magnified(const QRect& area, const QSize& sensor, double magnification) {
    const QPointF center(sensor.width() / 2.0, sensor.height() / 2.0);
    const QPointF corner = center + (QPointF(area.topLeft()) - center) / magnification;
    const QSize size = (QSizeF(area.size()) / magnification).toSize();
    return {corner.toPoint(), size.expandedTo(QSize(1, 1))};
}

} // namespace

QSize FrameMaker::imageSize(const QSize& full, const QSize& maxSize) {
    const bool reduce =
        !maxSize.isEmpty() && (full.width() > maxSize.width() || full.height() > maxSize.height());
    return reduce ? full.scaled(maxSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)) : full;
}

double FrameMaker::gain(const HeadSettings& settings, const LensView& lens) {
    constexpr double LedGain = 1.6;
    return settings.aperture * lens.light * (settings.led ? LedGain : 1.0);
}

QImage FrameMaker::seen(Scene& scene, const FrameRequest& request, const LensView& lens) const {
    FrameRequest through = request;
    through.area = magnified(request.area, model->sensor, lens.magnification);
    QImage image = scene.render(through);
    blurImage(image, qRound(lens.blur * request.size.width() / std::max(1, request.area.width())));
    return image;
}

Frame FrameMaker::make(Scene& scene, quint64 number, const HeadSettings& settings, const LensView& lens,
                       const QSize& maxSize, qint64 origin) const {
    FrameRequest request;
    request.number = quint32(number);
    request.time = origin + FrameTime::startOf(number, settings.rate);
    request.area = settings.areaOn(model->sensor);
    request.size = imageSize(settings.resolution, maxSize);
    request.exposure = 1.0 / settings.shutter;
    request.gain = gain(settings, lens);
    request.dualSlope = SettingsRules::activeDualSlope(*model, settings);
    request.color = model->color;
    request.bitDepth = model->bitDepth;

    Frame frame;
    frame.bitDepth = request.bitDepth;
    frame.number = request.number;
    frame.time = request.time;
    frame.area = request.area;
    if (source) {
        frame.image = source(request);
        return frame;
    }
    frame.image = seen(scene, request, lens);
    if (darkening > 0) {
        darkenCorners(frame.image, request.area, model->sensor, darkening);
    }
    if (laser) {
        drawLaserSpot(frame.image, request.area, model->sensor, request.bitDepth);
    }
    FrameStamp::write(frame.image, frame.number, frame.bitDepth);
    return frame;
}
