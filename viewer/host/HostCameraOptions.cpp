// The small options of the selected cameras: low light, fan, shading, lamps, and how the live image is sent.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"

#include <algorithm>

namespace {
constexpr char kInterface[] = "HostCameraControl";
constexpr int kShading = 2; // of the calibrations

const QString kReduceLive = QStringLiteral("live/reduceData");

bool isInLowLight(const CameraDocument* camera) { return camera->head()->isLowLight(); }
} // namespace

bool CameraControlDoor::isLowLight() {
    OPERATION();
    return settings() && settings()->lowLight.on;
}

int CameraControlDoor::getLowLightType() {
    OPERATION();
    return settings() ? settings()->lowLight.type : 0;
}

bool CameraControlDoor::existsLowLight() {
    OPERATION();
    const QList<CameraDocument*> cameras = m_cameras.all();
    return std::any_of(cameras.begin(), cameras.end(), isInLowLight);
}

bool CameraControlDoor::isAnyLowLightOn() {
    OPERATION();
    const QList<CameraDocument*> cameras = m_cameras.all();
    return std::any_of(cameras.begin(), cameras.end(), isInLowLight);
}

bool CameraControlDoor::isAllLowLight(bool on) {
    OPERATION(on);
    const QList<CameraDocument*> cameras = m_cameras.all();
    return std::all_of(cameras.begin(), cameras.end(),
                       [on](const CameraDocument* camera) { return isInLowLight(camera) == on; });
}

int CameraControlDoor::existLowLight() {
    OPERATION();
    return m_cameras.supportLevel(CameraFunction::LowLight);
}

void CameraControlDoor::setLowLightMode(bool mode) {
    OPERATION(mode);
    m_cameras.command(CameraFunction::LowLight, QStringLiteral("KVC_SetLowLightMode"),
                      [mode](CameraHead& head) { return head.setLowLight(mode); });
}

void CameraControlDoor::setLowLightType(int type) {
    OPERATION(type);
    m_cameras.command(CameraFunction::LowLight, QStringLiteral("KVC_SetLowLightMode"),
                      [type](CameraHead& head) { return head.setLowLightType(type); });
}

void CameraControlDoor::setFanControl(bool value) {
    OPERATION(value);
    const QString operation = QStringLiteral("KVC_SetFanCtrl");
    CameraCommands(operation).runBodies(m_cameras.required(CameraFunction::FanControl, operation),
                                        [value](CameraBody& body) { body.setFan(value); });
}

bool CameraControlDoor::getFanControl(int& state) {
    OPERATION();
    const bool has = head() && head()->model().supports(CameraFunction::FanControl);
    state = has ? head()->body()->fanState() : FanStopped;
    return state == FanSpinning || state == FanForced;
}

int CameraControlDoor::existFanControl() {
    OPERATION();
    return m_cameras.supportLevel(CameraFunction::FanControl);
}

void CameraControlDoor::runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) {
    OPERATION(code, reserved);
    documents.clear();
    if (code != kShading) {
        m_cameras.refuse(ShadingCalibration::Key);
    }
    for (const CameraDocument* const camera : m_shading.cameras()) {
        documents.append(camera->face());
    }
    m_shading.run();
}

void CameraControlDoor::isCalibrationSupported(int code, int reserved, bool& supported) {
    OPERATION(code, reserved);
    supported = code == kShading && !m_shading.cameras().isEmpty();
}

bool ViewerHost::isShading() {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION();
    return m_shading.isRunning();
}

unsigned long CameraControlDoor::existHeadLedLaser() {
    OPERATION();
    return static_cast<unsigned long>(m_cameras.supportLevel(CameraFunction::HeadLight));
}

void ViewerHost::setHeadLedLaser(bool isLed, unsigned long status) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(isLed, status);
    m_lamps.set(isLed, status != 0);
}

bool ViewerHost::getHeadLedLaser(bool isLed) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(isLed);
    return m_lamps.isOn(isLed);
}

int CameraControlDoor::existLiveImageQuality() {
    OPERATION();
    return m_cameras.supportLevel(CameraFunction::LiveQuality);
}

// A matter of the link, the same for all cameras.
void CameraControlDoor::setLiveImageDataReduceMode(bool on) {
    OPERATION(on);
    m_preferences.setValue(kReduceLive, on);
    m_documents.live().setReduced(on);
}

bool CameraControlDoor::getLiveImageDataReduceMode() {
    OPERATION();
    return m_documents.live().isReduced();
}
