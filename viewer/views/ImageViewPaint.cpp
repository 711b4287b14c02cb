// Drawing of the image view. Fixed-function calls in the default context, as the plug-ins of this family
// expect.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/Document.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/FrameTimer.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/ViewClient.h"

#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/interface/PLG_Interface.h"

#include <QElapsedTimer>
#include <QPolygonF>

namespace {

// Below this a pixel of the image is not seen as a square, and smoothing looks better.
constexpr double kSquareZoom = 2;
constexpr int kTextMargin = 8;

/// A frame as plug-ins read it. They don't write into the planes that are the image's own.
IMG_FrameBuffer bufferOf(const Frame& frame, std::vector<quint8>& narrowSamples) {
    const QImage& image = frame.image;
    auto* const bytes = const_cast<uchar*>(image.constBits());
    IMG_FrameBuffer buffer;
    buffer.width = image.width();
    buffer.height = image.height();
    buffer.stride = image.bytesPerLine();
    buffer.bitsPerSample = buffer.significantBits = static_cast<quint8>(frame.bitDepth);
    buffer.isColor = image.format() == QImage::Format_RGB888;
    if (image.format() == QImage::Format_Grayscale16) {
        buffer.stride /= int(sizeof(quint16));
        buffer.samples16 = reinterpret_cast<quint16*>(bytes);
        narrowSamples.resize(static_cast<size_t>(buffer.stride) * buffer.height);
        buffer.samples8 = narrowSamples.data();
    } else {
        buffer.samples8 = bytes;
    }
    return buffer;
}

} // namespace

void ImageView::initializeGL() {
    glGenTextures(1, &m_texture);
    m_textureDue = !m_frame.isNull();
}

void ImageView::paintGL() {
    if (m_isResizing) {
        return;
    }
    QElapsedTimer timer;
    timer.start();
    if (m_frameDue) {
        takeFrame();
    }
    glClearColor(0.07F, 0.07F, 0.08F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
    // The plug-in paints in view pixels with the origin at the top left. The shift puts whole numbers into
    // the middle of pixels, where a line falls on one row for sure.
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, width(), height(), 0, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_LIGHTING);
    if (!m_frame.isNull()) {
        drawImage();
    }
    drawOverlay();
    drawTexts();
    m_pacer.spent(timer.nsecsElapsed());
}

void ImageView::uploadFrame() {
    m_drawnTones = m_document.view().tones;
    const QImage image = m_drawnTones.applied(m_frame.displayImage());
    const bool gray = image.format() == QImage::Format_Grayscale8;
    const QImage pixels = gray || image.format() == QImage::Format_RGB888
                              ? image
                              : image.convertToFormat(QImage::Format_RGB888);
    const GLenum format = gray ? GL_LUMINANCE : GL_RGB;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4); // the lines of a QImage begin at multiples of 4 bytes
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, pixels.width(), pixels.height(), 0, format, GL_UNSIGNED_BYTE,
                 pixels.constBits());
    // The bits of the frame's number in the first row look like the lower half of a text.
    if (pixels.height() > 1 && FrameStamp::read(m_frame.image)) {
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, FrameStamp::Width, 1, format, GL_UNSIGNED_BYTE,
                        pixels.constScanLine(1));
    }
    m_textureDue = false;
}

void ImageView::drawImage() {
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    if (m_textureDue) {
        uploadFrame();
    }
    const bool squares = m_transform.zoom() >= kSquareZoom || m_document.view().reduction() > 1;
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, squares ? GL_NEAREST : GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);

    const QPolygonF corners = m_transform.imageCorners();
    const QPointF texture[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    glBegin(GL_QUADS);
    for (int i = 0; i < 4; ++i) {
        glTexCoord2d(texture[i].x(), texture[i].y());
        glVertex2d(corners[i].x(), corners[i].y());
    }
    glEnd();
    glDisable(GL_TEXTURE_2D);
}

void ImageView::drawOverlay() {
    PLG_Interface* const plugin = m_client.openPlugin();
    if (!plugin) {
        return;
    }
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glTranslated(0.375, 0.375, 0);
    // The window behind the view would show through where a smoothed line is written with its coverage.
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
    try {
        const Frame frame = overlayFrame();
        IMG_FrameBuffer buffer = bufferOf(frame, m_narrowSamples);
        plugin->onPaintOverlay(m_document.face(), false, frame.isNull() ? nullptr : &buffer);
    } catch (const std::exception& failure) {
        // Nothing may leave a paint event, and a message box in one would paint again.
        qCritical("The overlay of %s failed: %s", qPrintable(plugin->getName()), failure.what());
    }
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
    glPopAttrib();
}

/// The frame that shows, with all its pixels; null while nobody reads it.
Frame ImageView::overlayFrame() {
    if (!m_client.isFrameRead(m_document) || m_frame.isNull()) {
        return Frame();
    }
    return m_frame.image.size() == m_transform.original() ? m_frame
                                                          : m_document.frame(m_transform.original());
}

QString ImageView::middleText() const {
    if (!m_busyText.isEmpty()) {
        return m_busyText;
    }
    const bool isCamera = m_document.kind() != Document::Kind::File;
    if (isCamera && !m_document.isConnected()) {
        return translated("Disconnected");
    }
    if (!m_frame.isNull()) {
        return QString();
    }
    const bool inMemory = isCamera && m_document.list().mode() == HOST_MODE_MEMORY;
    return inMemory ? translated("No recording") : translated("No picture");
}

void ImageView::drawTexts() {
    const int room = width() - 2 * kTextMargin;
    OverlayPreferences* const info = m_frame.isNull() ? nullptr : m_client.shownInfo();
    if (info && m_info.update(m_document, *info, {size(), kTextMargin, devicePixelRatioF()})) {
        m_infoText.setImage(m_info.image());
    }
    if (info && !m_info.layout().isEmpty()) {
        m_infoText.draw(QPoint(kTextMargin, kTextMargin));
    }
    m_numberDrawn = info && m_info.layout().isShown("FrameNumber");
    const QString middle = middleText();
    if (!middle.isEmpty()) {
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * 1.3);
        m_middleText.set(middle, large, room, devicePixelRatioF());
        const QSize free = (size() - m_middleText.size()) / 2;
        m_middleText.draw(QPoint(free.width(), free.height()));
    }
}
