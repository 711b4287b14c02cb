#include "viewer/host/doors/CameraTriggerDoor.h"

#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CommandKeys.h"
#include "viewer/cameras/settings/TriggerRules.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/SettingText.h"
#include "viewer/messages/Translated.h"

#include <QSet>

#include <algorithm>

QString CameraTriggerDoor::valuesText(const CameraHead& head) {
    const HeadSettings& now = head.settings();
    return QStringLiteral("%1 frames after the trigger, %2 random frames, %3 recordings")
        .arg(now.afterFrames)
        .arg(now.randomFrames)
        .arg(now.randomCount);
}

void CameraTriggerDoor::applyTrigger(const QList<CameraDocument*>& cameras, const TriggerConfig& wish,
                                     const CameraCommands::Taken& taken) {
    CameraCommands(CommandKey::SetTrigger, taken).run(cameras, [&](CameraHead& head) {
        const int limit = TriggerRules::limit(wish.mode, wish.randomFrames, head.totalFrames());
        const int after = TriggerRules::framesAfter(limit, wish.lock, wish.beforeFrames, wish.afterFrames,
                                                    double(wish.beforePercent));
        return head.setTrigger(wish.mode, after, wish.randomFrames, wish.randomCount);
    });
}

// The numbers come along with the mode, from a camera that may hold more: nobody asked for them. A mode that
// has been chosen before has its own back; what another one cuts of them is told.
void CameraTriggerDoor::setTriggerModeParameters(int mode, int before, int after, float percent,
                                                 int randomFrames, int randomCount) {
    OPERATION(mode, before, after, percent, randomFrames, randomCount);
    const QList<CameraDocument*> cameras = m_cameras.all();
    const TriggerConfig wish{mode,       TriggerRules::LockAfter, before, after, percent, 0, randomFrames,
                             randomCount};
    QSet<DOCKEY> withOwn;
    for (const CameraDocument* const camera : cameras) {
        if (m_triggerSharing.hasOwn(*camera->head(), mode)) {
            withOwn.insert(camera->key());
        }
    }
    const auto cut = [withOwn](const CameraDocument& camera, const HeadSettings& was) {
        const HeadSettings& now = camera.head()->settings();
        const bool isCut = now.triggerMode != was.triggerMode && TriggerRules::isShared(was.triggerMode) &&
                           TriggerRules::isShared(now.triggerMode) && now.afterFrames < was.afterFrames &&
                           !withOwn.contains(camera.key());
        return isCut ? changeLine(translated("After trigger"), QString::number(was.afterFrames),
                                  QString::number(now.afterFrames))
                     : QString();
    };
    m_changeNotes.during(
        cameras, {QStringLiteral("triggerMode")}, [&] { changeMode(cameras, wish); }, cut);
}

void CameraTriggerDoor::changeMode(const QList<CameraDocument*>& cameras, const TriggerConfig& wish) {
    CameraCommands(CommandKey::SetTrigger).run(cameras, [&](CameraHead& head) {
        int after = wish.afterFrames;
        if (head.settings().triggerMode != wish.mode) {
            const int frames = wish.randomFrames > 0 ? wish.randomFrames : head.settings().randomFrames;
            const int limit = TriggerRules::limit(wish.mode, frames, head.totalFrames());
            m_triggerSharing.leaveMode(head);
            after = m_triggerSharing.afterIn(head, wish.mode, limit, after);
        }
        return head.setTrigger(wish.mode, after, wish.randomFrames, wish.randomCount);
    });
}

TriggerConfig CameraTriggerDoor::triggerConfig() const {
    TriggerConfig config;
    config.lock = m_triggerSharing.lock();
    if (const HeadSettings* const now = settings()) {
        const int limit = head()->triggerLimit();
        config.mode = now->triggerMode;
        config.afterFrames = now->afterFrames;
        config.beforeFrames = limit - now->afterFrames;
        config.beforePercent = limit > 0 ? 100.0F * float(config.beforeFrames) / float(limit) : 0;
        config.randomFrames = now->randomFrames;
        config.randomCount = now->randomCount;
    }
    return config;
}

bool CameraTriggerDoor::isTriggerModeDifferent() {
    OPERATION();
    const QList<CameraDocument*> cameras = m_cameras.all();
    return std::any_of(cameras.cbegin(), cameras.cend(), [&cameras](const CameraDocument* camera) {
        return camera->head()->settings().triggerMode != cameras.first()->head()->settings().triggerMode;
    });
}

// Comes with every change of the trigger, of cameras too that count no random recordings: those are left out.
void CameraTriggerDoor::setRandomTimesEnable(bool enable) {
    OPERATION(enable);
    const QList<CameraDocument*> cameras =
        filterCameras(m_cameras.all(), [enable](const CameraDocument& camera) {
            const CameraHead& head = *camera.head();
            return head.model().supports(CameraFunction::RandomTimes) &&
                   head.settings().randomTimes != enable;
        });
    CameraCommands().run(cameras, [enable](CameraHead& head) { return head.setRandomTimes(enable); });
}

bool CameraTriggerDoor::isSameTriggerConfig(const TriggerConfig& a, const TriggerConfig& b) {
    OPERATION();
    return a.mode == b.mode && a.lock == b.lock && a.beforeFrames == b.beforeFrames &&
           a.afterFrames == b.afterFrames && qFuzzyCompare(1 + a.beforePercent, 1 + b.beforePercent) &&
           a.randomFrames == b.randomFrames && a.randomCount == b.randomCount;
}
