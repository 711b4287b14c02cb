// Mouse and keys of the image view: they move and zoom the image, or go to the plug-in whose page edits an
// area.

#include "viewer/documents/DocumentList.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/ViewClient.h"

#include "livecontrol/interface/PLG_Interface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kWheelStep = 120; // eighths of a degree: one notch

// An event handler must not let an exception out, and the plug-in may pass one on from a document.
template <class Call>
void guarded(Call&& call) {
    try {
        call();
    } catch (const std::exception& failure) {
        qCritical("Input on the image failed: %s", failure.what());
    }
}

} // namespace

PLG_Interface* ImageView::editingPlugin() const {
    PLG_Interface* const plugin = m_client.openPlugin();
    return plugin && plugin->isAreaPage() ? plugin : nullptr;
}

template <class Edit>
void ImageView::editArea(PLG_Interface& plugin, bool joins, Edit&& edit) {
    const QRect before = plugin.getArea();
    guarded(edit);
    if (plugin.getArea() != before) {
        m_client.areaEdited(m_document, before, joins);
    }
    update();
}

// The shape that the plug-in gave to the pointer holds for the whole program.
void ImageView::leavePlugin() {
    PLG_Interface* const plugin = m_client.openPlugin();
    if (m_overPlugin && plugin) {
        guarded([&] { plugin->mouseLeave(); });
    }
    m_overPlugin = false;
}

void ImageView::mousePressEvent(QMouseEvent* event) {
    emit pressed();
    if (m_drag != Drag::None || event->button() == Qt::RightButton) {
        return;
    }
    m_dragPos = event->pos();
    m_dragButton = event->button();
    PLG_Interface* const plugin = event->button() == Qt::LeftButton ? editingPlugin() : nullptr;
    m_drag = plugin ? Drag::Plugin : Drag::Image;
    if (plugin) {
        guarded([&] { plugin->mousePress(event->pos(), m_document.key()); });
    }
}

void ImageView::mouseMoveEvent(QMouseEvent* event) {
    if (m_drag == Drag::Image) {
        place(m_transform.centerForDrag(event->pos() - m_dragPos));
        m_dragPos = event->pos();
    }
    PLG_Interface* const plugin = editingPlugin();
    if (plugin && m_drag != Drag::Image) {
        if (plugin->isDragging() && m_drag == Drag::None) {
            guarded([&] { plugin->mouseCancel(m_document.key()); }); // of a view that went away
        }
        m_overPlugin = true;
        editArea(*plugin, true, [&] { plugin->mouseMove(event->pos(), m_document.key()); });
        return;
    }
    leavePlugin();
    if (!m_transform.isEmpty()) {
        m_document.setPointerPos(m_transform.pixelAt(event->pos(), true));
    }
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != m_dragButton) {
        return;
    }
    const Drag drag = m_drag;
    m_drag = Drag::None;
    PLG_Interface* const plugin = m_client.openPlugin();
    if (drag == Drag::Plugin && plugin) {
        guarded([&] { plugin->mouseRelease(event->pos(), m_document.key()); });
        if (plugin->isDragging()) {
            guarded([&] { plugin->mouseCancel(m_document.key()); }); // the button is up, whatever failed
        }
        update();
    }
}

void ImageView::mouseDoubleClickEvent(QMouseEvent* event) {
    // While an area is edited a second press is a press.
    if (editingPlugin()) {
        mousePressEvent(event);
    } else {
        emit doubleClicked();
    }
}

void ImageView::wheelEvent(QWheelEvent* event) {
    const int steps = event->angleDelta().y() / kWheelStep;
    if (steps != 0 && !m_transform.isEmpty()) {
        const double zoom = ViewTransform::steppedZoom(m_transform.zoom(), steps);
        const QPointF center = m_transform.centerForZoomAt(event->position(), zoom);
        m_zoom = zoom;
        place(center);
    }
    event->accept();
}

void ImageView::keyPressEvent(QKeyEvent* event) {
    if (PLG_Interface* const plugin = editingPlugin()) {
        editArea(*plugin, event->isAutoRepeat(), [&] { plugin->keyPress(event); });
    } else {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void ImageView::keyReleaseEvent(QKeyEvent* event) {
    PLG_Interface* const plugin = m_client.openPlugin();
    if (plugin && !event->isAutoRepeat()) {
        guarded([&] { plugin->clearKeyHeld(); });
    }
    QOpenGLWidget::keyReleaseEvent(event);
}

void ImageView::cancelDrag() {
    const Drag drag = m_drag;
    m_drag = Drag::None;
    PLG_Interface* const plugin = m_client.openPlugin();
    if (drag == Drag::Plugin && plugin) {
        guarded([&] { plugin->mouseCancel(m_document.key()); });
    }
}

void ImageView::focusOutEvent(QFocusEvent* event) {
    if (event->reason() == Qt::ActiveWindowFocusReason) {
        cancelDrag(); // the release would go to another window
    }
    QOpenGLWidget::focusOutEvent(event);
}

void ImageView::leaveEvent(QEvent* event) {
    if (m_drag == Drag::None) {
        leavePlugin();
    }
    QOpenGLWidget::leaveEvent(event);
}

void ImageView::hideEvent(QHideEvent* event) {
    cancelDrag();
    leavePlugin();
    QOpenGLWidget::hideEvent(event);
}
