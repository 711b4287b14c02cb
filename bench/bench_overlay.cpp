// What the information over the image costs, with 30 lines of it:
// - a pass of the view in which no text is new, against one of the same view without the information;
// - the same with a new frame number in each pass, which is laid out and painted anew;
// - allocations of finding out that nothing is new, of which there should be none;
// - the preview of what is saved of a picture of 4096 x 2304, and all of it with a new frame number, against
//   converting that picture for display.

#include "bench/AllocationCount.h"
#include "bench/RatioReporter.h"
#include "livecontrol/interface/InfoItems.h"
#include "tests/support/PanelTest.h"
#include "tests/support/Recordings.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QApplication>
#include <cstdlib>

namespace {

using AllocationCount::s_allocations;
using AllocationCount::s_counting;
PanelTest* s_panel = nullptr;
constexpr int kPasses = 1000;
constexpr int kLines = 30;
constexpr int kFrames = 50;

MainWindow& window() { return s_panel->viewer().mainWindow(); }

FileDocument& openRecording() {
    RecordingInfo info;
    info.camera = info.device = QStringLiteral("Bench");
    info.rate = 1000;
    info.shutter = 2000;
    info.triggerMode = 1;
    info.triggered = info.ended = QDateTime::currentDateTime();
    info.triggerIndex = kFrames / 2;
    info.comment = QStringLiteral("one\ntwo\nthree");
    FileDocument& document =
        *s_panel->viewer().documents().addRecording(recordingOf(info, kFrames, QSize(1280, 1024)));
    s_panel->viewer().recording().setMode(HOST_MODE_FILE);
    s_panel->viewer().documents().setCurrent(&document);
    s_panel->settle();
    return document;
}

/// Ticks all items, and adds as many of the user's as make 30 lines.
void fill(FileDocument& document) {
    QStringList list;
    for (const InfoItem& item : kInfoItems) {
        if (*item.key != '\0' && item.key != QByteArray(kInfoSeparator)) {
            list += QString::fromLatin1(item.key) + QStringLiteral(":true");
        }
    }
    Preferences& preferences = s_panel->viewer().preferences();
    preferences.setValue(QStringLiteral("info/display"), list.join(QLatin1Char(',')));
    preferences.setValue(QStringLiteral("info/FontSize"), 8);
    InfoOverlay overlay;
    OverlayPreferences settings(preferences);
    for (int i = 0; i < kLines; ++i) {
        overlay.update(document, settings, {QSize(2000, 2000), 8, 1});
        if (overlay.layout().rows().size() < kLines) {
            document.customItems().add(
                {QStringLiteral("Item %1").arg(i), QString::number(i), QStringLiteral("kN"), true});
        }
    }
    std::printf("%d lines of information\n", int(overlay.layout().rows().size()));
}

/// With the picture fetched, for the drawing goes on in other threads.
void pass(benchmark::State& state, FileDocument& document, bool moves) {
    ImageView& view = *window().area().currentView();
    view.grabFramebuffer();
    int i = 0;
    for (auto _ : state) {
        if (moves) {
            document.setPlayPosition(++i % kFrames);
        }
        view.grabFramebuffer();
    }
}

double allocationsOfAnIdlePass(const Document& document) {
    OverlayPreferences settings(s_panel->viewer().preferences());
    InfoOverlay overlay;
    const InfoOverlay::Place place{QSize(1280, 1024), 8, 1};
    overlay.update(document, settings, place);
    s_allocations = 0;
    s_counting = true;
    for (int i = 0; i < kPasses; ++i) {
        overlay.update(document, settings, place);
    }
    s_counting = false;
    return overlay.layoutCount() == 1 ? double(s_allocations) / kPasses : -1;
}

constexpr QSize kLarge(4096, 2304);

FileDocument& openLargeRecording() {
    RecordingInfo info;
    info.camera = QStringLiteral("Bench");
    info.rate = 1000;
    info.shutter = 2000;
    info.bitDepth = 12;
    info.comment = QStringLiteral("one\ntwo\nthree");
    QImage image(kLarge, QImage::Format_Grayscale16);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<quint16*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            line[x] = quint16((x + y) % 4096);
        }
    }
    const QVector<QImage> frames(kFrames, image); // all share its pixels
    return *s_panel->viewer().documents().addRecording(std::make_shared<FrameList>(info, frames));
}

/// In the size that a page has room for, with all that a page's call does but the encoding.
void preview(benchmark::State& state, FileDocument& document) {
    SavedPictures& pictures = *document.list().savedPictures();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            pictures.image({document, 0, 0, QDateTime::currentDateTime()}, QSize(400, 290)));
    }
}

void composeAll(benchmark::State& state, FileDocument& document) {
    SavedViewPictures pictures(document.list(), s_panel->viewer().preferences());
    const SavedPictures::Shot shot{document, 0, 0, QDateTime::currentDateTime()};
    SavedView view = pictures.view(shot);
    InfoFacts facts = SavedViewPictures::factsOf(shot);
    const QImage picture = document.frame().displayImage();
    for (auto _ : state) {
        facts.position = (facts.position + 1) % kFrames;
        benchmark::DoNotOptimize(view.compose(picture, facts));
    }
}

void convert(benchmark::State& state, FileDocument& document) {
    const Frame frame = document.frame();
    for (auto _ : state) {
        benchmark::DoNotOptimize(frame.displayImage().convertToFormat(QImage::Format_RGB32));
    }
}

void registerSavedViews(FileDocument& document) {
    for (const auto& [name, run] : {std::pair("saved/preview", &preview), std::pair("saved/all", &composeAll),
                                    std::pair("saved/convert", &convert)}) {
        benchmark::RegisterBenchmark(
            name, [&document, run = run](benchmark::State& state) { run(state, document); })
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime();
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
    FileDocument& document = openRecording();
    panel.viewer().calls().setRecording(false);

    s_counting = true;
    std::free(std::malloc(1)); // the counter counts
    s_counting = false;
    const bool counts = s_allocations == 1;
    fill(document);
    const double allocations = allocationsOfAnIdlePass(document);

    for (const bool moves : {false, true}) {
        for (const bool info : {false, true}) {
            const std::string name =
                std::string(moves ? "moving/" : "still/") + (info ? "information" : "plain");
            benchmark::RegisterBenchmark(name.c_str(),
                                         [&document, moves, info](benchmark::State& state) {
                                             window().setInfoShown(info);
                                             pass(state, document, moves);
                                         })
                ->Unit(benchmark::kMicrosecond)
                ->UseRealTime();
        }
    }
    registerSavedViews(openLargeRecording());
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n%-62s %6.2f   (aim: 0)\n", "allocations of a pass without a new text", allocations);
    reporter.ratio("pass with 30 lines, none new / without information", "still/information/real_time",
                   "still/plain/real_time", "at most 1.5");
    reporter.ratio("pass with 30 lines, one new / without information", "moving/information/real_time",
                   "moving/plain/real_time", "at most 2");
    reporter.ratio("preview of what is saved / converting the picture for display", "saved/preview/real_time",
                   "saved/convert/real_time", "at most 2");
    reporter.ratio("all that is saved / converting the picture for display", "saved/all/real_time",
                   "saved/convert/real_time", "at most 3");
    return counts && allocations == 0 ? 0 : 1;
}
