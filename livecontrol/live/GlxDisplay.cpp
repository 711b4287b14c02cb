#include "livecontrol/live/GlxDisplay.h"

#include <GL/glx.h> // whose macros are kept out of the other files

bool hasGlxDisplay() {
    Display* const display = XOpenDisplay(nullptr);
    if (!display) {
        return false;
    }
    int errorBase = 0;
    int eventBase = 0;
    const bool isKnown = glXQueryExtension(display, &errorBase, &eventBase) != 0;
    XCloseDisplay(display);
    return isKnown;
}
