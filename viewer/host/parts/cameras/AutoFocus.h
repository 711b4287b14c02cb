#pragma once

#include "viewer/cameras/CameraBody.h"

#include <QObject>
#include <QPointer>

/// Finds the place of a lens's focus at which the picture is sharpest: once along the whole range in large
/// steps, then round the best of them in small ones. Whoever else drives the lens meanwhile ends the search.
class AutoFocus : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool isRunning() const { return m_head; }
    /// The camera that it works on; null while it doesn't.
    CameraHead* head() const { return m_head; }
    /// Throws CameraError if the lens refuses; begins anew if it runs.
    void start(CameraHead* head);

signals:
    /// It ended, for that reason if it failed; without one as well when the camera was removed. The focus
    /// stands at its best place, where it was stopped, or after a failure where it began if it takes that.
    void ended(const QString& camera, const Reason& failure);

private:
    void setRange(int from, int to);
    void moveTo(int place);
    void measureAtRest();
    void measure();
    void beginRound(int from, int to);
    bool isDisturbed() const;
    void goBack();
    void end(const Reason& failure);

    QPointer<CameraHead> m_head;
    QString m_name;
    int m_run = 0; ///< counts the starts: what an earlier one still waits for is not meant for this one
    int m_round = 0;
    int m_place = 0;
    int m_last = 0;
    int m_step = 0;
    int m_best = 0;
    int m_begin = 0; // where the focus stood
    CameraState m_state = CameraState::Live;
    int m_iris = 0;
    int m_zoom = 0;
    double m_sharpest = 0;
};
