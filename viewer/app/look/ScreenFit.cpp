#include "viewer/app/look/ScreenFit.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QStyle>

// The window system tells how thick a frame is only once the window stands, so the style's measure serves.
bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog && dialog->isWindow()) {
        const QRect screen = dialog->screen()->availableGeometry();
        const int edge = dialog->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, dialog);
        const int title = dialog->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, dialog);
        const QSize free = screen.size() - QSize(2 * edge, title + edge);
        const QSize size = dialog->size().boundedTo(free);
        if (size != dialog->size()) {
            dialog->setMinimumSize(dialog->minimumSize().boundedTo(free));
            dialog->setMaximumSize(dialog->maximumSize().boundedTo(free));
            dialog->resize(size);
            dialog->move(screen.topLeft() + QPoint((free.width() - size.width()) / 2, 0));
        }
    }
    return QObject::eventFilter(watched, event);
}
