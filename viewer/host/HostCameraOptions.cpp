// The small options of the selected cameras: low light, fan, shading, lamps, and how the live image is sent.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/OwnFunctions.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"

#include <QScopeGuard>

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
    const QString operation = QStringLiteral("KVC_SetPixelGainData");
    if (code != kShading) {
        m_cameras.refuse(operation);
    }
    for (const CameraDocument* const camera : m_cameras.with(CameraFunction::ShadingCalibration)) {
        documents.append(camera->face());
    }
    calibrateShading();
}

void CameraControlDoor::calibrateShading() {
    m_isShading = true;
    const auto end = qScopeGuard([this] { m_isShading = false; });
    m_cameras.command(CameraFunction::ShadingCalibration, QStringLiteral("KVC_SetPixelGainData"),
                      [](CameraHead& head) { return head.calibrateShading(); });
}

void CameraControlDoor::isCalibrationSupported(int code, int reserved, bool& supported) {
    OPERATION(code, reserved);
    supported = code == kShading && !m_cameras.with(CameraFunction::ShadingCalibration).isEmpty();
}

bool ViewerHost::isShading() {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION();
    return m_isShading;
}

unsigned long CameraControlDoor::existHeadLedLaser() {
    OPERATION();
    return static_cast<unsigned long>(m_cameras.supportLevel(CameraFunction::HeadLight));
}

// The panel writes back at each update what it has just read of the current camera. A camera that shines so
// already gets no command then, one that records or plays is left alone, and one that has refused is asked
// again only when the selection, a lamp or the state of a camera has changed. Who asks for another state than
// the current camera's is the user.
void ViewerHost::setHeadLedLaser(bool isLed, unsigned long status) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(isLed, status);
    const bool on = status != 0;
    const auto lamp = isLed ? &HeadSettings::led : &HeadSettings::laser;
    const bool isWrittenBack = settings() && settings()->*lamp == on;
    if (isWrittenBack && m_refusedLamps.value(isLed) == lampState(lamp, on)) {
        return;
    }
    m_refusedLamps.remove(isLed);
    try {
        m_cameras.command(CameraFunction::HeadLight, OwnFunction::SwitchLamp, [=](CameraHead& head) {
            const bool isLeftAlone = isWrittenBack && head.body()->state() != CameraState::Live;
            if (head.settings().*lamp == on || isLeftAlone) {
                return CommandResult::Ok;
            }
            return isLed ? head.setLed(on) : head.setLaser(on);
        });
    } catch (const CameraFailure&) {
        m_refusedLamps[isLed] = lampState(lamp, on);
        throw;
    }
}

QString CameraControlDoor::lampState(bool HeadSettings::*lamp, bool on) const {
    QString state = on ? QStringLiteral("on") : QStringLiteral("off");
    for (const CameraDocument* const camera : m_cameras.with(CameraFunction::HeadLight)) {
        const CameraHead& head = *camera->head();
        state += QStringLiteral(" %1:%2:%3")
                     .arg(camera->key())
                     .arg(head.settings().*lamp)
                     .arg(static_cast<int>(head.body()->state()));
    }
    return state;
}

bool ViewerHost::getHeadLedLaser(bool isLed) {
    static constexpr char kInterface[] = "HostApplication";
    OPERATION(isLed);
    return settings() && (isLed ? settings()->led : settings()->laser);
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
