#include "livecontrol/plugin/PLG_livecontrol.h"

#include <new>

/// The one export of the library: a new plug-in, owned by the caller; null if there is no memory for it.
extern "C" __attribute__((visibility("default"))) PLG_Interface* makeHTMLPlugin() {
    try {
        return std::make_unique<PLG_livecontrol>().release();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
