#pragma once

/// Whether the X server that a program reaches by its environment knows GLX. Without it, as on many remote
/// screens, GLUT would end the program.
bool hasGlxDisplay();
