#pragma once

#include "viewer/cameras/Reason.h"

#include <QException>

#include <string>

/// Why a command to a camera has failed.
class CameraError : public QException {
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

    const char* what() const noexcept override { return m_what.c_str(); }
    void raise() const override { throw *this; }
    CameraError* clone() const override { return new CameraError(*this); }

private:
    Kind m_kind;
    QString m_function;
    QString m_camera;
    Reason m_reason;
    std::string m_what;
};
