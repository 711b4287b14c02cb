// The pictures of a head, and the light that it measures in them.
#include "simulator/device/SimulatedBody.h"
#include "simulator/picture/Scene.h"
#include "simulator/settings/AutoExposure.h"

#include <algorithm>
#include <cmath>

FrameMaker SimulatedHead::frameMaker() const {
    constexpr double DarkeningPerDegree = 0.02; // of the light in the corners
    constexpr double Darkest = 0.6;
    FrameMaker maker;
    maker.model = m_model;
    maker.source = m_source;
    if (m_model->supports(CameraFunction::ShadingCalibration)) {
        maker.darkening =
            std::min(Darkest, DarkeningPerDegree * std::abs(m_body->temperature() - m_shadedAt));
    }
    maker.laser = m_settings.laser;
    return maker;
}

// The light on the area as the next frame of the live image would show it; a coarse picture is enough.
double SimulatedHead::measuredLevel(const QRect& measured) {
    constexpr QSize Coarse(48, 48);
    FrameRequest request;
    request.number = quint32(currentNumber());
    request.time = m_body->clock().now();
    request.area = measured.translated(area().topLeft());
    request.size = FrameMaker::imageSize(request.area.size(), Coarse);
    request.exposure = 1.0 / m_settings.liveShutter();
    const LensView lens = m_lens.view();
    request.gain = FrameMaker::gain(m_settings, lens);
    request.color = m_model->color;
    request.bitDepth = m_model->bitDepth;
    if (m_source) {
        return AutoExposure::meanLevel(m_source(request), request.bitDepth);
    }
    if (!m_meterScene) {
        m_meterScene = std::make_unique<Scene>(m_model->sensor, m_body->seed());
    }
    return AutoExposure::meanLevel(frameMaker().seen(*m_meterScene, request, lens), request.bitDepth);
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
    return frameMaker().make(*m_scene, currentNumber(), liveSettings(), m_lens.view(), maxSize);
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
