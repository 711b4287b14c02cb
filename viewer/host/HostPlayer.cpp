#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostPlayer";
}

void ViewerHost::pausePlayback() {
    OPERATION();
    if (m_pauses++ > 0) {
        return;
    }
    for (Document* const document : m_documents.documents()) {
        if (document->isPlaying()) {
            m_paused.append(document->key());
            document->setPlaying(false);
        }
    }
}

void ViewerHost::resumePlayback() {
    OPERATION();
    if (m_pauses == 0 || --m_pauses > 0) {
        return;
    }
    for (const DOCKEY key : qAsConst(m_paused)) {
        if (Document* const document = m_documents.find(key)) {
            document->setPlaying(true);
        }
    }
    m_paused.clear();
}

void ViewerHost::importTargets(const QList<DOCKEY>& keys) { OPERATION(keys); }
