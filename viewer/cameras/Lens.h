#pragma once

#include <QString>

/// The ends of an axis of a lens, and its small step.
struct LensRange {
    int min = 0;
    int max = 0; // the same as min: the axis can't be driven
    int tick = 1;

    bool isDriven() const { return max > min; }
};

enum class LensAxis { Iris, Focus, Zoom };

/// An electronic lens.
struct LensModel {
    static constexpr int Ef2 = 4;

    int type = 0; // 1 EF, 2 MYUTRON, 3 FOURTHIRDS, 4 EF2, 0 none
    QString name;
    LensRange iris;  // tenths of the f-number
    LensRange focus; // steps of its motor, at the wide end of the zoom
    LensRange zoom;  // millimetres of the focal length; tenths of them for EF2

    const LensRange& range(LensAxis which) const {
        return which == LensAxis::Iris ? iris : which == LensAxis::Focus ? focus : zoom;
    }
    /// Whether the numbers of the axis are tenths of what a user reads.
    bool isInTenths(LensAxis which) const {
        return which == LensAxis::Iris || (which == LensAxis::Zoom && type == Ef2);
    }
};

/// What is known of an electronic lens: reads cost nothing.
class Lens {
public:
    virtual ~Lens() = default;

    struct Axis {
        int min = 0;
        int max = 0;
        int value = 0;  // where it stands now
        int target = 0; // where it goes
        int smallTick = 0;
        int largeTick = 0;
        bool drivable = false;
    };
    virtual Axis axis(LensAxis which) const = 0;
    /// A lens whose contact was lost stays unknown, and can't be driven, until it is read anew.
    virtual bool isKnown() const = 0;
    /// Until all axes stand.
    virtual double msToRest() const = 0;
};
