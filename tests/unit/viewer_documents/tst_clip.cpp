// Recordings taken out of a camera's memory, their files, and the custom items that stay with camera and
// recording.
#include "livecontrol/foundation/APP_Exception.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SmallRig.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/KeptItems.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_Clip : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    static Clip sample() {
        Clip clip;
        clip.cameraName = QStringLiteral("Mono");
        clip.rate = 1000;
        clip.bitDepth = 12;
        clip.triggerIndex = 1;
        for (int i = 0; i < 3; ++i) {
            QImage image(5, 3, QImage::Format_Grayscale16);
            image.fill(0);
            reinterpret_cast<quint16*>(image.scanLine(2))[4] = quint16(4000 + i);
            clip.frames.append(image);
        }
        return clip;
    }

    static CustomItem load() {
        return {QStringLiteral("Load"), QStringLiteral("9 \u00b5"), QStringLiteral("kN"), true, false};
    }

    /// The reason that `operation` fails for; null if it does not.
    template <class Operation>
    static QString whyNot(const Operation& operation) {
        try {
            operation();
        } catch (const DOC_FileException& error) {
            return error.reason();
        }
        return {};
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void comesBackFromItsFileAsItWas() {
        sample().save(path("a.zrec"));
        const Clip clip = Clip::load(path("a.zrec"));
        QCOMPARE(clip.cameraName, QStringLiteral("Mono"));
        QCOMPARE(clip.rate, 1000U);
        QCOMPARE(clip.bitDepth, 12);
        QCOMPARE(clip.triggerIndex, 1);
        QCOMPARE(clip.frames, sample().frames);
        QVERIFY(clip.items.isEmpty());

        // What a user made up for the camera stays with its recording. Files without are those of older
        // programs.
        SmallRig small;
        FileDocument* const document = small.list.addClip(clip);
        document->customItems().add(load());
        document->save(path("b.zrec"));
        const Clip other = Clip::load(path("b.zrec"));
        QCOMPARE(other.items.toList(), QVariantList{load().toMap()});
        QCOMPARE(other.frames, sample().frames);
        QCOMPARE(small.list.addClip(other)->customItems().items().size(), 1);
        CustomItem large = load();
        large.value = QString(1 << 21, QLatin1Char('9'));
        Clip notes = sample();
        notes.items.add(large);
        notes.save(path("c.zrec"));
        QCOMPARE(Clip::load(path("c.zrec")).items.toList(), QVariantList{large.toMap()});
        notes.comment = QString::fromUtf8("<b>\xd7\xa9</b>\n\xf0\x9f\x93\xb7").repeated(1 << 16);
        notes.save(path("c.zrec"));
        const Clip noted = Clip::load(path("c.zrec"));
        QVERIFY(noted.comment == notes.comment);
        QCOMPARE(noted.items.toList(), QVariantList{large.toMap()});
        QVERIFY(small.list.addClip(noted)->comment() == notes.comment);
        QVERIFY(!noted.timeCode && !noted.end.isValid() && noted.triggerMode == -1);
    }

    void whatTheRecordingWasTakenWithIsKept() {
        Clip clip = sample();
        clip.end = QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 987));
        clip.triggerMode = 5;
        clip.logoPath = QStringLiteral("/tmp/logo \u00e4.png");
        clip.timeCode = TimeCodeSetting();
        clip.timeCode->index = 1;
        clip.timeCode->oneFrame = -0.25;
        clip.timeCode->displayUnit = QStringLiteral("\u00b0CA");
        SmallRig small;
        FileDocument* const document = small.list.addClip(clip);
        document->setLogoPath(QStringLiteral("other.png"));
        document->save(path("taken.zrec"));
        const Clip read = Clip::load(path("taken.zrec"));
        QCOMPARE(read.end, clip.end);
        QCOMPARE(read.triggerMode, 5);
        QCOMPARE(small.list.addClip(read)->logoPath(), QStringLiteral("other.png"));
        QVERIFY(read.timeCode);
        QCOMPARE(TimeCodeRecord::toMap(*read.timeCode), TimeCodeRecord::toMap(*clip.timeCode));
    }

    void aFullDiskIsToldAndLeavesTheOldFile() {
        sample().save(path("d.zrec"));
        Clip other = sample();
        other.cameraName = QStringLiteral("Other");
        CustomItem large = load();
        large.value = QString(1 << 15, QLatin1Char('9')); // more than is gathered before it is written
        other.items.add(large);
        try {
            const FullDisk disk(100);
            other.save(path("d.zrec"));
            QFAIL("nothing was thrown");
        } catch (const DOC_FileException& error) {
            QCOMPARE(error.reason(), QString::fromLocal8Bit(strerror(EFBIG)));
        }
        QCOMPARE(Clip::load(path("d.zrec")).cameraName, QStringLiteral("Mono"));
    }

    void itemsAndCommentStayWithTheirCamera() {
        FilePreferences preferences(path("settings.ini"));
        {
            SmallRig small;
            const KeptItems kept(small.list, preferences);
            small.camera("Twin", 1)->customItems().add(load());
            small.camera("Twin", 1)->setComment(QStringLiteral("left\nhead"));
            small.list.remove(small.camera("Twin", 1));
            small.list.addCamera(small.body("Twin"));
            QCOMPARE(small.camera("Twin", 1)->customItems().toList(), QVariantList{load().toMap()});
            QVERIFY(small.camera("Twin", 0)->customItems().isEmpty());
            small.camera("Mono")->customItems().add(load());
        }
        SmallRig again;
        const KeptItems kept(again.list, preferences);
        QCOMPARE(again.camera("Mono")->customItems().items().size(), 1);
        QCOMPARE(again.camera("Twin", 1)->customItems().items().size(), 1);
        QCOMPARE(again.camera("Twin", 1)->comment(), QStringLiteral("left\nhead"));
        QCOMPARE(again.camera("Twin", 0)->comment(), QString());
        again.camera("Mono")->customItems().clear();
        QTRY_VERIFY(!preferences.value(QStringLiteral("custominfo/SN-1011.1")).isValid());
    }

    void aNameStandsForOneItem() {
        CustomItems items;
        items.add(load());
        items.add({QStringLiteral("Run"), QStringLiteral("1"), QString(), true, true});
        items.rename(QStringLiteral("Run"), QStringLiteral("Load")); // would hide one of the two
        QCOMPARE(items.items().at(0).name, QStringLiteral("Load"));
        QCOMPARE(items.items().at(1).name, QStringLiteral("Run"));
        items.add({QStringLiteral("Run"), QStringLiteral("2"), QString(), true, true});
        QCOMPARE(items.items().size(), 2);
        QCOMPARE(items.items().at(1).value, QStringLiteral("2"));
    }

    void aDamagedFileIsRefusedWhereverItIsDamaged() {
        sample().save(path("whole.zrec"));
        QFile whole(path("whole.zrec"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray bytes = whole.readAll();
        for (int length = 0; length < bytes.size(); length += 7) {
            QFile cut(path("cut.zrec"));
            QVERIFY(cut.open(QIODevice::WriteOnly));
            cut.write(bytes.left(length));
            cut.close();
            constexpr int kHead = 6; // bytes that tell what the file is
            QCOMPARE(whyNot([&] { Clip::load(path("cut.zrec")); }),
                     length < kHead
                         ? QStringLiteral("The file is no recording.")
                         : QStringLiteral("The recording is damaged, or a part of it is missing."));
        }
        QByteArray newer = bytes;
        newer[5] = 9;
        QFile next(path("next.zrec"));
        QVERIFY(next.open(QIODevice::WriteOnly));
        next.write(newer);
        next.close();
        QCOMPARE(whyNot([&] { Clip::load(path("next.zrec")); }),
                 QStringLiteral("The recording was saved by a newer program."));
        QCOMPARE(whyNot([&] { Clip::load(path("missing.zrec")); }),
                 QStringLiteral("The file does not exist."));
        QCOMPARE(whyNot([&] { Clip::load(m_folder.path()); }), QStringLiteral("It is a folder."));
        QCOMPARE(whyNot([&] { sample().save(m_folder.path()); }), QStringLiteral("It is a folder."));
        QCOMPARE(whyNot([&] { Clip().save(path("empty.zrec")); }),
                 QStringLiteral("The recording holds no frames."));
        QCOMPARE(whyNot([&] { sample().save(path("no/such/folder.zrec")); }),
                 QStringLiteral("The folder does not exist."));
    }

    void keepsTheFramesRoundTheTrigger() {
        SmallRig small;
        SimulatedBody* const body = small.body("Plain");
        SimulatedHead& head = small.head("Plain");
        QVERIFY(Clip::fromMemory(head, 10).frames.isEmpty());
        head.setResolution(QSize(512, 32)).result();
        head.setTrigger(2, 1).result(); // the trigger at the end
        body->recordReady().result();
        small.rig.clock().advanceMs(body->model().readyTimeMs + 100);
        body->triggerIn().result();
        small.rig.clock().advanceMs(1000);
        QCOMPARE(body->state(), CameraState::Memory);
        const Clip clip = Clip::fromMemory(head, 10);
        QCOMPARE(clip.frames.size(), 10);
        QCOMPARE(clip.triggerMode, 2);
        const QDateTime end = small.camera("Plain")->recordingEnd();
        QVERIFY(end.isValid() && end.secsTo(QDateTime::currentDateTime()) < 60);
        QCOMPARE(Clip::fromMemory(head, 10, end).end, end);
        body->goLive().result(); // and to the memory again: it is still the same recording
        body->goMemory().result();
        QCOMPARE(small.camera("Plain")->recordingEnd(), end);
        const auto number = FrameStamp::read(clip.frames.last());
        QVERIFY(number);
        QCOMPARE(*number, quint32(head.recording().firstNumber()) + quint32(head.recording().frames) - 1);

        FileDocument* const document = small.list.addClip(clip);
        document->setPlayPosition(99);
        QCOMPARE(document->playPosition(), 9);
        QCOMPARE(*FrameStamp::read(document->frame().image), *number);
    }
};

QTEST_GUILESS_MAIN(tst_Clip)
#include "tst_clip.moc"
