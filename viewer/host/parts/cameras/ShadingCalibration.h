#pragma once

#include "viewer/cameras/CommandKeys.h"
#include "viewer/host/parts/cameras/TargetCameras.h"

#include <QScopedValueRollback>

/// Calibrates the shading of the selected cameras that can.
class ShadingCalibration {
public:
    /// Not owned; outlives it.
    explicit ShadingCalibration(const TargetCameras& cameras) : m_cameras(cameras) {}

    QList<CameraDocument*> cameras() const { return m_cameras.with(CameraFunction::ShadingCalibration); }
    bool isRunning() const { return m_isRunning; }
    /// Throws CameraFailure.
    void run() {
        const QScopedValueRollback<bool> running(m_isRunning, true);
        m_cameras.command(CameraFunction::ShadingCalibration, CommandKey::CalibrateShading,
                          [](CameraHead& head) { return head.calibrateShading(); });
    }

private:
    const TargetCameras& m_cameras;
    bool m_isRunning = false;
};
