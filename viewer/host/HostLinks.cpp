// The links of the cameras: what watches their phase, and what adjusts it.

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

#include <QScopeGuard>
#include <algorithm>

namespace {
constexpr char kInterface[] = "HostDocuments";
}

// The warning comes from the observer's own thread, as it would with cameras that have to be asked.
void HostRooms::connectLinkObserver() {
    m_linkWatch.moveToThread(&m_phaseObserver);
    m_phaseObserver.start();
    connect(&m_documents.source(), &CameraSource::infoChanged, this, &HostRooms::watchPhases);
    connect(&m_documents, &DocumentList::connectionChanged, this, &HostRooms::watchPhases);
}

void HostRooms::endLinkObserver() {
    m_phaseObserver.quit();
    m_phaseObserver.wait();
}

// All of them, selected or not: cameras share their links, and the warning is about any.
QList<CameraDocument*> HostRooms::linkedCameras() const {
    return camerasThat(m_documents.cameras(), [](const CameraDocument& camera) {
        return camera.isConnected() && camera.head()->model().supports(CameraFunction::LinkAdjustment);
    });
}

void HostRooms::watchPhases() {
    const QList<CameraDocument*> cameras = linkedCameras();
    const bool warn = std::any_of(cameras.begin(), cameras.end(), [](const CameraDocument* camera) {
        return camera->body()->isOutOfPhase();
    });
    if (warn != m_phaseWarning) {
        m_phaseWarning = warn;
        QMetaObject::invokeMethod(&m_linkWatch, [this, warn] { emit m_phaseObserver.signalWarning(warn); });
    }
}

RUN_ObservePhaseAdjustWarningThread* ViewerHost::getPhaseAdjustObserver() {
    OPERATION();
    return &m_phaseObserver;
}

void ViewerHost::getPhaseAdjustTargets(QList<DOC_Interface*>& documents) {
    OPERATION();
    documents.clear();
    for (const CameraDocument* const camera : linkedCameras()) {
        documents.append(camera->face());
    }
}

void ViewerHost::execPhaseAdjust() {
    OPERATION();
    m_isPhaseAdjusting = true;
    const auto end = qScopeGuard([this] { m_isPhaseAdjusting = false; });
    CameraCommands(QStringLiteral("KVC_SetInterfaceInfo")).runBodies(linkedCameras(), [](CameraBody& body) {
        return body.adjustLink();
    });
}

bool ViewerHost::isPhaseAdjusting() {
    OPERATION();
    return m_isPhaseAdjusting;
}
