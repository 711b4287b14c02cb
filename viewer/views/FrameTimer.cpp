#include "viewer/views/FrameTimer.h"

#include "viewer/documents/DocumentList.h"

FrameTimer::FrameTimer(DocumentList& documents, QObject* parent) : QObject(parent), m_documents(documents) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FrameTimer::onTimer);
    m_clock.start();
    m_timer.start(PeriodMs);
}

int FrameTimer::nextPeriod(qint64 spentNs, int period) {
    return qBound(period, static_cast<int>(2 * spentNs / 1000000), LongestPeriodMs);
}

void FrameTimer::onTimer() {
    movePlayback();
    // The drawing that this beat causes comes later, in the views' own paint events.
    m_timer.start(nextPeriod(m_spent, m_period));
    m_spent = 0;
    emit beat();
}

void FrameTimer::movePlayback() {
    m_framesDue += qMin<qint64>(m_clock.restart(), LongestPeriodMs) * m_playbackRate / 1000.0;
    const int steps = static_cast<int>(m_framesDue);
    m_framesDue -= steps;
    if (steps == 0 || m_documents.mode() == HOST_MODE_LIVE) {
        return;
    }
    for (Document* const document : m_documents.documents()) {
        if (document->isPlaying() && document->recordedFrames() > 0) {
            document->playOn(steps);
        }
    }
}
