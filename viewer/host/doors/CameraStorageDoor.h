#pragma once

#include "viewer/host/doors/CameraSearchDoor.h"

/// Drives, cards and tools that the simulated cameras do not have: neutral values, and a refusal for what
/// would change them.
class CameraStorageDoor : public CameraSearchDoor {
public:
    using CameraSearchDoor::CameraSearchDoor;

    double getDockStoreUseRatio(int type, int driveNo, int slotNo, int option) override {
        return OPERATION(type, driveNo, slotNo, option);
    }

    quint64 getTotalWrittenAmount(int type, int driveNo, int slotNo, int option) override {
        return OPERATION(type, driveNo, slotNo, option);
    }

    double getCFastUseRatio(int type, int driveNo, int slotNo, int option) override {
        return OPERATION(type, driveNo, slotNo, option);
    }

    void formatDockStore(int type, int driveNo, int slotNo) override {
        OPERATION(type, driveNo, slotNo);
        m_cameras.refuse(QStringLiteral("KVFC_FormatDrive"));
    }

    void formatCFast(int type, int driveNo, int slotNo) override {
        OPERATION(type, driveNo, slotNo);
        m_cameras.refuse(QStringLiteral("KVFC_FormatDrive"));
    }

    bool isLensCalibration() override { return OPERATION(); }
    bool isAllQmonLocked() override { return OPERATION(); }
    bool isDirectSaving(bool selectedOnly) override { return OPERATION(selectedOnly); }

private:
    static constexpr char kInterface[] = "HostCameraControl";
};
