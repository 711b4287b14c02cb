#include "viewer/host/parts/cameras/TargetCameras.h"

#include <algorithm>

namespace {
QList<CameraDocument*> having(const QList<CameraDocument*>& cameras, CameraFunction function) {
    return filterCameras(cameras, [function](const CameraDocument& camera) {
        return camera.head()->model().supports(function);
    });
}
} // namespace

CameraHead* TargetCameras::head() const {
    const CameraDocument* const camera = m_documents.currentCamera();
    return camera && camera->isConnected() ? camera->head() : nullptr;
}

QList<CameraDocument*> TargetCameras::with(CameraFunction function) const { return having(all(), function); }

QList<CameraDocument*> TargetCameras::of(const QList<DOC_Interface*>& documents) const {
    QList<CameraDocument*> cameras;
    for (const DOC_Interface* const document : documents) {
        if (auto* const camera = dynamic_cast<CameraDocument*>(m_documents.find(document))) {
            cameras.append(camera);
        }
    }
    return cameras;
}

int TargetCameras::supportLevel(CameraFunction function) const {
    const QList<CameraDocument*> cameras = all();
    const QList<CameraDocument*> able = having(cameras, function);
    if (able.isEmpty()) {
        return MULTIPLE_DOCS_NOTHING;
    }
    if (!able.contains(m_documents.currentCamera())) {
        return MULTIPLE_DOCS_NOT_IN_CURRENT;
    }
    return able.size() == cameras.size() ? MULTIPLE_DOCS_ALL : MULTIPLE_DOCS_CURRENT_AND_ANY;
}

bool TargetCameras::anyInState(CameraState state) const {
    const auto isInState = [](const CameraDocument& camera, int wanted) {
        return camera.body()->state() == CameraState(wanted);
    };
    return m_documents.anyTarget(isInState, int(state));
}

bool TargetCameras::anyInLowLight(bool on) const {
    const auto isInLowLight = [](const CameraDocument& camera, int wanted) {
        return camera.head()->isLowLight() == bool(wanted);
    };
    return m_documents.anyTarget(isInLowLight, int(on));
}

QList<CameraDocument*> TargetCameras::required(CameraFunction function, const QString& operation) const {
    const QList<CameraDocument*> cameras = with(function);
    if (cameras.isEmpty()) {
        refuse(operation);
    }
    return cameras;
}

void TargetCameras::refuse(const QString& operation) const {
    const Document* const camera = m_documents.current();
    ::refuse(operation, camera ? camera->title() : QString(),
             camera && !camera->isConnected() ? reason("no link to the camera")
                                              : reason("there is no such function"));
}
