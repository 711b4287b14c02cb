#include "tests/unit/viewer_export/MadeFrames.h"
#include "viewer/export/ExportJob.h"
#include "viewer/export/PictureNote.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

namespace {

/// What a program prints; fails the test if it does.
QByteArray output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool isGood = process.waitForFinished(60000) && process.exitCode() == 0;
    if (!isGood) {
        qWarning().noquote() << program << process.readAllStandardError();
    }
    return isGood ? process.readAllStandardOutput() : QByteArray();
}

/// Peak signal to noise in dB; of equal pictures a large number.
double psnr(const QImage& one, const QImage& other) {
    double sum = 0;
    const int bytes = one.width() * one.depth() / 8;
    for (int y = 0; y < one.height(); ++y) {
        for (int i = 0; i < bytes; ++i) {
            const double difference = one.constScanLine(y)[i] - other.constScanLine(y)[i];
            sum += difference * difference;
        }
    }
    return sum == 0 ? 1000 : 10 * std::log10(255.0 * 255.0 * bytes * one.height() / sum);
}

QImage cutToEight(const QImage& image, int bitDepth) {
    Frame frame;
    frame.image = image;
    frame.bitDepth = bitDepth;
    return frame.displayImage();
}

} // namespace

Q_DECLARE_METATYPE(ExportFormat)
Q_DECLARE_METATYPE(MovieCodec)

/// Each format, read back by this program and by another one.
class TestExportFiles : public QObject {
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }
    void losslessFormatsComeBack_data();
    void losslessFormatsComeBack();
    void lossyFormatsResemble_data();
    void lossyFormatsResemble();
    void aBetterQualityTakesMoreRoom_data();
    void aBetterQualityTakesMoreRoom();
    void codecsFitTheirContainers_data();
    void codecsFitTheirContainers();
    void pagesAreReadByOthers();
    void deepPicturesAreReadByOthers();
    void framesOfAMovieAreReachedInAnyOrder_data();
    void framesOfAMovieAreReachedInAnyOrder();
    void aStepThinsTheRecording();
    void damagedAndForeignFilesAreRefused_data();
    void damagedAndForeignFilesAreRefused();
    void aNoteThatLiesDoesNotSpoilThePicture();
    void picturesBelongTogetherByTheirNames();

private:
    /// Saves all frames; gives the path of the first file.
    QString save(const FrameSourcePtr& source, ExportFormat format, MovieCodec codec = MovieCodec::Raw,
                 int step = 1, int quality = 90);

    QTemporaryDir m_folder;
    int m_saved = 0;
};

QString TestExportFiles::save(const FrameSourcePtr& source, ExportFormat format, MovieCodec codec, int step,
                              int quality) {
    ExportRequest request;
    request.source = source;
    request.last = source->count() - 1;
    request.step = step;
    request.quality = quality;
    request.format = format;
    request.codec = codec;
    request.path =
        m_folder.filePath(QStringLiteral("%1.%2").arg(++m_saved).arg(ExportFormats::suffix(format)));
    ExportJob job(request);
    job.run();
    if (job.state() != ExportJob::State::Done) {
        return QString();
    }
    const bool isNumbered = ExportFormats::isSequence(format) && request.count() > 1;
    return isNumbered ? m_folder.filePath(
                            QStringLiteral("%1_000000.%2").arg(m_saved).arg(ExportFormats::suffix(format)))
                      : request.path;
}

void TestExportFiles::losslessFormatsComeBack_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("color");
    for (const char* const format :
         {"Bmp", "Tiff", "Tiff (Multi-Page)", "Png", "Raww", "Zraw", "Graw", "Rch", "Rchx"}) {
        for (const int depth : {8, 10, 12, 16}) {
            QTest::addRow("%s %d", format, depth) << QString::fromLatin1(format) << "RAW" << depth << false;
        }
        QTest::addRow("%s color", format) << QString::fromLatin1(format) << "RAW" << 8 << true;
    }
    for (const char* const codec : {"RAW", "HUFFYUV"}) {
        QTest::addRow("Avi %s", codec) << "AVI" << QString::fromLatin1(codec) << 8 << true;
        QTest::addRow("Avi %s mono", codec) << "AVI" << QString::fromLatin1(codec) << 8 << false;
        QTest::addRow("Avi %s 12", codec) << "AVI" << QString::fromLatin1(codec) << 12 << false;
    }
}

void TestExportFiles::losslessFormatsComeBack() {
    QFETCH(QString, format);
    QFETCH(QString, codec);
    QFETCH(int, bitDepth);
    QFETCH(bool, color);
    ExportFormat kind{};
    MovieCodec coding{};
    QVERIFY(ExportFormats::fromName(format, kind) && ExportFormats::codecFromName(codec, coding));
    const FrameSourcePtr source = MadeFrames::source(QSize(53, 37), bitDepth, color, 5);
    const QString path = save(source, kind, coding);
    QVERIFY(!path.isEmpty());
    const FrameSourcePtr read =
        ExportFormats::isContainer(kind) ? RecordingFile::open(path) : OpenFile::fromPictures(path);
    QCOMPARE(read->count(), 5);
    QCOMPARE(read->info().size, QSize(53, 37));
    QCOMPARE(read->info().bitDepth, ExportFormats::keepsDepth(kind) ? bitDepth : 8);
    if (kind != ExportFormat::Bmp) { // which has no place for it
        QCOMPARE(read->info().camera, source->info().camera);
        QCOMPARE(read->info().comment, source->info().comment);
        QCOMPARE(read->info().rate, 1000U);
        QCOMPARE(read->info().triggerIndex, 2);
    }
    for (const int i : {0, 4, 2}) {
        const Frame frame = read->frame(i);
        const QImage original = source->frame(i).image;
        const QImage wanted = ExportFormats::keepsDepth(kind) ? original : cutToEight(original, bitDepth);
        QCOMPARE(frame.image.format(), wanted.format());
        QCOMPARE(frame.image, wanted);
    }
}

void TestExportFiles::lossyFormatsResemble_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<bool>("color");
    QTest::addRow("Jpeg") << "JPEG"
                          << "RAW" << true;
    QTest::addRow("Jpeg mono") << "JPEG"
                               << "RAW" << false;
    for (const char* const codec : {"H264", "MJPEG", "MPEG2", "MPEG4"}) {
        for (const char* const format : {"AVI", "MOV", "MP4"}) {
            QTest::addRow("%s %s", format, codec)
                << QString::fromLatin1(format) << QString::fromLatin1(codec) << false;
        }
        QTest::addRow("AVI %s color", codec) << "AVI" << QString::fromLatin1(codec) << true;
    }
}

void TestExportFiles::lossyFormatsResemble() {
    QFETCH(QString, format);
    QFETCH(QString, codec);
    QFETCH(bool, color);
    ExportFormat kind{};
    MovieCodec coding{};
    QVERIFY(ExportFormats::fromName(format, kind) && ExportFormats::codecFromName(codec, coding));
    const FrameSourcePtr source = MadeFrames::source(QSize(161, 121), 8, color, 8); // odd both ways
    const QString path = save(source, kind, coding);
    QVERIFY(!path.isEmpty());
    const FrameSourcePtr read = OpenFile::fromPictures(path);
    QCOMPARE(read->count(), 8);
    QCOMPARE(read->info().size, QSize(161, 121));
    QCOMPARE(read->info().comment, source->info().comment);
    for (const int i : {0, 7, 3}) {
        const QImage image = read->frame(i).image;
        QCOMPARE(image.format(), source->frame(i).image.format());
        QVERIFY2(psnr(image, source->frame(i).image) > 30,
                 qPrintable(QStringLiteral("%1: %2").arg(i).arg(psnr(image, source->frame(i).image))));
    }
    if (ExportFormats::isMovie(kind)) {
        const QByteArray told = output(QStringLiteral("ffprobe"),
                                       {QStringLiteral("-v"), QStringLiteral("error"),
                                        QStringLiteral("-count_frames"), QStringLiteral("-show_entries"),
                                        QStringLiteral("stream=has_b_frames,nb_read_frames,r_frame_rate"),
                                        QStringLiteral("-of"), QStringLiteral("csv=p=0"), path});
        // An AVI has no place for pictures out of their order.
        const bool isOrdered = kind == ExportFormat::Avi && coding == MovieCodec::H264;
        QVERIFY2(told.contains(isOrdered ? "0,30/1,8" : ",30/1,8"), told.constData());
    }
}

void TestExportFiles::aBetterQualityTakesMoreRoom_data() {
    QTest::addColumn<ExportFormat>("format");
    QTest::addColumn<MovieCodec>("codec");
    QTest::newRow("Jpeg") << ExportFormat::Jpeg << MovieCodec::Raw;
    for (const MovieCodec codec :
         {MovieCodec::H264, MovieCodec::Mjpeg, MovieCodec::Mpeg2, MovieCodec::Mpeg4}) {
        QTest::newRow(qPrintable(ExportFormats::name(codec))) << ExportFormat::Mov << codec;
    }
}

void TestExportFiles::aBetterQualityTakesMoreRoom() {
    QFETCH(ExportFormat, format);
    QFETCH(MovieCodec, codec);
    const FrameSourcePtr source = MadeFrames::source(QSize(160, 120), 8, false, 3);
    const auto bytes = [&](int quality) { return QFileInfo(save(source, format, codec, 1, quality)).size(); };
    const qint64 least = bytes(0), most = bytes(100);
    QVERIFY2(least > 0 && bytes(50) > least && most > bytes(50),
             qPrintable(QStringLiteral("%1, %2").arg(least).arg(most)));
    if (ExportFormats::isMovie(format)) {
        QCOMPARE(bytes(-20), least);
        QCOMPARE(bytes(140), most);
    }
}

void TestExportFiles::codecsFitTheirContainers_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("codec");
    QTest::addRow("MP4 RAW") << "MP4"
                             << "RAW";
    QTest::addRow("MP4 HUFFYUV") << "MP4"
                                 << "HUFFYUV";
}

// Better told than a file that nobody can play.
void TestExportFiles::codecsFitTheirContainers() {
    QFETCH(QString, format);
    QFETCH(QString, codec);
    ExportRequest request;
    request.source = MadeFrames::source(QSize(32, 32), 8, false, 2);
    request.last = 1;
    QVERIFY(ExportFormats::fromName(format, request.format) &&
            ExportFormats::codecFromName(codec, request.codec));
    request.path = m_folder.filePath(QStringLiteral("unfit.mp4"));
    ExportJob job(request);
    job.run();
    QCOMPARE(job.state(), ExportJob::State::Failed);
    QCOMPARE(job.failedPath(), request.path);
    QVERIFY(job.failure().english().contains(codec));
    QVERIFY(!QFileInfo::exists(request.path));
}

void TestExportFiles::pagesAreReadByOthers() {
    const FrameSourcePtr source = MadeFrames::source(QSize(40, 30), 12, false, 3);
    const QString path = save(source, ExportFormat::TiffPages);
    const QByteArray told = output(QStringLiteral("tiffinfo"), {path});
    QCOMPARE(told.count("Image Width: 40 Image Length: 30"), 3);
    QCOMPARE(told.count("Bits/Sample: 16"), 3);
    QVERIFY(told.contains("images=3\n") && told.contains("fps=1000\n") &&
            told.contains("finterval=0.001\n") && told.contains("max=4095.0\n"));
}

// Python's own library inflates the samples of a PNG, so nothing of ours or of Qt reads them.
void TestExportFiles::deepPicturesAreReadByOthers() {
    const FrameSourcePtr source = MadeFrames::source(QSize(20, 10), 12, false, 1);
    const QString path = save(source, ExportFormat::Png);
    const QString script = QStringLiteral("import sys,zlib,struct\n"
                                          "d=open(sys.argv[1],'rb').read();p=8;z=b''\n"
                                          "while p<len(d):\n"
                                          " n,t=struct.unpack('>I4s',d[p:p+8]);b=d[p+8:p+8+n];p+=12+n\n"
                                          " if t==b'IHDR': w,h,depth,kind=struct.unpack('>IIBB',b[:10])\n"
                                          " if t==b'IDAT': z+=b\n"
                                          "r=zlib.decompress(z);row=w*2+1;out=[];last=bytearray(w*2)\n"
                                          "for y in range(h):\n"
                                          " f=r[y*row];c=bytearray(r[y*row+1:(y+1)*row])\n"
                                          " for i in range(len(c)):\n"
                                          "  a=c[i-2] if i>1 else 0;u=last[i];q=last[i-2] if i>1 else 0\n"
                                          "  e=a+u-q;e=min((a,u,q),key=lambda v:abs(e-v))\n"
                                          "  c[i]=(c[i]+[0,a,u,(a+u)//2,e][f])&255\n"
                                          " last=c;out+=[v for (v,) in struct.iter_unpack('>H',c)]\n"
                                          "print(depth,kind,*out)\n");
    const QList<QByteArray> numbers =
        output(QStringLiteral("python3"), {QStringLiteral("-c"), script, path}).trimmed().split(' ');
    QCOMPARE(numbers.size(), 202);
    QCOMPARE(numbers.at(0), QByteArray("16"));
    QCOMPARE(numbers.at(1), QByteArray("0"));
    const QImage original = source->frame(0).image;
    for (int i = 0; i < 200; ++i) {
        const int wanted = reinterpret_cast<const quint16*>(original.constScanLine(i / 20))[i % 20];
        QVERIFY(qAbs(numbers.at(i + 2).toInt() - wanted * 65535.0 / 4095) < 1); // white is white to all
    }
}

// With pictures that stand for themselves only now and then, and ones that are made from later ones.
void TestExportFiles::framesOfAMovieAreReachedInAnyOrder_data() {
    QTest::addColumn<bool>("isAvi");
    QTest::addRow("MP4") << false;
    QTest::addRow("AVI") << true;
}

void TestExportFiles::framesOfAMovieAreReachedInAnyOrder() {
    QFETCH(bool, isAvi);
    const FrameSourcePtr source = MadeFrames::source(QSize(64, 48), 8, false, 60);
    const QString path = save(source, isAvi ? ExportFormat::Avi : ExportFormat::Mp4, MovieCodec::H264);
    const FrameSourcePtr forward = OpenFile::fromPictures(path);
    QVector<QImage> images;
    for (int i = 0; i < 60; ++i) {
        images.append(forward->frame(i).image);
    }
    const FrameSourcePtr jumping = OpenFile::fromPictures(path);
    for (const int i : {59, 0, 30, 31, 31, 12, 58, 1}) {
        QCOMPARE(jumping->frame(i).image, images.at(i));
        QCOMPARE(jumping->frame(i).number, quint32(40 + i));
    }
}

void TestExportFiles::aStepThinsTheRecording() {
    RecordingInfo info = MadeFrames::info();
    info.marks = {0, 3, 4, 6, 8}; // of which each is on a frame that stays, or goes with its own
    QVector<QImage> images;
    for (int i = 0; i < 10; ++i) {
        images.append(MadeFrames::picture(QSize(16, 16), 8, false, i));
    }
    const FrameSourcePtr source = std::make_shared<FrameList>(info, images);
    const FrameSourcePtr read = RecordingFile::open(save(source, ExportFormat::Rchx, MovieCodec::Raw, 4));
    QCOMPARE(read->info().marks, QVector<int>({0, 1, 2}));
    QCOMPARE(read->count(), 3);
    QCOMPARE(read->info().rate, 250U);
    QCOMPARE(read->info().triggerIndex, 0);
    QCOMPARE(read->frame(2).image, source->frame(8).image);
}

void TestExportFiles::damagedAndForeignFilesAreRefused_data() {
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("bytes");
    for (const char* const suffix : {"png", "tif", "avi", "mp4", "jpg", "bmp"}) {
        QTest::addRow("empty %s", suffix) << QString::fromLatin1(suffix) << QByteArray();
        QTest::addRow("text %s", suffix)
            << QString::fromLatin1(suffix) << QByteArray("no picture at all\n").repeated(100);
    }
    // Sizes that lie.
    QTest::addRow("huge png") << "png"
                              << QByteArray::fromHex(
                                     "89504e470d0a1a0a0000000d494844527fffffff7fffffff0800000000");
    QTest::addRow("huge bmp") << "bmp"
                              << QByteArray::fromHex(
                                     "424d36000000000000003600000028000000ffffff7fffffff7f0100180000000000");
}

void TestExportFiles::damagedAndForeignFilesAreRefused() {
    QFETCH(QString, suffix);
    QFETCH(QByteArray, bytes);
    const QString path = m_folder.filePath(QStringLiteral("bad.") + suffix);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    try {
        OpenFile::fromPictures(path);
        QFAIL("It was opened.");
    } catch (const RecordingError& error) {
        QCOMPARE(error.path(), path);
        QVERIFY(!error.why().isEmpty());
    }
}

// A note with more bits than a sample has; the picture counts.
void TestExportFiles::aNoteThatLiesDoesNotSpoilThePicture() {
    QImage image = MadeFrames::picture(QSize(6, 4), 16, false, 1);
    image.setText(QLatin1String(PictureNote::Key), PictureNote::text({{QStringLiteral("bitDepth"), 99},
                                                                      {QStringLiteral("triggerIndex"), -9}}));
    const QString path = m_folder.filePath(QStringLiteral("lies.png"));
    QVERIFY(image.save(path));
    const FrameSourcePtr read = OpenFile::fromPictures(path);
    QCOMPARE(read->info().bitDepth, 16);
    QCOMPARE(read->info().triggerIndex, 0);
    QCOMPARE(read->frame(0).image, image);
}

// The program itself puts numbers in brackets into names.
void TestExportFiles::picturesBelongTogetherByTheirNames() {
    const QString saved = save(MadeFrames::source(QSize(8, 4), 8, false, 4), ExportFormat::Png);
    const auto name = [&](const char* stem, int index) {
        return m_folder.filePath(QStringLiteral("%1_00000%2.png").arg(QLatin1String(stem)).arg(index));
    };
    for (int i = 0; i < 4; ++i) {
        QString from = saved;
        from.replace(QLatin1String("_000000."), QStringLiteral("_00000%1.").arg(i));
        QVERIFY(QFile::rename(from, i < 3 ? name("Mono (2)", i) : name("Mono 2", 0)));
    }
    QCOMPARE(OpenFile::fromPictures(name("Mono (2)", 1))->count(), 3);
    QCOMPARE(OpenFile::fromPictures(name("Mono 2", 0))->count(), 1);
}

QTEST_GUILESS_MAIN(TestExportFiles)
#include "tst_export_files.moc"
