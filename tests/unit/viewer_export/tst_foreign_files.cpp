// Movies and pictures that other programs have made, such that are wrong in the middle, and what others see
// of ours.

#include "viewer/export/ExportJob.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/RecordingReader.h"

#include <QImage>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <fcntl.h>
#include <future>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kOtherKind = QStringLiteral("Pictures of this kind can't be read.");
const QString kOtherSize = QStringLiteral("The picture has another size than the first one of its sequence.");
const QString kNoSuchFrame = QStringLiteral("There is no such frame.");
const QString kDamagedPicture = QStringLiteral("The picture is damaged, or a part of it is missing.");
const QString kDamaged = QStringLiteral("The recording is damaged, or a part of it is missing.");

using Tags = QMap<quint16, quint32>;
constexpr quint16 kWidth = 256, kHeight = 257, kBits = 258, kPhotometric = 262, kSamples = 277,
                  kStripBytes = 279, kPlanar = 284, kFormat = 339;

/// A page of 3 by 2 samples that count up, with these tags in place of the usual ones.
struct Page {
    Tags tags;
};

/// A TIFF with these pages, byte by byte.
QByteArray tiff(const QVector<Page>& pages) {
    QByteArray file("II*\0\0\0\0\0", 8);
    int link = 4; // where the place of the next page stands
    const auto append = [&file](quint32 value, int bytes) {
        const quint32 little = qToLittleEndian(value);
        file.append(reinterpret_cast<const char*>(&little), bytes);
    };
    for (const Page& page : pages) {
        Tags tags{{kWidth, 3}, {kHeight, 2}, {kBits, 8}, {259, 1}, {kPhotometric, 1}, {kSamples, 1}};
        for (auto it = page.tags.begin(); it != page.tags.end(); ++it) {
            tags[it.key()] = it.value();
        }
        const int bytes = int(3 * 2 * tags[kBits] / 8 * tags[kSamples]);
        tags[273] = quint32(file.size());
        tags[278] = tags[kHeight];
        tags.insert(kStripBytes, page.tags.value(kStripBytes, quint32(bytes)));
        for (int i = 0; i < bytes; ++i) {
            file.append(char(i + 1));
        }
        file.append(file.size() % 2, '\0');
        qToLittleEndian(quint32(file.size()), file.data() + link);
        append(quint32(tags.size()), 2);
        for (auto it = tags.begin(); it != tags.end(); ++it) {
            append(it.key(), 2);
            append(4, 2); // all are long numbers
            append(1, 4);
            append(it.value(), 4);
        }
        link = file.size();
        append(0, 4);
    }
    return file;
}

} // namespace

Q_DECLARE_METATYPE(Page)

class TestForeignFiles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void aTiffIsReadOrRefused_data();
    void aTiffIsReadOrRefused();
    void aPictureAmongOthersIsRefusedByItsName_data();
    void aPictureAmongOthersIsRefusedByItsName();
    void aMovieWithoutANoteTellsOfItself();
    void aMovieThatCantBeReadSaysWhy_data();
    void aMovieThatCantBeReadSaysWhy();
    void aDamagedPictureOfAMovieHidesNoOther();
    void oddSidesGoOnAsThePictureEnds();
    void aPipeIsNotWaitedFor();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    /// Runs `ffmpeg` in the folder; gives what it prints.
    QByteArray ffmpeg(const QString& arguments);
    /// Why a frame of the file can't be had, behind the name of the file that is at fault; empty if it can.
    QString refusal(const QString& name, int frame) {
        try {
            const FrameSourcePtr source = OpenFile::fromPictures(path(name));
            return source->frame(frame).isNull() ? QStringLiteral("null") : QString();
        } catch (const RecordingError& error) {
            return QFileInfo(error.path()).fileName() + QStringLiteral(": ") + error.why().english();
        }
    }

    QTemporaryDir m_folder;
};

QByteArray TestForeignFiles::ffmpeg(const QString& arguments) {
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(QStringLiteral("ffmpeg"),
                  (QStringLiteral("-v error -y -nostdin ") + arguments).split(QLatin1Char(' ')));
    const bool isGood = process.waitForFinished(60000) && process.exitCode() == 0;
    if (!isGood) {
        qWarning().noquote() << arguments << process.readAllStandardError();
    }
    return process.readAllStandardOutput();
}

void TestForeignFiles::aTiffIsReadOrRefused_data() {
    QTest::addColumn<QVector<Page>>("pages");
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("refused");
    const Page gray{};
    const Page deep{{{kBits, 16}}};
    const Page color{{{kSamples, 3}, {kPhotometric, 2}}};
    const auto row = [](const char* name, const QVector<Page>& pages, int frame = 0,
                        const QString& refused = {}) {
        QTest::addRow("%s", name) << pages << frame << refused;
    };
    row("gray", {gray});
    row("deep", {deep});
    row("color", {color});
    row("second page", {gray, gray}, 1);
    row("third of two", {gray, gray}, 2, kNoSuchFrame);
    row("before the first", {gray, gray}, -1, kNoSuchFrame);
    row("one bit", {{{{kBits, 1}, {kWidth, 8}}}}, 0, kOtherKind);
    row("deep color", {{{{kBits, 16}, {kSamples, 3}, {kPhotometric, 2}}}}, 0, kOtherKind);
    row("four samples", {{{{kSamples, 4}, {kPhotometric, 5}}}}, 0, kOtherKind);
    row("two samples", {{{{kSamples, 2}}}}, 0, kOtherKind);
    row("planes", {{{{kSamples, 3}, {kPhotometric, 2}, {kPlanar, 2}}}}, 0, kOtherKind);
    row("white is 0", {{{{kPhotometric, 0}}}}, 0, kOtherKind);
    row("differences of colors", {{{{kSamples, 3}, {kPhotometric, 6}}}}, 0, kOtherKind);
    row("numbers with a sign", {{{{kBits, 16}, {kFormat, 2}}}}, 0, kOtherKind);
    row("too wide", {{{{kWidth, 32769}}}}, 0, kOtherKind);
    row("too high", {{{{kHeight, 32769}}}}, 0, kOtherKind);
    row("wide", {{{{kWidth, 32768}}}}, 0, kDamagedPicture);
    row("no pixels", {{{{kWidth, 0}}}}, 0, QStringLiteral("The file is no picture that can be read."));
    row("short", {gray, {{{kHeight, 3}}}}, 1, kOtherSize);
    row("narrow", {gray, {{{kWidth, 2}}}}, 1, kOtherSize);
    row("deep behind gray", {gray, deep}, 1, kOtherSize);
    row("gray behind deep", {deep, gray}, 1, kOtherSize);
    row("color behind gray", {gray, color}, 1, kOtherSize);
    row("planes behind color", {color, {{{kSamples, 3}, {kPhotometric, 2}, {kPlanar, 2}}}}, 1, kOtherSize);
    row("cut", {{{{kHeight, 3000}, {kStripBytes, 9000}}}}, 0, kDamagedPicture);
}

void TestForeignFiles::aTiffIsReadOrRefused() {
    QFETCH(QVector<Page>, pages);
    QFETCH(int, frame);
    QFETCH(QString, refused);
    const QString name = QStringLiteral("strange.tif");
    write(name, tiff(pages));
    QCOMPARE(refusal(name, frame), refused.isEmpty() ? QString() : name + QStringLiteral(": ") + refused);
    if (!refused.isEmpty()) {
        return;
    }
    const Tags& tags = pages.first().tags;
    const int bytes = int(tags.value(kBits, 8) / 8 * tags.value(kSamples, 1));
    const FrameSourcePtr read = OpenFile::fromPictures(path(name));
    QCOMPARE(read->count(), pages.size());
    QCOMPARE(read->info().camera, QStringLiteral("strange"));
    QCOMPARE(read->info().bitDepth, bytes == 2 ? 16 : 8);
    QCOMPARE(read->info().color, bytes == 3);
    const Frame shown = read->frame(frame);
    QCOMPARE(shown.number, quint32(frame));
    QCOMPARE(shown.bitDepth, read->info().bitDepth);
    QCOMPARE(shown.image.size(), QSize(3, 2));
    for (int i = 0; i < 6 * bytes; ++i) {
        QCOMPARE(int(shown.image.constScanLine(i / (3 * bytes))[i % (3 * bytes)]), i + 1);
    }
}

void TestForeignFiles::aPictureAmongOthersIsRefusedByItsName_data() {
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("other");
    const auto picture = [](const QSize& size) {
        QImage image(size, QImage::Format_Grayscale8);
        image.fill(7);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        return bytes;
    };
    QTest::addRow("wider") << "png" << picture(QSize(4, 2));
    QTest::addRow("higher") << "png" << picture(QSize(3, 3));
    QTest::addRow("short tiff") << "tif" << tiff({{{{kHeight, 3}}}});
    QTest::addRow("deep tiff") << "tif" << tiff({{{{kBits, 16}}}});
    QTest::addRow("color tiff") << "tif" << tiff({{{{kSamples, 3}, {kPhotometric, 2}}}});
}

void TestForeignFiles::aPictureAmongOthersIsRefusedByItsName() {
    QFETCH(QString, suffix);
    QFETCH(QByteArray, other);
    const auto name = [&suffix](int index) {
        return QStringLiteral("seq_00000%1.%2").arg(index).arg(suffix);
    };
    QImage plain(3, 2, QImage::Format_Grayscale8);
    plain.fill(7);
    for (const int index : {0, 2}) {
        if (suffix == QLatin1String("tif")) {
            write(name(index), tiff({{}}));
        } else {
            QVERIFY(plain.save(path(name(index))));
        }
    }
    write(name(1), other);
    QCOMPARE(refusal(name(0), 0), QString());
    QCOMPARE(refusal(name(0), 1), name(1) + QStringLiteral(": ") + kOtherSize);
    QCOMPARE(refusal(name(0), 2), QString());
    for (const int outside : {-1, 3}) {
        QCOMPARE(refusal(name(0), outside), name(0) + QStringLiteral(": ") + kNoSuchFrame);
    }
}

// The sound lies before the pictures, and a colon in the name is no protocol.
void TestForeignFiles::aMovieWithoutANoteTellsOfItself() {
    const QString name = QStringLiteral("run:2.b.mov");
    ffmpeg(
        QStringLiteral("-f lavfi -i sine=d=1 -f lavfi -i testsrc2=s=64x48:r=30000/1001:d=1 -map 0:a -map 1:v "
                       "-c:a aac -c:v mpeg4 -g 7 file:") +
        name);
    const FrameSourcePtr read = OpenFile::fromPictures(path(name));
    const int size = 64 * 48 * 3;
    const QByteArray all =
        ffmpeg(QStringLiteral("-i file:") + name +
               QStringLiteral(" -sws_flags bilinear+accurate_rnd+full_chroma_int -f rawvideo "
                              "-pix_fmt rgb24 -"));
    QCOMPARE(read->count(), all.size() / size);
    QVERIFY(read->count() >= 29);
    QCOMPARE(read->info().camera, QStringLiteral("run:2.b"));
    QCOMPARE(read->info().rate, 30U);
    QCOMPARE(read->info().size, QSize(64, 48));
    QVERIFY(read->info().color && read->info().bitDepth == 8 && read->info().triggerIndex == 0);
    for (const int index : {20, 3, 4, 4, 28, 0}) {
        const Frame frame = read->frame(index);
        QCOMPARE(frame.number, quint32(index));
        QCOMPARE(frame.image, QImage(reinterpret_cast<const uchar*>(all.constData()) + index * size, 64, 48,
                                     64 * 3, QImage::Format_RGB888));
    }
    for (const int outside : {-1, read->count()}) {
        QCOMPARE(refusal(name, outside), name + QStringLiteral(": ") + kNoSuchFrame);
    }
}

void TestForeignFiles::aMovieThatCantBeReadSaysWhy_data() {
    QTest::addColumn<QString>("made");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("why");
    const QString noMovie = QStringLiteral("The file is no movie that can be read.");
    const QString pictures =
        QStringLiteral("-f lavfi -i color=s=%1:r=25 -frames:v 2 -c:v rawvideo -pix_fmt bgr24");
    QTest::addRow("sound alone") << "-f lavfi -i sine=d=1 -c:a aac"
                                 << "sound.mp4" << noMovie;
    QTest::addRow("no frames") << "-f lavfi -i color=s=32x32:r=25 -t 0 -c:v mjpeg"
                               << "none.avi"
                               << "The recording holds no frames.";
    QTest::addRow("too wide") << pictures.arg(QStringLiteral("32772x2")) << "wide.avi"
                              << "The picture is too large.";
    QTest::addRow("too high") << pictures.arg(QStringLiteral("4x32770")) << "high.avi"
                              << "The picture is too large.";
    QTest::addRow("too wide picture") << "-f lavfi -i color=s=32772x2 -frames:v 1"
                                      << "wide.png"
                                      << "The picture is too large.";
    QTest::addRow("wide") << pictures.arg(QStringLiteral("32768x2")) << "most.avi" << QString();
}

void TestForeignFiles::aMovieThatCantBeReadSaysWhy() {
    QFETCH(QString, made);
    QFETCH(QString, name);
    QFETCH(QString, why);
    ffmpeg(made + QLatin1Char(' ') + name);
    QVERIFY(QFileInfo::exists(path(name)));
    QCOMPARE(refusal(name, 0), why.isEmpty() ? QString() : name + QStringLiteral(": ") + why);
}

void TestForeignFiles::aDamagedPictureOfAMovieHidesNoOther() {
    const QString name = QStringLiteral("torn.mov");
    ffmpeg(QStringLiteral("-f lavfi -i testsrc=s=64x48:r=25 -frames:v 6 -c:v png ") + name);
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    int at = 0;
    for (int picture = 0; picture <= 3; ++picture) { // to the fourth one
        at = bytes.indexOf("IHDR", at + 1);
    }
    QVERIFY(at > 0);
    bytes.replace(at, 200, QByteArray(200, '\xff'));
    write(name, bytes);
    for (int index = 0; index < 6; ++index) {
        QCOMPARE(refusal(name, index), index == 3 ? name + QStringLiteral(": ") + kDamaged : QString());
    }
}

// Such a movie has a column and a row more, which its reader here leaves out.
void TestForeignFiles::oddSidesGoOnAsThePictureEnds() {
    constexpr int kSide = 17;
    QImage image(kSide, kSide, QImage::Format_Grayscale8);
    image.fill(Qt::black);
    for (int y = 8; y < kSide; ++y) {
        std::fill_n(image.scanLine(y) + 8, kSide - 8, uchar(255));
    }
    ExportRequest request;
    request.source = std::make_shared<FrameList>(RecordingInfo(), QVector<QImage>{image});
    request.last = 0;
    request.format = ExportFormat::Mov;
    request.codec = MovieCodec::Mjpeg;
    request.quality = 95;
    request.path = path(QStringLiteral("odd.mov"));
    ExportJob job(request);
    job.run();
    QCOMPARE(job.state(), ExportJob::State::Done);
    const QByteArray gray = ffmpeg(QStringLiteral("-i odd.mov -f rawvideo -pix_fmt gray -"));
    constexpr int kEven = kSide + 1;
    QCOMPARE(gray.size(), kEven * kEven);
    const auto isWhite = [&gray](int x, int y) { return uchar(gray.at(y * kEven + x)) > 128; };
    for (int i = 0; i < kSide; ++i) {
        QCOMPARE(isWhite(i, kSide), i >= 8);
        QCOMPARE(isWhite(kSide, i), i >= 8);
    }
}

void TestForeignFiles::aPipeIsNotWaitedFor() {
    RecordingFile::addReader(OpenFile::pictureSuffixes(), &OpenFile::fromPictures);
    for (const char* const suffix : {"rchx", "zrec", "tif", "png", "mov"}) {
        const QString name = path(QStringLiteral("pipe.") + QLatin1String(suffix));
        QCOMPARE(::mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        try {
            RecordingFile::open(name);
            QFAIL("opened");
        } catch (const RecordingError& error) {
            QCOMPARE(error.why().english(), QStringLiteral("This is no file."));
        }
    }
    // Nor by who reads without that look.
    const QByteArray pipe = QFile::encodeName(path(QStringLiteral("pipe.rchx")));
    const auto reading = std::async(std::launch::async, [&pipe] {
        try {
            RecordingReader(QFile::decodeName(pipe));
        } catch (const RecordingError&) {
            return true;
        }
        return false;
    });
    const bool isRead = reading.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
    ::close(::open(pipe.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)); // lets it go if it waits
    QVERIFY(isRead);
}

QTEST_GUILESS_MAIN(TestForeignFiles)
#include "tst_foreign_files.moc"
