// What saving costs:
// - RAWW against writing the same bytes with fsync, as cp does it;
// - sequences of PNG and TIFF on all cores against the same encoder called in a loop on one;
// - MP4 and MJPEG against the program ffmpeg with the same frames and settings;
// - memory at its peak for ten times as many frames, and for ten times as many movies;
// - what is left for the user meanwhile.

#include "bench/RatioReporter.h"
#include "tests/unit/viewer_export/MadeFrames.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/export/Pixels.h"
#include "viewer/export/writers/ImageEncoder.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QSize kSize(1280, 1024);
constexpr int kFrames = 60;
QTemporaryDir* s_folder = nullptr;

/// As many frames as asked for, made of a few.
class Frames : public FrameSource {
public:
    Frames(int bitDepth, int count) {
        for (int i = 0; i < kKinds; ++i) {
            m_images.append(MadeFrames::picture(kSize, bitDepth, false, i));
        }
        m_info = MadeFrames::info(bitDepth);
        m_info.size = kSize;
        m_info.frames = count;
    }

    Frame frame(int index) const override {
        Frame frame;
        frame.image = m_images.at(index % kKinds);
        frame.bitDepth = m_info.bitDepth;
        frame.number = quint32(index);
        return frame;
    }

private:
    static constexpr int kKinds = 8;
    QVector<QImage> m_images;
};

const FrameSourcePtr& frames(int bitDepth) {
    static const FrameSourcePtr narrow = std::make_shared<Frames>(8, kFrames);
    static const FrameSourcePtr wide = std::make_shared<Frames>(12, kFrames);
    return bitDepth > 8 ? wide : narrow;
}

QString emptied(const QString& name) {
    QDir folder(s_folder->path());
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden)) {
        folder.remove(file);
    }
    return folder.filePath(name);
}

void save(const FrameSourcePtr& source, ExportFormat format, MovieCodec codec, const QString& path) {
    ExportRequest request;
    request.source = source;
    request.last = source->count() - 1;
    request.format = format;
    request.codec = codec;
    request.path = path;
    ExportJob job(request);
    job.run();
    if (job.state() != ExportJob::State::Done) {
        qFatal("%s", qPrintable(job.failure().english()));
    }
}

void saved(benchmark::State& state, int bitDepth, ExportFormat format, MovieCodec codec = MovieCodec::Raw) {
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = emptied(QStringLiteral("out.") + ExportFormats::suffix(format));
        state.ResumeTiming();
        save(frames(bitDepth), format, codec, path);
    }
}

/// The bytes of all frames from a file in the cache into a new one, and onto the disk.
void copied(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = emptied(QStringLiteral("copy"));
        QFile from(path + QStringLiteral(".from"));
        if (!from.open(QIODevice::ReadWrite)) {
            qFatal("no file");
        }
        for (int i = 0; i < kFrames; ++i) {
            from.write(Pixels::packed(frames(12)->frame(i).image));
        }
        from.flush();
        state.ResumeTiming();
        if (QProcess::execute(QStringLiteral("cp"), {from.fileName(), path}) != 0) {
            qFatal("no copy");
        }
        QFile to(path);
        if (!to.open(QIODevice::ReadWrite) || fsync(to.handle()) != 0) {
            qFatal("no fsync");
        }
    }
}

void encodedBare(benchmark::State& state, ExportFormat format) {
    SinkPlan plan;
    plan.size = kSize;
    plan.bitDepth = 12;
    const ImageEncoder encoder(format, plan);
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = emptied(QStringLiteral("bare"));
        state.ResumeTiming();
        for (int i = 0; i < kFrames; ++i) {
            QFile file(path + QString::number(i));
            if (!file.open(QIODevice::WriteOnly) || file.write(encoder.encode(frames(12)->frame(i))) < 0 ||
                !file.flush() || fsync(file.handle()) != 0) {
                qFatal("no file");
            }
        }
    }
}

/// The program gets the frames through a pipe, as fast as it takes them.
void encodedByProgram(benchmark::State& state, const QStringList& options, const QString& suffix) {
    QByteArray pixels;
    for (int i = 0; i < kFrames; ++i) {
        pixels += Pixels::packed(frames(8)->frame(i).image);
    }
    for (auto _ : state) {
        state.PauseTiming();
        const QString path = emptied(QStringLiteral("program.") + suffix);
        state.ResumeTiming();
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral("ffmpeg"),
                      QStringList{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                                  QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"),
                                  QStringLiteral("gray"), QStringLiteral("-s"), QStringLiteral("1280x1024"),
                                  QStringLiteral("-r"), QStringLiteral("30"), QStringLiteral("-i"),
                                  QStringLiteral("-")} +
                          options + QStringList{path});
        program.write(pixels);
        program.closeWriteChannel();
        if (!program.waitForFinished(-1) || program.exitCode() != 0) {
            qFatal("no movie");
        }
    }
}

/// What a program that saves has left for its first thread: beats of a timer that came more than 50 ms late.
void countLateBeats() {
    constexpr int kBeatMs = 5;
    constexpr int kLateMs = 50;
    ExportJobs jobs;
    int beats = 0;
    int late = 0;
    qint64 worst = 0;
    QElapsedTimer since;
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    QObject::connect(&beat, &QTimer::timeout, &jobs, [&] {
        const qint64 delay = since.restart() - kBeatMs;
        ++beats;
        late += delay > kLateMs ? 1 : 0;
        worst = qMax(worst, delay);
    });
    ExportRequest request;
    request.source = std::make_shared<Frames>(8, 5 * kFrames);
    request.last = request.source->count() - 1;
    request.format = ExportFormat::Avi;
    request.codec = MovieCodec::H264;
    request.path = emptied(QStringLiteral("beats.avi"));
    since.start();
    beat.start(kBeatMs);
    QEventLoop loop;
    QObject::connect(&jobs, &ExportJobs::ended, &loop, &QEventLoop::quit);
    jobs.start(request, QString());
    loop.exec();
    std::printf("late beats while an AVI of H264 is saved: %d of %d, at most %lld ms late   (aim: none)\n",
                late, beats, worst);
}

/// Bytes that are resident in a process of its own after it has saved so many small movies.
qint64 residentAfterMovies(int count) {
    const QString path = emptied(QStringLiteral("small.avi"));
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        qFatal("no pipe");
    }
    if (fork() == 0) {
        const FrameSourcePtr source = std::make_shared<Frames>(8, 20);
        for (int i = 0; i < count; ++i) {
            save(source, ExportFormat::Avi, MovieCodec::H264, path);
            QFile::remove(path);
        }
        QFile statm(QStringLiteral("/proc/self/statm"));
        const qint64 bytes = statm.open(QIODevice::ReadOnly)
                                 ? statm.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE)
                                 : 0;
        _exit(write(ends[1], &bytes, sizeof bytes) == sizeof bytes ? 0 : 1);
    }
    qint64 bytes = -1;
    if (read(ends[0], &bytes, sizeof bytes) != sizeof bytes) {
        qFatal("no answer");
    }
    wait(nullptr);
    close(ends[0]);
    close(ends[1]);
    return bytes;
}

/// Kilobytes at the peak of a process of its own that saves so many frames.
long peakOf(int count) {
    const QString path = emptied(QStringLiteral("peak.rchx"));
    const pid_t child = fork();
    if (child == 0) {
        save(std::make_shared<Frames>(8, count), ExportFormat::Zraw, MovieCodec::Raw, path);
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return status == 0 ? usage.ru_maxrss : -1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    // Threads don't come with a fork, so these come before there are any.
    QTemporaryDir folder;
    s_folder = &folder;
    const long few = peakOf(1000);
    const long many = peakOf(10000);
    const qint64 fewMovies = residentAfterMovies(3);
    const qint64 manyMovies = residentAfterMovies(30);

    const auto add = [](const char* name, auto run) {
        benchmark::RegisterBenchmark(name, run)->UseRealTime()->Unit(benchmark::kMillisecond);
    };
    add("raww", [](benchmark::State& state) { saved(state, 12, ExportFormat::Raww); });
    add("cp", [](benchmark::State& state) { copied(state); });
    add("png", [](benchmark::State& state) { saved(state, 12, ExportFormat::Png); });
    add("png bare", [](benchmark::State& state) { encodedBare(state, ExportFormat::Png); });
    add("tiff", [](benchmark::State& state) { saved(state, 12, ExportFormat::Tiff); });
    add("tiff bare", [](benchmark::State& state) { encodedBare(state, ExportFormat::Tiff); });
    add("mp4", [](benchmark::State& state) { saved(state, 8, ExportFormat::Mp4, MovieCodec::H264); });
    add("mp4 program", [](benchmark::State& state) {
        encodedByProgram(state,
                         {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
                          QStringLiteral("veryfast"), QStringLiteral("-crf"), QStringLiteral("14"),
                          QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p")},
                         QStringLiteral("mp4"));
    });
    add("mjpeg", [](benchmark::State& state) { saved(state, 8, ExportFormat::Avi, MovieCodec::Mjpeg); });
    add("mjpeg program", [](benchmark::State& state) {
        encodedByProgram(state,
                         {QStringLiteral("-c:v"), QStringLiteral("mjpeg"), QStringLiteral("-q:v"),
                          QStringLiteral("5"), QStringLiteral("-pix_fmt"), QStringLiteral("yuvj420p")},
                         QStringLiteral("avi"));
    });
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const auto name = [](const char* what) { return std::string(what) + "/real_time"; };
    reporter.ratio("RAWW / cp and fsync of the same bytes", name("raww"), name("cp"), "at most 1.3");
    reporter.ratio("PNG sequence / the same on one core", name("png"), name("png bare"), "at most 0.6");
    reporter.ratio("TIFF sequence / the same on one core", name("tiff"), name("tiff bare"), "at most 0.6");
    reporter.ratio("MP4 / ffmpeg", name("mp4"), name("mp4 program"), "at most 1.1");
    reporter.ratio("MJPEG / ffmpeg", name("mjpeg"), name("mjpeg program"), "at most 1.1");
    std::printf("%-62s %6.2f   (aim: at most 1.1)\n", "peak of memory, 10,000 / 1,000 frames",
                double(many) / double(few));
    std::printf("%-62s %6.2f   (aim: at most 1.1)\n", "memory after 30 / 3 movies",
                double(manyMovies) / double(fewMovies));
    countLateBeats();
    return 0;
}
