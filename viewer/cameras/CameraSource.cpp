#include "viewer/cameras/CameraSource.h"

#include <algorithm>

namespace {

template <class Is>
CameraBody* found(const QList<CameraBody*>& cameras, const Is& is) {
    const auto camera = std::find_if(cameras.begin(), cameras.end(), is);
    return camera == cameras.end() ? nullptr : *camera;
}

} // namespace

CameraBody* CameraSource::findAddress(const QString& address) const {
    return found(cameras(), [&](const CameraBody* body) { return body->address() == address; });
}

CameraBody* CameraSource::findName(const QString& name) const {
    return found(cameras(), [&](const CameraBody* body) { return body->name() == name; });
}

void CameraSource::tell(CameraBody* body) {
    connect(body, &CameraBody::linkChanged, this, &CameraSource::linkChanged);
    connect(body, &CameraBody::stateChanged, this, &CameraSource::stateChanged);
    connect(body, &CameraBody::infoChanged, this, &CameraSource::infoChanged);
    for (CameraHead* const head : body->heads()) {
        connect(head, &CameraHead::settingsChanged, this, &CameraSource::settingsChanged);
        connect(head, &CameraHead::changedOutside, this, &CameraSource::changedOutside);
    }
    emit bodyAdded(body);
}
