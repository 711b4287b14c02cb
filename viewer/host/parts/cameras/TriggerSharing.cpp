#include "viewer/host/parts/cameras/TriggerSharing.h"

Answer TriggerSharing::keep(CameraHead& head, const CameraCommands::Command& change) const {
    const int limit = head.triggerLimit();
    const int after = head.settings().afterFrames;
    return change(head).then([&head, limit, after, lock = m_lock](CommandResult result) {
        const HeadSettings& now = head.settings();
        if (limit <= 0 || head.triggerLimit() == limit || !TriggerRules::isShared(now.triggerMode)) {
            return Answer(result);
        }
        const int fitting = TriggerRules::sharedAnew(head.triggerLimit(), lock, limit, after);
        return fitting == now.afterFrames
                   ? Answer(result)
                   : head.setTrigger(now.triggerMode, fitting).then([result](CommandResult) {
                         return Answer(result);
                     });
    });
}
