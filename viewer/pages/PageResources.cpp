#include "viewer/pages/PageResources.h"

#include <QtCore/QtGlobal>

// The macro declares functions of the global name space, so it stands outside of any other.
static void initAll() {
    Q_INIT_RESOURCE(viewer_pages);
    Q_INIT_RESOURCE(viewer_page_libraries);
}

namespace pages {

void registerResources() { initAll(); }

} // namespace pages
