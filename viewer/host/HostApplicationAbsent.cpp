// What HostApplication asks of tools and devices that this program and its cameras don't have.

#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostApplication";
}

bool ViewerHost::isTracking() {
    OPERATION();
    return false;
}

bool ViewerHost::isStepTracking() {
    OPERATION();
    return false;
}

bool ViewerHost::isActiveOnQmon() {
    OPERATION();
    return false;
}

bool ViewerHost::isQmonWindowShown() {
    OPERATION();
    return false;
}

bool ViewerHost::isNt3DFile() {
    OPERATION();
    return false;
}

bool ViewerHost::isLimited3DTool(DOC_Interface* document) {
    OPERATION(document);
    return false;
}

QList<QPair<QString, QString>> ViewerHost::findSavedData(const QList<QPair<QString, QString>>& pairs,
                                                         const QString& folder) {
    Q_UNUSED(pairs)
    OPERATION(folder);
    return {};
}

void ViewerHost::setSaveViewFontName(const QString& name, int index) { OPERATION(name, index); }
