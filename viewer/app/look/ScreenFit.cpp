#include "viewer/app/look/ScreenFit.h"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QStyle>

QSize freeSize(const QWidget& window) {
    const int edge = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return window.screen()->availableGeometry().size() - QSize(2 * edge, title + edge);
}

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog && dialog->isWindow()) {
        const QSize free = freeSize(*dialog);
        const QSize size = dialog->size().boundedTo(free);
        if (size != dialog->size()) {
            dialog->setMinimumSize(dialog->minimumSize().boundedTo(free));
            dialog->setMaximumSize(dialog->maximumSize().boundedTo(free));
            dialog->resize(size);
            dialog->move(dialog->screen()->availableGeometry().topLeft() +
                         QPoint((free.width() - size.width()) / 2, 0));
        }
    }
    return QObject::eventFilter(watched, event);
}
