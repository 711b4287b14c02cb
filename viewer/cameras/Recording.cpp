#include "viewer/cameras/Recording.h"

quint64 Take::numberOf(int index) const {
    return index < before ? triggerNumber - quint64(before - index) * quint64(step)
                          : triggerNumber + quint64(index - before);
}

const Take* Recording::takeOf(int frame, int& index) const {
    index = frame;
    for (const Take& take : takes) {
        if (index >= 0 && index < take.frames()) {
            return &take;
        }
        index -= take.frames();
    }
    return nullptr;
}

int Recording::triggerIndex(int frame) const {
    int index = 0;
    const Take* const take = takeOf(frame, index);
    return take ? frame - index + take->before : 0;
}
