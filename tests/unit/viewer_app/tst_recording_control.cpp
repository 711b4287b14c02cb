// Modes and recording on simulated cameras whose time the test steps.

#include "simulator/device/Rig.h"
#include "tests/unit/viewer_app/NotedMessages.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

class TestRecordingControl : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_preferences = std::make_unique<FilePreferences>(m_folder->filePath(QStringLiteral("settings.ini")));
        m_preferences->setValue(QStringLiteral("recording/keepFrames"), 5);
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_documents = std::make_unique<DocumentList>(*m_rig, m_calls);
        m_documents->addAllCameras();
        m_documents->setSelection({m_documents->documents()[0], m_documents->documents()[1]});
        m_messages = NotedMessages();
        m_shelf = std::make_unique<RecordingShelf>(*m_documents, *m_preferences, m_messages,
                                                   m_folder->filePath(QStringLiteral("spool")));
        m_control = std::make_unique<RecordingControl>(*m_documents, *m_preferences, m_messages, *m_shelf);
    }

    void cleanup() {
        m_control.reset();
        m_shelf.reset();
        m_documents.reset();
    }

    void recordingEndsInMemoryModeAndIsKept() {
        Document* const first = m_documents->documents().first();
        const QString tested = first->title();
        first->setComment(QStringLiteral("after the repair"));
        first->customItems().add({QStringLiteral("Test"), QStringLiteral("7"), QString(), true, true});
        record();
        QCOMPARE(m_documents->mode(), HOST_MODE_MEMORY);
        QVERIFY(m_documents->current()->recordedFrames() > 0);
        QVERIFY(!m_control->canKeep()); // it is kept by itself
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        m_control->setMode(HOST_MODE_FILE);
        QCOMPARE(m_documents->documents().size(), 2);
        QCOMPARE(m_documents->selected().size(), 2); // all of them show
        QCOMPARE(m_documents->documents().first()->recordedFrames(), 5);
        for (const Document* const kept : m_documents->documents()) { // with what was told of its camera
            QCOMPARE(kept->customItems().isEmpty(), kept->title() != tested);
            QCOMPARE(kept->comment(),
                     kept->title() == tested ? QStringLiteral("after the repair") : QString());
        }
        QVERIFY(m_messages.told.isEmpty());
    }

    // One after the other, with or without a look at it in between; a second visit doubles nothing.
    void eachRecordingIsKeptOnce() {
        record();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        for (int visit = 0; visit < 3; ++visit) {
            m_control->setMode(HOST_MODE_LIVE);
            m_control->setMode(HOST_MODE_MEMORY);
            m_control->keep();
            QVERIFY(!m_control->canKeep() && !m_shelf->isKeeping());
        }
        QCOMPARE(m_documents->recordings().size(), 2);
        m_control->setMode(HOST_MODE_LIVE);
        m_preferences->setValue(QStringLiteral("recording/backToLive"), true);
        for (int shot = 0; shot < 2; ++shot) {
            record();
            QTRY_COMPARE_WITH_TIMEOUT(m_documents->mode(), HOST_MODE_LIVE, 60000);
        }
        record();
        QVERIFY(m_shelf->isKeeping());
        m_control->setMode(HOST_MODE_FILE); // whoever looks elsewhere meanwhile stays there
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_documents->mode(), HOST_MODE_FILE);
        QCOMPARE(m_documents->recordings().size(), 4 * 2); // of two cameras
        QVERIFY(m_messages.told.isEmpty());
    }

    // Going live loses nothing. The next ring, quitting and removing ask, but only for what no file has.
    void lossIsAskedAbout() {
        m_preferences->setValue(QStringLiteral("recording/AutoDownload"), false);
        record();
        QVERIFY(m_control->canKeep());
        m_messages.answer = false;
        m_control->setMode(HOST_MODE_LIVE);
        QCOMPARE(m_documents->mode(), HOST_MODE_LIVE);
        QVERIFY(m_messages.told.isEmpty());
        CameraBody* const first = m_control->bodies().first();
        m_control->ready();
        QCOMPARE(m_messages.told.size(), 1);
        QVERIFY(m_messages.told.first().contains(QStringLiteral("%1: %2 frames")
                                                     .arg(first->head()->fullName())
                                                     .arg(first->head()->recording().frames)));
        QCOMPARE(first->state(), CameraState::Live);
        QVERIFY(!m_shelf->mayQuit() && !m_documents->mayRemove(*m_documents->cameras().first()));
        QCOMPARE(m_messages.told.size(), 3);
        m_control->keep();
        QVERIFY(m_shelf->isKeeping());
        QVERIFY(!m_shelf->mayQuit()); // it is not there yet
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        m_messages.told.clear();
        QVERIFY(m_shelf->mayQuit() && m_documents->mayRemove(*m_documents->cameras().first()));
        getReady();
        QCOMPARE(first->state(), CameraState::Ready);
        QVERIFY(m_messages.told.isEmpty());
    }

    void allFramesAreKeptAsTheCameraHadThem() {
        m_preferences->setValue(QStringLiteral("recording/keepFrames"), 0);
        m_documents->setSelection({m_documents->documents()[0]});
        makeShort();
        record();
        CameraHead& head = *m_control->bodies().first()->head();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        const FileDocument* const kept = m_documents->recordings().value(0);
        QVERIFY(kept);
        QCOMPARE(kept->recordedFrames(), head.recording().frames);
        QCOMPARE(kept->triggerIndex(), head.recording().triggerIndex());
        for (const int index : {0, kept->recordedFrames() / 2, kept->recordedFrames() - 1}) {
            const Frame frame = head.memoryFrame(index);
            QCOMPARE(kept->source()->frame(index).image, frame.image);
            QCOMPARE(kept->source()->frame(index).number, frame.number);
            QCOMPARE(kept->source()->frame(index).time, frame.time);
        }
    }

    // What was read until then is kept, told, and made whole once the camera is back.
    void aCameraLostWhileItIsReadIsTold() {
        m_preferences->setValue(QStringLiteral("recording/keepFrames"), 0);
        m_preferences->setValue(QStringLiteral("recording/AutoDownload"), false);
        m_documents->setSelection({m_documents->documents()[0]});
        makeShort();
        record();
        auto* const body = static_cast<SimulatedBody*>(m_control->bodies().first());
        const int all = body->head()->recording().frames;
        m_control->keep();
        QTRY_VERIFY_WITH_TIMEOUT(m_shelf->progress().text.isEmpty() || m_shelf->progress().done > 0, 60000);
        body->unplug();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_messages.told.size(), 1);
        QVERIFY2(m_messages.told.first().contains(body->name()), qPrintable(m_messages.told.first()));
        const int part = m_documents->recordings().value(0)->recordedFrames();
        QVERIFY(part > 0 && part < all);
        for (const int wanted : {1, 0}) { // of the next shot, which changes nothing about this one
            m_preferences->setValue(QStringLiteral("recording/keepFrames"), wanted);
            QVERIFY(!m_shelf->unsafe({body}, LossGuard::Memory::All).isEmpty());
        }
        body->plug();
        body->connectLink().result();
        m_documents->setSelection({m_documents->cameras().first()});
        QVERIFY(m_control->canKeep());
        m_control->keep();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_documents->recordings().size(), 1);
        QCOMPARE(m_documents->recordings().first()->recordedFrames(), all);
    }

    void aFullSpoolIsTold() {
        m_preferences->setValue(QStringLiteral("recording/keepFrames"), 0);
        m_preferences->setValue(QStringLiteral("recording/spoolLimit"), 0.001);
        m_documents->setSelection({m_documents->documents()[0]});
        makeShort();
        record();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_messages.told.size(), 1);
        QVERIFY2(m_messages.told.first().contains(QStringLiteral("limit")),
                 qPrintable(m_messages.told.first()));
        QVERIFY(m_control->canKeep() && m_documents->recordings().first()->recordedFrames() > 0);
    }

    void cancelledItLeavesNothing() {
        m_preferences->setValue(QStringLiteral("recording/keepFrames"), 0);
        record();
        QVERIFY(m_shelf->isKeeping());
        m_shelf->cancelJobs();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QVERIFY(m_documents->recordings().isEmpty() && m_control->canKeep());
        QVERIFY(spooled().isEmpty());
    }

    // The spool's file goes when a file of the user's has it, or when he says so.
    void theSpoolHoldsWhatNoFileHas() {
        record();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        FileDocument* const first = m_documents->recordings().at(0);
        FileDocument* const second = m_documents->recordings().at(1);
        QCOMPARE(spooled().size(), 2);
        const ExportRequest request = m_shelf->requestTo(m_folder->filePath(QStringLiteral("saved.rchx")));
        int saved = 0;
        m_shelf->save(*first, request,
                      [&](const ExportJobs::Entry& job) { saved += job.failure.isEmpty() ? 1 : 100; });
        first->setComment(QStringLiteral("while it is saved"));
        QTRY_COMPARE_WITH_TIMEOUT(saved, 1, 60000);
        QVERIFY(first->isSaved() && !second->isSaved());
        QVERIFY(m_shelf->close(*first));
        QTRY_COMPARE_WITH_TIMEOUT(spooled().size(), 1, 60000);
        QCOMPARE(RecordingFile::open(request.path)->count(), 5);
        QCOMPARE(RecordingFile::open(request.path)->info().comment, QStringLiteral("while it is saved"));
        QVERIFY(m_messages.told.isEmpty());
        m_messages.answer = false;
        QVERIFY(!m_shelf->close(*second));
        QCOMPARE(spooled().size(), 1);
        m_messages.answer = true;
        QVERIFY(m_shelf->close(*second));
        QTRY_VERIFY_WITH_TIMEOUT(spooled().isEmpty(), 60000);
        QCOMPARE(m_messages.told.size(), 2);
        QVERIFY(m_shelf->mayQuit()); // the camera still has it, but the user gave it up
        QCOMPARE(m_messages.told.size(), 2);
        QVERIFY_EXCEPTION_THROWN(m_shelf->save(*second, ExportRequest()), RecordingError);
    }

    // As after a crash: nobody was asked, and the next start finds it.
    void theNextStartOffersWhatIsInTheSpool() {
        record();
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        m_documents->recordings().first()->toggleMark(3);
        restart();
        m_messages.answer = false;
        QVERIFY(!m_shelf->offerLeftovers());
        QVERIFY(m_messages.told.takeFirst().contains(QStringLiteral(": 5 frames")));
        QCOMPARE(spooled().size(), 2); // not now
        m_messages.answer = true;
        QVERIFY(m_shelf->offerLeftovers());
        QCOMPARE(m_documents->recordings().size(), 2);
        int marks = 0;
        for (const FileDocument* const each : m_documents->recordings()) {
            QVERIFY(!each->isSaved() && each->recordedFrames() == 5);
            marks += each->marks().size();
        }
        QCOMPARE(marks, 1);
        RecordingShelf other(*m_documents, *m_preferences, m_messages,
                             m_folder->filePath(QStringLiteral("spool")));
        QVERIFY(!other.offerLeftovers()); // another program gets none of them
    }

    void oneCameraThatRefusesDoesNotStopTheOthers() {
        auto* const first = static_cast<SimulatedBody*>(m_control->bodies().first());
        first->faults().refuseNext(1, QStringLiteral("too hot"));
        m_control->ready();
        QCOMPARE(m_messages.told,
                 QStringList(QStringLiteral("KVC_SetRecReady %1: too hot").arg(first->name())));
        m_rig->clock().advanceMs(1000);
        QVERIFY(first->state() == CameraState::Live && m_control->bodies()[1]->state() == CameraState::Ready);
    }

    // Stop is told by its own name if it fails; who has come to an end meanwhile has nothing to tell.
    void aStopThatComesTooLateIsNoFailure() {
        getReady();
        m_control->record();
        const Answer before = m_control->bodies()[0]->stopRecording();
        auto* const other = static_cast<SimulatedBody*>(m_control->bodies()[1]);
        other->faults().refuseNext(1, QStringLiteral("too hot"));
        m_control->stop();
        QCOMPARE(m_messages.told,
                 QStringList(QStringLiteral("StopRecording %1: too hot").arg(other->name())));
    }

    void aSelectedCameraWithoutALinkIsNamedBeforeTheRingRuns() {
        const QList<CameraBody*> bodies = m_control->bodies();
        m_rig->findName(bodies[1]->name())->unplug();
        m_documents->find(m_rig->findName(QStringLiteral("Spare"))->head())->setSelected(true);
        for (const bool goesOn : {false, true}) {
            m_messages = NotedMessages();
            m_messages.answer = goesOn;
            getReady();
            QCOMPARE(m_messages.told.size(), 1);
            QVERIFY(m_messages.told.first().contains(bodies[1]->name()));
            QVERIFY(!m_messages.told.first().contains(bodies[0]->name()));
            QVERIFY(!m_messages.told.first().contains(QStringLiteral("Spare"))); // a dummy never records
            QCOMPARE(bodies[0]->state(), goesOn ? CameraState::Ready : CameraState::Live);
        }
    }

    void allAreTriggeredAtTheSameTime() {
        getReady();
        const qint64 before = m_rig->clock().now();
        m_control->record();
        QVERIFY(m_control->isAny(CameraState::Recording) && !m_control->isAny(CameraState::Ready));
        QCOMPARE((m_rig->clock().now() - before) / 1000000, 5);
    }

    void aLinkLostWhileRecordingIsToldAndItsRecordingFound() {
        auto* const first = static_cast<SimulatedBody*>(m_control->bodies()[0]);
        auto* const second = static_cast<SimulatedBody*>(m_control->bodies()[1]);
        getReady();
        m_control->record();
        first->unplug();
        QCoreApplication::processEvents();
        QVERIFY(m_messages.told.isEmpty()); // Stop is free for the other
        second->unplug();
        QCoreApplication::processEvents();
        QCOMPARE(m_messages.told.size(), 1);
        QVERIFY(m_messages.told.first().endsWith(first->name() + QLatin1Char('\n') + second->name()));
        m_rig->clock().advanceMs(60000);
        QCOMPARE(first->state(), CameraState::Memory);
        QCOMPARE(m_documents->mode(), HOST_MODE_LIVE);
        first->plug();
        first->connectLink().result();
        QCOMPARE(m_documents->mode(), HOST_MODE_MEMORY);
        QVERIFY(!m_control->canKeep()); // it was kept, as if the link had lasted
    }

    void stopEndsGettingReady() {
        m_control->ready();
        m_control->stop();
        QVERIFY(!m_control->isAny(CameraState::Ready) && !m_control->isAny(CameraState::WaitingReady) &&
                m_messages.told.isEmpty());
    }

    // One of two has recorded; the other waits for its own trigger, with its image.
    void memoryModeWaitsForTheLastOne() {
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), true);
        getReady();
        for (CameraBody* const body : m_control->bodies()) {
            QCOMPARE(body->state(), CameraState::Ready);
            QCOMPARE(m_documents->mode(), HOST_MODE_LIVE);
            m_control->externalTrigger(body);
            m_rig->clock().advanceMs(60000);
            QCOMPARE(body->state(), CameraState::Memory);
        }
        QCOMPARE(m_documents->mode(), HOST_MODE_MEMORY);
    }

    void externalTriggerCountsOnlyIfAccepted() {
        auto* const body = static_cast<SimulatedBody*>(m_control->bodies().first());
        m_control->externalTrigger(body); // not ready: nothing
        QCOMPARE(body->state(), CameraState::Live);
        getReady();
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), false);
        m_control->externalTrigger(body);
        QCOMPARE(body->state(), CameraState::Ready);
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), true);
        m_control->externalTrigger(body);
        QCOMPARE(body->state(), CameraState::Recording);
    }

private:
    /// Recordings of few frames, so that all of them are quickly made.
    void makeShort() {
        m_control->bodies().first()->head()->setTrigger(TriggerRandomCenter, 1, 100, 1).result();
    }

    void restart() {
        m_control.reset();
        m_documents->removeAll();
        m_shelf.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_messages = NotedMessages();
        m_shelf = std::make_unique<RecordingShelf>(*m_documents, *m_preferences, m_messages,
                                                   m_folder->filePath(QStringLiteral("spool")));
    }

    QStringList spooled() const {
        QStringList paths;
        QDirIterator files(m_folder->filePath(QStringLiteral("spool")),
                           {QStringLiteral("*.rchx"), QStringLiteral("*.part")}, QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            paths.append(files.next());
        }
        return paths;
    }

    void getReady() {
        m_control->ready();
        m_rig->clock().advanceMs(1000);
    }

    void record() {
        getReady();
        QVERIFY(m_control->isAny(CameraState::Ready));
        const qint64 before = m_rig->clock().now();
        m_control->record();
        QCOMPARE(m_rig->clock().now() - before, 5000000); // all in one command's time
        QVERIFY(m_control->isAny(CameraState::Recording));
        m_rig->clock().advanceMs(60000);
        QVERIFY(!m_control->isAny(CameraState::Recording));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FilePreferences> m_preferences;
    std::unique_ptr<Rig> m_rig;
    CallRecorder m_calls;
    std::unique_ptr<DocumentList> m_documents;
    NotedMessages m_messages;
    std::unique_ptr<RecordingShelf> m_shelf;
    std::unique_ptr<RecordingControl> m_control;
};

QTEST_GUILESS_MAIN(TestRecordingControl)
#include "tst_recording_control.moc"
