#pragma once

#include "livecontrol/interface/RUN_ObservePhaseAdjustWarningThread.h"

#include <QList>

class CameraDocument;
class DocumentList;

/// Watches the phase of the links to the cameras, and adjusts it. The warning comes from the observer's own
/// thread, as it would with cameras that have to be asked.
class LinkWatch : public QObject {
    Q_OBJECT

public:
    /// The list is not owned and outlives it.
    explicit LinkWatch(DocumentList& documents);
    ~LinkWatch() override;

    RUN_ObservePhaseAdjustWarningThread& observer() { return m_observer; }
    /// The connected cameras whose link can be adjusted: all of them, selected or not, since cameras share
    /// their links and the warning is about any.
    QList<CameraDocument*> cameras() const;
    /// Adjusts their links. Throws CameraFailure.
    void adjust();
    bool isAdjusting() const { return m_isAdjusting; }

private:
    void watch();

    DocumentList& m_documents;
    RUN_ObservePhaseAdjustWarningThread m_observer;
    QObject m_inThread; // lives in that thread
    bool m_warns = false;
    bool m_isAdjusting = false;
};
