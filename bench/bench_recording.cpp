// What recordings cost: opening one against the number of its frames, writing one against copying the same
// bytes, and the memory that a long one takes while it is written and read.

#include "bench/RatioReporter.h"
#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingCopy.h"
#include "viewer/recordings/RecordingReader.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

using Container::Storage;

namespace {

constexpr int kFew = 100;
constexpr int kMany = 100000;
constexpr int kBigFrames = 200;

QTemporaryDir* s_folder = nullptr;
QString path(const char* name) { return s_folder->filePath(QLatin1String(name)); }

/// Gives one picture again and again.
class SameFrame : public FrameSource {
public:
    SameFrame(int count, const QSize& size) {
        m_frame.image = QImage(size, QImage::Format_Grayscale8);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                m_frame.image.scanLine(y)[x] = uchar(x * y >> 3);
            }
        }
        m_info.frames = count;
        m_info.size = size;
    }
    Frame frame(int /*index*/) const override { return m_frame; }

private:
    Frame m_frame;
};

void write(const QString& to, int count, const QSize& size) {
    const SameFrame frames(count, size);
    RecordingCopy copy;
    copy.existing = UnfinishedFile::Existing::Replace;
    copy.run(frames, frames.info(), to);
}

void opening(benchmark::State& state, const QString& file) {
    for (auto _ : state) {
        const RecordingReader reader(file);
        benchmark::DoNotOptimize(reader.count());
    }
}

void readingOne(benchmark::State& state, const QString& file) {
    for (auto _ : state) {
        const RecordingReader reader(file);
        benchmark::DoNotOptimize(reader.frame(reader.count() / 2).number);
    }
}

void writing(benchmark::State& state) {
    for (auto _ : state) {
        write(path("written.raww"), kBigFrames, QSize(1280, 1024));
    }
}

/// As cp does it, with the bytes on the disk in the end.
void copying(benchmark::State& state) {
    for (auto _ : state) {
        const int from = open(QFile::encodeName(path("written.raww")).constData(), O_RDONLY);
        const int to = open(QFile::encodeName(path("copy")).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        static char buffer[1 << 17];
        for (ssize_t count = 0; (count = read(from, buffer, sizeof buffer)) > 0;) {
            if (::write(to, buffer, size_t(count)) != count) {
                state.SkipWithError("the disk is full");
                break;
            }
        }
        fsync(to);
        close(from);
        close(to);
    }
}

/// The resident memory of this process, in bytes.
qint64 resident() {
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly)
               ? file.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE)
               : 0;
}

/// What it grows by at most while so many frames are written and read, in MB.
double peak(int count) {
    const qint64 before = resident();
    qint64 most = before;
    const SameFrame frames(count, QSize(640, 480));
    RecordingCopy copy;
    copy.storage = Storage::Zstd;
    copy.existing = UnfinishedFile::Existing::Replace;
    copy.goesOn = [&](int done) {
        most = done % 50 == 0 ? std::max(most, resident()) : most;
        return true;
    };
    copy.run(frames, frames.info(), path("peak.zraw"));
    const RecordingReader reader(path("peak.zraw"));
    for (int i = 0; i < count; ++i) {
        reader.frame(i);
        most = i % 50 == 0 ? std::max(most, resident()) : most;
    }
    return double(most - before) / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QTemporaryDir folder;
    s_folder = &folder;
    const double first = peak(100); // what is taken once
    const double few = peak(1000);
    const double many = peak(10000);
    write(path("few"), kFew, QSize(16, 8));
    write(path("many"), kMany, QSize(16, 8));
    benchmark::RegisterBenchmark("open/few", &opening, path("few"));
    benchmark::RegisterBenchmark("open/many", &opening, path("many"));
    benchmark::RegisterBenchmark("read/few", &readingOne, path("few"));
    benchmark::RegisterBenchmark("read/many", &readingOne, path("many"));
    benchmark::RegisterBenchmark("write", &writing)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(5);
    benchmark::RegisterBenchmark("copy", &copying)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(5);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.ratio("opening 100,000 frames / 100 frames", "open/many", "open/few", "at most 1.2");
    reporter.ratio("opening and reading one of 100,000 / of 100", "read/many", "read/few",
                   "none, the index is read");
    reporter.ratio("writing RAWW / copying its bytes, both to the disk", "write/iterations:5/real_time",
                   "copy/iterations:5/real_time", "at most 1.3");
    std::printf("memory: %.1f MB at first, then %.1f MB more for 1,000 frames and %.1f MB for 10,000\n",
                first, few, many);
    return 0;
}
