#include "pagelib/PageResources.h"

#include <QtCore/QtGlobal>

// The macro declares functions of the global name space, so it stands outside of any other.
static void initAll() {
    Q_INIT_RESOURCE(pagelib);
    Q_INIT_RESOURCE(pagelib_libraries);
}

namespace pages {

void registerResources() { initAll(); }

} // namespace pages
