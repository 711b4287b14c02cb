#pragma once

#include "viewer/cameras/Reason.h"

#include <QList>
#include <QString>

/// What a failed operation on cameras has to tell the user.
struct DeviceFailure {
    QString operation; // key of the camera library's function, such as "KVC_SetShutterSpeedFps"
    struct Camera {
        QString name;
        Reason reason; // what the camera answered
    };
    QList<Camera> cameras;

    bool isEmpty() const { return cameras.isEmpty(); }
};
