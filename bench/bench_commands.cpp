// What commands to many cameras take, against the time that one camera needs for one command: ready, trigger,
// stop and a frame rate, for 1, 8 and 64 cameras, from the click until the last camera has it and the panel
// shows it.

#include "bench/BenchRig.h"
#include "bench/RatioReporter.h"
#include "simulator/device/Rig.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/prefs/Preferences.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int kCommandMs = 100;

using Is = bool (*)(CameraState);

bool isLive(CameraState state) { return state == CameraState::Live; }
bool isReady(CameraState state) { return state == CameraState::Ready; }
bool isReadying(CameraState state) { return state == CameraState::WaitingReady || isReady(state); }
bool isRecording(CameraState state) { return state == CameraState::Recording; }
bool isStopped(CameraState state) { return state == CameraState::Memory || isLive(state); }

/// Until each camera is in such a state, and what follows from it is done.
void await(Rig& rig, Is is) {
    QElapsedTimer timer;
    timer.start();
    const auto areAll = [&rig, is] {
        const QList<SimulatedBody*> bodies = rig.bodies();
        return std::all_of(bodies.begin(), bodies.end(),
                           [is](const SimulatedBody* body) { return is(body->state()); });
    };
    while (!areAll()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (timer.hasExpired(60000)) {
            qFatal("not all cameras");
        }
    }
    QCoreApplication::processEvents();
}

using Act = void (RecordingControl::*)();

void prepare(PanelTest& panel, Act act) {
    Rig& rig = panel.viewer().rig();
    RecordingControl& recording = panel.viewer().recording();
    if (!recording.isAny(CameraState::Live)) {
        recording.setMode(HOST_MODE_LIVE);
    }
    await(rig, isLive);
    if (act != &RecordingControl::ready) {
        panel.answerNextBox(QStringLiteral("OK")); // what was recorded before goes
        recording.ready();
        await(rig, isReady);
    }
    if (act == &RecordingControl::stop) {
        recording.record();
        await(rig, isRecording);
    }
    QTest::qWait(300);
}

void shot(benchmark::State& state, PanelTest& panel, Act act, Is is) {
    RecordingControl& recording = panel.viewer().recording();
    for (auto _ : state) {
        state.PauseTiming();
        prepare(panel, act);
        state.ResumeTiming();
        (recording.*act)();
        await(panel.viewer().rig(), is);
        state.PauseTiming();
        if (act != &RecordingControl::stop) {
            while (recording.isSending()) {
                QTest::qWait(10);
            }
            recording.stop();
            await(panel.viewer().rig(), isStopped);
        }
        while (recording.isSending() || recording.mode() != panel.viewer().documents().mode()) {
            QTest::qWait(10);
        }
        state.ResumeTiming();
    }
}

void rate(benchmark::State& state, PanelTest& panel) {
    int row = 0;
    for (auto _ : state) {
        row = row == 0 ? 1 : 0;
        panel.viewer().panelView().runScript(QStringLiteral("livecontrol.setFrameRate('%1')").arg(row));
        QCoreApplication::sendPostedEvents();
    }
}

/// The measure: the same command at one camera without a program around it.
void oneCommand(benchmark::State& state) {
    for (auto _ : state) {
        QTest::qSleep(kCommandMs);
    }
}

void measure(RatioReporter& reporter, const QTemporaryDir& folder, int count) {
    PanelTest panel(rigOf(folder, count));
    panel.viewer().preferences().setValue(QStringLiteral("recording/AutoDownload"), false);
    for (SimulatedBody* const body : panel.viewer().rig().bodies()) {
        body->faults().delayMs = kCommandMs - body->model().commandTimeMs;
    }
    panel.eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
    panel.settle();
    const std::string cameras = "/" + std::to_string(count);
    const auto add = [&](const char* name, auto... arguments) {
        benchmark::RegisterBenchmark((name + cameras).c_str(), arguments...)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
    };
    add("rate", rate, std::ref(panel));
    add("ready", shot, std::ref(panel), &RecordingControl::ready, isReadying);
    add("record", shot, std::ref(panel), &RecordingControl::record, isRecording);
    add("stop", shot, std::ref(panel), &RecordingControl::stop, isStopped);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s\n", qPrintable(text));
        }
    });
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RegisterBenchmark("oneCommand", oneCommand)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks();
    const QTemporaryDir folder;
    for (const int count : {1, 8, 64}) {
        measure(reporter, folder, count);
    }
    std::printf("\n");
    for (const char* const name : {"rate", "ready", "record", "stop"}) {
        for (const char* const count : {"1", "8", "64"}) {
            const std::string of = std::string(name) + '/' + count;
            reporter.ratio((of + " cameras / one command").c_str(), of + "/iterations:3/real_time",
                           "oneCommand/iterations:3/real_time", "at most 2");
        }
    }
    return 0;
}
