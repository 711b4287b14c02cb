#include "tests/support/FullDisk.h"
#include "tests/unit/viewer_export/HeldSource.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/RecordingReader.h"
#include "viewer/recordings/RecordingWriter.h"

#include <QDir>
#include <QMutex>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <sys/resource.h>

class TestExportJobs : public QObject {
    Q_OBJECT

private slots:
    void init();
    void jobsRunOneAfterTheOther();
    void fewFramesAreInMemory();
    void allOfAJobComesAfterTheUser();
    void anEndedJobHoldsNothing();
    void cancelLeavesNothingBehind_data();
    void cancelLeavesNothingBehind();
    void aJobThatWaitsIsCanceledWithoutAStart();
    void aFailureNamesItsFile();
    void aFullDiskIsToldAndLeavesWholeFilesAlone_data();
    void aFullDiskIsToldAndLeavesWholeFilesAlone();
    void whatWasSavedOfASequenceStays();
    void nothingIsWrittenOverUnasked();
    void whatDoesNotGoTogetherNeverBegins();
    void drawingGoesIntoPicturesAlone();
    void framesOfAFileAreCopiedAsTheyStand();

private:
    ExportRequest request(const FrameSourcePtr& source, const QString& name, ExportFormat format) const;
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestExportJobs::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

ExportRequest TestExportJobs::request(const FrameSourcePtr& source, const QString& name,
                                      ExportFormat format) const {
    ExportRequest request;
    request.source = source;
    request.last = source->count() - 1;
    request.format = format;
    request.path = m_folder->filePath(name);
    return request;
}

void TestExportJobs::jobsRunOneAfterTheOther() {
    const auto held = std::make_shared<HeldSource>(5);
    ExportJobs jobs;
    QSignalSpy ended(&jobs, &ExportJobs::ended);
    const int first =
        jobs.start(request(held, QStringLiteral("a.rchx"), ExportFormat::Rchx), QStringLiteral("A"));
    const int second = jobs.start(
        request(MadeFrames::source(QSize(8, 8), 8, false, 2), QStringLiteral("b.rchx"), ExportFormat::Rchx),
        QStringLiteral("B"));
    held->gate.release(3);
    QTRY_COMPARE(int(held->read), 3);
    QCOMPARE(jobs.entry(second).state, ExportJob::State::Waiting);
    QVERIFY(jobs.isBusy());
    QCOMPARE(files().filter(QStringLiteral("rchx")), QStringList());
    QVERIFY(jobs.isReserved(m_folder->filePath(QStringLiteral("A"))));
    QVERIFY(jobs.isReserved(m_folder->filePath(QStringLiteral("b"))));
    QVERIFY(!jobs.isReserved(m_folder->filePath(QStringLiteral("c"))));
    held->gate.release(100);
    QTRY_COMPARE(ended.count(), 2);
    QVERIFY(!jobs.isReserved(m_folder->filePath(QStringLiteral("a"))));
    QCOMPARE(ended.at(0).at(0).toInt(), first);
    QCOMPARE(jobs.entry(first).done, 5);
    QCOMPARE(jobs.entry(first).state, ExportJob::State::Done);
    QCOMPARE(files(), QStringList({QStringLiteral("a.rchx"), QStringLiteral("b.rchx")}));
    QVERIFY(!jobs.isBusy());
    QVERIFY(!jobs.cancel(first)); // too late
    jobs.forget(first);
    QCOMPARE(jobs.list().size(), 1);
}

void TestExportJobs::fewFramesAreInMemory() {
    const auto held = std::make_shared<HeldSource>(1000);
    held->gate.release(1001); // the first is asked for once more, for what it looks like
    ExportRequest wish = request(held, QStringLiteral("a.png"), ExportFormat::Png);
    std::atomic<int> composed{0};
    std::atomic<int> most{0};
    QSemaphore blocked;
    // The first frame is composed once before all others; the job stands at its second call.
    wish.compose = [&](const Frame& frame, int index) {
        if (index == 0 && ++composed == 2) {
            blocked.acquire();
        }
        return frame;
    };
    ExportJobs jobs;
    jobs.start(wish, QString());
    QTRY_COMPARE(int(composed), 2);
    for (int last = -1; last != held->read;) { // until nothing more is read
        last = held->read;
        QTest::qWait(50);
    }
    most = int(held->read);
    QVERIFY2(most <= 2 * QThread::idealThreadCount() + 1, qPrintable(QString::number(most)));
    blocked.release();
    QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), 60000);
    QCOMPARE(files().size(), 1000);
}

// Reading, drawing, encoding and the codec's own threads: none is the user's, and all give way to it.
void TestExportJobs::allOfAJobComesAfterTheUser() {
    const auto threads = [] {
        return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    };
    const QStringList before = threads();
    const auto held = std::make_shared<HeldSource>(40);
    held->gate.release(100);
    ExportRequest wish = request(held, QStringLiteral("a.avi"), ExportFormat::Avi);
    wish.codec = MovieCodec::H264;
    QMutex mutex;
    QHash<QString, int> priorities; // of the job's threads
    bool isOnGui = false;
    wish.compose = [&](const Frame& frame, int) {
        const QMutexLocker lock(&mutex);
        isOnGui = isOnGui || QThread::currentThread() == thread();
        for (const QString& id : threads()) {
            if (!before.contains(id)) {
                errno = 0;
                const int priority = getpriority(PRIO_PROCESS, id.toUInt());
                if (errno == 0) { // it has not just ended
                    priorities.insert(id, priority);
                }
            }
        }
        return frame;
    };
    ExportJobs jobs;
    jobs.start(wish, QString());
    QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), 60000);
    const QMutexLocker lock(&mutex);
    QVERIFY(!isOnGui);
    QVERIFY2(priorities.size() >= 3,
             qPrintable(QString::number(priorities.size()))); // writes, encodes, codes
    const int user = getpriority(PRIO_PROCESS, 0);
    for (const int priority : qAsConst(priorities)) {
        QVERIFY2(priority >= qMin(19, user + 10), qPrintable(QString::number(priority)));
    }
}

// It is still listed, and its recording may be a large one, its drawing have pictures.
void TestExportJobs::anEndedJobHoldsNothing() {
    auto held = std::make_shared<HeldSource>(2);
    held->gate.release(100);
    auto drawing = std::make_shared<int>(0);
    ExportRequest wish = request(held, QStringLiteral("a.png"), ExportFormat::Png);
    wish.compose = [drawing](const Frame& frame, int) { return frame; };
    const std::weak_ptr<HeldSource> source = std::exchange(held, nullptr);
    const std::weak_ptr<int> drawn = std::exchange(drawing, nullptr);
    ExportJobs jobs;
    const int id = jobs.start(std::exchange(wish, ExportRequest()), QString());
    QTRY_VERIFY(!jobs.isBusy());
    QCOMPARE(jobs.entry(id).total, 2);
    QTRY_VERIFY(source.expired() && drawn.expired());
}

void TestExportJobs::cancelLeavesNothingBehind_data() {
    QTest::addColumn<QString>("format");
    for (const char* const format : {"Rchx", "Mp4", "Tiff (Multi-Page)"}) {
        QTest::addRow("%s", format) << QString::fromLatin1(format);
    }
}

void TestExportJobs::cancelLeavesNothingBehind() {
    QFETCH(QString, format);
    const auto held = std::make_shared<HeldSource>(50);
    ExportFormat kind{};
    QVERIFY(ExportFormats::fromName(format, kind));
    ExportJobs jobs;
    QSignalSpy ended(&jobs, &ExportJobs::ended);
    const int id = jobs.start(request(held, QStringLiteral("a.bin"), kind), QString());
    held->gate.release(20);
    QTRY_COMPARE(int(held->read), 20);
    QCOMPARE(files().size(), 1); // under a name of its own
    QVERIFY(jobs.cancel(id));    // while frames are on their way
    QCOMPARE(jobs.entry(id).state, ExportJob::State::Canceled);
    QCOMPARE(ended.count(), 1);
    held->gate.release(100);
    QTRY_COMPARE(files(), QStringList());
    QCOMPARE(ended.count(), 1);
}

void TestExportJobs::aJobThatWaitsIsCanceledWithoutAStart() {
    const auto held = std::make_shared<HeldSource>(3);
    const auto other = std::make_shared<HeldSource>(3);
    ExportJobs jobs;
    jobs.start(request(held, QStringLiteral("a.rchx"), ExportFormat::Rchx), QString());
    const int second = jobs.start(request(other, QStringLiteral("b.rchx"), ExportFormat::Rchx), QString());
    QVERIFY(jobs.cancel(second));
    other->gate.release(100);
    held->gate.release(100);
    QTRY_VERIFY(!jobs.isBusy());
    QCOMPARE(files(), QStringList(QStringLiteral("a.rchx")));
    QCOMPARE(int(other->read), 0);
}

void TestExportJobs::aFailureNamesItsFile() {
    const auto held = std::make_shared<HeldSource>(10);
    held->failing = 6;
    held->gate.release(100);
    ExportJobs jobs;
    const int broken = jobs.start(request(held, QStringLiteral("a.rchx"), ExportFormat::Rchx), QString());
    const int nowhere = jobs.start(request(MadeFrames::source(QSize(8, 8), 8, false, 2),
                                           QStringLiteral("none/b.png"), ExportFormat::Png),
                                   QString());
    ExportRequest none =
        request(MadeFrames::source(QSize(8, 8), 8, false, 2), QStringLiteral("c.png"), ExportFormat::Png);
    none.last = 2;
    const int outside = jobs.start(none, QString());
    QTRY_VERIFY(!jobs.isBusy());
    QCOMPARE(jobs.entry(broken).state, ExportJob::State::Failed);
    QCOMPARE(jobs.entry(broken).failedPath, QStringLiteral("source"));
    QCOMPARE(jobs.entry(broken).failure.english(), QStringLiteral("The disk is full."));
    QVERIFY(jobs.entry(nowhere).failedPath.contains(QStringLiteral("none/b_000000.png")));
    QCOMPARE(jobs.entry(nowhere).failure.english(), QStringLiteral("The folder does not exist."));
    QCOMPARE(jobs.entry(outside).state, ExportJob::State::Failed);
    QCOMPARE(files(), QStringList());
}

void TestExportJobs::aFullDiskIsToldAndLeavesWholeFilesAlone_data() {
    QTest::addColumn<QString>("format");
    for (const char* const format :
         {"Rchx", "Zraw", "Avi", "Mov", "Mp4", "Tiff (Multi-Page)", "Tiff", "Png", "Bmp", "Jpeg"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

// In the middle, and when nothing but the last byte is missing.
void TestExportJobs::aFullDiskIsToldAndLeavesWholeFilesAlone() {
    QFETCH(QString, format);
    ExportRequest wish =
        request(MadeFrames::source(QSize(640, 480), 8, true, 6), QString(), ExportFormat::Rchx);
    wish.setFormat(format);
    wish.codec = MovieCodec::Mjpeg;
    const auto run = [&](qint64 limit) {
        init(); // an empty folder
        wish.path = m_folder->filePath(QStringLiteral("a.x"));
        auto job = std::make_unique<ExportJob>(wish);
        const FullDisk disk{rlim_t(limit)};
        job->run();
        return job;
    };
    const auto largest = [this] {
        qint64 size = 0;
        for (const QString& name : files()) {
            size = qMax(size, QFileInfo(m_folder->filePath(name)).size());
        }
        return size;
    };
    constexpr qint64 kRoom = qint64(1) << 30;
    QCOMPARE(run(kRoom)->state(), ExportJob::State::Done);
    const qint64 size = largest();
    for (const qint64 limit : {size / 2, size - 1}) {
        const auto job = run(limit);
        QCOMPARE(job->state(), ExportJob::State::Failed);
        QCOMPARE(job->failure().english(),
                 QStringLiteral("The file would grow larger than is allowed there."));
        QVERIFY2(job->failedPath().startsWith(m_folder->filePath(QStringLiteral("a"))),
                 qPrintable(job->failedPath()));
        QVERIFY(ExportFormats::isSequence(wish.format) || files().isEmpty());
        for (const QString& name : files()) {
            QVERIFY2(!QImage(m_folder->filePath(name), "").isNull() && name.startsWith(QLatin1Char('a')),
                     qPrintable(name));
        }
    }
}

void TestExportJobs::whatWasSavedOfASequenceStays() {
    const auto held = std::make_shared<HeldSource>(10);
    held->failing = 6;
    held->gate.release(100);
    ExportJobs jobs;
    jobs.start(request(held, QStringLiteral("a.png"), ExportFormat::Png), QString());
    QTRY_VERIFY(!jobs.isBusy());
    QCOMPARE(files().size(), 6);
    for (const QString& name : files()) {
        QVERIFY(!QImage(m_folder->filePath(name)).isNull());
    }
}

void TestExportJobs::nothingIsWrittenOverUnasked() {
    const FrameSourcePtr source = MadeFrames::source(QSize(8, 8), 8, false, 2);
    for (const ExportFormat format : {ExportFormat::Rchx, ExportFormat::Avi, ExportFormat::TiffPages}) {
        const QString path = m_folder->filePath(QStringLiteral("mine"));
        QFile mine(path);
        QVERIFY(mine.open(QIODevice::WriteOnly));
        mine.write("mine");
        mine.close();
        ExportRequest wish = request(source, QStringLiteral("mine"), format);
        ExportJob refused(wish);
        refused.run();
        QCOMPARE(refused.failure().english(), QStringLiteral("There is a file of that name already."));
        QCOMPARE(mine.size(), 4);
        wish.existing = UnfinishedFile::Existing::Replace;
        ExportJob asked(wish);
        asked.run();
        QCOMPARE(asked.state(), ExportJob::State::Done);
        QVERIFY(QFileInfo(path).size() > 100);
        QCOMPARE(files(), QStringList(QStringLiteral("mine")));
    }
}

// Known from the request alone: no frame is read, no file made.
void TestExportJobs::whatDoesNotGoTogetherNeverBegins() {
    const auto held = std::make_shared<HeldSource>(5);
    held->gate.release(100);
    const auto refusal = [&](ExportFormat format, MovieCodec codec) {
        ExportRequest wish = request(held, QStringLiteral("a"), format);
        wish.codec = codec;
        try {
            wish.check();
        } catch (const RecordingError& error) {
            return error.why().english();
        }
        return QString();
    };
    QCOMPARE(refusal(ExportFormat::Mp4, MovieCodec::Huffyuv),
             QStringLiteral("A movie of the format MP4 does not take the codec HUFFYUV."));
    QVERIFY(!refusal(ExportFormat::Mp4, MovieCodec::Raw).isEmpty());
    QVERIFY(refusal(ExportFormat::Mp4, MovieCodec::H264).isEmpty());
    QVERIFY(refusal(ExportFormat::Avi, MovieCodec::Huffyuv).isEmpty());
    QVERIFY(refusal(ExportFormat::Png, MovieCodec::Huffyuv).isEmpty());
    QCOMPARE(int(held->read), 0);
    QVERIFY(files().isEmpty());
}

void TestExportJobs::drawingGoesIntoPicturesAlone() {
    const FrameSourcePtr source = MadeFrames::source(QSize(8, 8), 8, false, 3);
    const auto white = [](const Frame& frame, int) {
        Frame result = frame;
        result.image = QImage(20, 10, QImage::Format_RGB888);
        result.image.fill(Qt::white);
        return result;
    };
    for (const ExportFormat format : {ExportFormat::Png, ExportFormat::Raww}) {
        ExportRequest wish = request(source, QStringLiteral("a.") + ExportFormats::suffix(format), format);
        wish.last = 0;
        wish.compose = white;
        ExportJob job(wish);
        job.run();
        QCOMPARE(job.state(), ExportJob::State::Done);
    }
    QCOMPARE(QImage(m_folder->filePath(QStringLiteral("a.png"))).size(), QSize(20, 10));
    QCOMPARE(RecordingFile::open(m_folder->filePath(QStringLiteral("a.raww")))->frame(0).image,
             source->frame(0).image);
}

void TestExportJobs::framesOfAFileAreCopiedAsTheyStand() {
    const auto save = [&](const FrameSourcePtr& source, const QString& name, ExportFormat format) {
        ExportJob job(request(source, name, format));
        job.run();
        return std::make_shared<RecordingReader>(job.request().path);
    };
    const FrameSourcePtr made = MadeFrames::source(QSize(40, 30), 12, false, 4);
    const auto small = save(made, QStringLiteral("a.zraw"), ExportFormat::Zraw);
    QCOMPARE(small->layout().storage, Container::Storage::Zstd);
    const auto copy = save(small, QStringLiteral("a.rchx"), ExportFormat::Rchx);
    QVERIFY(copy->layout() == small->layout());
    const auto raw = save(small, QStringLiteral("a.raww"), ExportFormat::Raww);
    QCOMPARE(raw->layout().storage, Container::Storage::Raw);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(copy->stored(i).payload, small->stored(i).payload);
        QCOMPARE(copy->stored(i).number, made->frame(i).number);
        QCOMPARE(copy->stored(i).time, made->frame(i).time);
        QCOMPARE(raw->frame(i).image, made->frame(i).image);
    }
}

QTEST_GUILESS_MAIN(TestExportJobs)
#include "tst_export_jobs.moc"
