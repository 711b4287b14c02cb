// What the list of what can be saved costs: 64 cameras with 16 partitions each, per row against 8 cameras,
// and against reading the text that it gives.

#include "bench/RatioReporter.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"
#include "tests/support/ListedCameras.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/CameraDocument.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int kPartitions = 16;

/// A host over that many cameras, all selected, whose partitions are filled one after the other.
struct Cameras {
    ListedCameras source;
    CallRecorder calls;
    DocumentList list{source, calls};
    EmptyShell shell;
    MapPreferences preferences;
    KeptMessages messages;
    ViewerHost host{list, preferences, messages, shell, calls};
    JS_Mediator_FileDialog dialog{&host, QStringLiteral("filesavedialog")};

    explicit Cameras(int count) {
        for (int i = 0; i < count; ++i) {
            ListedBody& body =
                source.add(QStringLiteral("Camera %1").arg(i + 1), QStringLiteral("10.0.0.%1").arg(i + 1));
            body.head()->kind.partitions = kPartitions;
        }
        preferences.values = {{QStringLiteral("recording/LoopRecord"), true},
                              {QStringLiteral("recording/AutoIncrementPartition"), true}};
        list.addAllCameras();
        QList<Document*> all;
        for (CameraDocument* const camera : list.cameras()) {
            all.append(camera);
        }
        list.setSelection(all);
    }
};

void listed(benchmark::State& state, int count) {
    Cameras cameras(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(cameras.dialog.list());
        cameras.calls.clear();
    }
    const int rows = QJsonDocument::fromJson(cameras.dialog.list().toUtf8()).array().size();
    if (rows != count * kPartitions) {
        state.SkipWithError("not all rows");
    }
}

void parsed(benchmark::State& state, int count) {
    Cameras cameras(count);
    const QByteArray text = cameras.dialog.list().toUtf8();
    for (auto _ : state) {
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    const auto add = [](const char* name, auto function) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    };
    add("few", [](benchmark::State& state) { listed(state, 8); });
    add("many", [](benchmark::State& state) { listed(state, 64); });
    add("parsed", [](benchmark::State& state) { parsed(state, 64); });
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n");
    reporter.ratio("list, per row, 64 cameras / 8 cameras, 16 partitions", "many", "few", "1, linear", 8);
    reporter.ratio("list of 64 cameras / reading its text alone", "many", "parsed", "at most 8");
    return 0;
}
