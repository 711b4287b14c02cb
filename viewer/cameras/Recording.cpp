#include "viewer/cameras/Recording.h"

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
