#pragma once

/// Letters of a graph that is painted with fixed-function OpenGL.
namespace graphtext {

enum class Font { Scale, Statistics };

/// Draws a character at the raster position: with GLUT's bitmaps where GLUT can be had, else with those
/// below.
void draw(Font font, char character);

/// The same without GLUT, in a font of the system. The baseline stands on the raster position.
void drawWithoutGlut(Font font, char character);

} // namespace graphtext
