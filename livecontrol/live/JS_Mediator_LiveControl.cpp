#include "livecontrol/live/JS_Mediator_LiveControl.h"

JS_Mediator_LiveControl::JS_Mediator_LiveControl(HostObject* host, PLG_Interface* plugin,
                                                 LivePlugin* livePlugin)
    : JS_Mediator_DeviceControl(host, QStringLiteral("livecontrol"), plugin), m_livePlugin(livePlugin) {}

void JS_Mediator_LiveControl::changedPhaseAdjustWarning(bool isWarn) {
    m_phaseAdjustWarning = isWarn;
    emit signalPhaseAdjustWarning();
}
