// What 1,000 file names cost in a folder of 10,000 files. Each session number that is tried looks at the disk
// anew, so the floor is one listing of the folder a number.

#include "bench/RatioReporter.h"
#include "livecontrol/storage/ExportNaming.h"
#include "tests/support/FakeDocument.h"
#include "tests/support/FakeHost.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int kFiles = 10000;
constexpr int kNames = 1000;

/// Half of the files bear the first number of a name, the others have nothing to do with any.
QString fileName(int i) {
    return i % 2 ? QStringLiteral("other%1.raw").arg(i, 5, 10, QLatin1Char('0'))
                 : QStringLiteral("taken%1_S0001.raw").arg(i / 2, 5, 10, QLatin1Char('0'));
}

struct Naming {
    FakeHost host;
    FakeCamera camera{host.calls};
    QString name;
    QDateTime time{QDate(2021, 3, 4), QTime(5, 6, 7)};

    explicit Naming(const QString& folder) {
        host.onGetPrefString = [this, folder](const QString& key, const QVariant&, int) {
            return key == QLatin1String("export/dir")        ? folder
                   : key == QLatin1String("export/filename") ? name
                                                             : QString();
        };
        host.onGetPrefInt = [](const QString&, const QVariant&) { return 4; };
        camera.onComposeSaveSuffix = [](int, PARTITIONNUMBER, int session, bool& used, const QDateTime&) {
            used = true;
            return composeSequenceNumber(0, 0, session, 0, 0, 4);
        };
    }
};

/// `stem` "free" takes each first number, "taken" the second one.
void composeNames(benchmark::State& state, const QString& folder, const char* stem) {
    Naming naming(folder);
    const QString suffix =
        QLatin1String(stem) == QLatin1String("free") ? QStringLiteral("_S0001") : QStringLiteral("_S0002");
    for (auto _ : state) {
        for (int i = 0; i < kNames; ++i) {
            naming.name = QStringLiteral("%1%2").arg(QLatin1String(stem)).arg(i, 5, 10, QLatin1Char('0'));
            if (composeExportFileName(&naming.host, 1, &naming.camera, 1, true, naming.time) !=
                naming.name + suffix) {
                state.SkipWithError("another name");
                return;
            }
        }
        naming.host.calls.clear();
    }
}

void listFolder(benchmark::State& state, const QString& folder) {
    for (auto _ : state) {
        if (QDir(folder).entryInfoList(QDir::Files).size() != kFiles) {
            state.SkipWithError("not all files");
            break;
        }
    }
}

void walkFolder(benchmark::State& state, const QString& folder) {
    for (auto _ : state) {
        int count = 0;
        for (QDirIterator files(folder, QDir::Files); files.hasNext(); files.next()) {
            ++count;
        }
        if (count != kFiles) {
            state.SkipWithError("not all files");
            break;
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QTemporaryDir folder;
    for (int i = 0; i < kFiles; ++i) {
        QFile file(folder.filePath(fileName(i)));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("can't write into %s", qPrintable(folder.path()));
        }
    }
    const QString path = folder.path();
    const auto add = [](const char* name, auto function) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    };
    add("list", [&](benchmark::State& state) { listFolder(state, path); });
    add("walk", [&](benchmark::State& state) { walkFolder(state, path); });
    add("free", [&](benchmark::State& state) { composeNames(state, path, "free"); });
    add("taken", [&](benchmark::State& state) { composeNames(state, path, "taken"); });
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n");
    reporter.ratio("1,000 free names / one sorted listing of 10,000 files", "free", "list", "at most 1000");
    reporter.ratio("a free name / one sorted listing", "free", "list", "at most 1", kNames);
    reporter.ratio("a free name / one walk through the folder", "free", "walk", "at most 2", kNames);
    reporter.ratio("a name with one number taken / a free name", "taken", "free", "at most 2");
    return 0;
}
