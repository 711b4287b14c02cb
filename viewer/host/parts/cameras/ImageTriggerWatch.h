#pragma once

#include "viewer/cameras/CameraHead.h"

#include <QPointer>

/// Observes what the image trigger of one head judges, and no other's.
class ImageTriggerWatch : public QObject {
    Q_OBJECT

public:
    /// Null ends it.
    void watch(CameraHead* head) {
        if (m_head == head) {
            return;
        }
        if (m_head) {
            m_head->observeImage(false); // which is the last that is heard of it
            m_head->disconnect(this);
        }
        m_head = head;
        if (head) {
            connect(head, &CameraHead::imageTriggerChanged, this, &ImageTriggerWatch::changed);
            head->observeImage(true);
        }
    }

signals:
    void changed();

private:
    QPointer<CameraHead> m_head;
};
