#include "viewer/host/parts/cameras/LinkWatch.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraSource.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/commands/CameraCommands.h"

#include <QScopedValueRollback>
#include <algorithm>

LinkWatch::LinkWatch(DocumentList& documents) : m_documents(documents) {
    m_inThread.moveToThread(&m_observer);
    m_observer.start();
    connect(&documents.source(), &CameraSource::infoChanged, this, &LinkWatch::watch);
    connect(&documents, &DocumentList::connectionChanged, this, &LinkWatch::watch);
}

LinkWatch::~LinkWatch() {
    m_observer.quit();
    m_observer.wait();
}

QList<CameraDocument*> LinkWatch::cameras() const {
    return filterCameras(m_documents.cameras(), [](const CameraDocument& camera) {
        return camera.isConnected() && camera.head()->model().supports(CameraFunction::LinkAdjustment);
    });
}

void LinkWatch::watch() {
    const QList<CameraDocument*> linked = cameras();
    const bool warns = std::any_of(linked.begin(), linked.end(), [](const CameraDocument* camera) {
        return camera->body()->isOutOfPhase();
    });
    if (warns != m_warns) {
        m_warns = warns;
        QMetaObject::invokeMethod(&m_inThread, [this, warns] { emit m_observer.signalWarning(warns); });
    }
}

void LinkWatch::adjust() {
    const QScopedValueRollback<bool> adjusting(m_isAdjusting, true);
    CameraCommands().runBodies(cameras(), [](CameraBody& body) { return body.adjustLink(); });
}
