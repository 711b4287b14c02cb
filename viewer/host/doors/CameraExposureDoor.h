#pragma once

#include "viewer/host/doors/CameraTriggerDoor.h"

/// Auto exposure and image trigger of the selected cameras.
class CameraExposureDoor : public CameraTriggerDoor {
public:
    using CameraTriggerDoor::CameraTriggerDoor;

    // In low light the exposure is the user's, and rests with the camera until that ends.
    bool isAutoExposureOn() override {
        OPERATION();
        return settings() && settings()->exposure.on && !settings()->lowLight.on;
    }

    void setAutoExposureOn(bool on) override {
        OPERATION(on);
        m_cameras.command([on](CameraHead& head) { return head.setAutoExposure(on); });
    }

    void getAutoExposureInfo(AutoExposureInfo& current, AutoExposureLimits& limits) override;
    void setAutoExposureInfo(const AutoExposureInfo& current) override;
    void getAutoExposureMaxTimeList(int displayUnit, QList<unsigned long>& list) override;

    int existSupportedAutoExposure() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::AutoExposure);
    }

    bool isImageTriggerOn() override {
        OPERATION();
        return settings() && settings()->imageTrigger.on;
    }

    void setImageTriggerOn(bool on) override {
        OPERATION(on);
        m_cameras.command([on](CameraHead& head) { return head.setImageTrigger(on); });
    }

    void getImageTriggerInfo(ImageTriggerInfo& current, ImageTriggerLimits& limits) override;
    void setImageTriggerInfo(const ImageTriggerInfo& current) override;
    int getImageTriggerState() override;

    void startImageTriggerObserver() override {
        OPERATION();
        m_imageWatch.watch(head());
    }

    void stopImageTriggerObserver() override {
        OPERATION();
        m_imageWatch.watch(nullptr);
    }

    int existSupportImageTrigger() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::ImageTrigger);
    }

private:
    static constexpr char kInterface[] = "HostCameraControl";
};
