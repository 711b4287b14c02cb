#pragma once

#include "viewer/cameras/settings/TriggerRules.h"
#include "viewer/documents/commands/CameraCommands.h"

#include <QHash>
#include <QPointer>

/// How the frames before and after the trigger are shared out anew when the memory's length has changed, and
/// what each mode that shares them out had when another one was chosen.
class TriggerSharing {
public:
    /// What such a change leaves as it is.
    int lock() const { return m_lock; }
    void setLock(int lock) { m_lock = lock; }

    /// A change that may change the memory's length, and behind it what shares out anew.
    Answer keep(CameraHead& head, const CameraCommands::Command& change) const;

    /// Another mode is going to be chosen: the present one keeps its share at this head.
    void leaveMode(CameraHead& head);
    /// Whether the mode has kept a share at this head.
    bool hasOwn(CameraHead& head, int mode) const;
    /// The frames after the trigger that a mode begins with, out of a limit: its own, or else those of a
    /// wish.
    int afterIn(CameraHead& head, int mode, int limit, int wish) const;

private:
    struct Share {
        int limit = 0;
        int after = 0;
    };
    /// By mode; of a head, for as long as it lives.
    struct Own {
        QPointer<CameraHead> head;
        QHash<int, Share> shares;
    };

    QHash<const CameraHead*, Own> m_own;
    int m_lock = TriggerRules::LockPercent;
};
