#include "livecontrol/foundation/UTL_OpenGL.h"

#include <QOpenGLContext>

bool hasOpenGL() {
    static const bool has = QOpenGLContext().create();
    return has;
}
