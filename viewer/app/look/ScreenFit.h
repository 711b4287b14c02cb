#pragma once

#include <QObject>
#include <QSize>

class QWidget;

/// What a window may fill of its screen, without its frame. The window system tells how thick that is only
/// once the window stands, so the style's measure serves.
QSize freeSize(const QWidget& window);

/// Makes dialogs that are larger than the screen, as at a scale of 200 %, as small as it: their pages scroll
/// then. An event filter of the application.
class ScreenFit : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
