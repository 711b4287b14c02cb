// Draws the rectangle into the host's OpenGL pass, whose coordinates are view pixels. Fixed-function calls,
// since that is the context which hosts of this family paint in.

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/plugin/PLG_Common.h"

#include <QColor>
#include <qopengl.h>

namespace {

/// Below this size in both directions a dashed line shows no dash.
constexpr int kSmallestStippled = 11;
/// Below this size in both directions the outline alone would not be seen.
constexpr int kSmallestWithoutCross = 3;

void setColor(const QColor& color) { glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF()); }

void drawOutline(const QRect& rect) {
    glBegin(GL_LINE_LOOP);
    glVertex2i(rect.left(), rect.bottom());
    glVertex2i(rect.left(), rect.top());
    glVertex2i(rect.right(), rect.top());
    glVertex2i(rect.right(), rect.bottom());
    glEnd();
}

void drawCross(const QPoint& at) {
    glBegin(GL_LINES);
    glVertex2i(at.x() - 1, at.y());
    glVertex2i(at.x() + 1, at.y());
    glVertex2i(at.x(), at.y() - 1);
    glVertex2i(at.x(), at.y() + 1);
    glEnd();
}

} // namespace

void PLG_Common::drawArea(DOC_Interface* document, bool pass, const QRect& area, const QColor* color,
                          float lineWidth, unsigned lineStyle) {
    if (!document || !isAreaShown(document)) {
        return;
    }
    if (m_host->isMultiLock() && m_host->isCurrentDocument(document)) {
        setArea(document, area, false); // the rectangle of every document follows the current one
    }
    const QRect inView = docAs<DOC_Geometry>(document).mapRectToView(area, pass);
    const QColor lineColor = color ? *color : QColor(Qt::white);
    const bool isLarge = inView.width() >= kSmallestStippled || inView.height() >= kSmallestStippled;
    const bool stippled = lineStyle == GL_LINE_STIPPLE && isLarge;
    glLineWidth(lineWidth);
    glEnable(GL_LINE_SMOOTH);
    if (stippled) {
        setColor(Qt::black); // under the dashes, so that they show on any image
        drawOutline(inView);
    }
    setColor(lineColor);
    if (stippled || lineStyle != GL_LINE_STIPPLE) {
        glEnable(lineStyle);
    }
    if (stippled) {
        glLineStipple(1, 0xF0F0);
    }
    if (inView.width() < kSmallestWithoutCross && inView.height() < kSmallestWithoutCross) {
        drawCross(inView.topLeft());
    }
    drawOutline(inView);
    glDisable(lineStyle);
    glDisable(GL_LINE_SMOOTH);
    glLineWidth(1.0F);
    setColor(Qt::white);
}
