#pragma once

#include "livecontrol/interface/JS_Mediator.h"

/// The mediator of a dialog's page. A page ends its dialog by emitting `accept` or `reject`.
class JS_Mediator_Dialog : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;

signals:
    void accept();
    void reject();
    /// The dialog was rejected, whatever the way: by the page or by its close button.
    void rejected();

public slots:
    /// Size of the dialog, pixels; -1 if the dialog tells none.
    int getHeight() { return m_height; }
    int getWidth() { return m_width; }

protected:
    int m_width = -1;
    int m_height = -1;
};
