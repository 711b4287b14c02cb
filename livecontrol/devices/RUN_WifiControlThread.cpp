#include "livecontrol/devices/RUN_WifiControlThread.h"

#include "livecontrol/devices/JS_Mediator_WifiSettingDialog.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"

RUN_WifiControlThread::RUN_WifiControlThread(HostObject* host, JS_Mediator_WifiSettingDialog* mediator,
                                             DOC_Interface* document)
    : RUN_BaseThread(host), m_mediator(mediator), m_document(document) {
    setObjectName(QStringLiteral("WIFICT"));
}

void RUN_WifiControlThread::run() {
    logStart(QString());
    clearStopRequest();
    clearCancelRequest();
    m_succeeded = true;
    try {
        control();
    } catch (...) { // reported by the slot that waits, on the GUI thread
        m_succeeded = false;
    }
    logEnd(QString());
}

void RUN_WifiControlThread::control() {
    auto& camera = docAs<DOC_Settings>(m_document);
    if (m_controlMode == Scan) {
        camera.scanAccessPoints();
    } else {
        camera.connectAccessPoint(m_mediator->getSelectedNo());
    }
}
