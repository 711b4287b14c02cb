#pragma once

#include "tests/unit/viewer_export/MadeFrames.h"

#include <QSemaphore>

#include <atomic>

/// Hands out frames only as far as the test lets it, and counts those that are in somebody's hands.
class HeldSource : public FrameSource {
public:
    explicit HeldSource(int count) {
        m_info = MadeFrames::info();
        m_info.size = QSize(16, 16);
        m_info.frames = count;
    }

    Frame frame(int index) const override {
        gate.acquire();
        if (index == failing) {
            throw RecordingError(RecordingError::While::Reading, QStringLiteral("source"),
                                 reason("The disk is full."));
        }
        ++read;
        Frame frame;
        frame.image = MadeFrames::picture(m_info.size, 8, false, index);
        return frame;
    }

    mutable QSemaphore gate;
    mutable std::atomic<int> read{0};
    int failing = -1;
};
