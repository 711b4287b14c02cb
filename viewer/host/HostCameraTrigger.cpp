// The trigger.

#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/CameraControlDoor.h"

#include <algorithm>

namespace {
constexpr char kInterface[] = "HostCameraControl";

enum TriggerLock { LockBefore = 0, LockAfter = 1, LockPercent = 2 };

// The frames behind the trigger when the one that is locked holds its value.
int framesAfter(const CameraHead& head, int lock, int before, int after, float percent) {
    const int total = head.totalFrames();
    switch (lock) {
    case LockBefore:
        return total - before;
    case LockPercent:
        return total - int(float(total) * percent / 100 + 0.5F);
    default:
        return after;
    }
}
} // namespace

void CameraControlDoor::applyTrigger(const QList<CameraDocument*>& cameras, int lock, int mode, int before,
                                     int after, float percent) {
    CameraCommands(QStringLiteral("KVC_SetTriggerMode"), [](const CameraHead& head) {
        return QStringLiteral("%1 frames").arg(head.settings().afterFrames);
    }).run(cameras, [&](CameraHead& head) {
        return head.setTrigger(mode, framesAfter(head, lock, before, after, percent));
    });
}

TriggerConfig CameraControlDoor::triggerConfig() const {
    TriggerConfig config;
    config.lock = m_triggerLock;
    if (const HeadSettings* const now = settings()) {
        const int total = head()->totalFrames();
        config.mode = now->triggerMode;
        config.afterFrames = now->afterFrames;
        config.beforeFrames = total - now->afterFrames;
        config.beforePercent = total > 0 ? 100.0F * float(config.beforeFrames) / float(total) : 0;
    }
    return config;
}

void CameraControlDoor::getTriggerParameters(int& afterFrames, int& randomFrames, int& randomTimesMax) {
    OPERATION();
    afterFrames = triggerConfig().afterFrames;
    randomFrames = 0;
    randomTimesMax = 0;
}

int CameraControlDoor::getTriggerMode() {
    OPERATION();
    return settings() ? settings()->triggerMode : 0;
}

bool CameraControlDoor::isTriggerModeDifferent() {
    OPERATION();
    const QList<CameraDocument*> cameras = m_documents.targetCameras();
    return std::any_of(cameras.cbegin(), cameras.cend(), [&cameras](const CameraDocument* camera) {
        return camera->head()->settings().triggerMode != cameras.first()->head()->settings().triggerMode;
    });
}

void CameraControlDoor::getTriggerModeList(QList<int>& list) {
    OPERATION();
    list = head() ? head()->model().triggerModes : QList<int>();
}

void CameraControlDoor::setTriggerModeSimple(int mode, int afterFrames, int randomFrames, int randomCount) {
    OPERATION(mode, afterFrames, randomFrames, randomCount);
    applyTrigger(m_documents.targetCameras(), LockAfter, mode, 0, afterFrames, 0);
}

bool CameraControlDoor::isRandomTimesEnable() {
    OPERATION();
    return false;
}

int CameraControlDoor::getMaxRandomTrgCount() {
    OPERATION();
    return 0;
}

int CameraControlDoor::getMaxRandomEndlessTrgCount() {
    OPERATION();
    return 0;
}

void CameraControlDoor::setRandomTimesEnable(bool enable) {
    OPERATION(enable);
    refuseFunction(QStringLiteral("KVC_SetRandomTriggerTimes"));
}

int CameraControlDoor::getRandomFramesOffset() {
    OPERATION();
    return 0;
}

int CameraControlDoor::getTotalFrames() {
    OPERATION();
    return head() ? head()->totalFrames() : 0;
}

void CameraControlDoor::applyTriggerParameterOf(const QList<DOC_Interface*>& documents, int lock, int mode,
                                                int before, int after, float percent, int randomFrames,
                                                int randomCount) {
    OPERATION(documents, lock, mode, before, after, percent, randomFrames, randomCount);
    applyTrigger(camerasOf(documents), lock, mode, before, after, percent);
}

void CameraControlDoor::applyTriggerParameter(int lock, int mode, int before, int after, float percent,
                                              int randomFrames, int randomCount) {
    OPERATION(lock, mode, before, after, percent, randomFrames, randomCount);
    applyTrigger(m_documents.targetCameras(), lock, mode, before, after, percent);
}

void CameraControlDoor::setTriggerModeParameters(int mode, int before, int after, float percent,
                                                 int randomFrames, int randomCount) {
    OPERATION(mode, before, after, percent, randomFrames, randomCount);
    applyTrigger(m_documents.targetCameras(), LockAfter, mode, before, after, percent);
}

void CameraControlDoor::getTriggerConfig(TriggerConfig& config) {
    OPERATION();
    config = triggerConfig();
}

bool CameraControlDoor::isSameTriggerConfig(const TriggerConfig& a, const TriggerConfig& b) {
    OPERATION();
    return a.mode == b.mode && a.lock == b.lock && a.beforeFrames == b.beforeFrames &&
           a.afterFrames == b.afterFrames && qFuzzyCompare(1 + a.beforePercent, 1 + b.beforePercent) &&
           a.randomFrames == b.randomFrames && a.randomCount == b.randomCount;
}

int CameraControlDoor::existSupportRandomTrgTimes() {
    OPERATION();
    return MULTIPLE_DOCS_NOTHING;
}
