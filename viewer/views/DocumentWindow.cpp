#include "viewer/views/DocumentWindow.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/FrameTimer.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/TitleStrip.h"

#include "livecontrol/foundation/UTL_OpenGL.h"

#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// The frame number runs too fast to read; the strip follows at about 5 a second, unless the picture itself
// shows it.
constexpr int kBeatsPerTitle = 6;

QColor lampOf(const Document& document) {
    if (document.kind() == Document::Kind::File) {
        return QColor();
    }
    if (!document.isConnected()) {
        return QColor(0x8a8f95);
    }
    switch (document.body()->state()) {
    case CameraState::Recording:
        return QColor(0xe5484d);
    case CameraState::Ready:
    case CameraState::WaitingReady:
        return QColor(0xf5a623);
    default:
        return QColor(0x30a46c);
    }
}

} // namespace

DocumentWindow::DocumentWindow(Document& document, ViewClient& client, FrameTimer& pacer,
                               const PlayBar::IconSource& icons, QWidget* parent)
    : QFrame(parent), m_document(document), m_title(new TitleStrip),
      m_view(new ImageView(document, client, pacer)), m_playBar(new PlayBar(document, icons)) {
    setObjectName(QStringLiteral("documentWindow"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    addView(*layout);
    layout->addWidget(m_playBar);

    connect(m_view, &ImageView::pressed, this, [this] { emit activated(&m_document); });
    connect(m_view, &ImageView::doubleClicked, this, [this] { emit doubleClicked(&m_document); });
    connect(&pacer, &FrameTimer::beat, this, &DocumentWindow::onBeat);
    connect(&m_document, &Document::playingChanged, this, &DocumentWindow::refreshTitle);
    refreshTitle();
}

DocumentWindow::~DocumentWindow() = default;

// The view holds places and frames for whoever asks, whether it shows or not.
void DocumentWindow::addView(QVBoxLayout& layout) {
    if (hasOpenGL()) {
        layout.addWidget(m_view, 1);
        return;
    }
    m_viewApart.reset(m_view);
    m_noPicture = new QLabel;
    m_noPicture->setObjectName(QStringLiteral("emptyArea"));
    m_noPicture->setAlignment(Qt::AlignCenter);
    m_noPicture->setWordWrap(true);
    layout.addWidget(m_noPicture, 1);
}

void DocumentWindow::setCurrent(bool current) {
    if (property("current").toBool() == current && property("current").isValid()) {
        return;
    }
    setProperty("current", current);
    m_title->setCurrent(current);
    for (QWidget* const widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_title)}) {
        style()->unpolish(widget); // the sheet asks for the property
        style()->polish(widget);
    }
}

void DocumentWindow::refreshTitle() {
    const bool replay = m_document.list().mode() != HOST_MODE_LIVE;
    const bool isNumbered = !replay && m_document.isConnected() && !m_view->isNumberDrawn() && !m_noPicture;
    // What a camera was set to when its link was lost may have changed since.
    const bool isKnown = replay || m_document.isConnected();
    m_title->setContent(m_document.title(), isKnown ? DocumentText::facts(m_document) : QStringList(),
                        isNumbered ? QStringLiteral("#%1").arg(m_view->frameNumber()) : QString(),
                        DocumentText::state(m_document), lampOf(m_document));
    if (m_noPicture) {
        m_noPicture->setText(translated(
            "There are no images here, for this screen has no OpenGL, in which they are drawn. A software "
            "one does: set LIBGL_ALWAYS_SOFTWARE=1, or start the program on another screen."));
    }
    m_playBar->setVisible(replay);
    if (replay) {
        m_playBar->refresh();
    }
}

void DocumentWindow::onBeat() {
    if (isVisible() && ++m_beats % kBeatsPerTitle == 0) {
        refreshTitle();
    }
}

void DocumentWindow::keyPressEvent(QKeyEvent* event) {
    if (!m_playBar->press(*event)) {
        QFrame::keyPressEvent(event);
    }
}

void DocumentWindow::mousePressEvent(QMouseEvent* /*event*/) { emit activated(&m_document); }

void DocumentWindow::mouseDoubleClickEvent(QMouseEvent* /*event*/) { emit doubleClicked(&m_document); }
