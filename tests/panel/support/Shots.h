#pragma once

#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/RecordingShelf.h"

#include <QFile>
#include <QtTest>

#include <ctime>
#include <unistd.h>

/// All cameras record a few frames, which are kept if the preferences say so; the rig's time is the real one.
inline void shootWithAll(Viewer& viewer) {
    viewer.recording().setMode(HOST_MODE_LIVE);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.panelView().isPageOpen(), 20000);
    QList<Document*> cameras;
    for (CameraDocument* const camera : viewer.documents().cameras()) {
        if (camera->isConnected()) {
            cameras.append(camera);
            camera->head()->setTrigger(TriggerStart, 1).result();
        }
    }
    viewer.documents().setSelection(cameras);
    viewer.recording().ready();
    QTRY_VERIFY_WITH_TIMEOUT(!viewer.recording().isAny(CameraState::WaitingReady), 60000);
    viewer.recording().record();
    constexpr int kWanted = 200; // frames
    const auto hasEnough = [&] {
        const QList<CameraDocument*> all = viewer.documents().cameras();
        return std::all_of(all.begin(), all.end(), [](const CameraDocument* camera) {
            const CameraHead& head = *camera->head();
            const double rest = head.shotProgress().restMs * head.settings().rate / 1000;
            return !camera->isConnected() || (rest > 0 && head.totalFrames() - rest > kWanted);
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasEnough(), 20000);
    viewer.recording().stop();
    QTRY_VERIFY_WITH_TIMEOUT(viewer.recording().isAny(CameraState::Memory), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(!viewer.recordings().isKeeping(), 60000);
}

inline qint64 residentBytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly)
               ? file.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE)
               : 0;
}

/// What the calling thread has computed so far; other programs on the machine don't count.
inline qint64 workNs() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}
