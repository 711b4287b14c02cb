#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class DocumentList;

/// The beat of all views: about 30 a second, slower when drawing takes long, so that drawing never eats more
/// than half of the GUI thread. Moves the replay of recordings on, too. Without a listener in sight it costs
/// nothing but a timer.
class FrameTimer : public QObject {
    Q_OBJECT

public:
    static constexpr int PeriodMs = 33;
    static constexpr int LongestPeriodMs = 1000;

    explicit FrameTimer(DocumentList& documents, QObject* parent = nullptr);

    /// The time between two beats while drawing is quick, in ms, at least 1 and at most LongestPeriodMs.
    void setPeriod(int ms) { m_period = qBound(1, ms, LongestPeriodMs); }
    /// The time between the last beat and the next one, in ms.
    int interval() const { return m_timer.interval(); }
    /// Frames a second of a replay, whatever the rate of the recording.
    void setPlaybackRate(int framesPerSecond) { m_playbackRate = qBound(1, framesPerSecond, 240); }
    int playbackRate() const { return m_playbackRate; }
    /// A view tells what its drawing took, in nanoseconds.
    void spent(qint64 nanoseconds) { m_spent += nanoseconds; }
    /// How long to wait for the next beat when drawing took that many nanoseconds since the last one, in ms;
    /// `period` is what it is while drawing is quick.
    static int nextPeriod(qint64 spentNs, int period = PeriodMs);

signals:
    void beat();

private:
    void onTimer();
    void movePlayback();

    DocumentList& m_documents;
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_spent = 0;
    int m_period = PeriodMs;
    int m_playbackRate = 30;
    double m_framesDue = 0; // the part of a frame that the replay owes since the last beat
};
