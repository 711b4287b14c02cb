// Functions of cameras that the simulated ones don't have: support level 0, neutral values, and a refusal for
// what would switch them.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/CameraControlDoor.h"

namespace {
constexpr char kInterface[] = "HostCameraControl";
}

void CameraControlDoor::refuseFunction(const QString& operation) const {
    const Document* const camera = current();
    refuse(operation, camera ? camera->title() : QString(),
           camera && !camera->isConnected() ? reason("no link to the camera")
                                            : reason("there is no such function"));
}

QList<CameraDocument*> CameraControlDoor::camerasOf(const QList<DOC_Interface*>& documents) const {
    QList<CameraDocument*> cameras;
    for (const DOC_Interface* const document : documents) {
        if (auto* const camera = dynamic_cast<CameraDocument*>(m_documents.find(document))) {
            cameras.append(camera);
        }
    }
    return cameras;
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
    refuseFunction(QStringLiteral("KVFC_FormatDrive"));
}

void CameraControlDoor::formatCFast(int type, int driveNo, int slotNo) {
    OPERATION(type, driveNo, slotNo);
    refuseFunction(QStringLiteral("KVFC_FormatDrive"));
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
