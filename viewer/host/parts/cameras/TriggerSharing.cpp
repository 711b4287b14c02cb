#include "viewer/host/parts/cameras/TriggerSharing.h"

CommandResult TriggerSharing::keep(CameraHead& head, const CameraCommands::Command& change) const {
    const int limit = head.triggerLimit();
    const int after = head.settings().afterFrames;
    const CommandResult result = awaited(change(head));
    const HeadSettings& now = head.settings();
    if (limit > 0 && head.triggerLimit() != limit && TriggerRules::isShared(now.triggerMode)) {
        const int fitting = TriggerRules::sharedAnew(head.triggerLimit(), m_lock, limit, after);
        if (fitting != now.afterFrames) {
            awaited(head.setTrigger(now.triggerMode, fitting));
        }
    }
    return result;
}
