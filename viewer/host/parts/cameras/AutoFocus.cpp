#include "viewer/host/parts/cameras/AutoFocus.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraError.h"
#include "viewer/documents/commands/CameraCommands.h"

#include <algorithm>

namespace {

constexpr int kPlaces = 8; // of a round
constexpr int kRounds = 2;
constexpr QSize kPicture(256, 256); // enough to tell edges

/// Mean square of the steps from pixel to pixel in the middle of the picture. What is written into its corner
/// is always sharp.
double sharpnessOf(const QImage& image) {
    const QRect middle(image.width() / 4, image.height() / 4, image.width() / 2, image.height() / 2);
    double sum = 0;
    for (int y = middle.top(); y <= middle.bottom(); ++y) {
        for (int x = middle.left() + 1; x <= middle.right(); ++x) {
            const double step = qGray(image.pixel(x, y)) - qGray(image.pixel(x - 1, y));
            sum += step * step;
        }
    }
    return sum / std::max(1, middle.width() * middle.height());
}

} // namespace

void AutoFocus::start(CameraHead* head) {
    const Lens::Axis focus = head->lens().axis(LensAxis::Focus);
    m_head = head;
    m_name = head->fullName();
    ++m_run;
    m_round = 0;
    m_begin = m_best = focus.value;
    m_state = head->body()->state();
    m_iris = head->lens().axis(LensAxis::Iris).target;
    m_zoom = head->lens().axis(LensAxis::Zoom).target;
    m_sharpest = -1;
    try {
        m_round = 1;
        setRange(focus.min, focus.max);
        m_place = focus.min;
        awaited(m_head->moveLens(LensAxis::Focus, m_place), m_name);
    } catch (const CameraError&) {
        m_head = nullptr;
        throw;
    }
    if (m_head) {
        measureAtRest();
    }
}

void AutoFocus::setRange(int from, int to) {
    m_last = to;
    m_step = std::max(1, (to - from) / kPlaces);
}

void AutoFocus::beginRound(int from, int to) {
    ++m_round;
    setRange(from, to);
    moveTo(from);
}

void AutoFocus::moveTo(int place) {
    m_place = place;
    const Answer answer = m_head->moveLens(LensAxis::Focus, place);
    answer.whenThere(this, [this, answer, run = m_run] {
        if (run != m_run || !m_head) {
            return;
        }
        try {
            answer.result();
            measureAtRest();
        } catch (const CameraError& error) {
            goBack();
            end(error.reason());
        }
    });
}

void AutoFocus::measureAtRest() {
    m_head->body()->after(std::max(1.0, m_head->lens().msToRest()), this, [this, run = m_run] {
        if (run != m_run) {
            return;
        }
        if (!m_head || isDisturbed()) {
            end({});
            return;
        }
        if (m_head->body()->isConnected() && m_head->body()->state() != m_state) {
            end(reason("the recording ended the autofocus"));
            return;
        }
        measure();
    });
}

void AutoFocus::measure() {
    if (m_round > kRounds) {
        end({});
        return;
    }
    const double sharpness = sharpnessOf(m_head->liveFrame(kPicture).displayImage());
    if (sharpness > m_sharpest) {
        m_sharpest = sharpness;
        m_best = m_place;
    }
    if (m_place + m_step <= m_last) {
        moveTo(m_place + m_step);
        return;
    }
    const Lens::Axis focus = m_head->lens().axis(LensAxis::Focus);
    if (m_round < kRounds) {
        const int way = m_step;
        beginRound(std::max(focus.min, m_best - way), std::min(focus.max, m_best + way));
        return;
    }
    ++m_round;
    moveTo(m_best);
}

// The first refusal is what is told.
void AutoFocus::goBack() { (void)m_head->moveLens(LensAxis::Focus, m_begin); }

bool AutoFocus::isDisturbed() const {
    const auto target = [this](LensAxis axis) { return m_head->lens().axis(axis).target; };
    return target(LensAxis::Focus) != m_place || target(LensAxis::Iris) != m_iris ||
           target(LensAxis::Zoom) != m_zoom;
}

void AutoFocus::end(const Reason& failure) {
    m_head = nullptr;
    ++m_run;
    emit ended(m_name, failure);
}
