#pragma once

#include <QFont>
#include <QImage>
#include <QSize>
#include <QString>

/// A text as a texture: white with a dark edge, readable on any picture, or a picture of texts. Drawn anew
/// only when it changes. All operations but the constructor need the view's OpenGL context; a texture that is
/// not released goes with it.
///
/// A painter on the view would do the same, but what it paints is missing in a picture taken of the widget.
class TextTexture {
public:
    /// The text in that font; width: where lines break, in device-independent pixels.
    void set(const QString& text, const QFont& font, int width, double pixelRatio);
    /// Premultiplied pixels in the order red, green, blue, alpha.
    void setImage(const QImage& image);
    /// Size of the text in device-independent pixels.
    QSize size() const { return m_size; }
    /// Draws it with its top left corner there, in a projection of device-independent pixels.
    void draw(const QPoint& at);
    void release();

private:
    QImage painted(double pixelRatio) const;

    QString m_text;
    QFont m_font;
    int m_width = 0;
    double m_pixelRatio = 0;
    QSize m_size;
    unsigned m_texture = 0;
};
