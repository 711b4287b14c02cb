#pragma once

#include "viewer/host/HostParts.h"

/// How far the recording is.
class RecorderDoor : public HostParts {
public:
    using HostParts::HostParts;

    bool isRecording() override {
        OPERATION();
        return m_cameras.anyInState(CameraState::Recording);
    }

    int getRecordingState() override {
        OPERATION();
        if (m_cameras.anyInState(CameraState::WaitingReady)) {
            return WaitingReady;
        }
        return m_cameras.anyInState(CameraState::Ready) ? Ready : NotRecording;
    }

private:
    enum RecordingState { NotRecording = 0, WaitingReady = 1, Ready = 2 };

    static constexpr char kInterface[] = "HostRecorder";
};
