// The pictures of a head, and the light that it measures in them.
#include "viewer/cameras/Blur.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/FrameTime.h"
#include "viewer/cameras/Scene.h"
#include "viewer/cameras/SensorFaults.h"
#include "viewer/cameras/SettingsRules.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LedGain = 1.6;

// The whole area of a head, reduced to the wanted size with the same shape.
QSize imageSize(const QSize& full, const QSize& maxSize) {
    const bool reduce =
        !maxSize.isEmpty() && (full.width() > maxSize.width() || full.height() > maxSize.height());
    return reduce ? full.scaled(maxSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)) : full;
}

QRect areaOf(const CameraModel& model, const HeadSettings& settings) {
    const QSize free = model.sensor - settings.resolution;
    const QPoint corner =
        settings.channel > 0 ? settings.position : QPoint(free.width() / 2, free.height() / 2);
    return {corner, settings.resolution};
}

// The part of the scene that a longer focal length spreads over the same part of the sensor.
QRect magnified(const QRect& area, const QSize& sensor, double magnification) {
    const QPointF centre(sensor.width() / 2.0, sensor.height() / 2.0);
    const QPointF corner = centre + (QPointF(area.topLeft()) - centre) / magnification;
    const QSize size = (QSizeF(area.size()) / magnification).toSize();
    return {corner.toPoint(), size.expandedTo(QSize(1, 1))};
}

} // namespace

QImage CameraHead::seen(Scene& scene, const FrameRequest& request, const LensView& lens) const {
    FrameRequest through = request;
    through.area = magnified(request.area, m_model->sensor, lens.magnification);
    QImage image = scene.render(through);
    blurImage(image, qRound(lens.blur * request.size.width() / std::max(1, request.area.width())));
    return image;
}

// What lies between the scene and the stamp of a frame.
void CameraHead::addSensorFaults(QImage& image, const FrameRequest& request) const {
    constexpr double DarkeningPerDegree = 0.02; // of the light in the corners
    constexpr double Darkest = 0.6;
    if (m_model->supports(CameraFunction::ShadingCalibration))
        darkenCorners(image, request.area, m_model->sensor,
                      std::min(Darkest, DarkeningPerDegree * std::abs(m_body->temperature() - m_shadedAt)));
    if (m_settings.laser)
        drawLaserSpot(image, request.area, m_model->sensor, request.bitDepth);
}

QRect CameraHead::area() const { return areaOf(*m_model, m_settings); }

Frame CameraHead::makeFrame(quint64 number, const HeadSettings& settings, const QSize& maxSize,
                            qint64 origin) {
    FrameRequest request;
    request.number = quint32(number);
    request.time = origin + FrameTime::startOf(number, settings.rate);
    request.area = areaOf(*m_model, settings);
    request.size = imageSize(settings.resolution, maxSize);
    request.exposure = 1.0 / settings.shutter;
    request.gain = settings.aperture * settings.lens.light * (settings.led ? LedGain : 1.0);
    request.dualSlope = SettingsRules::activeDualSlope(*m_model, settings);
    request.colour = m_model->colour;
    request.bitDepth = m_model->bitDepth;

    Frame frame;
    frame.bitDepth = request.bitDepth;
    frame.number = request.number;
    frame.time = request.time;
    frame.area = request.area;
    if (m_source) {
        frame.image = m_source(request);
        return frame;
    }
    frame.image = seen(*m_scene, request, settings.lens);
    addSensorFaults(frame.image, request);
    FrameStamp::write(frame.image, frame.number, frame.bitDepth);
    return frame;
}

// The light on the area as the next frame of the live image would show it; a coarse picture is enough.
double CameraHead::measuredLevel(const QRect& measured) {
    constexpr QSize Coarse(48, 48);
    FrameRequest request;
    request.number = quint32(currentNumber());
    request.time = m_body->clock().now();
    request.area = measured.translated(area().topLeft());
    request.size = imageSize(request.area.size(), Coarse);
    request.exposure = 1.0 / m_settings.liveShutter();
    const LensView lens = m_lens.view();
    request.gain = m_settings.aperture * lens.light * (m_settings.led ? LedGain : 1.0);
    request.colour = m_model->colour;
    request.bitDepth = m_model->bitDepth;
    if (m_source)
        return AutoExposure::meanLevel(m_source(request), request.bitDepth);
    if (!m_meterScene)
        m_meterScene = std::make_unique<Scene>(m_model->sensor, m_body->seed());
    return AutoExposure::meanLevel(seen(*m_meterScene, request, lens), request.bitDepth);
}

void CameraHead::followLightSoon() {
    if (m_lightDue || !m_settings.exposure.on)
        return;
    m_lightDue = true;
    m_body->clock().after(AutoExposure::StepMs, this, [this] {
        m_lightDue = false;
        followLight();
        followLightSoon();
    });
}

// Only the live image: all frames of a recording are exposed alike.
void CameraHead::followLight() {
    if (!m_settings.exposure.on || isLowLight() || m_body->state() != CameraState::Live)
        return;
    const quint32 shutter = AutoExposure::next(*m_model, m_settings, measuredLevel(m_settings.exposure.area));
    if (shutter != m_settings.shutter) {
        m_settings.shutter = shutter;
        emit settingsChanged(this);
    }
}

Frame CameraHead::liveFrame(const QSize& maxSize) {
    const bool blind = m_body->state() == CameraState::Off || m_body->state() == CameraState::Booting;
    if (blind || !m_body->isConnected())
        return {};
    return makeFrame(currentNumber(), liveSettings(), maxSize);
}

QSize CameraHead::liveSize() const {
    return m_settings.lowLight.showsWholeSensor() ? m_model->sensor : m_settings.resolution;
}

HeadSettings CameraHead::liveSettings() const {
    HeadSettings now = m_settings;
    now.lens = m_lens.view();
    now.shutter = now.liveShutter();
    if (now.lowLight.showsWholeSensor()) {
        now.resolution = m_model->sensor;
        now.channel = 0;
    }
    return now;
}
