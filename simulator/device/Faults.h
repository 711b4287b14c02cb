#pragma once

#include "viewer/cameras/Reason.h"

/// What shall go wrong with the commands of one camera body. All of it is off at first.
struct Faults {
    double delayMs = 0;     // on top of the usual time of each command
    int refuse = 0;         // how many of the next commands are refused
    Reason refuseReason;    // what the camera says then
    QString refuseFunction; // only this function is refused, and only its commands are counted; empty: all
    bool unplugDuringNext = false; // the cable is pulled in the middle of the next command

    void refuseNext(int count, const Reason& reason, const QString& function = QString()) {
        refuse = count;
        refuseReason = reason;
        refuseFunction = function;
    }
};
