#include "livecontrol/live/JS_Mediator_LiveControl.h"

#include "livecontrol/live/LivePlugin.h"

JS_Mediator_LiveControl::JS_Mediator_LiveControl(HostObject* host, PLG_Interface* plugin,
                                                 LivePlugin* livePlugin)
    : JS_Mediator_DeviceControl(host, QStringLiteral("livecontrol"), plugin), m_livePlugin(livePlugin) {}

void JS_Mediator_LiveControl::setLastPage(int page) {
    // A page that goes with its camera isn't left in order, and its lock must not outlive it.
    if (m_lastPage == LIVE_PAGE_VARIABLE && page != LIVE_PAGE_VARIABLE && m_livePlugin) {
        m_livePlugin->setVariableAreaLocked(false);
    }
    m_lastPage = page;
}

void JS_Mediator_LiveControl::changedPhaseAdjustWarning(bool isWarn) {
    m_phaseAdjustWarning = isWarn;
    emit signalPhaseAdjustWarning();
}
