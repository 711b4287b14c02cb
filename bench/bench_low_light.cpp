// What a slide through low light costs: a command to the camera at each step, and how long the page's thread
// is held by it, against the same commands alone.

#include "bench/BenchRig.h"
#include "bench/RatioReporter.h"
#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {

constexpr int kSteps = 100;

// As the slider does at each step: up and down through the list.
const char kSlide[] = R"JS(
    (function () {
        var $slider = $("#livecontrol_lowlight_slider");
        var max = $slider.slider("option", "max");
        var slide = $slider.slider("option", "slide");
        for (var step = 0; step < %1; ++step) {
            slide.call($slider[0], null, {value: Math.abs(step % (2 * max) - max)});
        }
    }())
)JS";

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    QTemporaryDir folder;
    PanelTest panel(rigOf(folder, 1));
    SimulatedBody& body = *panel.viewer().rig().bodies().first();
    panel.eval(QStringLiteral("livecontrol.setLowLightMode(true), 1"));
    panel.settle();
    const QString slide = QString::fromLatin1(kSlide).arg(kSteps);
    const quint64 before = body.commandCount();
    panel.viewer().panelView().runScript(slide);
    const quint64 commands = body.commandCount() - before;

    benchmark::RegisterBenchmark("slide",
                                 [&](benchmark::State& state) {
                                     for (auto _ : state) {
                                         panel.viewer().panelView().runScript(slide);
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark(
        "commandsAlone",
        [&](benchmark::State& state) {
            const QList<quint32> shutters = body.head()->shutterList();
            for (auto _ : state) {
                for (quint64 i = 0; i < commands; ++i) {
                    body.head()->setShutter(shutters.at(int(i) % shutters.size())).result();
                }
            }
        })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\ncommands of a slide of %d steps: %llu\n", kSteps,
                static_cast<unsigned long long>(commands));
    reporter.ratio("page's thread held by the slide / by its commands alone", "slide/real_time",
                   "commandsAlone/real_time", "at most 1.5");
    return 0;
}
