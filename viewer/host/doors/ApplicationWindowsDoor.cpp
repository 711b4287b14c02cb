#include "viewer/host/doors/ApplicationWindowsDoor.h"

#include "viewer/cameras/CameraHead.h"

bool ApplicationWindowsDoor::isOtherPluginOpen() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    return !names.isEmpty();
}

bool ApplicationWindowsDoor::isOpenExceptFilecontrol() {
    OPERATION();
    QStringList names = m_plugins.openNames();
    names.removeAll(QStringLiteral("livecontrol"));
    names.removeAll(QStringLiteral("filecontrol"));
    return !names.isEmpty();
}
