// Modes and recording on simulated cameras whose time the test steps.

#include "simulator/device/Rig.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/messages/Messages.h"
#include "viewer/prefs/FilePreferences.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// Notes what the user is told, and answers for him.
struct NotedMessages : Messages {
    void info(const QString& text, QWidget*) override { told += text; }
    void warn(const QString& text, QWidget*) override { told += text; }
    void warnList(const QString& text, const QStringList&, QWidget*) override { told += text; }
    void alert(const QString& text, QWidget*) override { told += text; }
    void alertList(const QString& text, const QStringList&, QWidget*) override { told += text; }
    bool confirm(const QString& text, QWidget*, const QMap<QString, QString>&) override {
        told += text;
        return answer;
    }
    bool confirmOkCancel(const QString& text, QWidget* parent) override { return confirm(text, parent, {}); }
    void error(const QString& text) override { told += text; }
    void gatherFailures(bool) override {}
    void deviceError(const DeviceFailure& failure) override {
        for (const DeviceFailure::Camera& camera : failure.cameras) {
            told += QStringLiteral("%1 %2: %3").arg(failure.operation, camera.name, camera.reason.english());
        }
    }

    QStringList told;
    bool answer = true;
};

} // namespace

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
        m_control = std::make_unique<RecordingControl>(*m_documents, *m_preferences, m_messages);
    }

    void recordingEndsInMemoryModeAndIsKept() {
        Document* const first = m_documents->documents().first();
        const QString tested = first->title();
        first->setComment(QStringLiteral("after the repair"));
        first->customItems().add({QStringLiteral("Test"), QStringLiteral("7"), QString(), true, true});
        record();
        QCOMPARE(m_documents->mode(), HOST_MODE_MEMORY);
        QVERIFY(m_documents->current()->recordedFrames() > 0);
        QVERIFY(!m_control->canKeep()); // it was kept by itself
        QVERIFY(m_control->setMode(HOST_MODE_FILE));
        QCOMPARE(m_documents->documents().size(), 2);
        QCOMPARE(m_documents->documents().first()->recordedFrames(), 5);
        for (const Document* const kept : m_documents->documents()) { // with what was told of its camera
            QCOMPARE(kept->customItems().isEmpty(), kept->title() != tested);
            QCOMPARE(kept->comment(),
                     kept->title() == tested ? QStringLiteral("after the repair") : QString());
        }
        QVERIFY(m_messages.told.isEmpty());
    }

    // One after the other, with or without a look at it in between.
    void eachRecordingIsKept() {
        record();
        QVERIFY(m_control->setMode(HOST_MODE_LIVE));
        m_preferences->setValue(QStringLiteral("recording/backToLive"), true);
        record();
        record();
        m_control->setMode(HOST_MODE_FILE);
        QCOMPARE(m_documents->documents().size(), 3 * 2); // of two cameras
        QVERIFY(m_messages.told.isEmpty());

        // A later one that is not kept is asked about, though an earlier one was.
        m_control->setMode(HOST_MODE_LIVE);
        m_preferences->setValue(QStringLiteral("recording/AutoDownload"), false);
        record();
        QVERIFY(m_control->canKeep());
        m_messages.answer = false;
        QVERIFY(!m_control->setMode(HOST_MODE_LIVE));
        QCOMPARE(m_messages.told.size(), 1);
    }

    void keptRecordingMayGoBackToLive() {
        m_preferences->setValue(QStringLiteral("recording/backToLive"), true);
        record();
        QCOMPARE(m_documents->mode(), HOST_MODE_LIVE);
        QVERIFY(m_control->isAny(CameraState::Live));
        QVERIFY(!m_control->isAny(CameraState::Memory));
    }

    // Going live throws the memory away: only a recording that nobody kept is asked about.
    void lossIsAskedAbout() {
        m_preferences->setValue(QStringLiteral("recording/AutoDownload"), false);
        record();
        QVERIFY(m_control->canKeep());
        m_messages.answer = false;
        QVERIFY(!m_control->setMode(HOST_MODE_LIVE));
        QCOMPARE(m_documents->mode(), HOST_MODE_MEMORY);
        QCOMPARE(m_messages.told.size(), 1);

        m_control->keep();
        QVERIFY(!m_control->canKeep());
        QVERIFY(m_control->setMode(HOST_MODE_LIVE));
        QCOMPARE(m_messages.told.size(), 1);
        QCOMPARE(m_documents->mode(), HOST_MODE_LIVE);
    }

    void oneCameraThatRefusesDoesNotStopTheOthers() {
        auto* const first = static_cast<SimulatedBody*>(m_control->bodies().first());
        first->faults().refuseNext(1, QStringLiteral("too hot"));
        m_control->ready();
        QCOMPARE(m_messages.told,
                 QStringList(QStringLiteral("KVC_SetRecReady %1: too hot").arg(first->name())));
        m_rig->clock().advanceMs(1000);
        QCOMPARE(first->state(), CameraState::Live);
        QCOMPARE(m_control->bodies()[1]->state(), CameraState::Ready);
    }

    void aLinkLostWhileRecordingIsToldAndItsRecordingFound() {
        auto* const first = static_cast<SimulatedBody*>(m_control->bodies().first());
        m_documents->setSelection({m_documents->documents()[0]});
        m_control->ready();
        m_rig->clock().advanceMs(1000);
        m_control->record();
        QCOMPARE(first->state(), CameraState::Recording);
        first->unplug();
        QCoreApplication::processEvents();
        QCOMPARE(m_messages.told.size(), 1);
        QVERIFY(m_messages.told.first().contains(first->name()));
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
        QVERIFY(!m_control->isAny(CameraState::Ready));
        QVERIFY(!m_control->isAny(CameraState::WaitingReady));
        QVERIFY(m_messages.told.isEmpty());
    }

    // One of two has recorded; the other waits for its own trigger, with its image.
    void memoryModeWaitsForTheLastOne() {
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), true);
        m_control->ready();
        m_rig->clock().advanceMs(1000);
        const QList<CameraBody*> bodies = m_control->bodies();
        for (CameraBody* const body : bodies) {
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
        m_control->ready();
        m_rig->clock().advanceMs(1000);
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), false);
        m_control->externalTrigger(body);
        QCOMPARE(body->state(), CameraState::Ready);
        m_preferences->setValue(QStringLiteral("io/externalTrigger"), true);
        m_control->externalTrigger(body);
        QCOMPARE(body->state(), CameraState::Recording);
    }

private:
    void record() {
        m_control->ready();
        m_rig->clock().advanceMs(1000);
        QVERIFY(m_control->isAny(CameraState::Ready));
        m_control->record();
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
    std::unique_ptr<RecordingControl> m_control;
};

QTEST_GUILESS_MAIN(TestRecordingControl)
#include "tst_recording_control.moc"
