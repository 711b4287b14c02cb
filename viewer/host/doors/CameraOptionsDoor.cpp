#include "viewer/host/doors/CameraOptionsDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/prefs/Preferences.h"

#include <algorithm>

namespace {
constexpr int kShading = 2; // of the calibrations

const QString kReduceLive = QStringLiteral("live/reduceData");
} // namespace

bool CameraOptionsDoor::isAnyInLowLight() const { return m_cameras.anyInLowLight(true); }

bool CameraOptionsDoor::isAllLowLight(bool on) {
    OPERATION(on);
    return !m_cameras.anyInLowLight(!on);
}

void CameraOptionsDoor::setLowLight(const CameraCommands::Command& command) {
    m_cameras.command(CameraFunction::LowLight, SettingTable::command("lowLight"), command);
}

void CameraOptionsDoor::setFanControl(bool value) {
    OPERATION(value);
    const QString& operation = CommandKey::SetFan;
    CameraCommands(operation).runBodies(m_cameras.required(CameraFunction::FanControl, operation),
                                        [value](CameraBody& body) { return body.setFan(value); });
}

bool CameraOptionsDoor::getFanControl(int& state) {
    OPERATION();
    const bool has = head() && head()->model().supports(CameraFunction::FanControl);
    state = has ? head()->body()->fanState() : FanStopped;
    return state == FanSpinning || state == FanForced;
}

void CameraOptionsDoor::runCalibration(QList<DOC_Interface*>& documents, int code, int reserved) {
    OPERATION(code, reserved);
    documents.clear();
    if (code != kShading) {
        m_cameras.refuse(CommandKey::CalibrateShading);
    }
    for (const CameraDocument* const camera : m_shading.cameras()) {
        documents.append(camera->face());
    }
    m_shading.run();
}

void CameraOptionsDoor::isCalibrationSupported(int code, int reserved, bool& supported) {
    OPERATION(code, reserved);
    supported = code == kShading && !m_shading.cameras().isEmpty();
}

// A matter of the link, the same for all cameras.
void CameraOptionsDoor::setLiveImageDataReduceMode(bool on) {
    OPERATION(on);
    m_preferences.setValue(kReduceLive, on);
    m_documents.live().setReduced(on);
}
