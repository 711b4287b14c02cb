#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/adapters/DocumentAdapter.h"

namespace {
constexpr char kInterface[] = "DOC_Playback";
}

bool LockFace::isQmonLocked() {
    recorder().enter("DOC_Lock", __func__);
    return false;
}

bool PlaybackAdapter::isPlaying() {
    OPERATION();
    return document().isPlaying();
}

unsigned int PlaybackAdapter::getPartitionFrames(PARTITIONNUMBER partition, int kind) {
    OPERATION(partition, kind);
    if (head()) {
        const bool isLive = list().mode() == HOST_MODE_LIVE; // as many as the rows of a save tell
        return unsigned(isLive ? head()->totalFrames() : head()->recording(partition).frames);
    }
    return partition == 1 ? unsigned(document().recordedFrames()) : 0;
}
