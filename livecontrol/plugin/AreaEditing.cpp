// The edit of the rectangle on the image with mouse and keyboard. A drag is one undo step.

#include "livecontrol/foundation/DocumentScale.h"
#include "livecontrol/foundation/UTL_Cursors.h"
#include "livecontrol/interface/DOC_Display.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/plugin/PLG_Common.h"

#include <QKeyEvent>
#include <algorithm>
#include <cmath>

namespace {

/// Distance from a line that still counts as on it, in view pixels at a zoom of 1.
constexpr double kHitMargin = 5.0;

area::Orientation orientationOf(DOC_Interface* document) {
    auto& display = docAs<DOC_Display>(document);
    const int degrees = area::roundHalfUp(display.getRotation() * 360.0F);
    return {((degrees % 360) + 360) % 360, display.isFlipA(), display.isFlipB()};
}

int hitMargin(DOC_Interface* document) {
    const float zoom = docAs<DOC_Display>(document).getZoomFactor(true);
    return zoom > 0 ? std::max(1, static_cast<int>(kHitMargin / zoom)) : 1;
}

QSize imageSizeOf(DOC_Interface* document) { return docAs<DOC_Geometry>(document).getImageSize(); }

} // namespace

bool PLG_Common::canEditArea(DOC_Interface* document) {
    return isAreaEditable(document) && !m_host->isToolActive(QStringLiteral("t_crosscursor"));
}

DOC_Interface* PLG_Common::ownDocument(DOCKEY key) {
    return hasDocument(key) ? m_host->docByKey(key, true) : nullptr;
}

area::Limits PLG_Common::areaLimits(DOC_Interface* document) {
    const int scale = documentScale(m_host, document);
    area::Limits limits{m_posStep * scale, m_sizeStep * scale, m_maxSize * scale,
                        m_minSize * scale, m_centerX,          m_centerY};
    if (docAs<DOC_Geometry>(document).isAxisSwapped()) {
        limits.posStep = QPoint(limits.posStep.y(), limits.posStep.x());
        limits.sizeStep.transpose();
        limits.maxSize.transpose();
        limits.minSize.transpose();
    }
    return limits;
}

QRect PLG_Common::getAreaInImage(DOC_Interface* document, const QRect& area) {
    if (!document) {
        return area;
    }
    return called(
        "getAreaInImage",
        [&] {
            const int scale = std::max(1, documentScale(m_host, document));
            return QRect(area.left() / scale, area.top() / scale, std::max(1, area.width() / scale),
                         std::max(1, area.height() / scale));
        },
        area);
}

void PLG_Common::mousePress(const QPoint& pos, DOCKEY key) {
    called("mousePress", [&] { beginDrag(pos, key); });
}

void PLG_Common::mouseMove(const QPoint& pos, DOCKEY key) {
    called("mouseMove", [&] { drag(pos, key); });
}

void PLG_Common::mouseRelease(const QPoint& /*pos*/, DOCKEY key) {
    called("mouseRelease", [&] { endDrag(key); });
}

void PLG_Common::keyPress(QKeyEvent* event) {
    m_keyHeld = true;
    if (event) {
        called("keyPress", [&] { moveByKey(*event); });
    }
}

void PLG_Common::beginDrag(const QPoint& pos, DOCKEY key) {
    m_dragDirection = 4;
    DOC_Interface* const document = ownDocument(key);
    if (!document) {
        return;
    }
    m_host->beginMacro(QString());
    m_dragging = true;
    m_pressPos = pos;
    m_lastPos = pos;
    if (canEditArea(document)) {
        m_pressArea = getArea();
        const QRect inView = docAs<DOC_Geometry>(document).mapRectToView(m_pressArea, true);
        m_handle = area::hitTest(pos, inView, hitMargin(document), orientationOf(document));
    }
}

void PLG_Common::drag(const QPoint& pos, DOCKEY key) {
    DOC_Interface* const document = ownDocument(key);
    if (!document) {
        return;
    }
    m_lastPos = pos;
    auto& geometry = docAs<DOC_Geometry>(document);
    const QPoint onImage = geometry.mapViewToImage(pos, true);
    geometry.setPointerPos(onImage);
    m_pointerDocKey = key;
    if (!canEditArea(document)) {
        return;
    }
    if (!m_dragging) {
        const QRect inView = geometry.mapRectToView(getArea(), true);
        setCursorForHandle(document,
                           area::hitTest(pos, inView, hitMargin(document), orientationOf(document)));
        return;
    }
    QRect changed = getArea();
    if (m_handle == area::Inside) {
        const QPoint travel = onImage - geometry.mapViewToImage(m_pressPos, true);
        changed.moveCenter(m_pressArea.center() + travel);
    } else {
        changed = area::moveEdges(m_handle, changed, onImage, imageSizeOf(document), areaLimits(document));
    }
    commitArea(document, m_handle, changed, m_pressArea);
}

// A drag ends also if its document has gone: the steps that follow are none of its own.
void PLG_Common::endDrag(DOCKEY key) {
    DOC_Interface* const document = ownDocument(key);
    if (!document && !m_dragging) {
        return;
    }
    m_dragging = false;
    m_handle = area::None;
    m_dragDirection = 4;
    restoreCursor();
    m_host->endMacro();
    if (document && m_refreshOnAreaChange) {
        repaintAfterAreaChange(document);
    }
}

void PLG_Common::moveByKey(const QKeyEvent& event) {
    DOC_Interface* const document = m_host->currentDocument();
    if (!document || !canEditArea(document)) {
        return;
    }
    const int arrow = area::arrowOnImage(event.key(), orientationOf(document));
    if (arrow == 0) {
        return;
    }
    const area::Limits limits = areaLimits(document);
    const QRect before = getArea();
    QRect changed = before;
    int handle = area::Inside;
    if (event.modifiers() & Qt::ShiftModifier) {
        changed = area::stepEdge(arrow, event.modifiers() & Qt::ControlModifier, before,
                                 imageSizeOf(document), limits);
        handle = arrow == Qt::Key_Left    ? area::Left
                 : arrow == Qt::Key_Right ? area::Right
                 : arrow == Qt::Key_Up    ? area::Top
                                          : area::Bottom;
    } else if (arrow == Qt::Key_Left || arrow == Qt::Key_Right) {
        changed.translate(arrow == Qt::Key_Left ? -limits.posStep.x() : limits.posStep.x(), 0);
    } else {
        changed.translate(0, arrow == Qt::Key_Up ? -limits.posStep.y() : limits.posStep.y());
    }
    m_dragDirection = 4;
    commitArea(document, handle, changed, before);
}

void PLG_Common::commitArea(DOC_Interface* document, int handle, const QRect& changed, const QRect& pressed) {
    const QRect result =
        area::constrain(handle, changed, pressed, imageSizeOf(document), areaLimits(document));
    if (result.width() > 0 && result.height() > 0) {
        setArea(document, result, true);
    }
    if (m_refreshOnAreaChange) {
        repaintAfterAreaChange(document);
    }
}

void PLG_Common::repaintAfterAreaChange(DOC_Interface* document) {
    if (m_refreshAllOnMultiLock && m_host->isMultiLock()) {
        m_host->updateAll(1, false);
    } else {
        document->repaint(1, false);
    }
    m_host->updateAll(4, false);
}

void PLG_Common::setCursorForHandle(DOC_Interface* document, int handle) {
    const bool swapped = docAs<DOC_Geometry>(document).isAxisSwapped();
    const area::Orientation orientation = orientationOf(document);
    const bool even = (int(swapped) + int(orientation.flipA) + int(orientation.flipB)) % 2 == 0;
    switch (handle) {
    case area::Top:
    case area::Bottom:
        swapped ? setSizeHorCursor(true) : setSizeVerCursor(true);
        break;
    case area::Left:
    case area::Right:
        swapped ? setSizeVerCursor(true) : setSizeHorCursor(true);
        break;
    case area::TopLeft:
    case area::BottomRight:
        even ? setSizeFDiagCursor(true) : setSizeBDiagCursor(true);
        break;
    case area::TopRight:
    case area::BottomLeft:
        even ? setSizeBDiagCursor(true) : setSizeFDiagCursor(true);
        break;
    case area::Inside:
        setSizeAllCursor(true);
        break;
    default:
        restoreCursor();
        break;
    }
}
