#pragma once

#include <QProxyStyle>

/// Fusion with a button for what a tool bar has no room for, with check boxes and radio buttons whose frame
/// can be seen on a dark ground, and without icons on the buttons of dialogs.
class ViewerStyle : public QProxyStyle {
    Q_OBJECT

public:
    ViewerStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
};
