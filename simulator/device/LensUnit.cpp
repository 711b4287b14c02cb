#include "simulator/device/LensUnit.h"

#include "simulator/device/Clock.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr LensAxis AllAxes[] = {LensAxis::Iris, LensAxis::Focus, LensAxis::Zoom};
constexpr double SharpShare = 0.6; // of the focus's range, where the subject is sharp
constexpr double BlurOfRange = 60; // pixels, out of focus by the whole range with an open iris
constexpr double Sharp = 0.5;      // pixels; less can't be seen

} // namespace

LensUnit::LensUnit(const LensModel& model, const LensMotion& motion, const Clock& clock)
    : m_model(model), m_motion(motion), m_clock(clock) {
    for (const LensAxis which : AllAxes) {
        this->motion(which).from = this->motion(which).to = m_model.range(which).min;
    }
    const double sharp = model.focus.min + SharpShare * (model.focus.max - model.focus.min);
    Motion& focus = this->motion(LensAxis::Focus);
    focus.from = focus.to = std::round(sharp);
}

int LensUnit::maximumAt(LensAxis which, double zoom) const {
    const int shift =
        which == LensAxis::Focus ? int(std::lround(zoomShareAt(zoom) * m_motion.focusShift)) : 0;
    return m_model.range(which).max + shift;
}

int LensUnit::maximum(LensAxis which) const { return maximumAt(which, position(LensAxis::Zoom)); }

double LensUnit::speed(LensAxis which) const {
    return (m_model.range(which).max - m_model.range(which).min) / (m_motion.travelMs * 1e6);
}

double LensUnit::position(LensAxis which) const {
    const Motion& m = motion(which);
    const double way = speed(which) * double(m_clock.now() - m.start);
    const double left = std::abs(m.to - m.from);
    const double place = way >= left ? m.to : m.from + (m.to > m.from ? way : -way);
    // The zoom alone has ends that depend on nothing, and the others' depend on it.
    return which == LensAxis::Zoom
               ? place
               : std::clamp(place, double(m_model.range(which).min), double(maximum(which)));
}

double LensUnit::zoomShareAt(double zoom) const {
    const LensRange& ends = m_model.zoom;
    return ends.isDriven() ? (zoom - ends.min) / (ends.max - ends.min) : 0;
}

LensUnit::Axis LensUnit::axis(LensAxis which) const {
    const LensRange& ends = m_model.range(which);
    Axis axis;
    axis.min = ends.min;
    axis.max = maximum(which);
    axis.value = int(std::lround(position(which)));
    axis.target = int(std::lround(motion(which).to));
    axis.smallTick = ends.tick;
    axis.largeTick = 10 * ends.tick;
    axis.drivable = isKnown() && ends.isDriven();
    return axis;
}

double LensUnit::msToRest() const {
    double rest = 0;
    for (const LensAxis which : AllAxes) {
        const Motion& m = motion(which);
        if (speed(which) > 0) {
            const double end = double(m.start) + std::abs(m.to - m.from) / speed(which);
            rest = std::max(rest, (end - double(m_clock.now())) / 1e6);
        }
    }
    return rest;
}

LensView LensUnit::view() const {
    LensView view;
    const double open =
        m_model.iris.isDriven() ? m_model.iris.min / std::max(1.0, position(LensAxis::Iris)) : 1;
    view.light = open * open;
    if (m_model.zoom.isDriven()) {
        view.magnification = position(LensAxis::Zoom) / std::max(1, m_model.zoom.min);
    }
    if (m_model.focus.isDriven()) {
        const double length = maximum(LensAxis::Focus) - m_model.focus.min;
        const double sharp = std::round(m_model.focus.min + SharpShare * length);
        const double blur = std::abs(position(LensAxis::Focus) - sharp) / length * BlurOfRange * open;
        view.blur = blur < Sharp ? 0 : blur;
    }
    return view;
}

bool LensUnit::moveTo(LensAxis which, int value) {
    Motion next;
    next.from = position(which);
    // Where the zoom goes counts, not how far it has come.
    next.to = std::clamp(value, m_model.range(which).min, maximumAt(which, motion(LensAxis::Zoom).to));
    next.start = m_clock.now();
    motion(which) = next;
    return next.to == value;
}

bool LensUnit::step(LensAxis which, int count, bool large) {
    const double way = double(count) * m_model.range(which).tick * (large ? 10 : 1);
    const double target = std::clamp(motion(which).to + way, -1e6, 1e6);
    return moveTo(which, int(std::lround(target)));
}

void LensUnit::close() {
    moveTo(LensAxis::Iris, m_model.iris.max);
    moveTo(LensAxis::Focus, m_model.focus.min);
    moveTo(LensAxis::Zoom, m_model.zoom.min);
}

void LensUnit::turn(LensAxis which, int value) {
    Motion& m = motion(which);
    m.from = m.to = std::clamp(value, m_model.range(which).min, maximum(which));
}

void LensUnit::setContact(bool on) {
    m_contact = on;
    m_known = m_known && on;
}

bool LensUnit::reset() {
    m_known = m_contact;
    return m_known;
}
