// What a long list of names and many cameras cost, as ratios that one run measures on both sides:
// - the camera name file against reading its lines alone;
// - a search that finds 64 cameras, and the rebuild of the page's list, per camera, against 8 cameras.

#include "bench/RatioReporter.h"
#include "livecontrol/devices/CameraNameFile.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int kNameCount = 100000;
const char kList[] = "#livecontrol_device_item_list";

/// Writes text; a benchmark without its file means nothing.
QString written(const QString& path, const QByteArray& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("can't write %s", qPrintable(path));
    }
    return path;
}

QByteArray nameList() {
    QByteArray text;
    for (int i = 0; i < kNameCount; ++i) {
        text += "Laboratory,Camera " + QByteArray::number(i) + '\n';
    }
    return text;
}

QByteArray rigOf(int count) {
    return R"({ "title": "Bench", "cameras": [{ "name": "Cell", "model": "mono12", )"
           R"("address": "192.168.0.10", "serial": "S-0001", "count": )" +
           QByteArray::number(count) + "}] }\n";
}

void readNameFile(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        CameraNames names;
        if (!readCameraNameFile(path, names) || names.first().size() != kNameCount) {
            state.SkipWithError("not all names");
            break;
        }
    }
}

void readLinesOnly(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        QFile file(path);
        int count = 0;
        if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            QTextStream stream(&file);
            for (; !stream.atEnd(); ++count) {
                benchmark::DoNotOptimize(stream.readLine());
            }
        }
        if (count != kNameCount) {
            state.SkipWithError("not all lines");
            break;
        }
    }
}

int rowCount(PanelTest& panel) {
    return panel.eval(QStringLiteral("$('%1').children().length").arg(QLatin1String(kList))).toInt();
}

/// As on the first day: no camera is listed, none linked.
void forgetCameras(PanelTest& panel) {
    DocumentList& documents = panel.viewer().documents();
    QList<CameraBody*> bodies;
    for (CameraDocument* const camera : documents.cameras()) {
        bodies.append(camera->body());
    }
    documents.removeAll();
    for (CameraBody* const body : bodies) {
        body->disconnectLink();
    }
    QCoreApplication::processEvents();
}

/// The search by address, from the button's slot until the page shows what was found.
void search(benchmark::State& state, PanelTest& panel, int count) {
    for (auto _ : state) {
        state.PauseTiming();
        forgetCameras(panel);
        state.ResumeTiming();
        panel.viewer().panelView().runScript(QStringLiteral("livecontrol.findCameras('192.168.0.0')"));
        QCoreApplication::sendPostedEvents();
        state.PauseTiming();
        if (rowCount(panel) != count) {
            state.SkipWithError("not all cameras");
            break;
        }
        state.ResumeTiming();
    }
}

void rebuildList(benchmark::State& state, PanelTest& panel, int count) {
    const QString script = QStringLiteral("$('%1').empty();" // a row that stands already stays
                                          "devicelist_obj.setListName('%1');"
                                          "devicelist_obj.setTemplate('#deviceSettingItem');"
                                          "devicelist_obj.createList();")
                               .arg(QLatin1String(kList));
    for (auto _ : state) {
        panel.viewer().panelView().runScript(script);
    }
    if (rowCount(panel) != count) {
        state.SkipWithError("not all rows");
    }
}

void measurePanel(RatioReporter& reporter, const QTemporaryDir& folder, int count) {
    PanelTest panel(written(folder.filePath(QStringLiteral("rig%1.json").arg(count)), rigOf(count)));
    panel.eval(QStringLiteral("livecontrol_obj.changePage(1), 1"));
    panel.settle();
    const std::string cameras = "/" + std::to_string(count);
    benchmark::RegisterBenchmark(("search" + cameras).c_str(), search, std::ref(panel), count)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("rebuildList" + cameras).c_str(), rebuildList, std::ref(panel), count)
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;

    const QTemporaryDir folder;
    const QString names = written(folder.filePath(QStringLiteral("names.csv")), nameList());
    benchmark::RegisterBenchmark("readNameFile", readNameFile, names)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("readLinesOnly", readLinesOnly, names)->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks();
    for (const int count : {8, 64}) {
        measurePanel(reporter, folder, count);
    }

    std::printf("\n");
    reporter.ratio("name file of 100,000 names / its lines alone", "readNameFile", "readLinesOnly",
                   "at most 3");
    reporter.ratio("search, per camera, 64 cameras / 8 cameras", "search/64", "search/8", "1, linear", 8);
    reporter.ratio("list's rebuild, per camera, 64 cameras / 8 cameras", "rebuildList/64", "rebuildList/8",
                   "1, linear", 8);
    return 0;
}
