// The pictures of a head: live, and from its memory.
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Scene.h"
#include "viewer/cameras/SettingsRules.h"

#include <algorithm>

namespace {

constexpr qint64 Second = 1000000000; // ns

// In two steps, so that days at a million frames a second don't overflow.
quint64 numberAt(qint64 time, quint32 rate) {
    return quint64(time / Second) * rate + quint64(time % Second) * rate / Second;
}

// The earliest nanosecond that belongs to the frame.
qint64 startOf(quint64 number, quint32 rate) {
    return qint64(number / rate) * Second + qint64(((number % rate) * Second + rate - 1) / rate);
}

// The whole area of a head, reduced to the wanted size with the same shape.
QSize imageSize(const QSize& full, const QSize& maxSize) {
    const bool reduce =
        !maxSize.isEmpty() && (full.width() > maxSize.width() || full.height() > maxSize.height());
    return reduce ? full.scaled(maxSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)) : full;
}

QRect centred(const QSize& sensor, const QSize& size) {
    return {QPoint((sensor.width() - size.width()) / 2, (sensor.height() - size.height()) / 2), size};
}

} // namespace

QRect CameraHead::area() const { return centred(m_model->sensor, m_settings.resolution); }

quint64 CameraHead::currentNumber() const { return numberAt(m_body->clock().now(), m_settings.rate); }

Frame CameraHead::makeFrame(quint64 number, const HeadSettings& settings, const QSize& maxSize) {
    FrameRequest request;
    request.number = quint32(number);
    request.time = startOf(number, settings.rate);
    request.area = centred(m_model->sensor, settings.resolution);
    request.size = imageSize(settings.resolution, maxSize);
    request.exposure = 1.0 / settings.shutter;
    request.gain = settings.aperture;
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
    frame.image = m_scene->render(request);
    FrameStamp::write(frame.image, frame.number, frame.bitDepth);
    return frame;
}

Frame CameraHead::liveFrame(const QSize& maxSize) {
    const bool blind = m_body->state() == CameraState::Off || m_body->state() == CameraState::Booting;
    if (blind || !m_body->isConnected())
        return {};
    return makeFrame(currentNumber(), m_settings, maxSize);
}

Frame CameraHead::memoryFrame(int index, const QSize& maxSize) {
    if (index < 0 || index >= m_recording.frames || !m_body->isConnected())
        return {};
    return makeFrame(m_recording.firstNumber + quint64(index), m_recording.settings, maxSize);
}

void CameraHead::beginRing() {
    m_ringStart = currentNumber();
    clearRecording();
}

void CameraHead::trigger() {
    m_triggerNumber = currentNumber() + 1;
    m_endNumber = m_triggerNumber + quint64(SettingsRules::framesAfterTrigger(*m_model, m_settings));
}

double CameraHead::msToEnd() const {
    return double(startOf(m_endNumber, m_settings.rate) - m_body->clock().now()) / 1e6;
}

void CameraHead::endRecording() {
    // Stopped early, the frame that is being exposed is lost, unless there is no other.
    const quint64 end = std::min(m_endNumber, std::max(currentNumber(), m_ringStart + 1));
    m_recording.settings = m_settings;
    m_recording.frames = int(std::min(end - m_ringStart, quint64(totalFrames())));
    m_recording.firstNumber = end - quint64(m_recording.frames);
    m_recording.triggerNumber = std::clamp(m_triggerNumber, m_recording.firstNumber, end);
}
