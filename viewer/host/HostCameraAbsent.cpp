// Functions of cameras that the simulated ones don't have: support level 0, neutral values, and a refusal for
// what would switch them.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/CameraControlDoor.h"

namespace {
constexpr char kInterface[] = "HostCameraControl";
}

double CameraControlDoor::getDockStoreUseRatio(int type, int driveNo, int slotNo, int option) {
    OPERATION(type, driveNo, slotNo, option);
    return 0;
}

quint64 CameraControlDoor::getTotalWrittenAmount(int type, int driveNo, int slotNo, int option) {
    OPERATION(type, driveNo, slotNo, option);
    return 0;
}

double CameraControlDoor::getCFastUseRatio(int type, int driveNo, int slotNo, int option) {
    OPERATION(type, driveNo, slotNo, option);
    return 0;
}

void CameraControlDoor::formatDockStore(int type, int driveNo, int slotNo) {
    OPERATION(type, driveNo, slotNo);
    m_cameras.refuse(QStringLiteral("KVFC_FormatDrive"));
}

void CameraControlDoor::formatCFast(int type, int driveNo, int slotNo) {
    OPERATION(type, driveNo, slotNo);
    m_cameras.refuse(QStringLiteral("KVFC_FormatDrive"));
}

bool CameraControlDoor::isLensCalibration() {
    OPERATION();
    return false;
}

bool CameraControlDoor::isAllQmonLocked() {
    OPERATION();
    return false;
}

bool CameraControlDoor::isDirectSaving(bool selectedOnly) {
    OPERATION(selectedOnly);
    return false;
}
