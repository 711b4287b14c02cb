#include "viewer/cameras/Recording.h"

#include "viewer/cameras/FrameTime.h"

quint64 Shot::numberOf(int index) const {
    return index < before ? triggerNumber - quint64(before - index) * quint64(step)
                          : triggerNumber + quint64(index - before);
}

const Shot* Recording::shotOf(int frame, int& index) const {
    index = frame;
    for (const Shot& shot : shots) {
        if (index >= 0 && index < shot.frames()) {
            return &shot;
        }
        index -= shot.frames();
    }
    return nullptr;
}

int Recording::triggerIndex(int frame) const {
    int index = 0;
    const Shot* const shot = shotOf(frame, index);
    return shot ? frame - index + shot->before : 0;
}

qint64 Recording::triggerToEnd(int frame) const {
    int index = 0;
    const Shot* const shot = shotOf(frame, index);
    if (!shot || settings.rate == 0) {
        return 0;
    }
    const Shot& last = shots.last();
    const qint64 end =
        last.origin + FrameTime::startOf(last.triggerNumber + quint64(last.after), settings.rate);
    return end - shot->origin - FrameTime::startOf(shot->triggerNumber, settings.rate);
}
