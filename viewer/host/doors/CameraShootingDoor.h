#pragma once

#include "viewer/host/doors/DocumentToolsDoor.h"

/// Resolution, frame rate, shutter, dual slope, and their support levels.
///
/// Here as in the other doors of cameras a setter goes to all selected cameras that are connected: each gets
/// the value whatever the others answer, and one CameraFailure after the last tells what went wrong. A getter
/// answers for the current camera, with a neutral value without one.
class CameraShootingDoor : public DocumentToolsDoor {
public:
    using DocumentToolsDoor::DocumentToolsDoor;

    void setResolution(unsigned width, unsigned height) override;
    void setRecordRate(unsigned long rate) override;
    void setShutterSpeed(unsigned long value, bool notify) override;
    void getShutterSpeedList(int unit, QList<unsigned long>& list) override;

    unsigned long getShutterSpeed(int unit) override {
        OPERATION(unit);
        return settings() ? ShutterFormat::fromCamera(settings()->liveShutter(), unit) : 0;
    }

    bool getShutterLockMode() override {
        OPERATION();
        return settings() && settings()->shutterLock;
    }

    void setShutterLockMode(bool on) override {
        OPERATION(on);
        m_cameras.command([on](CameraHead& head) { return head.setShutterLock(on); });
    }

    void getResolutionList(QList<ResolutionEntry>& list) override;
    void getRecordRateList(QList<unsigned long>& list) override;

    unsigned long getRecordRate() override {
        OPERATION();
        return settings() ? settings()->rate : 0;
    }

    void getResolution(unsigned& width, unsigned& height) override;
    void getMaxResolution(unsigned& width, unsigned& height) override;

    bool getResolutionLockMode() override {
        OPERATION();
        return settings() && settings()->resolutionLock;
    }

    void setResolutionLockMode(bool on) override {
        OPERATION(on);
        m_cameras.command([on](CameraHead& head) { return head.setResolutionLock(on); });
    }

    int getDSShutterValue() override {
        OPERATION();
        return settings() ? settings()->dualSlope : 0;
    }

    bool getDSShutterMode() override {
        OPERATION();
        return settings() && settings()->dualSlopeMode;
    }

    // Set at each step of a drag: a camera that takes its nearest value is no failure.
    void setDSShutterValue(int value) override {
        OPERATION(value);
        m_cameras.command([value](CameraHead& head) { return head.setDualSlope(value); });
    }

    bool isAvailableDSShutter() override {
        OPERATION();
        return head() && head()->isDualSlopeAvailable();
    }

    int getDSShutterMax() override {
        OPERATION();
        return head() ? head()->model().dualSlopeMax : 0;
    }

    int getDSShutterMin() override {
        OPERATION();
        return head() ? head()->model().dualSlopeMin : 0;
    }

    int getBitDepth() override {
        OPERATION();
        return m_documents.current() ? m_documents.current()->bitDepth() : 0;
    }

    int existSupportedShutterLockMode() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::ShutterLock);
    }

    int existSupportedDSShutter() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::DualSlope);
    }

    int existSupportedDSShutterMode() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::DualSlopeMode);
    }

    int existResolutionLockMode() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::ResolutionLock);
    }

    void prepareSettingsDialog() override { OPERATION(); }

private:
    static constexpr char kInterface[] = "HostCameraControl";
};
