#pragma once

#include "viewer/cameras/settings/HeadSettings.h"

#include <QVector>

/// The frames round one trigger. They are numbered by the head's running count, or anew from the trigger on:
/// frame n was exposed at origin + n / rate.
struct Shot {
    qint64 origin = 0;         // ns of the rig's clock
    quint64 triggerNumber = 0; // the first frame after the trigger; a frame carries the low 32 bits
    int before = 0;
    int after = 0;
    int step = 1; // before the trigger every step-th frame was kept

    int frames() const { return before + after; }
    quint64 numberOf(int index) const;
};

/// How far a head has come with a shot. Until the trigger the ring fills with the frames before it: a trigger
/// that comes early finds fewer.
struct ShotProgress {
    int before = 0;       // frames that the ring holds for the shot
    int wantedBefore = 0; // that it is to hold
    double restMs = 0;    // until the last frame after the trigger; 0 when none is under way or nobody knows
};

/// What lies in the memory of a head: one shot, or several of a random mode. The camera makes its frames when
/// it is asked for them.
struct Recording {
    HeadSettings settings; // in force while it was recorded
    QVector<Shot> shots;   // the oldest first
    int frames = 0;        // of all shots
    quint64 id = 0;        // another one whenever the memory holds something else, none is used twice

    bool isEmpty() const { return frames == 0; }
    /// Of the first frame; 0 without one.
    quint64 firstNumber() const { return isEmpty() ? 0 : shots.first().numberOf(0); }
    /// Where the trigger of the shot stands that the frame belongs to, in frames of the whole memory.
    int triggerIndex(int frame = 0) const;
    /// From the trigger of the frame's shot to the end of the last shot, in ns; 0 outside.
    qint64 triggerToEnd(int frame) const;
    /// The shot of a frame and the frame's index in it; null outside.
    const Shot* shotOf(int frame, int& index) const;
};
