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

void TriggerSharing::leaveMode(CameraHead& head) {
    const HeadSettings& now = head.settings();
    if (!TriggerRules::isShared(now.triggerMode) || head.triggerLimit() <= 0) {
        return;
    }
    Own& own = m_own[&head];
    if (own.head != &head) {
        own = {&head, {}};
    }
    own.shares.insert(now.triggerMode, {head.triggerLimit(), now.afterFrames});
}

bool TriggerSharing::hasOwn(CameraHead& head, int mode) const {
    const auto own = m_own.constFind(&head);
    return own != m_own.cend() && own->head == &head && own->shares.contains(mode);
}

int TriggerSharing::afterIn(CameraHead& head, int mode, int limit, int wish) const {
    if (!hasOwn(head, mode) || limit <= 0) {
        return wish;
    }
    const Share share = m_own.value(&head).shares.value(mode);
    return share.limit == limit ? share.after
                                : TriggerRules::sharedAnew(limit, m_lock, share.limit, share.after);
}
