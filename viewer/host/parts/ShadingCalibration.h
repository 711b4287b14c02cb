#pragma once

#include "viewer/host/parts/TargetCameras.h"

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
        m_cameras.command(CameraFunction::ShadingCalibration, Key,
                          [](CameraHead& head) { return head.calibrateShading(); });
    }

    inline static const QString Key = QStringLiteral("KVC_SetPixelGainData");

private:
    const TargetCameras& m_cameras;
    bool m_isRunning = false;
};
