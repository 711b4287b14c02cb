#pragma once

#include "viewer/cameras/settings/TriggerRules.h"
#include "viewer/documents/CameraCommands.h"

/// How the frames before and after the trigger are shared out anew when the memory's length has changed.
class TriggerSharing {
public:
    /// What such a change leaves as it is.
    int lock() const { return m_lock; }
    void setLock(int lock) { m_lock = lock; }

    /// A change that may change the memory's length, and behind it what shares out anew.
    Answer keep(CameraHead& head, const CameraCommands::Command& change) const;

private:
    int m_lock = TriggerRules::LockPercent;
};
