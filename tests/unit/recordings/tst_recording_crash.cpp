// A program that is killed while it writes recordings: final names hold whole files, the spool what was
// written.
#include "tests/unit/recordings/SampleFrames.h"
#include "viewer/export/ExportJob.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/recordings/RecordingReader.h"
#include "viewer/recordings/Spool.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <cstdio>

namespace {

constexpr int kFrames = 60;

FrameList written() { return sample::frames(kFrames, QSize(160, 120)); }

/// Saves recordings until somebody ends it, in the storages in turn.
[[noreturn]] void saveForEver(const QString& folder) {
    const FrameList frames = written();
    for (int round = 0;; ++round) {
        RecordingCopy copy;
        copy.storage = Container::Storage(round % 3);
        copy.run(frames, frames.info(), QStringLiteral("%1/%2.rchx").arg(folder).arg(round));
        std::puts("saved");
        std::fflush(stdout);
    }
}

/// The same of pages and movies, in turn.
[[noreturn]] void exportForEver(const QString& folder) {
    const std::shared_ptr<const FrameList> frames(new FrameList(written()));
    ExportRequest request;
    request.source = frames;
    request.last = kFrames - 1;
    for (int round = 0;; ++round) {
        static constexpr std::array kKinds{ExportFormat::TiffPages, ExportFormat::Avi, ExportFormat::Mov,
                                           ExportFormat::Mp4};
        request.format = kKinds.at(size_t(round) % kKinds.size());
        request.codec = request.format == ExportFormat::Avi ? MovieCodec::Mjpeg : MovieCodec::H264;
        request.path =
            QStringLiteral("%1/%2.%3").arg(folder).arg(round).arg(ExportFormats::suffix(request.format));
        ExportJob job(request);
        job.run();
        std::puts(job.state() == ExportJob::State::Done ? "saved" : "failed");
        std::fflush(stdout);
    }
}

/// Writes into a spool frame by frame, each to the disk, until somebody ends it.
[[noreturn]] void spoolForEver(const QString& folder) {
    const FrameList frames = sample::frames(4, QSize(640, 480));
    Spool spool(folder);
    for (;;) {
        RecordingWriter writer(spool.newPath(QStringLiteral("Mono")), frames.info(), Container::Storage::Raw);
        for (int i = 0; i < kFrames; ++i) {
            writer.add(frames.frame(i % 4));
            std::puts("written");
            std::fflush(stdout);
        }
        writer.finish();
    }
}

} // namespace

class tst_RecordingCrash : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder{sample::folderTemplate()};

    /// More where somebody asks for it: "RECORDING_KILLS=100".
    static int kills() {
        return qEnvironmentVariableIsSet("RECORDING_KILLS") ? qEnvironmentVariableIntValue("RECORDING_KILLS")
                                                            : 8;
    }

    /// Starts the work in a program of its own and kills it at a moment up to that many ms after its first
    /// word.
    void kill(const QString& work, const QString& folder, int mostMs) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {work, folder});
        QVERIFY(child.waitForStarted() && child.waitForReadyRead());
        QThread::usleep(QRandomGenerator::global()->bounded(quint32(mostMs) * 1000U));
        child.kill();
        QVERIFY(child.waitForFinished());
    }

private slots:
    void finalNamesHoldWholeFiles() {
        const FrameList frames = written();
        int seen = 0;
        for (int i = 0; i < kills(); ++i) {
            QTemporaryDir folder(sample::folderTemplate());
            kill(QStringLiteral("--save"), folder.path(), 30);
            for (const QFileInfo& file :
                 QDir(folder.path()).entryInfoList({QStringLiteral("*.rchx")}, QDir::Files)) {
                const RecordingReader read(file.filePath());
                QVERIFY(read.isWhole());
                QCOMPARE(read.count(), kFrames);
                QCOMPARE(read.frame(kFrames - 1).image, frames.frame(kFrames - 1).image);
                ++seen;
            }
        }
        QVERIFY(seen >= kills());
    }

    void finalNamesHoldWholeMoviesAndPages() {
        QSet<QString> kinds;
        for (int i = 0; i < kills(); ++i) {
            QTemporaryDir folder(sample::folderTemplate());
            kill(QStringLiteral("--export"), folder.path(), 400);
            for (const QFileInfo& file : QDir(folder.path()).entryInfoList(QDir::Files)) {
                const FrameSourcePtr read = OpenFile::fromPictures(file.filePath());
                QVERIFY2(read->count() == kFrames, qPrintable(file.fileName()));
                QVERIFY(!read->frame(kFrames - 1).isNull());
                kinds.insert(file.suffix());
            }
        }
        QVERIFY2(kinds.size() > 1, qPrintable(QString::number(kinds.size())));
    }

    void theSpoolHasWhatWasWritten() {
        int recovered = 0;
        for (int i = 0; i < kills(); ++i) {
            QTemporaryDir folder(sample::folderTemplate());
            kill(QStringLiteral("--spool"), folder.path(), 200);
            Spool spool(folder.path());
            const QStringList left = spool.adoptLeftovers();
            for (const QString& path : left) {
                const RecordingReader read(path);
                QVERIFY(read.count() > 0 && path.endsWith(QLatin1String(".rchx")));
                QVERIFY(!read.frame(read.count() - 1).isNull());
                QVERIFY(!(QFile::permissions(QFileInfo(path).path()) & (QFile::ExeGroup | QFile::ExeOther)));
                ++recovered;
            }
            QVERIFY(Spool(folder.path()).adoptLeftovers().isEmpty()); // they are somebody's
            spool.release();
            QCOMPARE(Spool(folder.path()).adoptLeftovers().size(), left.size());
        }
        QVERIFY(recovered > 0);
    }
};

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc == 3 && app.arguments().at(1) == QLatin1String("--save")) {
        saveForEver(app.arguments().at(2));
    }
    if (argc == 3 && app.arguments().at(1) == QLatin1String("--export")) {
        exportForEver(app.arguments().at(2));
    }
    if (argc == 3 && app.arguments().at(1) == QLatin1String("--spool")) {
        spoolForEver(app.arguments().at(2));
    }
    tst_RecordingCrash test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_recording_crash.moc"
