#include "viewer/views/ImageView.h"

#include "viewer/documents/DocumentList.h"
#include "viewer/views/FrameTimer.h"
#include "viewer/views/ViewClient.h"

#include "livecontrol/interface/PLG_Interface.h"

#include <QOpenGLContext>
#include <QScopedValueRollback>

ImageView::ImageView(Document& document, ViewClient& client, FrameTimer& pacer, QWidget* parent)
    : QOpenGLWidget(parent), m_document(document), m_client(client), m_pacer(pacer) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(40, 30);
    connect(&m_document, &Document::viewChanged, this, [this] {
        m_textureDue = m_textureDue || !(m_document.view().tones == m_drawnTones);
        place(m_transform.center());
    });
    connect(&m_document, &Document::imageChanged, this, &ImageView::refresh);
    connect(&m_document.list(), &DocumentList::connectionChanged, this, [this](Document* changed) {
        if (changed == &m_document && !m_document.isConnected()) {
            cancelDrag();
            leavePlugin();
        }
    });
    connect(&m_pacer, &FrameTimer::beat, this, &ImageView::onBeat);
}

ImageView::~ImageView() {
    if (context()) {
        makeCurrent();
        glDeleteTextures(1, &m_texture);
        m_infoText.release();
        m_middleText.release();
        doneCurrent();
    }
}

void ImageView::setZoom(double zoom) {
    m_zoom = zoom;
    place(m_transform.center());
}

void ImageView::stepZoom(int steps) { setZoom(ViewTransform::steppedZoom(m_transform.zoom(), steps)); }

double ImageView::originalZoom() const { return m_transform.zoom() / qMax(1, m_document.view().reduction()); }

void ImageView::setOriginalSize() { setZoom(qMax(1, m_document.view().reduction())); }

void ImageView::setBusyText(const QString& text) {
    if (text != m_busyText) {
        m_busyText = text;
        update();
    }
}

void ImageView::refresh() {
    m_frameDue = true;
    if (m_document.imageSize() != m_transform.original()) {
        place(m_transform.center());
    }
    update();
}

// The document holds the view's state for whoever asks it, so it hears where the image lies now.
void ImageView::place(const QPointF& center) {
    m_transform = ViewTransform(m_document.imageSize(), m_document.view(), size(), m_zoom, center);
    ViewState state = m_document.view();
    state.zoom = m_transform.zoom();
    state.imageToView = m_transform.originalToViewTransform();
    if (state != m_document.view()) {
        m_document.setView(state); // comes back here, with nothing new to tell
    }
    m_frameDue = true;
    update();
}

void ImageView::onBeat() {
    if (isVisible() && !visibleRegion().isEmpty() && !window()->isMinimized()) {
        refresh();
    }
}

void ImageView::resizeEvent(QResizeEvent* event) {
    {
        // The base draws at once, with the place of before; what is asked for below draws it all again.
        const QScopedValueRollback<bool> resizing(m_isResizing, true);
        QOpenGLWidget::resizeEvent(event);
    }
    place(m_transform.center());
}

// No more pixels than the screen shows: a tile of sixteen costs a sixteenth.
QSize ImageView::wantedSize() const {
    if (m_transform.isEmpty()) {
        return QSize();
    }
    const QSize original = m_transform.original();
    const int reduction = qMax(1, m_document.view().reduction());
    const double sent = m_document.isSentReduced() ? 0.5 : 1.0;
    const double shown =
        m_client.isFrameRead(m_document) ? 1.0 : qMin(sent, m_transform.zoom() * devicePixelRatioF());
    const QSizeF size = QSizeF(original) / reduction * shown;
    return size.toSize().expandedTo(QSize(1, 1));
}

void ImageView::takeFrame() {
    m_frameDue = false;
    DocumentList& list = m_document.list();
    if (list.mode() == HOST_MODE_LIVE && !list.live().isRunning() && m_document.isConnected() &&
        !m_frame.isNull()) {
        return; // the live image stands still while a camera is changed
    }
    const quint32 before = m_frame.number;
    const bool wasNull = m_frame.isNull();
    m_frame = m_transform.isEmpty() ? Frame() : m_document.frame(wantedSize());
    m_textureDue = !m_frame.isNull();
    if (before != m_frame.number || wasNull != m_frame.isNull()) {
        emit frameShown();
    }
}
