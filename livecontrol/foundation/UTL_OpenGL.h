#pragma once

/// Whether the screen has OpenGL; asked once, by trying. Without it a widget that draws with OpenGL must not
/// get into a window, even hidden: the whole window would stay blank.
bool hasOpenGL();
