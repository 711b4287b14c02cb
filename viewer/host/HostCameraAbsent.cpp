// Functions of cameras that the simulated ones don't have: support level 0, neutral values, and a refusal for
// what would switch them.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/CameraControlDoor.h"

namespace {
constexpr char kInterface[] = "HostCameraControl";
}

void CameraControlDoor::refuseFunction(const QString& operation) const {
    refuse(operation, current() ? current()->title() : QString(),
           QStringLiteral("there is no such function"));
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

void CameraControlDoor::setFanControl(bool value) {
    OPERATION(value);
    refuseFunction(QStringLiteral("KVC_SetFanCtrl"));
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

bool CameraControlDoor::existsLowLight() {
    OPERATION();
    return false;
}

bool CameraControlDoor::isAllLowLight(bool on) {
    OPERATION(on);
    return !on;
}

bool CameraControlDoor::isAllQmonLocked() {
    OPERATION();
    return false;
}

bool CameraControlDoor::isLowLight() {
    OPERATION();
    return false;
}

int CameraControlDoor::getLowLightType() {
    OPERATION();
    return 0;
}

bool CameraControlDoor::isAnyLowLightOn() {
    OPERATION();
    return false;
}

void CameraControlDoor::setLowLightMode(bool mode) {
    OPERATION(mode);
    refuseFunction(QStringLiteral("KVC_SetLowLightMode"));
}

void CameraControlDoor::setLowLightType(int type) {
    OPERATION(type);
    refuseFunction(QStringLiteral("KVC_SetLowLightMode"));
}

bool CameraControlDoor::getFanControl(int& state) {
    OPERATION();
    state = 0;
    return false;
}

void CameraControlDoor::runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) {
    Q_UNUSED(documents)
    OPERATION(code, reserved);
    refuseFunction(QStringLiteral("KVC_SetPixelGainData"));
}

void CameraControlDoor::isCalibrationSupported(int code, int reserved, bool& supported) {
    OPERATION(code, reserved);
    supported = false;
}

unsigned long CameraControlDoor::existHeadLedLaser() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}

bool CameraControlDoor::isDirectSaving(bool selectedOnly) {
    OPERATION(selectedOnly);
    return false;
}

int CameraControlDoor::existLiveImageQuality() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}

int CameraControlDoor::existLowLight() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}

int CameraControlDoor::existFanControl() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}
