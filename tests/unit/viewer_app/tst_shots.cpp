// Several shots in one recording and recordings in several partitions: each frame with what belongs to it.

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/storage/dialogs/DialogKind.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/jobs/ReportMaker.h"
#include "viewer/app/jobs/SaveService.h"
#include "viewer/app/jobs/SaveSources.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/ExportJob.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/recordings/FrameList.h"
#include "viewer/recordings/RecordingFile.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QVector<int> triggersOf(const RecordingInfo& info) {
    QVector<int> triggers;
    for (const RecordedShot& shot : info.shots) {
        triggers.append(shot.triggerIndex);
    }
    return triggers;
}

RecordingInfo threeShots() {
    const QDateTime first(QDate(2026, 2, 3), QTime(4, 5, 6));
    RecordingInfo info;
    info.rate = 1000;
    info.frames = 30;
    info.triggerIndex = 4;
    info.triggered = first;
    info.shots = {{0, 4, first}, {10, 12, first.addSecs(60)}, {20, 28, first.addSecs(120)}};
    return info;
}

} // namespace

class tst_Shots : public QObject {
    Q_OBJECT

    std::unique_ptr<HostTest> m_test;
    QTemporaryDir m_folder;
    std::unique_ptr<RecordingShelf> m_shelf;

    SimulatedHead& head() const { return m_test->head("Mono"); }
    CameraDocument& camera() const { return *m_test->camera("Mono"); }

    /// Records into a partition by that many triggers.
    void record(int partition, int triggers) {
        SimulatedBody& body = *m_test->body("Mono");
        body.setPartition(partition).result();
        head().setTrigger(TriggerRandom, 20, 50, triggers).result();
        body.recordReady().result();
        m_test->rig.clock().advanceMs(body.model().readyTimeMs);
        for (int i = 0; i < triggers; ++i) {
            m_test->rig.clock().advanceMs(1000 + 500 * i);
            body.triggerIn().result();
            m_test->rig.clock().advanceMs(1000);
        }
        if (body.state() != CameraState::Memory) {
            body.stopRecording().result();
        }
        camera().noteState();
        QCOMPARE(head().recording(partition).shots.size(), triggers);
        body.goLive().result();
    }

private slots:
    void init() {
        m_test = std::make_unique<HostTest>();
        m_shelf = std::make_unique<RecordingShelf>(m_test->list, m_test->preferences, m_test->messages,
                                                   m_folder.filePath(QStringLiteral("spool")));
        head().setResolution(QSize(128, 128)).result();
        head().setRate(1000).result();
    }
    void cleanup() {
        m_shelf.reset();
        m_test.reset();
    }

    void partsKeepTheShotsThatTheyHold() {
        const RecordingInfo info = threeShots();
        QCOMPARE(RecordingInfo::fromJson(info.toJson()).shots, info.shots);
        QCOMPARE(RecordedShot::of(info.shots, 9)->triggerIndex, 4);
        QCOMPARE(RecordedShot::of(info.shots, 10)->triggerIndex, 12);
        QVERIFY(!RecordedShot::of({}, 3));
        const RecordingInfo part = info.part(15, 10);
        QCOMPARE(triggersOf(part), (QVector<int>{-3, 13}));
        QCOMPARE(part.shots.last().first, 5);
        QCOMPARE(part.part(2, 3).recordedFrames, info.frames); // as it was shot, not as it was cut last
        QCOMPARE(triggersOf(info.part(0, 10)), QVector<int>{4});
        // Shots that go back, or that lie, count as missing.
        QJsonObject json = info.toJson();
        json[QStringLiteral("shots")] =
            QJsonArray{QJsonObject{{QStringLiteral("first"), 5}}, 7,
                       QJsonObject{{QStringLiteral("first"), 5}}, QJsonObject{{QStringLiteral("first"), -1}}};
        QCOMPARE(RecordingInfo::fromJson(json).shots.size(), 1);
    }

    void aFileHasTheTriggerOfTheShotThatShows() {
        const RecordingInfo info = threeShots();
        Document& file = *m_test->list.addRecording(std::make_shared<FrameList>(
            info, QVector<QImage>(info.frames, QImage(4, 4, QImage::Format_Grayscale8))));
        for (const auto& [frame, shot] :
             {std::make_pair(3, 0), std::make_pair(19, 1), std::make_pair(20, 2)}) {
            file.setPlayPosition(frame);
            QCOMPARE(file.triggerIndex(), info.shots.at(shot).triggerIndex);
            QCOMPARE(InfoFacts::of(file).triggered, info.shots.at(shot).triggered);
            file.setPlayPosition(0);
            const InfoFacts saved = SavedViewPictures::factsOf({file, 0, frame + 1, QDateTime()});
            QCOMPARE(saved.triggered, info.shots.at(shot).triggered);
            QCOMPARE(saved.triggerIndex, info.shots.at(shot).triggerIndex);
        }
        const Report report = ReportMaker::make({{&file, 0, static_cast<FileDocument&>(file).source()}}, {});
        QStringList titles;
        for (const auto& picture : report.sections.first().pictures) {
            titles.append(picture.caption);
        }
        // In steps, beside those.
        QCOMPARE(ReportMaker::make({{&file, 0, static_cast<FileDocument&>(file).source()}}, {}, {10})
                     .sections.first()
                     .pictures.size(),
                 titles.size() + 2); // 11 and 21
        QCOMPARE(titles, (QStringList{QStringLiteral("Frame 1 (T\u22124)"), QStringLiteral("Frame 5 (T+0)"),
                                      QStringLiteral("Frame 13 (T+0)"), QStringLiteral("Frame 29 (T+0)"),
                                      QStringLiteral("Frame 30 (T+1)")}));
    }

    void aReportTellsCustomItemsWithTheirUnits() {
        FileDocument& file = *m_test->list.addRecording(recordingOf({}, 30, {8, 4}));
        file.setMarks({7});
        file.setComment(QStringLiteral("At the weld"));
        ViewState turned = file.view();
        turned.quarterTurns = 1;
        file.setView(turned);
        file.customItems().add(
            {QStringLiteral("Load"), QStringLiteral("9"), QStringLiteral("kN"), false, false});
        file.customItems().add({QStringLiteral("Engineer"), QStringLiteral("Li"), QString(), false, false});
        const Report report = ReportMaker::make({{&file, 0, static_cast<FileDocument&>(file).source()}}, {});
        const auto& facts = report.sections.first().facts;
        QCOMPARE(facts.mid(facts.size() - 2),
                 (QVector<QPair<QString, QString>>{{QStringLiteral("Load"), QStringLiteral("9 kN")},
                                                   {QStringLiteral("Engineer"), QStringLiteral("Li")}}));
        const Report::Section& section = report.sections.first();
        QCOMPARE(section.pictures.value(1).caption,
                 QStringLiteral("Frame 8 (T+7)")); // between first and last
        QCOMPARE(section.pictures.first().image.size(), QSize(4, 8));
        QCOMPARE(section.comment, QStringLiteral("At the weld"));
        file.setMarks({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
        QCOMPARE(ReportMaker::make({{&file, 0, file.source()}}, {}).sections.first().pictures.size(), 12);
    }

    // A report is two files: with the place of one taken, the other is not written either.
    void aReportIsWrittenWholeOrNotAtAll() {
        SavedViewPictures pictures(m_test->list, m_test->preferences);
        SaveService service({m_test->list, *m_shelf, pictures, {}});
        const Document& file = *m_test->list.addRecording(recordingOf({}, 3, QSize(4, 4)));
        SaveRequest wish;
        wish.saveType = saveTypeOf(DialogKind::Report);
        wish.items = {{file.key(), 1, m_folder.filePath(QStringLiteral("report"))}};
        const QString html = wish.items.first().path + QStringLiteral(".html");
        QFile pdf(wish.items.first().path + QStringLiteral(".pdf"));
        QVERIFY(pdf.open(QIODevice::WriteOnly));
        QVERIFY_EXCEPTION_THROWN(service.save(wish), RecordingError);
        QVERIFY(!QFile::exists(html));
        QVERIFY(pdf.remove());
        service.save(wish);
        QVERIFY(QFile::exists(html) && pdf.exists());
    }

    // Of each third frame each shot begins with its first frame that is left; one of which none is left goes.
    void whatIsSavedInStepsHasItsShots() {
        RecordingInfo info = threeShots();
        info.shots.insert(1, {7, 8, info.triggered});
        info.shots.insert(2, {8, 8, info.triggered.addSecs(30)});
        ExportRequest request = m_shelf->requestTo(m_folder.filePath(QStringLiteral("third.rchx")));
        request.source = std::make_shared<FrameList>(
            info, QVector<QImage>(info.frames, QImage(4, 4, QImage::Format_Grayscale8)));
        request.last = info.frames - 1;
        request.step = 3;
        ExportJob(request).run();
        const RecordingInfo saved = RecordingFile::open(request.path)->info();
        QCOMPARE(saved.frames, 10);
        QCOMPARE(saved.rate, 333U);
        QCOMPARE(triggersOf(saved), (QVector<int>{1, 2, 4, 9}));
        QVector<int> starts;
        for (const RecordedShot& shot : saved.shots) {
            starts.append(shot.first);
        }
        QCOMPARE(starts, (QVector<int>{0, 3, 4, 7}));
        QCOMPARE(saved.shots.at(1).triggered, info.shots.at(2).triggered);
    }

    // The frames beside its first and last one keep theirs for themselves.
    void aPartThatIsSavedHasWhatBelongsToItsFrames() {
        RecordingInfo info = threeShots();
        info.marks = {9, 10, 20, 21};
        ExportRequest request = m_shelf->requestTo(m_folder.filePath(QStringLiteral("part.rchx")));
        request.source = recordingOf(info, info.frames, QSize(4, 4));
        request.first = 10;
        request.last = 20;
        ExportJob(request).run();
        const RecordingInfo saved = RecordingFile::open(request.path)->info();
        QCOMPARE(saved.frames, 11);
        QCOMPARE(saved.marks, (QVector<int>{0, 10}));
        QCOMPARE(triggersOf(saved), (QVector<int>{2, 18}));
        QCOMPARE(saved.shots.last().first, 10);
    }

    // What is saved of it has no window, and the time of the frame where it is not given.
    void aFileTellsWhatItsRecordingSays() {
        RecordingInfo info = threeShots();
        info.camera = QStringLiteral("Marlin");
        info.device = QStringLiteral("M-1");
        info.head = 2;
        info.partition = 3;
        info.shutter = 250;
        info.triggerMode = TriggerRandom;
        info.timeCode = TimeCodeSetting();
        info.timeCode->oneFrame = 0.5;
        info.marks = {2, 7};
        info.ended = info.triggered.addSecs(300);
        Document& file = *m_test->list.addRecording(std::make_shared<FrameList>(
            info, QVector<QImage>(info.frames, QImage(8, 4, QImage::Format_Grayscale8))));
        const InfoFacts facts = InfoFacts::of(file);
        QCOMPARE(facts.cameraName, info.camera);
        QCOMPARE(facts.deviceName, info.device);
        QCOMPARE(facts.head, 2);
        QCOMPARE(facts.partition, 3);
        QVERIFY(facts.shutter == info.shutter && facts.triggerMode == info.triggerMode);
        QVERIFY(facts.timeCode && facts.timeCode->oneFrame == 0.5);
        QCOMPARE(facts.marks, info.marks);
        QCOMPARE(facts.ended, info.ended);
        QCOMPARE(facts.triggerIndex, 4);
        const QDateTime moment(QDate(2026, 7, 8), QTime(9, 10, 11));
        const InfoFacts saved = SavedViewPictures::factsOf({file, 0, 11, moment});
        QCOMPARE(saved.saved, moment);
        QCOMPARE(saved.clock, moment.toSecsSinceEpoch());
        QCOMPARE(saved.resolution, QSize(8, 4));
        QVERIFY(facts.zoom > 0 && saved.zoom == 0);
        QCOMPARE(SavedViewPictures::factsOf({file, 0, 11, QDateTime()}).saved, info.shots.at(1).triggered);
    }

    void anotherPartitionIsReadAsTheCurrentOneIs() {
        record(1, 1);
        head().setRate(500).result();
        const auto isLater = [this] { return QDateTime::currentDateTime() > camera().recordingEnd(1); };
        QTRY_VERIFY(isLater()); // so that the two have times of their own
        record(2, 3);
        m_test->list.setMode(HOST_MODE_MEMORY);
        QSignalSpy marked(&camera(), &Document::marksChanged);
        camera().toggleMark(5);
        QCOMPARE(marked.count(), 1);
        m_test->body("Mono")->setPartition(1).result();
        camera().toggleMark(2);
        const Recording second = head().recording(2);
        QVERIFY(second.frames != head().recording().frames);

        const FrameSourcePtr frames = SaveSources::framesOf(camera(), 2, *m_shelf);
        QVERIFY(frames && frames->count() == second.frames);
        QCOMPARE(frames->info().partition, 2);
        QCOMPARE(frames->info().shots.size(), 3);
        QCOMPARE(SaveSources::framesOf(camera(), 0, *m_shelf)->info().partition, 1);
        QVERIFY(SaveSources::framesOf(camera(), 1, *m_shelf)->info().shots.isEmpty());
        QVERIFY(!SaveSources::framesOf(camera(), 3, *m_shelf)); // nothing lies there
        QVERIFY(!head().memoryReader(0) && !head().memoryReader(99));

        auto& geometry = dynamic_cast<DOC_Geometry&>(*camera().face());
        const QImage last = frames->frame(second.frames - 1).displayImage();
        QVERIFY(last != frames->frame(0).displayImage());
        const QImage shown = geometry.renderThumbnail(0, 128, 128, 2, second.frames, nullptr)
                                 .toImage()
                                 .convertToFormat(last.format());
        QCOMPARE(shown, last);

        const InfoFacts facts = SavedViewPictures::factsOf({camera(), 2, second.frames, QDateTime()});
        QCOMPARE(facts.partition, 2);
        QCOMPARE(facts.rate, 500U);
        QCOMPARE(facts.marks, QVector<int>{5});
        QCOMPARE(facts.triggerIndex, second.triggerIndex(second.frames - 1));
        QCOMPARE(facts.triggered, facts.ended.addMSecs(-second.triggerToEnd(second.frames - 1) / 1000000));
        QVERIFY(facts.shots.first().triggered < facts.triggered);
    }

    // What shows of the current one may lie behind the other one's last frame.
    void aShorterPartitionShowsItsLastFrame() {
        record(1, 1);
        record(2, 3);
        m_test->list.setMode(HOST_MODE_MEMORY);
        const int frames = head().recording(1).frames;
        camera().setPlayPosition(head().recording(2).frames - 1);
        QVERIFY(camera().playPosition() >= frames);
        auto& geometry = dynamic_cast<DOC_Geometry&>(*camera().face());
        const auto shown = [&](int frame) {
            return geometry.renderThumbnail(0, 128, 128, 1, frame, nullptr).toImage();
        };
        QVERIFY(!shown(0).isNull() && shown(0) != shown(1));
        QCOMPARE(shown(0), shown(frames));
    }

    void marksSetWhileItIsKeptGoWithIt() {
        record(1, 1);
        QVector<int> marks;
        connect(m_shelf.get(), &RecordingShelf::kept, this,
                [&marks](const FileDocument* kept) { marks = kept->marks(); });
        QVERIFY(m_shelf->keep(camera()));
        camera().toggleMark(7);
        QTRY_VERIFY(!m_shelf->isKeeping());
        QCOMPARE(marks, QVector<int>{7});
    }

    void aCameraIsNamedAsInTheList() {
        const SimulatedBody& body = *m_test->body("Mono");
        QCOMPARE(InfoFacts::of(camera()).cameraName, body.name());
        m_test->list.setNamesAreAddresses(true);
        QCOMPARE(InfoFacts::of(camera()).cameraName, body.address());
    }

    // Whatever the camera was set to since.
    void replayTellsWithWhatItWasRecorded() {
        record(1, 1);
        const QSize recorded = InfoFacts::of(camera()).resolution;
        head().setRate(500).result();
        head().setResolution(QSize(256, 256)).result();
        QCOMPARE(InfoFacts::of(camera()).rate, 500U);
        QCOMPARE(InfoFacts::of(camera()).frames, head().totalFrames());
        QCOMPARE(InfoFacts::of(camera()).triggerMode, int(TriggerRandom));
        QVERIFY(InfoFacts::of(camera()).resolution != recorded);
        m_test->list.setMode(HOST_MODE_MEMORY);
        const InfoFacts facts = InfoFacts::of(camera());
        QCOMPARE(facts.rate, 1000U);
        QVERIFY(facts.ended.isValid() && facts.ended == camera().recordingEnd());
        QCOMPARE(facts.resolution, recorded);
    }

    void aNewRecordingBeginsAtItsFirstFrame() {
        record(1, 1);
        m_test->list.setMode(HOST_MODE_MEMORY);
        camera().setPlayPosition(7);
        record(1, 1);
        QCOMPARE(camera().playPosition(), 0);
    }

    // Of a recording that was kept in part, the question names what would go.
    void whatWouldBeLostIsCounted() {
        record(1, 1);
        QCOMPARE(head().recording().frames, 50);
        const auto lost = [this] {
            return m_shelf->unsafe({m_test->body("Mono")}, RecordingShelf::Memory::All);
        };
        QCOMPARE(lost(), QStringList(QStringLiteral("Mono: 50 frames")));
        m_test->preferences.setValue(QStringLiteral("recording/keepFrames"), 5);
        QVERIFY(m_shelf->keep(camera()));
        QTRY_VERIFY(!m_shelf->isKeeping());
        QVERIFY(lost().isEmpty()); // no more were wanted
        m_test->preferences.setValue(QStringLiteral("recording/keepFrames"), 0);
        QCOMPARE(lost(), QStringList(QStringLiteral("Mono: 45 of 50 frames")));
    }

    // The next ring takes the place of its own partition alone; the end of the program that of all.
    void quittingAsksAboutEveryPartition() {
        record(1, 1);
        SimulatedBody& body = *m_test->body("Mono");
        body.setPartition(2).result();
        QVERIFY(m_shelf->mayLose({&body}, LossGuard::Memory::Partition));
        QVERIFY(m_test->messages.losses.isEmpty());
        QVERIFY(m_shelf->mayQuit());
        QCOMPARE(m_test->messages.losses.size(), 1);
    }
};

QTEST_MAIN(tst_Shots)
#include "tst_shots.moc"
