#pragma once

#include <QObject>

/// Makes dialogs that are larger than the screen, as at a scale of 200 %, as small as it: their pages scroll
/// then. An event filter of the application.
class ScreenFit : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
