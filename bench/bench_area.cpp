// What the rectangle on the image costs:
// - allocations of one overlay pass, which must be none: each view runs it with each picture;
// - the pass that draws against the one of a document that shows no rectangle;
// - a move of a drag, page and all, against the page's part alone while nothing changes.

#include "bench/AllocationCount.h"
#include "bench/RatioReporter.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

#include <QApplication>
#include <QOpenGLContext>
#include <cstdlib>

namespace {

using AllocationCount::s_allocations;
using AllocationCount::s_counting;
PanelTest* s_panel = nullptr;
constexpr int kPasses = 1000;

PLG_Interface& plugin() { return *s_panel->viewer().panelView().plugin(); }

Document& camera(int number) { return *s_panel->viewer().documents().cameras().at(number); }

void overlayPass(benchmark::State& state, Document& document) {
    for (auto _ : state) {
        plugin().onPaintOverlay(document.face(), false, nullptr);
    }
}

/// No context is current then, so that the calls of OpenGL itself end at once and allocate nothing.
double allocationsPerPass() {
    DOC_Interface* const document = camera(0).face();
    plugin().onPaintOverlay(document, false, nullptr);
    s_allocations = 0;
    s_counting = true;
    for (int i = 0; i < kPasses; ++i) {
        plugin().onPaintOverlay(document, false, nullptr);
    }
    s_counting = false;
    return double(s_allocations) / kPasses;
}

void dragMove(benchmark::State& state) {
    const DOCKEY key = camera(0).key();
    const QRectF area = camera(0).view().imageToView.mapRect(QRectF(plugin().getArea()));
    const QPoint from = area.center().toPoint();
    plugin().mousePress(from, key);
    int i = 0;
    for (auto _ : state) {
        ++i;
        plugin().mouseMove(from + QPoint(i % 40, i % 30), key);
    }
    plugin().mouseRelease(from, key);
}

void pageAlone(benchmark::State& state) {
    for (auto _ : state) {
        s_panel->viewer().panelView().runScript(QStringLiteral("livecontrol_obj.recvRectArea();"));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;

    PanelTest panel(QStringLiteral(":/rigs/default.json"));
    s_panel = &panel;
    panel.selectOnly(camera(0).title());
    panel.eval(QStringLiteral("livecontrol_obj.startAutoExposure(), livecontrol_obj.changePage(3), 1"));
    panel.settle();
    panel.viewer().documents().live().beginHold();
    panel.viewer().calls().setRecording(false);

    if (QOpenGLContext* const current = QOpenGLContext::currentContext()) {
        current->doneCurrent(); // the driver's own allocations and drawing are not the question
    }
    s_counting = true;
    std::free(std::malloc(1)); // the counter counts
    s_counting = false;
    const bool counts = s_allocations == 1;
    const double allocations = allocationsPerPass();

    benchmark::RegisterBenchmark("overlay/none",
                                 [](benchmark::State& state) { overlayPass(state, camera(1)); });
    benchmark::RegisterBenchmark("overlay/area",
                                 [](benchmark::State& state) { overlayPass(state, camera(0)); });
    benchmark::RegisterBenchmark("drag/page", pageAlone)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("drag/move", dragMove)->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n%-62s %6.2f   (aim: 0)\n", "allocations of an overlay pass", allocations);
    reporter.ratio("overlay pass with the rectangle / of a document without", "overlay/area", "overlay/none",
                   "at most 10");
    reporter.ratio("move of a drag / its page alone", "drag/move", "drag/page", "at most 2");
    return counts && allocations == 0 ? 0 : 1;
}
