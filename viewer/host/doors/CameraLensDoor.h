#pragma once

#include "viewer/host/doors/CameraVariableDoor.h"

#include <optional>

/// The lens of the current camera, and the commands to those of the selected ones.
class CameraLensDoor : public CameraVariableDoor {
public:
    using CameraVariableDoor::CameraVariableDoor;

    int getLensType() override {
        OPERATION();
        return hasLens() && head()->lens().isKnown() ? head()->model().lens.type : 0;
    }

    bool isLensControlUnable() override {
        OPERATION();
        return hasLens() && !head()->lens().isKnown();
    }

    QString getLensName() override {
        OPERATION();
        return hasLens() && head()->lens().isKnown() ? head()->model().lens.name : QString();
    }

    int getLensControlCommandTime() override;
    void getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) override;

    void closeLens() override {
        OPERATION();
        driveLens([](CameraHead& head) { return head.closeLens(); });
    }

    void resetLens(int reserved) override {
        OPERATION(reserved);
        driveLens([](CameraHead& head) { return head.resetLens(); });
    }

    void setIrisValue(int value) override {
        OPERATION(value);
        moveAxis(LensAxis::Iris, value);
    }

    void setIrisIncremental(int coef, int size) override {
        OPERATION(coef, size);
        stepAxis(LensAxis::Iris, coef, size);
    }

    void setFocusValue(int value) override {
        OPERATION(value);
        moveAxis(LensAxis::Focus, value);
    }

    void setFocusIncremental(int coef, int size) override {
        OPERATION(coef, size);
        stepAxis(LensAxis::Focus, coef, size);
    }

    void setZoomValue(int value) override {
        OPERATION(value);
        moveAxis(LensAxis::Zoom, value);
    }

    void setZoomIncremental(int coef, int size) override {
        OPERATION(coef, size);
        stepAxis(LensAxis::Zoom, coef, size);
    }

    int existLensControl() override {
        OPERATION();
        return m_cameras.supportLevel(CameraFunction::LensControl);
    }

private:
    static constexpr char kInterface[] = "HostCameraControl";

    bool hasLens() const { return head() && head()->model().lens.type != 0; }
    /// To the selected cameras with a lens, and with the axis if one is given. A lens that refuses still
    /// stands where it stood, which the pages hear of.
    void driveLens(const CameraCommands::Command& command, std::optional<LensAxis> axis = std::nullopt);

    void moveAxis(LensAxis axis, int value) {
        driveLens([axis, value](CameraHead& head) { return head.moveLens(axis, value); }, axis);
    }

    static constexpr int kSmallTick = 0;

    void stepAxis(LensAxis axis, int coef, int size) {
        driveLens([=](CameraHead& head) { return head.stepLens(axis, coef, size != kSmallTick); }, axis);
    }
};
