#include "viewer/views/TextTexture.h"

#include <QFontMetrics>
#include <QPainter>

#include <qopengl.h>

namespace {

// A name in a script that runs from the right must not turn the lines below it.
constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextForceLeftToRight;

} // namespace

void TextTexture::set(const QString& text, const QFont& font, int width, double pixelRatio) {
    if (m_texture != 0 && text == m_text && font == m_font && width == m_width &&
        pixelRatio == m_pixelRatio) {
        return;
    }
    m_text = text;
    m_font = font;
    m_width = width;
    m_pixelRatio = pixelRatio;
    // One pixel more for the edge.
    m_size = QFontMetrics(font).boundingRect(QRect(0, 0, qMax(1, width), 10000), kFlags, text).size() +
             QSize(1, 1);
    setImage(painted(pixelRatio));
}

QImage TextTexture::painted(double pixelRatio) const {
    QImage image((QSizeF(m_size) * pixelRatio).toSize().expandedTo(QSize(1, 1)),
                 QImage::Format_RGBA8888_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(m_font);
    const QRect area(QPoint(), m_size);
    painter.setPen(QColor(0, 0, 0, 210));
    painter.drawText(area.translated(1, 1), kFlags, m_text);
    painter.setPen(Qt::white);
    painter.drawText(area, kFlags, m_text);
    return image;
}

void TextTexture::setImage(const QImage& image) {
    m_size = (QSizeF(image.size()) / image.devicePixelRatio()).toSize();
    if (m_texture == 0) {
        glGenTextures(1, &m_texture);
    }
    glBindTexture(GL_TEXTURE_2D, m_texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, image.width(), image.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 image.constBits());
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER}) {
        glTexParameteri(GL_TEXTURE_2D, filter, GL_NEAREST); // it lies on the screen's own pixels
    }
}

void TextTexture::draw(const QPoint& at) {
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
    const int left = at.x();
    const int top = at.y();
    const int right = left + m_size.width();
    const int bottom = top + m_size.height();
    glBegin(GL_QUADS);
    glTexCoord2i(0, 0);
    glVertex2i(left, top);
    glTexCoord2i(1, 0);
    glVertex2i(right, top);
    glTexCoord2i(1, 1);
    glVertex2i(right, bottom);
    glTexCoord2i(0, 1);
    glVertex2i(left, bottom);
    glEnd();
    glDisable(GL_BLEND);
    glDisable(GL_TEXTURE_2D);
}

void TextTexture::release() {
    if (m_texture != 0) {
        glDeleteTextures(1, &m_texture);
        m_texture = 0;
    }
}
