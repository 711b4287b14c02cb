// What an update of the page of the variable channels costs, as ratios that one run measures on both sides:
// it is about the current camera alone, so it must not grow with their number; and by hand, at a rate, where
// the limits are worked out anew, against presets.

#include "bench/BenchRig.h"
#include "bench/RatioReporter.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"

#include <QApplication>
#include <QTemporaryDir>
#include <string>

namespace {

void measure(PanelTest& panel, const std::string& name) {
    benchmark::RegisterBenchmark(name.c_str(), [&panel](benchmark::State& state) {
        for (auto _ : state) {
            panel.viewer().panelView().runScript(QStringLiteral("livecontrol_obj.update()"));
        }
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    QTemporaryDir folder;
    for (const int count : {1, 64}) {
        PanelTest panel(rigOf(folder, count));
        panel.eval(QStringLiteral("livecontrol.selectAllDocs(), livecontrol_obj.callLiveControlPage(2), 1"));
        panel.settle();
        const std::string cameras = "/" + std::to_string(count);
        measure(panel, "presets" + cameras);
        benchmark::RunSpecifiedBenchmarks(&reporter);
        benchmark::ClearRegisteredBenchmarks();
        panel.eval(QStringLiteral("$('#aspect-free').prop('checked', true).trigger('change'), 1"));
        panel.settle();
        measure(panel, "byHand" + cameras);
        benchmark::RunSpecifiedBenchmarks(&reporter);
        benchmark::ClearRegisteredBenchmarks();
    }
    std::printf("\n");
    reporter.ratio("variable page, 64 cameras / 1 camera", "presets/64", "presets/1", "1, no growth");
    reporter.ratio("the same by hand", "byHand/64", "byHand/1", "1, no growth");
    reporter.ratio("by hand / with presets, 64 cameras", "byHand/64", "presets/64", "at most 1.5");
    return 0;
}
