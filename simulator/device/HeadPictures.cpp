// The pictures of a head, and the light that it measures in them.
#include "simulator/device/SimulatedBody.h"
#include "simulator/picture/Blur.h"
#include "simulator/picture/Scene.h"
#include "simulator/picture/SensorFaults.h"
#include "simulator/settings/AutoExposure.h"
#include "simulator/settings/SettingsRules.h"
#include "viewer/cameras/FrameTime.h"

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

// The part of the scene that a longer focal length spreads over the same part of the sensor.
QRect magnified(const QRect& area, const QSize& sensor, double magnification) {
    const QPointF center(sensor.width() / 2.0, sensor.height() / 2.0);
    const QPointF corner = center + (QPointF(area.topLeft()) - center) / magnification;
    const QSize size = (QSizeF(area.size()) / magnification).toSize();
    return {corner.toPoint(), size.expandedTo(QSize(1, 1))};
}

} // namespace

QImage SimulatedHead::seen(Scene& scene, const FrameRequest& request, const LensView& lens) const {
    FrameRequest through = request;
    through.area = magnified(request.area, m_model->sensor, lens.magnification);
    QImage image = scene.render(through);
    blurImage(image, qRound(lens.blur * request.size.width() / std::max(1, request.area.width())));
    return image;
}

// What lies between the scene and the stamp of a frame.
void SimulatedHead::addSensorFaults(QImage& image, const FrameRequest& request) const {
    constexpr double DarkeningPerDegree = 0.02; // of the light in the corners
    constexpr double Darkest = 0.6;
    if (m_model->supports(CameraFunction::ShadingCalibration)) {
        darkenCorners(image, request.area, m_model->sensor,
                      std::min(Darkest, DarkeningPerDegree * std::abs(m_body->temperature() - m_shadedAt)));
    }
    if (m_settings.laser) {
        drawLaserSpot(image, request.area, m_model->sensor, request.bitDepth);
    }
}

Frame SimulatedHead::makeFrame(quint64 number, const HeadSettings& settings, const LensView& lens,
                               const QSize& maxSize, qint64 origin) {
    FrameRequest request;
    request.number = quint32(number);
    request.time = origin + FrameTime::startOf(number, settings.rate);
    request.area = settings.areaOn(m_model->sensor);
    request.size = imageSize(settings.resolution, maxSize);
    request.exposure = 1.0 / settings.shutter;
    request.gain = settings.aperture * lens.light * (settings.led ? LedGain : 1.0);
    request.dualSlope = SettingsRules::activeDualSlope(*m_model, settings);
    request.color = m_model->color;
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
    frame.image = seen(*m_scene, request, lens);
    addSensorFaults(frame.image, request);
    FrameStamp::write(frame.image, frame.number, frame.bitDepth);
    return frame;
}

// The light on the area as the next frame of the live image would show it; a coarse picture is enough.
double SimulatedHead::measuredLevel(const QRect& measured) {
    constexpr QSize Coarse(48, 48);
    FrameRequest request;
    request.number = quint32(currentNumber());
    request.time = m_body->clock().now();
    request.area = measured.translated(area().topLeft());
    request.size = imageSize(request.area.size(), Coarse);
    request.exposure = 1.0 / m_settings.liveShutter();
    const LensView lens = m_lens.view();
    request.gain = m_settings.aperture * lens.light * (m_settings.led ? LedGain : 1.0);
    request.color = m_model->color;
    request.bitDepth = m_model->bitDepth;
    if (m_source) {
        return AutoExposure::meanLevel(m_source(request), request.bitDepth);
    }
    if (!m_meterScene) {
        m_meterScene = std::make_unique<Scene>(m_model->sensor, m_body->seed());
    }
    return AutoExposure::meanLevel(seen(*m_meterScene, request, lens), request.bitDepth);
}

void SimulatedHead::followLightSoon() {
    if (m_lightDue || !m_settings.exposure.on) {
        return;
    }
    m_lightDue = true;
    m_body->clock().after(AutoExposure::StepMs, this, [this] {
        m_lightDue = false;
        followLight();
        followLightSoon();
    });
}

// Only the live image: all frames of a recording are exposed alike.
void SimulatedHead::followLight() {
    if (!m_settings.exposure.on || isLowLight() || m_body->state() != CameraState::Live) {
        return;
    }
    const quint32 shutter = AutoExposure::next(*m_model, m_settings, measuredLevel(m_settings.exposure.area));
    if (shutter != m_settings.shutter) {
        m_settings.shutter = shutter;
        emit settingsChanged(this);
    }
}

Frame SimulatedHead::liveFrame(const QSize& maxSize) {
    const bool blind = m_body->state() == CameraState::Off || m_body->state() == CameraState::Booting;
    if (blind || !m_body->isConnected()) {
        return {};
    }
    return makeFrame(currentNumber(), liveSettings(), m_lens.view(), maxSize);
}

HeadSettings SimulatedHead::liveSettings() const {
    HeadSettings now = m_settings;
    now.shutter = now.liveShutter();
    if (now.lowLight.showsWholeSensor()) {
        now.resolution = m_model->sensor;
        now.channel = 0;
    }
    return now;
}
