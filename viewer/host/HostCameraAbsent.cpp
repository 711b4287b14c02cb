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

void CameraControlDoor::setCurrentPartition(int number, bool notify) {
    OPERATION(number, notify);
    if (number != 1) {
        refuseFunction(QStringLiteral("KVC_SetCurrentPartition"));
    }
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

bool CameraControlDoor::isAutoExposureOn() {
    OPERATION();
    return false;
}

void CameraControlDoor::setAutoExposureOn(bool on) {
    OPERATION(on);
    refuseFunction(QStringLiteral("KVC_SetAutoExposure"));
}

void CameraControlDoor::getAutoExposureInfo(AutoExposureInfo& current, AutoExposureLimits& limits) {
    OPERATION();
    current = AutoExposureInfo();
    limits = AutoExposureLimits();
}

void CameraControlDoor::setAutoExposureInfo(const AutoExposureInfo& current) {
    Q_UNUSED(current)
    OPERATION();
    refuseFunction(QStringLiteral("KVC_SetAutoExposureInfo"));
}

void CameraControlDoor::getAutoExposureMaxTimeList(int displayUnit, QList<unsigned long>& list) {
    OPERATION(displayUnit);
    list.clear();
}

unsigned CameraControlDoor::getVariableChannel() {
    OPERATION();
    return 0;
}

void CameraControlDoor::setVariableChannel(unsigned channel) {
    OPERATION(channel);
    if (channel != 0) {
        refuseFunction(QStringLiteral("KVC_SetVariableChannel"));
    }
}

void CameraControlDoor::setVariableChannelOf(const QList<DOC_Interface*>& documents, unsigned channel) {
    OPERATION(documents, channel);
    if (channel != 0) {
        refuseFunction(QStringLiteral("KVC_SetVariableChannel"));
    }
}

void CameraControlDoor::getVariableChannelInfo(unsigned channel, VariableChannelInfo& info) {
    OPERATION(channel);
    info = VariableChannelInfo();
}

void CameraControlDoor::setVariableChannelInfoOf(const QList<DOC_Interface*>& documents, unsigned channel,
                                                 const VariableChannelInfo& info) {
    Q_UNUSED(info)
    OPERATION(documents, channel);
    refuseFunction(QStringLiteral("KVC_SetVariableChannelInfo"));
}

void CameraControlDoor::listVariableTargets(QList<DOC_Interface*>& documents, bool applySameCameras) {
    OPERATION(applySameCameras);
    documents.clear();
}

void CameraControlDoor::eraseVariableChannel(unsigned channel) {
    OPERATION(channel);
    refuseFunction(QStringLiteral("KVC_EraseVariableChannel"));
}

unsigned CameraControlDoor::getVariableMaxWidth(unsigned long rate, unsigned height) {
    OPERATION(rate, height);
    return 0;
}

unsigned CameraControlDoor::getVariableMaxHeight(unsigned long rate, unsigned width) {
    OPERATION(rate, width);
    return 0;
}

unsigned long CameraControlDoor::getVariableMaxRate(unsigned width, unsigned height) {
    OPERATION(width, height);
    return 0;
}

void CameraControlDoor::getVariableRestriction(VariableRestriction& restriction) {
    OPERATION();
    restriction = VariableRestriction();
}

void CameraControlDoor::getVariableRateList(QList<unsigned long>& list) {
    OPERATION();
    list.clear();
}

void CameraControlDoor::beginVariableSetting() { OPERATION(); }

void CameraControlDoor::restoreVariableSetting(const VariableBackup& backup) {
    Q_UNUSED(backup)
    OPERATION();
}

void CameraControlDoor::getImageTriggerInfo(ImageTriggerInfo& current, ImageTriggerLimits& limits) {
    OPERATION();
    current = ImageTriggerInfo();
    limits = ImageTriggerLimits();
}

int CameraControlDoor::getImageTriggerState() {
    OPERATION();
    return 2;
}

void CameraControlDoor::startImageTriggerObserver() { OPERATION(); }

void CameraControlDoor::stopImageTriggerObserver() { OPERATION(); }

void CameraControlDoor::setImageTriggerInfo(const ImageTriggerInfo& current) {
    Q_UNUSED(current)
    OPERATION();
    refuseFunction(QStringLiteral("KVC_SetImageTriggerInfo"));
}

bool CameraControlDoor::isImageTriggerOn() {
    OPERATION();
    return false;
}

void CameraControlDoor::setImageTriggerOn(bool on) {
    OPERATION(on);
    if (on) {
        refuseFunction(QStringLiteral("KVC_SetImageTriggerInfo"));
    }
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

int CameraControlDoor::getLensType() {
    OPERATION();
    return 0;
}

bool CameraControlDoor::isLensControlUnable() {
    OPERATION();
    return false;
}

QString CameraControlDoor::getLensName() {
    OPERATION();
    return QString();
}

int CameraControlDoor::getLensControlCommandTime() {
    OPERATION();
    return 0;
}

void CameraControlDoor::getLensControlInfo(LensAxisInfo& iris, LensAxisInfo& focus, LensAxisInfo& zoom) {
    OPERATION();
    iris = focus = zoom = LensAxisInfo();
}

void CameraControlDoor::closeLens() { OPERATION(); }

void CameraControlDoor::resetLens(int reserved) {
    OPERATION(reserved);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setIrisValue(int value) {
    OPERATION(value);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setIrisIncremental(int coef, int size) {
    OPERATION(coef, size);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setFocusValue(int value) {
    OPERATION(value);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setFocusIncremental(int coef, int size) {
    OPERATION(coef, size);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setZoomValue(int value) {
    OPERATION(value);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

void CameraControlDoor::setZoomIncremental(int coef, int size) {
    OPERATION(coef, size);
    refuseFunction(QStringLiteral("KVC_SetStatus"));
}

int CameraControlDoor::existSupportedAutoExposure() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}

int CameraControlDoor::existSupportImageTrigger() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
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

int CameraControlDoor::existLensControl() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}
