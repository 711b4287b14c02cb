#include "livecontrol/foundation/LiveSuspendGuard.h"

#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"

#include <QMutex>

namespace {
constexpr int kTryLockMs = 1;
}

LiveSuspendGuard::LiveSuspendGuard(HostObject* host, bool refreshSettings, bool restartTransfer)
    : m_host(host), m_refreshSettings(refreshSettings), m_restartTransfer(restartTransfer) {
    QMutex* const mutex = m_host->getDocumentMutex();
    if (mutex && mutex->tryLock(kTryLockMs)) {
        m_mutex = mutex;
    }
    try {
        suspend();
    } catch (...) {
        if (m_mutex) {
            m_mutex->unlock();
        }
        throw;
    }
}

void LiveSuspendGuard::suspend() {
    if (!m_host->isLiveMode()) {
        m_host->pausePlayback();
    } else if (m_refreshSettings) {
        m_host->prepareRefreshDocuments();
        m_host->prepareRefreshViews();
        m_host->stopLiveForRefresh(false, true, true);
    } else {
        m_host->suspendLive(false);
    }
}

LiveSuspendGuard::~LiveSuspendGuard() {
    reportingFailures(m_host, [this] { resume(); }); // an end of a scope has nobody to throw to
    if (m_mutex) {
        m_mutex->unlock();
    }
}

void LiveSuspendGuard::resume() {
    if (!m_host->isLiveMode()) {
        m_host->resumePlayback();
        return;
    }
    // A camera that can't restart must not keep the live image of the others suspended.
    reportingFailures(m_host, [this] {
        if (m_restartTransfer && m_host->isRestartNeeded()) {
            restartSelected();
        }
    });
    m_host->resumeLive();
    if (m_refreshSettings) {
        m_host->refreshDocuments();
        m_host->refreshViews();
    }
}

void LiveSuspendGuard::restartSelected() {
    const QList<DOCKEY> keys = m_host->getSelectedCameraKeys(0);
    for (const DOCKEY key : keys) {
        reportingFailures(m_host, [this, key] {
            if (DOC_Interface* const document = m_host->docByKey(key, true)) {
                docAs<DOC_Transfer>(document).restartTransfer(true);
            }
        });
    }
}
