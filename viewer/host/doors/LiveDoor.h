#pragma once

#include "viewer/host/doors/RecorderDoor.h"

/// The live image: stopped, held and resumed.
class LiveDoor : public RecorderDoor {
public:
    using RecorderDoor::RecorderDoor;

    void resumeLive() override {
        OPERATION();
        m_documents.live().resume();
    }

    void stopLiveForRefresh(bool wait, bool documents, bool views) override {
        OPERATION(wait, documents, views);
        m_documents.live().suspend();
    }

    void suspendLive(bool wait) override {
        OPERATION(wait);
        m_documents.live().suspend();
    }

    // The simulated cameras go on sending in the new format by themselves.
    bool isRestartNeeded() override { return OPERATION(); }

    void beginLiveHold() override {
        OPERATION();
        m_documents.live().beginHold();
    }

    void endLiveHold() override {
        OPERATION();
        m_documents.live().endHold();
    }

private:
    static constexpr char kInterface[] = "HostLive";
};
