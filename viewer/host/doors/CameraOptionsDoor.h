#pragma once

#include "viewer/host/doors/CameraLensDoor.h"

/// The small options of the selected cameras: low light, fan, shading, and how the live image is sent.
class CameraOptionsDoor : public CameraLensDoor {
public:
    using CameraLensDoor::CameraLensDoor;

    bool isLowLight() override {
        OPERATION();
        return settings() && settings()->lowLight.on;
    }

    int getLowLightType() override {
        OPERATION();
        return settings() ? settings()->lowLight.type : 0;
    }

    bool existsLowLight() override {
        OPERATION();
        return isAnyInLowLight();
    }

    bool isAnyLowLightOn() override {
        OPERATION();
        return isAnyInLowLight();
    }

    bool isAllLowLight(bool on) override;

    int existLowLight() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::LowLight);
    }

    void setLowLightMode(bool mode) override {
        OPERATION(mode);
        setLowLight([mode](CameraHead& head) { return head.setLowLight(mode); });
    }

    void setLowLightType(int type) override {
        OPERATION(type);
        setLowLight([type](CameraHead& head) { return head.setLowLightType(type); });
    }

    void setFanControl(bool value) override;
    bool getFanControl(int& state) override;

    int existFanControl() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::FanControl);
    }

    void runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) override;
    void isCalibrationSupported(int code, int reserved, bool& supported) override;

    unsigned long existHeadLedLaser() override {
        OPERATION();
        return static_cast<unsigned long>(m_cameras.supportLevel(CameraFunction::HeadLight));
    }

    int existLiveImageQuality() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::LiveQuality);
    }

    void setLiveImageDataReduceMode(bool on) override;

    bool getLiveImageDataReduceMode() override {
        OPERATION();
        return m_documents.live().isReduced();
    }

private:
    static constexpr char kInterface[] = "HostCameraControl";

    bool isAnyInLowLight() const;
    void setLowLight(const CameraCommands::Command& command);
};
