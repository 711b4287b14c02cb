#pragma once

#include <QObject>

/// Whether the live image runs. It is suspended for changes at the cameras and held while a dialog is open;
/// both count, and the views show their last picture meanwhile.
class LiveImage : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool isRunning() const { return m_suspensions == 0 && m_holds == 0; }
    void suspend() { change(m_suspensions, 1); }
    void resume() { change(m_suspensions, -1); }
    void beginHold() { change(m_holds, 1); }
    void endHold() { change(m_holds, -1); }
    /// Sent with fewer pixels, faster.
    bool isReduced() const { return m_reduced; }
    void setReduced(bool reduced) { m_reduced = reduced; }

signals:
    void runningChanged(bool running);

private:
    void change(int& count, int step) {
        const bool before = isRunning();
        count = qMax(0, count + step);
        if (before != isRunning()) {
            emit runningChanged(isRunning());
        }
    }

    int m_suspensions = 0;
    int m_holds = 0;
    bool m_reduced = false;
};
