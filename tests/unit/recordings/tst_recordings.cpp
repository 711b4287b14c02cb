// The container of recordings: what is written comes back, what was cut off opens, what lies is refused.
#include "tests/support/FullDisk.h"
#include "tests/unit/recordings/SampleFrames.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/RecordingReader.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

#include <zlib.h>

#include <atomic>

using Container::Storage;

namespace {

const QList<Storage> kStorages{Storage::Raw, Storage::Zstd, Storage::Delivered};

/// The reason that `operation` fails for, in English; empty if it doesn't.
template <class Operation>
QString whyNot(const Operation& operation) {
    try {
        operation();
    } catch (const RecordingError& error) {
        return error.why().english();
    }
    return {};
}

const QString kDamaged = QStringLiteral("The recording is damaged, or a part of it is missing.");

} // namespace

class tst_Recordings : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder{sample::folderTemplate()};
    int m_files = 0;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QString newPath() { return m_folder.filePath(QStringLiteral("%1.rchx").arg(++m_files)); }
    QStringList left() const {
        return QDir(m_folder.path()).entryList({UnfinishedFile::kPattern}, QDir::Files | QDir::Hidden);
    }

    QString written(const FrameSource& frames, Storage storage = Storage::Raw) {
        RecordingCopy copy;
        copy.storage = storage;
        const QString to = newPath();
        copy.run(frames, frames.info(), to);
        return to;
    }

    /// Kept as hexadecimal digits.
    QString olderFile(const char* name) const {
        const QString digits = QStringLiteral(OLD_FILES "/%1.zrec.hex").arg(QLatin1String(name));
        sample::put(path("old.zrec"), QByteArray::fromHex(sample::contentOf(digits)));
        return path("old.zrec");
    }

    static void compare(const FrameSource& a, const FrameSource& b, int count) {
        QCOMPARE(a.count(), count);
        for (int i = 0; i < count; ++i) {
            const Frame frame = a.frame(i);
            QCOMPARE(frame.image, b.frame(i).image);
            QCOMPARE(frame.number, b.frame(i).number);
            QCOMPARE(frame.time, b.frame(i).time);
            QCOMPARE(frame.bitDepth, b.frame(i).bitDepth);
        }
    }

private slots:
    void whatIsKnownComesBack() {
        RecordingInfo info = sample::info();
        info.size = QSize(5, 3);
        const QJsonObject json = info.toJson();
        const RecordingInfo read =
            RecordingInfo::fromJson(QJsonDocument::fromJson(QJsonDocument(json).toJson()).object());
        QCOMPARE(read.toJson(), json);
        QCOMPARE(
            QStringList(json.keys()).join(QLatin1Char(' ')),
            QStringLiteral("area bitDepth camera color comment device ended firstNumber frames head headName "
                           "id items logoPath marks newer partition rate recordedFrames serial shutter size "
                           "timeCode triggerIndex triggerMode triggered"));
        QVERIFY(read.rate == info.rate && read.firstNumber == info.firstNumber && read.ended == info.ended);
        QVERIFY(read.marks == info.marks && read.others == info.others);
        QVERIFY(read.items.items() == info.items.items() && read.timeCode &&
                read.timeCode->oneFrame == -0.25);
        const RecordingInfo part = read.part(1, 2);
        QCOMPARE(part.triggerIndex, 0);
        QCOMPARE(part.marks, QVector<int>{1});
        QCOMPARE(
            RecordingInfo::fromJson({{QStringLiteral("rate"), QStringLiteral("x")},
                                     {QStringLiteral("marks"), QJsonArray{-1, 4, QStringLiteral("a"), 4, 2}},
                                     {QStringLiteral("items"), 7}})
                .marks,
            (QVector<int>{2, 4}));
        const RecordingInfo wild = RecordingInfo::fromJson({{QStringLiteral("bitDepth"), 99},
                                                            {QStringLiteral("frames"), -3},
                                                            {QStringLiteral("recordedFrames"), -1},
                                                            {QStringLiteral("triggerIndex"), INT_MIN}});
        QCOMPARE(wild.bitDepth, 8);
        QVERIFY(wild.frames == 0 && wild.recordedFrames == 0 && wild.triggerIndex == 0);
        QCOMPARE(RecordingInfo::fromJson({{QStringLiteral("bitDepth"), 0}}).bitDepth, 8);
    }

    void framesOfAllKindsComeBack() {
        struct Kind {
            QImage::Format format;
            int bits;
        };
        for (const Kind kind : {Kind{QImage::Format_Grayscale8, 8}, Kind{QImage::Format_Grayscale16, 10},
                                Kind{QImage::Format_Grayscale16, 12}, Kind{QImage::Format_Grayscale16, 16},
                                Kind{QImage::Format_RGB888, 8}}) {
            for (const Storage storage : kStorages) {
                for (const QSize size : {QSize(5, 3), QSize(1, 1), QSize(640, 33)}) {
                    const FrameList frames = sample::frames(3, size, kind.format, kind.bits);
                    const RecordingReader read(written(frames, storage));
                    compare(read, frames, 3);
                    QVERIFY(read.isWhole());
                    QCOMPARE(read.info().comment, frames.info().comment);
                    QCOMPARE(read.info().color, kind.format == QImage::Format_RGB888);
                    const RecordingReader again(written(read, storage)); // as the file has them
                    compare(again, frames, 3);
                }
            }
        }
    }

    void aPartKeepsItsPlaces() {
        const FrameList frames = sample::frames(6);
        RecordingCopy copy;
        copy.first = 2;
        copy.count = 3;
        const QString to = newPath();
        QVERIFY(copy.run(RecordingReader(written(frames)), frames.info(), to));
        const RecordingReader read(to);
        QCOMPARE(read.count(), 3);
        QCOMPARE(read.frame(2).image, frames.frame(4).image);
        QCOMPARE(read.frame(2).number, frames.frame(4).number);
        QCOMPARE(read.info().firstNumber, frames.frame(2).number);
        QCOMPARE(read.info().marks, QVector<int>{0});
        QCOMPARE(read.info().triggerIndex, -1);
    }

    void anotherProgramReadsIt() {
        for (const Storage storage : kStorages) {
            const FrameList frames = sample::frames(4, QSize(7, 3));
            QProcess python;
            python.start(QStringLiteral(PYTHON), {QStringLiteral(READER), written(frames, storage)});
            QVERIFY(python.waitForFinished());
            const QList<QByteArray> lines = python.readAllStandardOutput().trimmed().split('\n');
            QVERIFY2(lines.size() == 5, python.readAllStandardError().constData());
            const RecordingInfo info = RecordingInfo::fromJson(QJsonDocument::fromJson(lines.at(0)).object());
            QCOMPARE(info.items.toList(), frames.info().items.toList());
            for (int i = 0; i < 4; ++i) {
                const Frame frame = frames.frame(i);
                uLong sum = crc32(0, nullptr, 0);
                for (int y = 0; y < 3; ++y) {
                    sum = crc32(sum, frame.image.constScanLine(y), 14);
                }
                QCOMPARE(lines.at(i + 1), QByteArray::number(frame.number) + ' ' +
                                              QByteArray::number(frame.time) + ' ' +
                                              QByteArray::number(quint64(sum)));
            }
        }
    }

    void cutOffAnywhereItOpensUpToItsLastWholeFrame() {
        const FrameList frames = sample::frames(5);
        for (const Storage storage : kStorages) {
            const QByteArray bytes = sample::contentOf(written(frames, storage));
            const QString cut = path("cut.rchx");
            int opened = 0;
            for (int length = 0; length < bytes.size(); ++length) {
                sample::put(cut, bytes.left(length));
                const QString why = whyNot([&] {
                    const RecordingReader read(cut);
                    QVERIFY(read.count() >= opened && !read.isWhole()); // never fewer than of a shorter file
                    opened = read.count();
                    compare(read, frames, opened);
                    QCOMPARE(read.info().comment, frames.info().comment);
                });
                QVERIFY2(why.isEmpty() ? opened > 0 : opened == 0, qPrintable(why));
                QVERIFY(why.isEmpty() || why == kDamaged ||
                        (length < 8 && why == QLatin1String("The file is no recording.")));
            }
            QCOMPARE(opened, 5);
        }
    }

    // A machine that went down may leave the length of a file without its last bytes.
    void anEndOfZerosCountsAsMissing() {
        const FrameList frames = sample::frames(5);
        const QByteArray bytes = sample::contentOf(written(frames));
        for (int zeros = 1; zeros < bytes.size() - 1000; zeros += 13) {
            QByteArray holed = bytes;
            holed.replace(bytes.size() - zeros, zeros, QByteArray(zeros, '\0'));
            sample::put(path("holed.rchx"), holed);
            const RecordingReader read(path("holed.rchx"));
            compare(read, frames, read.count());
        }
    }

    // Each byte in turn, and whole numbers that lie with a checksum that fits.
    void aFileThatLiesIsRefusedOrReadRight() {
        const FrameList frames = sample::frames(3);
        const QByteArray bytes = sample::contentOf(written(frames, Storage::Zstd));
        const QString bad = path("bad.rchx");
        const auto tryAll = [&] {
            const QString why = whyNot([&] {
                const FrameSourcePtr read = RecordingFile::open(bad);
                QVERIFY(read->count() >= 1 && read->count() <= 3);
                for (int i = 0; i < read->count(); ++i) {
                    QCOMPARE(read->frame(i).image, frames.frame(i).image);
                }
            });
            QVERIFY2(why.isEmpty() || why == kDamaged || why.startsWith(QLatin1String("Frame ")) ||
                         why == QLatin1String("The file is no recording.") ||
                         why == QLatin1String("The recording was saved by a newer program."),
                     qPrintable(why));
        };
        for (int i = 0; i < bytes.size(); ++i) {
            QByteArray broken = bytes;
            broken[i] = char(broken[i] ^ 0x40);
            sample::put(bad, broken);
            tryAll();
        }
        const QVector<quint64> lies{0,          1,          39,         0x7fffffff, 0xffffffff,
                                    1ULL << 40, 1ULL << 62, ~0ULL >> 1, ~0ULL};
        for (const int back : {40}) {
            for (const quint64 lie : lies) {
                for (const int field : {8, 16, 24}) {
                    QByteArray lying = bytes;
                    char* const end = lying.data() + lying.size() - back;
                    memcpy(end + field, &lie, field == 16 ? 4 : 8);
                    const quint32 sum = Container::checksum(end, 32);
                    memcpy(end + 32, &sum, 4);
                    sample::put(bad, lying);
                    tryAll();
                }
            }
        }
    }

    void hugeSizesAreNotBelieved() {
        Container::Layout layout = Container::Layout::of(sample::frames(1).frame(0).image, 12, Storage::Zstd);
        layout.size = QSize(65536, 2048); // 256 MB a frame, which is allowed
        Container::Chunk chunk;
        chunk.type = Container::Chunk::FrameData;
        chunk.size = 16;
        const QByteArray payload(16, '\x28');
        chunk.checksum = Container::checksum(payload.constData(), 16);
        sample::put(path("huge.rchx"), Container::header(layout) + Container::chunk(chunk) + payload);
        const RecordingReader read(path("huge.rchx"));
        QCOMPARE(whyNot([&] { read.frame(0); }), QStringLiteral("Frame 1 is damaged."));
        layout.size = QSize(65536, 65536);
        sample::put(path("huge.rchx"), Container::header(layout) + Container::chunk(chunk) + payload);
        QCOMPARE(whyNot([&] { RecordingReader(path("huge.rchx")); }), kDamaged);
    }

    void whatCannotBeReadSaysWhy() {
        QCOMPARE(whyNot([&] { RecordingFile::open(path("missing.rchx")); }),
                 QStringLiteral("The file does not exist."));
        QCOMPARE(whyNot([&] { RecordingFile::open(m_folder.path()); }), QStringLiteral("It is a folder."));
        sample::put(path("foreign.rchx"), "RIFF....AVI LIST");
        QCOMPARE(whyNot([&] { RecordingFile::open(path("foreign.rchx")); }),
                 QStringLiteral("The file is no recording."));
        const RecordingReader read(written(sample::frames(2)));
        QCOMPARE(whyNot([&] { read.frame(2); }), kDamaged);
        QCOMPARE(whyNot([&] { read.frame(-1); }), kDamaged);
    }

    void aFileAppearsWhenItIsWholeAndNeverOverAnother() {
        const FrameList frames = sample::frames(3);
        const QString to = path("once.rchx");
        {
            RecordingWriter writer(to, frames.info(), Storage::Raw);
            writer.add(frames.frame(0));
            QVERIFY(!QFile::exists(to) && QFile::exists(writer.currentPath()));
            sample::put(to, "somebody's"); // meanwhile
            QCOMPARE(whyNot([&] { writer.finish(); }),
                     QStringLiteral("There is a file of that name already."));
        }
        QCOMPARE(sample::contentOf(to), QByteArray("somebody's"));
        QCOMPARE(whyNot([&] { RecordingCopy().run(frames, frames.info(), to); }),
                 QStringLiteral("There is a file of that name already."));
        RecordingCopy over;
        over.existing = UnfinishedFile::Existing::Replace;
        over.goesOn = [](int copied) { return copied < 2; };
        QVERIFY(!over.run(frames, frames.info(), to)); // ended by the user
        QCOMPARE(sample::contentOf(to), QByteArray("somebody's"));
        over.goesOn = nullptr;
        QVERIFY(over.run(frames, frames.info(), to));
        QCOMPARE(RecordingReader(to).count(), 3);
        QVERIFY(left().isEmpty());

        const auto reasonAt = [&](const QString& place) {
            return whyNot([&] { RecordingCopy().run(frames, frames.info(), place); });
        };
        QCOMPARE(reasonAt(path("no/such/folder.rchx")), QStringLiteral("The folder does not exist."));
        QCOMPARE(reasonAt(m_folder.path()), QStringLiteral("It is a folder."));
        QCOMPARE(reasonAt(m_folder.filePath(QString(300, QLatin1Char('n')))),
                 QStringLiteral("The name is too long."));
        QCOMPARE(reasonAt(to + QStringLiteral("/x.rchx")), QStringLiteral("The folder does not exist."));
        QCOMPARE(whyNot([&] { RecordingWriter(newPath(), {}, Storage::Raw).finish(); }),
                 QStringLiteral("The recording holds no frames."));
        QVERIFY(left().isEmpty());
    }

    void aFullDiskLeavesNothingOrWhatItHolds() {
        const FrameList frames = sample::frames(40, QSize(1024, 256));
        const QString to = newPath();
        {
            const FullDisk disk(rlim_t(10) << 20);
            QCOMPARE(whyNot([&] { RecordingCopy().run(frames, frames.info(), to); }),
                     QStringLiteral("The file would grow larger than is allowed there."));
            QVERIFY(!QFile::exists(to) && left().isEmpty());
            RecordingWriter writer(to, frames.info(), Storage::Raw);
            QVERIFY(!whyNot([&] {
                         for (int i = 0; i < 40; ++i) {
                             writer.add(frames.frame(i));
                         }
                     }).isEmpty());
            writer.finishWithoutEnd();
        }
        const RecordingReader read(to);
        QVERIFY2(read.count() > 10, qPrintable(QString::number(read.count())));
        compare(read, frames, read.count());
    }

    // Three files of the versions that there were.
    void olderFilesOpen() {
        for (const char* const name : {"first", "items", "notes"}) {
            const QString old = olderFile(name);
            const FrameSourcePtr source = RecordingFile::open(old);
            QCOMPARE(source->count(), 3);
            QCOMPARE(source->info().camera, QStringLiteral("Mono"));
            QCOMPARE(source->info().triggerIndex, 1);
            const Frame frame = source->frame(2);
            QCOMPARE(reinterpret_cast<const quint16*>(frame.image.constScanLine(2))[4], quint16(4002));
            QCOMPARE(frame.bitDepth, 12);
            QCOMPARE(source->info().items.items().size(), qstrcmp(name, "first") == 0 ? 0 : 1);
            compare(RecordingReader(written(*source)), *source, 3);

            const QByteArray bytes = sample::contentOf(old);
            for (int length = 0; length < bytes.size(); length += 7) {
                sample::put(path("cut.zrec"), bytes.left(length));
                const QString why = whyNot([&] { RecordingFile::open(path("cut.zrec")); });
                QVERIFY(length < 6 ? why == QLatin1String("The file is no recording.") : why == kDamaged);
            }
        }
        const RecordingInfo info = RecordingFile::open(olderFile("notes"))->info();
        QCOMPARE(info.comment, QStringLiteral("left\nhead"));
        QCOMPARE(info.triggerMode, 5);
        QCOMPARE(info.ended, QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 987)));
        QVERIFY(info.timeCode && info.timeCode->oneFrame == -0.25);
    }

    void whatIsNotedLaterStandsInTheFile() {
        const FrameList frames = sample::frames(4);
        const QByteArray bytes = sample::contentOf(written(frames, Storage::Zstd));
        const QString noted = newPath();
        for (const int missing : {0, 300}) { // also in a file that was cut off, which is whole then
            sample::put(noted, bytes.left(bytes.size() - missing));
            RecordingInfo info = frames.info();
            info.comment = QString(1000, QLatin1Char('c'));
            RecordingReader::replaceInfo(noted, info);
            const RecordingReader read(noted);
            QVERIFY(read.isWhole());
            QCOMPARE(read.info().comment, info.comment);
            compare(read, frames, read.count());
        }
    }

    void manyThreadsRead() {
        const FrameList frames = sample::frames(200, QSize(64, 64));
        const RecordingReader read(written(frames, Storage::Zstd));
        QVector<int> indices;
        for (int i = 0; i < 2000; ++i) {
            indices.append(i * 7919 % 200);
        }
        std::atomic<int> wrong{0};
        QtConcurrent::blockingMap(indices, [&](int& i) {
            if (read.frame(i).image != frames.frame(i).image) {
                ++wrong;
            }
        });
        QCOMPARE(wrong.load(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_Recordings)
#include "tst_recordings.moc"
