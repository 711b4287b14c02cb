#pragma once

#include "simulator/settings/SimulatedModel.h"

#include <array>

class Clock;

/// What a lens makes of the picture.
struct LensView {
    double light = 1;         // relative to the open iris
    double blur = 0;          // radius on the sensor, pixels
    double magnification = 1; // relative to the wide end
};

/// An electronic lens: three axes that move to their targets at a finite speed. The subject is sharp at one
/// place of the focus, which moves on with the zoom as the whole range of the focus does; a closed iris takes
/// light and gives depth.
class LensUnit : public Lens {
public:
    /// Neither is owned. Starts with an open iris, at the wide end and sharp.
    LensUnit(const LensModel& model, const LensMotion& motion, const Clock& clock);

    Axis axis(LensAxis which) const override;
    bool isKnown() const override { return m_contact && m_known; }
    bool hasContact() const { return m_contact; }
    double msToRest() const override;
    LensView view() const;

    /// Starts a move. False: the axis goes to its end instead.
    bool moveTo(LensAxis which, int value);
    /// The same by steps from the target of the last move; negative ones towards the smaller values.
    bool step(LensAxis which, int count, bool large);
    /// Parks: iris closed, focus and zoom at their near ends.
    void close();
    /// The ring turned by hand: at once, within the limits.
    void turn(LensAxis which, int value);
    void setContact(bool on);
    /// Reads the lens anew; false without contact.
    bool reset();

private:
    struct Motion {
        double from = 0;
        double to = 0;
        qint64 start = 0; // ns
    };

    int maximum(LensAxis which) const; // at the present zoom
    int maximumAt(LensAxis which, double zoom) const;
    double speed(LensAxis which) const;
    double position(LensAxis which) const;
    double zoomShareAt(double zoom) const; // 0 wide, 1 tele
    Motion& motion(LensAxis which) { return m_motions[size_t(which)]; }
    const Motion& motion(LensAxis which) const { return m_motions[size_t(which)]; }

    const LensModel& m_model;
    const LensMotion& m_motion;
    const Clock& m_clock;
    std::array<Motion, 3> m_motions;
    bool m_contact = true;
    bool m_known = true;
};
