#pragma once

#include "viewer/host/parts/cameras/TargetCameras.h"

#include <QMap>

/// The LEDs and lasers at the heads of the selected cameras.
///
/// The panel writes back at each update what it has just read of the current camera. A camera that shines so
/// already gets no command then, one that records or plays is left alone, and one that has refused is asked
/// again only when the selection, a lamp or the state of a camera has changed. Who asks for another state
/// than the current camera's is the user.
class HeadLamps {
public:
    /// Not owned; outlives it.
    explicit HeadLamps(const TargetCameras& cameras) : m_cameras(cameras) {}

    /// Whether it shines at the current camera.
    bool isOn(bool isLed) const;
    /// Throws CameraFailure.
    void set(bool isLed, bool on);

private:
    QString stateText(bool HeadSettings::*lamp, bool on) const;

    const TargetCameras& m_cameras;
    QMap<bool, QString> m_refused; // by LED and laser: the state in which a camera has refused
};
