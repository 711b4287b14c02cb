#pragma once

#include "viewer/host/doors/LiveDoor.h"

/// Recordings that play.
class PlayerDoor : public LiveDoor {
public:
    using LiveDoor::LiveDoor;

    void pausePlayback() override {
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

    void resumePlayback() override {
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

    void importTargets(const QList<DOCKEY>& keys) override {
        OPERATION(keys);
        m_temporary.keep(keys);
        QList<Document*> taken;
        for (const DOCKEY key : keys) {
            if (Document* const document = m_documents.find(key)) {
                document->setSelected(true);
                taken.append(document);
            }
        }
        if (!taken.isEmpty()) {
            m_documents.setCurrent(taken.first()); // what was opened is what one wants to see
        }
    }

private:
    static constexpr char kInterface[] = "HostPlayer";

    QList<DOCKEY> m_paused; // documents that played when playback was paused
    int m_pauses = 0;
};
