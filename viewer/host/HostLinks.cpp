// The links of the cameras: what watches their phase, and what adjusts it.

#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostDocuments";
}

RUN_ObservePhaseAdjustWarningThread* ViewerHost::getPhaseAdjustObserver() {
    OPERATION();
    return &m_links.observer();
}

void ViewerHost::getPhaseAdjustTargets(QList<DOC_Interface*>& documents) {
    OPERATION();
    documents.clear();
    for (const CameraDocument* const camera : m_links.cameras()) {
        documents.append(camera->face());
    }
}

void ViewerHost::execPhaseAdjust() {
    OPERATION();
    m_links.adjust();
}

bool ViewerHost::isPhaseAdjusting() {
    OPERATION();
    return m_links.isAdjusting();
}
