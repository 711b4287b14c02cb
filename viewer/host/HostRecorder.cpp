#include "viewer/host/ViewerHost.h"

namespace {
constexpr char kInterface[] = "HostRecorder";

enum RecordingState { NotRecording = 0, WaitingReady = 1, Ready = 2 };
} // namespace

bool ViewerHost::isRecording() {
    OPERATION();
    return m_cameras.anyInState(CameraState::Recording);
}

int ViewerHost::getRecordingState() {
    OPERATION();
    if (m_cameras.anyInState(CameraState::WaitingReady)) {
        return WaitingReady;
    }
    return m_cameras.anyInState(CameraState::Ready) ? Ready : NotRecording;
}
