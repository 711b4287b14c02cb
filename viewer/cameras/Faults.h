#pragma once

#include "viewer/cameras/Reason.h"

#include <stdexcept>

/// Why a command to a camera has failed.
class CameraError : public std::runtime_error {
public:
    enum class Kind {
        Refused,  // the camera has answered no: wrong state, no such function, or told to refuse
        LinkLost, // there is no link, or it broke during the command
        BadValue  // a name or a value that makes no sense, from a console or a file
    };

    /// function: key of the camera library's function, such as "KVC_SetShutterSpeedFps".
    CameraError(Kind kind, const QString& function, const QString& camera, const Reason& reason);

    Kind kind() const { return m_kind; }
    const QString& function() const { return m_function; }
    const QString& camera() const { return m_camera; }
    const Reason& reason() const { return m_reason; }

private:
    Kind m_kind;
    QString m_function;
    QString m_camera;
    Reason m_reason;
};

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
