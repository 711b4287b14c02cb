#include "tests/support/Recordings.h"
#include "tests/unit/viewer_export/HeldSource.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/Dialogs.h"
#include "viewer/app/jobs/JobsDialog.h"
#include "viewer/app/jobs/SaveService.h"
#include "viewer/app/panes/RecordingList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/recordings/RecordingCopy.h"

#include <QDir>
#include <QFutureWatcher>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidget>
#include <QtConcurrent>
#include <QtTest>

class TestJobsDialog : public QObject {
    Q_OBJECT

private slots:
    // Told to end, the program leaves all event loops while a job still waits for its first thread.
    void aJobThatNeedsTheFirstThreadEndsWithTheProgram() {
        QSemaphore left;
        QFutureWatcher<void> watcher;
        watcher.setFuture(QtConcurrent::run([&] {
            left.acquire();
            QMetaObject::invokeMethod(
                this, [] {}, Qt::BlockingQueuedConnection);
        }));
        BusyDialog dialog(QStringLiteral("Saving..."), QString(), nullptr);
        QTimer::singleShot(0, &dialog, [&] {
            dialog.done(0);
            left.release();
        });
        dialog.runUntilFinished(watcher);
        QVERIFY(watcher.isFinished());
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void aJobIsFollowedStoppedAndRemoved();
    void aFailureIsToldWithItsFile();
    void aDoubleClickMeetsOneJob();
    void whatFailedStandsAboveWhatIsDone();
    void aFileThatWasCutOffSaysSo();
    void theQuestionAtTheEndTellsJobsFromLosses();
    void whatIsReadOutOfACameraIsAJobAsWell();
    void theListAtTheSideFitsItsWidth();
    void theListStaysWhereItWasScrolledTo();
    void theListMarksWhatShows();
    void severalAreSavedOrNone();

private:
    ExportRequest request(const FrameSourcePtr& source, const QString& name) const {
        ExportRequest request;
        request.source = source;
        request.last = source->count() - 1;
        request.path = m_folder->filePath(name);
        return request;
    }
    static QString text(const JobsDialog& dialog, int id) {
        QStringList texts;
        const QWidget* const box = dialog.findChild<QWidget*>(QStringLiteral("job%1").arg(id));
        for (const QLabel* const label : box ? box->findChildren<QLabel*>() : QList<QLabel*>()) {
            texts += label->text();
        }
        return texts.join(QLatin1Char('|'));
    }
    static QPushButton* button(const JobsDialog& dialog, int id) {
        return dialog.findChild<QWidget*>(QStringLiteral("job%1").arg(id))->findChild<QPushButton*>();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestJobsDialog::aJobIsFollowedStoppedAndRemoved() {
    const auto held = std::make_shared<HeldSource>(20);
    ExportJobs jobs;
    JobsDialog dialog(jobs, nullptr, nullptr);
    const auto letGo = qScopeGuard([&held] { held->gate.release(100); }); // before the jobs are waited for
    dialog.show();
    QVERIFY(dialog.findChild<QLabel*>()->isVisible());
    const auto* const clear = dialog.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly).last();
    QVERIFY(!clear->isEnabled());
    const int running = jobs.start(request(held, QStringLiteral("a.rchx")), QStringLiteral("<b>Camera</b>"));
    const int waiting = jobs.start(request(held, QStringLiteral("b.rchx")), QStringLiteral("Second"));
    held->gate.release(9); // the first frame is asked for twice
    const auto* const bar =
        dialog.findChild<QWidget*>(QStringLiteral("job%1").arg(running))->findChild<QProgressBar*>();
    // Several threads ask at once: the ninth frame may have come before the eighth.
    QTRY_VERIFY2(bar->value() >= 2 && text(dialog, running).contains(QStringLiteral("frames/s")),
                 qPrintable(text(dialog, running)));
    QTRY_COMPARE(held->read.load(), 9);
    QVERIFY2(
        text(dialog, running).startsWith(QStringLiteral("<b>Camera</b>|%1 of 20 frames").arg(bar->value())),
        qPrintable(text(dialog, running)));
    QCOMPARE(text(dialog, waiting), QStringLiteral("Second|Waiting"));
    QVERIFY(!clear->isEnabled() && dialog.findChild<QLabel*>()->isHidden());
    QCOMPARE(button(dialog, waiting)->accessibleName(), QStringLiteral("Cancel: Second"));
    const QString tip = button(dialog, waiting)->parentWidget()->findChild<QLabel*>()->toolTip();
    QVERIFY2(tip.contains(m_folder->filePath(QStringLiteral("b.rchx"))), qPrintable(tip));
    const auto top = [&](int id) { return dialog.findChild<QWidget*>(QStringLiteral("job%1").arg(id))->y(); };
    QTRY_VERIFY(top(running) < top(waiting)); // what goes on is in sight
    QTest::mouseClick(button(dialog, waiting), Qt::LeftButton);
    QCOMPARE(text(dialog, waiting), QStringLiteral("Second|Canceled after 0 of 20 frames"));
    held->gate.release(100);
    QTRY_COMPARE(text(dialog, running), QStringLiteral("<b>Camera</b>|Saved, 20 frames"));
    QVERIFY(bar->isHidden() && clear->isEnabled());
    QCOMPARE(button(dialog, running)->text(), QStringLiteral("Remove"));
    QTest::mouseClick(button(dialog, running), Qt::LeftButton);
    QCOMPARE(jobs.list().size(), 1);
    QTest::mouseClick(dialog.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly).last(),
                      Qt::LeftButton);
    QVERIFY(jobs.list().isEmpty());
}

void TestJobsDialog::aFailureIsToldWithItsFile() {
    const auto held = std::make_shared<HeldSource>(2);
    held->gate.release(100);
    ExportJobs jobs;
    JobsDialog dialog(jobs, nullptr, nullptr);
    const int id = jobs.start(request(held, QStringLiteral("none/a.rchx")), QStringLiteral("Camera"));
    QTRY_VERIFY(text(dialog, id).endsWith(QStringLiteral("none/a.rchx: The folder does not exist.")));
}

// The list stays as it is until the second press can't come any more.
void TestJobsDialog::aDoubleClickMeetsOneJob() {
    const auto held = std::make_shared<HeldSource>(20);
    ExportJobs jobs;
    JobsDialog dialog(jobs, nullptr, nullptr);
    const auto letGo = qScopeGuard([&held] { held->gate.release(100); }); // before the jobs are waited for
    dialog.show();
    QList<int> ids;
    for (const char* const name : {"a.rchx", "b.rchx", "c.rchx"}) {
        ids.append(jobs.start(request(held, QLatin1String(name)), QLatin1String(name)));
    }
    QTRY_COMPARE(jobs.entry(ids.first()).state, ExportJob::State::Running);
    const auto center = [&](int id) {
        return button(dialog, id)->mapTo(&dialog, button(dialog, id)->rect().center());
    };
    QTRY_VERIFY(center(ids.at(0)).y() < center(ids.at(1)).y() &&
                center(ids.at(1)).y() < center(ids.at(2)).y());
    const QPoint place = center(ids.at(1));
    for (int press = 0; press < 2; ++press) {
        QWidget* const hit = dialog.childAt(place);
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&dialog, place));
        QCoreApplication::processEvents();
    }
    QCOMPARE(jobs.list().size(), 3);
    QCOMPARE(jobs.entry(ids.at(1)).state, ExportJob::State::Canceled);
    QCOMPARE(jobs.entry(ids.at(2)).state, ExportJob::State::Waiting);
    QTRY_VERIFY(center(ids.at(1)).y() > center(ids.at(2)).y()); // it goes below what waits
    QVERIFY(button(dialog, ids.at(1))->isEnabled());
}

void TestJobsDialog::whatFailedStandsAboveWhatIsDone() {
    const auto held = std::make_shared<HeldSource>(1);
    held->gate.release(1000);
    ExportJobs jobs;
    JobsDialog dialog(jobs, nullptr, nullptr);
    dialog.show();
    const int older = jobs.start(request(held, QStringLiteral("a.rchx")), QStringLiteral("Older"));
    QTRY_COMPARE(text(dialog, older), QStringLiteral("Older|Saved, 1 frame"));
    const auto broken = std::make_shared<HeldSource>(3);
    broken->gate.release(1000);
    broken->failing = 2;
    const int failed = jobs.start(request(broken, QStringLiteral("b.png")), QStringLiteral("Failed"));
    const int done = jobs.start(request(held, QStringLiteral("c.rchx")), QStringLiteral("Done"));
    QTRY_COMPARE(jobs.entry(done).state, ExportJob::State::Done);
    const auto top = [&](int id) { return dialog.findChild<QWidget*>(QStringLiteral("job%1").arg(id))->y(); };
    QTRY_VERIFY(top(failed) < top(done) && top(done) < top(older));
    QVERIFY2(jobs.entry(failed).done == 0 ||
                 text(dialog, failed).contains(QStringLiteral("2 of 3 pictures were written")),
             qPrintable(text(dialog, failed)));
    QVERIFY(!jobs.list().isEmpty() && jobs.entry(failed).done == 2);
}

void TestJobsDialog::aFileThatWasCutOffSaysSo() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    const QString path = m_folder->filePath(QStringLiteral("<b>cut & run.rchx"));
    RecordingInfo info;
    info.triggered = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5));
    RecordingCopy().run(*recordingOf(info, 4, QSize(64, 48)), info, path);
    QFile file(path);
    QVERIFY(file.resize(file.size() / 2));
    FileDocument* const cut = shelf.open(path);
    QVERIFY(cut->isCut() && cut->recordedFrames() > 0);
    RecordingList list(host.list, shelf, host.preferences);
    list.resize(340, 400);
    list.show();
    const auto* const tree = list.findChild<QTreeWidget*>();
    QTRY_COMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(4), QStringLiteral("Cut off"));
    const QString tip = tree->topLevelItem(0)->toolTip(0);
    QVERIFY(Qt::mightBeRichText(tip));
    QCOMPARE(QTextDocumentFragment::fromHtml(tip).toPlainText().section(QLatin1Char('\n'), 0, 0), path);
    // Its time is in sight, in a column or with the name.
    QTRY_VERIFY(!tree->isColumnHidden(3) ||
                tree->topLevelItem(0)->text(0).contains(QStringLiteral("03:04:05")));
}

void TestJobsDialog::theQuestionAtTheEndTellsJobsFromLosses() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    const auto held = std::make_shared<HeldSource>(20);
    const auto letGo = qScopeGuard([&held] { held->gate.release(100); });
    QVERIFY(shelf.mayQuit() && host.messages.losses.isEmpty());
    shelf.exports().start(request(held, QStringLiteral("a.rchx")), QStringLiteral("Saving"));
    QVERIFY(shelf.mayQuit());
    QVERIFY2(host.messages.losses.last().contains(QStringLiteral("will be stopped")) &&
                 !host.messages.losses.last().contains(QStringLiteral("lost")),
             qPrintable(host.messages.losses.last()));
}

// However narrow it is, each recording can be saved and closed.
void TestJobsDialog::theListAtTheSideFitsItsWidth() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    host.list.addRecording(recordingOf({}, 3, QSize(4, 4)));
    RecordingList list(host.list, shelf, host.preferences);
    const auto* const tree = list.findChild<QTreeWidget*>();
    for (const int width : {340, 900, 340}) {
        list.resize(width, 400);
        list.show();
        QCoreApplication::processEvents();
        QTRY_COMPARE(list.findChildren<QToolButton*>(QStringLiteral("closeRecording")).size(), 1);
        const auto* const close = list.findChild<QToolButton*>(QStringLiteral("closeRecording"));
        QTRY_VERIFY(tree->viewport()->rect().contains(
            QRect(close->mapTo(tree->viewport(), QPoint(0, 0)), close->size())));
        QCOMPARE(tree->isColumnHidden(2), width < 900); // the rate goes first
    }
}

void TestJobsDialog::theListStaysWhereItWasScrolledTo() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    const auto add = [&host] { host.list.addRecording(recordingOf({}, 3, QSize(4, 4))); };
    for (int i = 0; i < 30; ++i) {
        add();
    }
    RecordingList list(host.list, shelf, host.preferences);
    list.resize(340, 400);
    list.show();
    const auto* const tree = list.findChild<QTreeWidget*>();
    QScrollBar& bar = *tree->verticalScrollBar();
    QTRY_VERIFY(bar.maximum() > 10);
    bar.setValue(10);
    add(); // the list is filled anew
    QTRY_COMPARE(tree->topLevelItemCount(), 31);
    QCOMPARE(bar.value(), 10);
    host.list.remove(host.list.recordings().last());
    QTRY_COMPARE(tree->topLevelItemCount(), 30);
    QCOMPARE(bar.value(), 10);
}

void TestJobsDialog::whatIsReadOutOfACameraIsAJobAsWell() {
    HostTest host;
    host.record("Mono");
    host.record("Colour");
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    JobsDialog dialog(shelf.exports(), &shelf, nullptr);
    dialog.show();
    host.list.setMode(HOST_MODE_FILE);
    const RecordingList list(host.list, shelf, host.preferences);
    QVERIFY(shelf.keep(*host.camera("Mono")));
    QVERIFY(shelf.keep(*host.camera("Colour")));
    QTRY_VERIFY_WITH_TIMEOUT(text(dialog, -1).startsWith(QStringLiteral("Keeping Mono|")), 60000);
    QVERIFY2(text(dialog, -1).contains(QStringLiteral(" frames")), qPrintable(text(dialog, -1)));
    QTest::mouseClick(button(dialog, -1), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(shelf.keepings().size() == 1 && text(dialog, -1).isEmpty(), 60000);
    const auto& rows = *list.findChild<QTreeWidget*>();
    QTRY_COMPARE(rows.topLevelItemCount(), 1); // in the list at the side, too
    QCOMPARE(rows.topLevelItem(0)->text(0) + rows.topLevelItem(0)->text(4),
             QStringLiteral("Keeping ColourBeing read"));
    const auto& progress = *list.findChild<QProgressBar*>(QStringLiteral("recordingProgress"));
    QTRY_VERIFY(!progress.isHidden() && !progress.format().isEmpty());
    qobject_cast<QToolButton*>(rows.itemWidget(rows.topLevelItem(0), 5))->click();
    QTRY_VERIFY_WITH_TIMEOUT(!shelf.isKeeping() && progress.isHidden(), 60000);
    QVERIFY(host.list.recordings().isEmpty());
}

// If one of them can't be saved, the dialog stays open for all. The list offers to save until all are.
void TestJobsDialog::theListMarksWhatShows() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    const QList<FileDocument*> documents{host.list.addRecording(recordingOf({}, 1, {4, 4})),
                                         host.list.addRecording(recordingOf({}, 1, {4, 4}))};
    host.list.setMode(HOST_MODE_FILE);
    host.list.selectRecordings(documents);
    RecordingList list(host.list, shelf, host.preferences);
    const auto* const rows = list.findChild<QTreeWidget*>();
    for (const int shown : {1, 0, 1}) { // by a click into its picture
        host.list.setCurrent(documents.at(shown));
        QTRY_VERIFY(rows->topLevelItem(shown)->isSelected());
        QCOMPARE(rows->selectedItems().size(), 1);
    }
}

void TestJobsDialog::severalAreSavedOrNone() {
    HostTest host;
    host.preferences.setValue(QStringLiteral("recording/keepFrames"), 5);
    RecordingShelf shelf(host.list, host.preferences, host.messages,
                         m_folder->filePath(QStringLiteral("spool")));
    for (const char* const camera : {"Mono", "Colour"}) {
        host.record(camera);
        QVERIFY(shelf.keep(*host.camera(camera)));
    }
    QTRY_COMPARE_WITH_TIMEOUT(host.list.recordings().size(), 2, 60000);
    const RecordingList list(host.list, shelf, host.preferences);
    const auto* const rows = list.findChild<QTreeWidget*>();
    const auto* const saveAll = list.findChild<QPushButton*>(QStringLiteral("saveAllRecordings"));
    SavedViewPictures pictures(host.list, host.preferences);
    SaveService service({host.list, shelf, pictures, {}});
    SaveRequest both;
    both.format = QStringLiteral("RCHX");
    for (const FileDocument* const document : host.list.recordings()) {
        both.items.append({document->key(), 1, m_folder->filePath(document->title())});
    }
    const QString taken = both.items.last().path + QStringLiteral(".rchx");
    QVERIFY(QDir().mkdir(taken));
    QVERIFY_EXCEPTION_THROWN(service.save(both), RecordingError);
    QVERIFY(shelf.exports().list().isEmpty());
    QVERIFY(QDir().rmdir(taken));
    SaveRequest one = both;
    one.items = {both.items.last()};
    service.save(one);
    QTRY_COMPARE_WITH_TIMEOUT(rows->topLevelItem(1)->text(4), QStringLiteral("Saved"), 60000);
    QVERIFY(saveAll->isEnabled());
    one.items = {both.items.first()};
    service.save(one);
    QTRY_VERIFY_WITH_TIMEOUT(!saveAll->isEnabled(), 60000);
    // One that the host opened is called as it was saved last, too.
    host.host.openFiles({taken}, 1, 1, 1, 0, 0);
    one.items = {{host.list.recordings().last()->key(), 1, m_folder->filePath(QStringLiteral("again"))}};
    service.save(one);
    QTRY_COMPARE_WITH_TIMEOUT(rows->topLevelItem(2) ? rows->topLevelItem(2)->text(0) : QString(),
                              QStringLiteral("again"), 60000);
}

QTEST_MAIN(TestJobsDialog)
#include "tst_jobs_dialog.moc"
