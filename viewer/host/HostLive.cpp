#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostLive";
}

void ViewerHost::resumeLive() {
    OPERATION();
    m_documents.live().resume();
}

void ViewerHost::stopLiveForRefresh(bool wait, bool documents, bool views) {
    OPERATION(wait, documents, views);
    m_documents.live().suspend();
}

void ViewerHost::suspendLive(bool wait) {
    OPERATION(wait);
    m_documents.live().suspend();
}

// The simulated cameras go on sending in the new format by themselves.
bool ViewerHost::isRestartNeeded() {
    OPERATION();
    return false;
}

void ViewerHost::beginLiveHold() {
    OPERATION();
    m_documents.live().beginHold();
}

void ViewerHost::endLiveHold() {
    OPERATION();
    m_documents.live().endHold();
}
