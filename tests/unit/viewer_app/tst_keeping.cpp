// Recordings that can't be kept, or only in part, and such that the user has given up; the list of them.

#include "tests/support/FullDisk.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/panes/RecordingList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

class TestKeeping : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_host = std::make_unique<HostTest>();
        m_host->preferences.setValue(QStringLiteral("recording/keepFrames"), 40);
        m_shelf = std::make_unique<RecordingShelf>(m_host->list, m_host->preferences, m_host->messages,
                                                   m_folder->filePath(QStringLiteral("spool")));
        m_host->record("Mono");
    }
    void cleanup() {
        m_shelf.reset();
        m_host.reset();
    }

    // The others of the selection don't keep it from being kept.
    void aRecordingIsKeptAmongCamerasWithoutOne() {
        const RecordingControl control(m_host->list, m_host->preferences, m_host->messages, *m_shelf);
        m_host->list.setSelection({m_host->camera("Colour")});
        QVERIFY(!control.canKeep());
        m_host->list.setSelection({m_host->camera("Colour"), m_host->camera("Mono")});
        QVERIFY(control.canKeep());
    }

    void oneCameraThatIsReadyTakesTheTrigger() {
        const RecordingControl control(m_host->list, m_host->preferences, m_host->messages, *m_shelf);
        SimulatedBody& ready = *m_host->body("Colour");
        ready.recordReady().result();
        m_host->rig.clock().advanceMs(ready.model().readyTimeMs + 50);
        m_host->list.setSelection({m_host->camera("Plain"), m_host->camera("Colour")});
        QVERIFY(control.acceptsTrigger());
        m_host->list.setSelection({m_host->camera("Plain")});
        QVERIFY(!control.acceptsTrigger());
        m_host->list.setSelection({});
        QVERIFY(!control.acceptsTrigger());
    }

    // Nothing is begun, and the next try begins anew.
    void aSpoolThatCantBeMadeIsTold() {
        const QString spool = m_folder->filePath(QStringLiteral("spool"));
        QFile taken(spool);
        QVERIFY(taken.open(QIODevice::WriteOnly));
        QSignalSpy changed(m_shelf.get(), &RecordingShelf::changed);
        CameraDocument& camera = *m_host->camera("Mono");
        QVERIFY(!m_shelf->keep(camera));
        QCOMPARE(m_host->messages.errors,
                 QStringList(
                     QStringLiteral("File write failed.\n%1\nThe folder for kept recordings can't be made.")
                         .arg(spool)));
        QVERIFY(!m_shelf->isKeeping() && m_shelf->keepings().isEmpty() && changed.isEmpty());
        QVERIFY(m_shelf->canKeep(camera) && taken.remove());
        QVERIFY(m_shelf->keep(camera));
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_host->list.recordings().size(), 1);
        QCOMPARE(m_host->messages.errors.size(), 1);
    }

    // What fitted stays, the file and the count are told, and all of it may be kept later.
    void aFullDiskIsToldWithWhatFitted_data() {
        QTest::addColumn<int>("room"); // bytes
        QTest::addColumn<bool>("fits");
        QTest::addRow("at once") << 8192 << false;
        QTest::addRow("in the middle") << (6 << 20) << true;
    }
    void aFullDiskIsToldWithWhatFitted() {
        QFETCH(int, room);
        QFETCH(bool, fits);
        constexpr int kFrames = 80;
        m_host->preferences.setValue(QStringLiteral("recording/keepFrames"), kFrames);
        CameraDocument& camera = *m_host->camera("Mono");
        QSignalSpy told(m_shelf.get(), &RecordingShelf::told);
        QSignalSpy ended(m_shelf.get(), &RecordingShelf::allKept);
        const auto all = [this] { return m_host->list.recordings(); };
        {
            const FullDisk disk{rlim_t(room)};
            QVERIFY(m_shelf->keep(camera));
            QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        }
        QCOMPARE(all().size(), fits ? 1 : 0);
        const int frames = fits ? all().first()->recordedFrames() : 0;
        QVERIFY(frames < kFrames && (frames > 0) == fits);
        const QString counts =
            QStringLiteral("Mono: %1 of %2 frames kept").arg(frames).arg(camera.head()->recording().frames);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(told.last().first().toString(), counts);
        const QStringList errors = m_host->messages.errors;
        QCOMPARE(errors.size(), fits ? 2 : 1);
        QCOMPARE(errors.first().section(QLatin1Char('\n'), 0, 0), QStringLiteral("File write failed."));
        QCOMPARE(errors.first().section(QLatin1Char('\n'), 2),
                 QStringLiteral("The file would grow larger than is allowed there."));
        if (fits) {
            QVERIFY(errors.first().contains(all().first()->spoolPath()));
            QVERIFY(!all().first()->source()->frame(frames - 1).isNull());
            QCOMPARE(errors.last(), counts);
        }
        QVERIFY(m_shelf->keep(camera));
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(all().size(), 1); // it has taken the place of its part
        QCOMPARE(all().first()->recordedFrames(), kFrames);
    }

    // Who has said once that it may be lost is not asked again, until it is kept again.
    void whatWasGivenUpIsNotAskedAboutAgain() {
        CameraDocument& camera = *m_host->camera("Mono");
        QVERIFY(m_shelf->mayQuit());
        QCOMPARE(m_host->messages.losses.size(), 1);
        for (int time = 1; time <= 2; ++time) {
            QVERIFY(m_shelf->keep(camera));
            QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
            const QPointer<FileDocument> kept = m_host->list.recordings().last();
            const QString spooled = kept->spoolPath();
            QVERIFY(m_shelf->close(*kept));
            QTRY_VERIFY_WITH_TIMEOUT(!kept, 60000); // nothing but the user's answer tells of it any more
            QCOMPARE(m_host->messages.losses.size(), 1 + time);
            QVERIFY(!QFile::exists(spooled) && m_host->list.recordings().isEmpty());
            QVERIFY(m_shelf->canKeep(camera) && m_shelf->mayQuit() && m_host->list.mayRemove(camera));
            QCOMPARE(m_host->messages.losses.size(), 1 + time);
        }
    }

    // It ended while its link was lost, and the others have been looked at since.
    void whatNobodyCouldSeeIsKeptOnceItCanBeSeen() {
        m_host->preferences.setValue(QStringLiteral("recording/AutoDownload"), true);
        const RecordingControl control(m_host->list, m_host->preferences, m_host->messages, *m_shelf);
        SimulatedBody& body = *m_host->body("Mono");
        body.unplug();
        m_host->list.setMode(HOST_MODE_MEMORY);
        QVERIFY(!m_shelf->isKeeping());
        body.plug();
        body.connectLink().result();
        QVERIFY(m_shelf->isKeeping());
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        QCOMPARE(m_host->list.recordings().size(), 1);
        QCOMPARE(m_host->list.mode(), HOST_MODE_MEMORY);
    }

    // The spool is all there is of what an earlier start had kept.
    void whatWasKeptEarlierIsAskedAboutToo() {
        QVERIFY(m_shelf->keep(*m_host->camera("Mono")));
        QTRY_VERIFY_WITH_TIMEOUT(!m_shelf->isKeeping(), 60000);
        const QString spooled = m_host->list.recordings().first()->spoolPath();
        m_shelf.reset();
        m_host->list.remove(m_host->list.recordings().first());
        m_shelf = std::make_unique<RecordingShelf>(m_host->list, m_host->preferences, m_host->messages,
                                                   m_folder->filePath(QStringLiteral("spool")));
        QVERIFY(m_shelf->offerLeftovers());
        QCOMPARE(m_host->list.recordings().size(), 1);
        QVERIFY(QFile::exists(spooled) && m_host->messages.losses.isEmpty());
        QVERIFY(m_shelf->close(*m_host->list.recordings().first()));
        QCOMPARE(m_host->messages.losses.size(), 1);
        QVERIFY(!QFile::exists(spooled)); // or the next start would offer it again
    }

    // Also those of its buttons and of the replay below it.
    void eachRowOfTheListMeansItsRecording() {
        HostTest& host = *m_host;
        host.preferences.setValue(QStringLiteral("recording/playbackRate"), 25);
        RecordingInfo info;
        info.rate = 500;
        info.triggered = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 8));
        info.camera = QStringLiteral("Marlin");
        FileDocument& first = *host.list.addRecording(recordingOf(info, 6, {4, 4}));
        info.camera = QStringLiteral("Plover");
        info.recordedFrames = 90;
        FileDocument& second = *host.list.addRecording(recordingOf(info, 6, {4, 4}));
        host.list.setMode(HOST_MODE_FILE);
        RecordingList list(host.list, *m_shelf, host.preferences);
        list.resize(900, 500);
        list.show();
        auto& rows = *list.findChild<QTreeWidget*>();
        const auto textOf = [&rows](int row, int column) { return rows.topLevelItem(row)->text(column); };
        QStringList texts;
        for (int column = 0; column < 5; ++column) {
            texts += rows.headerItem()->text(column) + QLatin1Char(' ') + textOf(0, column);
        }
        QCOMPARE(texts.join(QLatin1Char('|')),
                 QStringLiteral("Recording Marlin|Frames 6|fps 500|Time 05:06:07|State Not saved"));
        QCOMPARE(textOf(1, 1), QStringLiteral("6 of 90"));
        QVERIFY(rows.topLevelItem(0)->toolTip(0).contains(QLatin1String("500 fps, 2026-03-04 05:06:07.008")));
        QStringList asked;
        const auto note = [&](const char* what) {
            return
                [&asked, what](const FileDocument* which) { asked += QLatin1String(what) + which->title(); };
        };
        connect(&list, &RecordingList::showAsked, this, note("show "));
        connect(&list, &RecordingList::saveAsked, this, note("save "));
        connect(&list, &RecordingList::closeAsked, this, note("close "));
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                          rows.visualItemRect(rows.topLevelItem(1)).center());
        for (QToolButton* const each :
             rows.itemWidget(rows.topLevelItem(1), 5)->findChildren<QToolButton*>()) {
            each->click();
            asked += each->accessibleName();
        }
        QCOMPARE(
            asked.join(QLatin1Char('|')),
            QStringLiteral("show Plover|save Plover|Save recording... (Plover)|close Plover|Close (Plover)"));

        const auto& range = *list.findChild<QWidget*>(QStringLiteral("playControls"))->findChild<QLabel*>();
        auto& loop = *list.findChild<QCheckBox*>(QStringLiteral("playLoop"));
        auto& speed = *list.findChild<QSpinBox*>(QStringLiteral("playSpeed"));
        first.setPlayed(1, 3);
        first.setLooping(false);
        for (FileDocument* const document : {&second, &first}) {
            host.list.setCurrent(document);
            QCOMPARE(range.text(), QString::fromUtf8(document == &first ? "2 – 4" : "1 – 6"));
            QVERIFY(loop.isEnabled() && loop.isChecked() == (document == &second));
        }
        QCOMPARE(speed.text(), QStringLiteral("25 fps"));
        speed.setValue(50);
        QCOMPARE(host.preferences.values.value(QStringLiteral("recording/playbackRate")).toInt(), 50);
        speed.clear(); // what else changes meanwhile leaves a field that is typed into alone
        first.setLooping(true);
        list.refreshReplay();
        QCOMPARE(speed.cleanText(), QString());
        host.list.setMode(HOST_MODE_MEMORY);
        host.list.setSelection({host.camera("Colour")}); // of which there is no recording
        QVERIFY(!loop.isEnabled() && range.text().isEmpty());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostTest> m_host;
    std::unique_ptr<RecordingShelf> m_shelf;
};

QTEST_MAIN(TestKeeping)
#include "tst_keeping.moc"
