#include "viewer/app/look/ViewerStyle.h"

#include "viewer/app/look/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

static QPainterPath tickIn(const QRectF& box) {
    QPainterPath tick(box.topLeft() + QPointF(box.width() * 0.22, box.height() * 0.52));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.42, box.height() * 0.74));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.80, box.height() * 0.27));
    return tick;
}

ViewerStyle::ViewerStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ViewerStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool enabled = (option->state & State_Enabled) != 0;
    const bool on = (option->state & State_On) != 0;
    const bool focus =
        (option->state & State_HasFocus) != 0 && (option->state & State_KeyboardFocusChange) != 0;
    const QPalette& palette = option->palette;
    const QRectF box = QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5);
    const QColor mark = palette.color(enabled ? QPalette::HighlightedText : QPalette::WindowText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(focus ? palette.color(QPalette::Link) : palette.color(QPalette::Midlight));
    painter->setBrush(palette.color(on && enabled ? QPalette::Highlight : QPalette::Base));
    if (element == PE_IndicatorRadioButton) {
        painter->drawEllipse(box);
        if (on) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(mark);
            painter->drawEllipse(box.center(), box.width() * 0.22, box.height() * 0.22);
        }
    } else {
        painter->drawRoundedRect(box, 2, 2);
        if (on) {
            painter->setPen(QPen(mark, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter->setBrush(Qt::NoBrush);
            painter->drawPath(tickIn(box));
        }
    }
    painter->restore();
}

// The one of the style below is black, and too small to be seen or hit.
QIcon ViewerStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                const QWidget* widget) const {
    return standardIcon == SP_ToolBarHorizontalExtensionButton
               ? Icons::get(QStringLiteral("more"))
               : QProxyStyle::standardIcon(standardIcon, option, widget);
}

int ViewerStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    constexpr int kExtension = 28;
    return metric == PM_ToolBarExtensionExtent ? kExtension
                                               : QProxyStyle::pixelMetric(metric, option, widget);
}

int ViewerStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
