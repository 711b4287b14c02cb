#include "viewer/app/look/AppResources.h"

#include <QDir>

// Outside any namespace, as the macro asks.
static void registerViewerApp() { Q_INIT_RESOURCE(viewer_app); }

void AppResources::ensure() {
    static const bool registered = (registerViewerApp(), true);
    Q_UNUSED(registered)
}
