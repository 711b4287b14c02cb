#include "livecontrol/live/GraphText.h"

#include "livecontrol/live/GlxDisplay.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <GL/freeglut.h>

namespace graphtext {

namespace {

/// GLUT leaves the program if it is used uninitialized, or initialized twice, or without an X display that
/// knows GLX.
bool hasGlut() {
    static bool isTried = false;
    if (!glutGet(GLUT_INIT_STATE) && !isTried && QGuiApplication::platformName() == QLatin1String("xcb") &&
        hasGlxDisplay()) {
        int count = 1;
        char name[] = "livecontrol";
        char* arguments[] = {name, nullptr};
        glutInit(&count, arguments);
    }
    isTried = true;
    return glutGet(GLUT_INIT_STATE) != 0;
}

/// About as large as the bitmaps of GLUT.
QFont systemFont(Font font) {
    QFont result(font == Font::Scale ? QStringLiteral("Times") : QStringLiteral("Courier"));
    result.setStyleHint(font == Font::Scale ? QFont::Serif : QFont::TypeWriter);
    result.setPixelSize(font == Font::Scale ? 10 : 14);
    return result;
}

} // namespace

void draw(Font font, char character) {
    if (hasGlut()) {
        glutBitmapCharacter(font == Font::Scale ? GLUT_BITMAP_TIMES_ROMAN_10 : GLUT_BITMAP_9_BY_15,
                            character);
    } else {
        drawWithoutGlut(font, character);
    }
}

void drawWithoutGlut(Font font, char character) {
    const QFont system = systemFont(font);
    const QFontMetrics metrics(system);
    const QChar letter = QLatin1Char(character);
    QImage gray(qMax(1, metrics.horizontalAdvance(letter)), metrics.height(), QImage::Format_Grayscale8);
    gray.fill(Qt::black);
    QPainter painter(&gray);
    painter.setFont(system);
    painter.setPen(Qt::white);
    painter.drawText(0, metrics.ascent(), QString(letter));
    painter.end();

    constexpr int kLit = 96; // of 255: thin lines of a small letter are never white
    QImage bits(gray.size(), QImage::Format_Mono);
    bits.fill(0);
    for (int y = 0; y < gray.height(); ++y) {
        for (int x = 0; x < gray.width(); ++x) {
            if (gray.constScanLine(y)[x] >= kLit) {
                bits.setPixel(x, gray.height() - 1 - y, 1); // OpenGL's rows begin at the bottom
            }
        }
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4); // as the rows of an image are
    glBitmap(bits.width(), bits.height(), 0, static_cast<float>(metrics.descent()), 0, 0, bits.constBits());
}

} // namespace graphtext
