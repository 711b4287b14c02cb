#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/DocumentFace.h"

namespace {
constexpr char kInterface[] = "DOC_Playback";
}

bool LockFace::isQmonLocked() {
    recorder().enter("DOC_Lock", __func__);
    return false;
}

bool PlaybackFace::isPlaying() {
    OPERATION();
    return document().isPlaying();
}

unsigned int PlaybackFace::getPartitionFrames(PARTITIONNUMBER partition, int kind) {
    OPERATION(partition, kind);
    if (head()) {
        return unsigned(head()->recording(partition).frames);
    }
    return partition == 1 ? unsigned(document().recordedFrames()) : 0;
}
