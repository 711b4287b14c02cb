#include "viewer/views/MarkSlider.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace {
const QColor kMark(255, 176, 32);
constexpr int kWidth = 2;
} // namespace

void MarkSlider::setMarks(const QVector<int>& marks) {
    if (marks != m_marks) {
        m_marks = marks;
        update();
    }
}

int MarkSlider::placeOf(int frame) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).width();
    return groove.left() + handle / 2 +
           QStyle::sliderPositionFromValue(minimum(), maximum(), frame, groove.width() - handle);
}

void MarkSlider::paintEvent(QPaintEvent* event) {
    QSlider::paintEvent(event);
    QPainter painter(this);
    for (const int mark : qAsConst(m_marks)) {
        if (mark >= minimum() && mark <= maximum()) {
            painter.fillRect(placeOf(mark) - kWidth / 2, 0, kWidth, height(), kMark);
        }
    }
}
