#include "viewer/host/doors/ApplicationWindowsDoor.h"

#include "viewer/cameras/CameraHead.h"

bool ApplicationWindowsDoor::isToolActive(const QString& name, DOC_Interface* document, bool flag) {
    OPERATION(name, document, flag);
    const Document* const asked = m_documents.find(document);
    return asked && asked->isToolActive(name);
}

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
