#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QImage>
#include <QRect>

// What a test looks for in a picture of a view with a black scene.

constexpr int kTextTop = 8;

/// The height of a line of text as it is laid out, in pixels.
inline double lineHeight(const QFont& font) {
    constexpr int kLines = 20;
    const QRect box =
        QFontMetrics(font).boundingRect(QRect(0, 0, 1000, 10000), Qt::AlignLeft | Qt::AlignTop,
                                        QStringLiteral("x\n").repeated(kLines - 1) + QLatin1Char('x'));
    return double(box.height()) / kLines;
}

/// The rows of the text at the top left of a black picture.
inline int textRows(const QImage& picture, double height) {
    int last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).lightness() > 150) {
                last = y;
                break;
            }
        }
    }
    return last < 0 ? 0 : int((last - kTextTop) / height) + 1;
}

inline bool isRed(const QColor& color) {
    return color.red() > 150 && color.green() < 60 && color.blue() < 60;
}

/// What encloses all red pixels.
inline QRect redPart(const QImage& picture) {
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isRed(picture.pixelColor(x, y))) {
                part |= QRect(x, y, 1, 1);
            }
        }
    }
    return part;
}

inline bool isAt(const QRect& a, const QRect& b) {
    return (a.topLeft() - b.topLeft()).manhattanLength() <= 2 &&
           (a.bottomRight() - b.bottomRight()).manhattanLength() <= 2;
}
