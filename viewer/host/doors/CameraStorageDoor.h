#pragma once

#include "viewer/host/doors/CameraSearchDoor.h"

/// Drives of the cameras, and tools that the simulated cameras do not have.
class CameraStorageDoor : public CameraSearchDoor {
public:
    using CameraSearchDoor::CameraSearchDoor;

    double getDockStoreUseRatio(int type, int driveNo, int slotNo, int option) override {
        OPERATION(type, driveNo, slotNo, option);
        return useRatio(StorageKind::DockStore, driveNo, slotNo);
    }

    quint64 getTotalWrittenAmount(int type, int driveNo, int slotNo, int option) override {
        OPERATION(type, driveNo, slotNo, option);
        // 1 GiB stands for the whole capacity, written once.
        const CardSlot card = m_drives.state(m_drives.byNumber(StorageKind::DockStore, driveNo, slotNo));
        constexpr double kWhole = 1024.0 * 1024 * 1024;
        return card.capacity == 0 ? 0 : quint64(double(card.written) / double(card.capacity) * kWhole);
    }

    double getCFastUseRatio(int type, int driveNo, int slotNo, int option) override {
        OPERATION(type, driveNo, slotNo, option);
        return useRatio(StorageKind::CFast, driveNo, slotNo);
    }

    void formatDockStore(int type, int driveNo, int slotNo) override {
        OPERATION(type, driveNo, slotNo);
        m_drives.format(m_drives.byNumber(StorageKind::DockStore, driveNo, slotNo));
    }

    void formatCFast(int type, int driveNo, int slotNo) override {
        OPERATION(type, driveNo, slotNo);
        m_drives.format(m_drives.byNumber(StorageKind::CFast, driveNo, slotNo));
    }

    bool isLensCalibration() override { return OPERATION(); }
    bool isAllQmonLocked() override { return OPERATION(); }
    bool isDirectSaving(bool selectedOnly) override { return OPERATION(selectedOnly); }

private:
    static constexpr char kInterface[] = "HostCameraControl";

    double useRatio(StorageKind kind, int driveNo, int slotNo) const {
        const CardSlot card = m_drives.state(m_drives.byNumber(kind, driveNo, slotNo));
        return card.capacity == 0 ? 0.0 : double(card.used) / double(card.capacity) * 100.0;
    }
};
