// Recordings through a whole viewer: kept, listed, marked, saved, closed and found again.
#include "simulator/device/Rig.h"
#include "tests/panel/support/Shots.h"
#include "tests/support/PanelTest.h"
#include "tests/support/Recordings.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/app/panes/LogPane.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/InfoText.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/RecordingCopy.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/views/DocumentArea.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

class tst_RecordingsPanel : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QTemporaryDir m_folder;

    Viewer& viewer() { return m_test->viewer(); }
    DocumentList& documents() { return viewer().documents(); }
    RecordingShelf& shelf() { return viewer().recordings(); }

    void shoot() { shootWithAll(viewer()); }

    template <class Widget>
    Widget* find(const char* name) {
        return viewer().mainWindow().findChild<Widget*>(QLatin1String(name));
    }
    void setSaving(const QList<QPair<const char*, QVariant>>& values) {
        for (const auto& [key, value] : values) {
            viewer().preferences().setValue(QLatin1String(key), value);
        }
    }
    QTreeWidget& list() { return *find<QTreeWidget>("recordingList"); }
    QAbstractButton* buttonOf(int row, const char* name) {
        QTreeWidgetItem* const item = list().topLevelItem(row);
        QWidget* const holder = item ? list().itemWidget(item, list().columnCount() - 1) : nullptr;
        return holder ? holder->findChild<QAbstractButton*>(QLatin1String(name)) : nullptr;
    }
    QJsonArray kept() { return m_test->call("recording.list").toArray(); }
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void initTestCase() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/two-alike.json"));
        viewer().preferences().setValue(QStringLiteral("recording/keepFrames"), 12);
        shoot();
    }

    void cleanupTestCase() { m_test.reset(); }

    void allOfAShotAreListedAndTiled() {
        const int cameras = documents().cameras().size();
        QVERIFY(cameras > 1);
        const QAction& storage = *viewer().mainWindow().action(QStringLiteral("dialog:storage"));
        QVERIFY(storage.isEnabled());
        viewer().recording().setMode(HOST_MODE_FILE);
        QVERIFY(!storage.isEnabled()); // it is of cameras
        QCOMPARE(kept().size(), cameras);
        QTRY_COMPARE_WITH_TIMEOUT(list().topLevelItemCount(), cameras, 60000);
        QVERIFY(list().isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(viewer().mainWindow().area().windowKeys(true).size(), cameras, 60000);
        for (const QJsonValue each : kept()) {
            QCOMPARE(each.toObject().value(QLatin1String("frames")).toInt(), 12);
            QVERIFY(!each.toObject().value(QLatin1String("saved")).toBool());
        }
    }

    // Nothing is read a second time, nobody is asked, and memory doesn't grow.
    void comingBackToMemoryKeepsNothingTwice() {
        const int before = kept().size();
        const auto visit = [&] {
            viewer().recording().setMode(HOST_MODE_MEMORY);
            QVERIFY(shelf().progress().text.isEmpty());
            QCoreApplication::processEvents();
            viewer().recording().setMode(HOST_MODE_LIVE);
            QCoreApplication::processEvents();
        };
        visit(); // what is taken once
        const qint64 resident = residentBytes();
        for (int i = 0; i < 6; ++i) {
            visit();
        }
        const qint64 grown = (residentBytes() - resident) / 1000000;
        QVERIFY2(grown < 60, qPrintable(QString::number(grown)));
        QCOMPARE(kept().size(), before);
        QVERIFY(!viewer().recording().canKeep());
    }

    // While a job reads and writes, the window's thread is held no longer than without.
    void theProgramGoesOnWhileItKeeps() {
        viewer().recording().setMode(HOST_MODE_FILE); // without a live picture, which is drawn in software
        const QSize size = viewer().mainWindow().size();
        viewer().mainWindow().resize(viewer().mainWindow().minimumSizeHint());
        m_test->settle();
        qint64 longest = 0;
        qint64 before = 0;
        QTimer beat;
        connect(&beat, &QTimer::timeout, this, [&] {
            longest = qMax(longest, workNs() - before);
            before = workNs();
        });
        const auto longestUntil = [&](const std::function<bool()>& isOver) { // hold, in ms
            longest = 0;
            before = workNs();
            beat.start(10);
            [&] { QTRY_VERIFY_WITH_TIMEOUT(isOver(), 60000); }();
            beat.stop();
            return longest / 1000000;
        };
        viewer().preferences().setValue(QStringLiteral("recording/keepFrames"), 150);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(shelf().keep(*documents().cameras().first()));
        QCOMPARE(shelf().keepings().size(), 1);
        QTreeWidgetItem* row = nullptr; // what is read stands in the list, too, and tells how far it is
        const auto isSeen = [&] {
            row = list().topLevelItem(list().topLevelItemCount() - 1);
            return row && row->text(0).startsWith(QStringLiteral("Keeping ")) &&
                   row->text(1).contains(QStringLiteral("of 150"));
        };
        QTRY_VERIFY_WITH_TIMEOUT(isSeen(), 60000);
        const qint64 keeping = longestUntil([&] { return !shelf().isKeeping(); });
        const qint64 took = clock.restart();
        const qint64 usual = longestUntil([&] { return clock.elapsed() > took; });
        viewer().preferences().setValue(QStringLiteral("recording/keepFrames"), 12);
        viewer().mainWindow().resize(size);
        QVERIFY2(keeping <= 2 * usual + 50, qPrintable(QStringLiteral("%1, %2").arg(usual).arg(keeping)));
    }

    void aMarkIsSetByItsKeyAndSaved() {
        viewer().recording().setMode(HOST_MODE_FILE);
        FileDocument& document = *documents().recordings().last();
        documents().setCurrent(&document);
        document.setPlayPosition(4);
        QTRY_VERIFY_WITH_TIMEOUT(viewer().imageView(document.key()), 60000);
        m_test->call("image.key", {{QStringLiteral("key"), QStringLiteral("m")}});
        QTRY_COMPARE_WITH_TIMEOUT(document.marks(), QVector<int>{4}, 60000);
        const InfoFacts facts = InfoFacts::of(document);
        QCOMPARE(InfoText::value(QStringLiteral("EventMarker"), facts, {}, {}), QStringLiteral("1"));
        m_test->call("recording.save", {{QStringLiteral("key"), double(document.key())},
                                        {QStringLiteral("path"), path("marked.rchx")}});
        QCOMPARE(RecordingFile::open(path("marked.rchx"))->info().marks, QVector<int>{4});
        QVERIFY(document.isSaved());
        m_test->call("image.key", {{QStringLiteral("key"), QStringLiteral("m")}});
        QTRY_VERIFY_WITH_TIMEOUT(document.marks().isEmpty(), 60000);
    }

    void theConsoleSavesOpensAndCloses() {
        const double key = kept().first().toObject().value(QLatin1String("key")).toDouble();
        const auto save = [&](const char* name, QJsonObject wish = {}) {
            wish[QStringLiteral("key")] = key;
            wish[QStringLiteral("path")] = path(name);
            m_test->call("recording.save", wish);
        };
        const QString first = QStringLiteral("first");
        const QString last = QStringLiteral("last");
        const QString format = QStringLiteral("format");
        const QString codec = QStringLiteral("codec");
        for (const char* const each : {"RAWW", "zraw", "GRAW", "RCHX"}) {
            const QByteArray name = QByteArray("part.") + each;
            save(name, {{format, QLatin1String(each)}, {first, 2}, {last, 4}});
            const QJsonArray keys =
                m_test->call("recording.open", {{QStringLiteral("path"), path(name)}}).toArray();
            QCOMPARE(keys.size(), 1);
            const auto* const opened =
                static_cast<FileDocument*>(documents().find(DOCKEY(keys.first().toInt())));
            const auto* const whole = static_cast<FileDocument*>(documents().find(DOCKEY(key)));
            QCOMPARE(opened->recordedFrames(), 3);
            QCOMPARE(opened->source()->frame(1).image, whole->source()->frame(3).image);
            QVERIFY(!whole->isSaved());                           // a part is not all of it
            QVERIFY_EXCEPTION_THROWN(save(name), std::exception); // never over another
            m_test->call("recording.close", {{QStringLiteral("key"), keys.first()}});
        }
        save("pages.tif", {{format, QStringLiteral("Tiff (Multi-Page)")}, {last, 2}});
        QCOMPARE(OpenFile::fromPictures(path("pages.tif"))->count(), 3);
        save("one.jpg", {{first, 1}, {last, 1}});
        QVERIFY(!QImage(path("one.jpg")).isNull());
        save("movie.avi", {{codec, QStringLiteral("huffyuv")}, {last, 1}});
        QFile movie(path("movie.avi"));
        QVERIFY(movie.open(QIODevice::ReadOnly) && movie.read(4096).contains("HFYU"));
        QVERIFY_EXCEPTION_THROWN(save("x.avi", {{codec, QStringLiteral("H265")}}), std::exception);
        QVERIFY_EXCEPTION_THROWN(save("x.xyz"), std::exception);
        QVERIFY_EXCEPTION_THROWN(
            m_test->call("recording.open", {{QStringLiteral("path"), path("missing.rchx")}}), std::exception);
    }

    void theReplayHasARangeAndALoop() {
        viewer().recording().setMode(HOST_MODE_FILE);
        FileDocument& document = *documents().recordings().first();
        documents().setCurrent(&document);
        document.setPlayPosition(3);
        find<QAbstractButton>("rangeIn")->click();
        document.setPlayPosition(5);
        find<QAbstractButton>("rangeOut")->click();
        QCOMPARE(document.firstPlayed(), 3);
        QCOMPARE(document.lastPlayed(), 5);
        document.playOn(1); // from 5
        QCOMPARE(document.playPosition(), 3);
        find<QCheckBox>("playLoop")->click();
        document.setPlaying(true);
        document.playOn(7);
        QCOMPARE(document.playPosition(), 5);
        QVERIFY(!document.isPlaying());
        document.setPlaying(true); // from the start again
        QCOMPARE(document.playPosition(), 3);
        document.setPlaying(false);
        find<QAbstractButton>("rangeAll")->click();
        QCOMPARE(document.lastPlayed(), document.recordedFrames() - 1);
        find<QAbstractButton>("toTrigger")->click();
        QCOMPARE(document.playPosition(), document.triggerIndex());
    }

    // A row's button saves; a close that would lose frames asks, and Cancel is what Enter gives.
    void aRowSavesAndCloses() {
        viewer().recording().setMode(HOST_MODE_FILE);
        const int row = list().topLevelItemCount() - 2;
        QTRY_VERIFY_WITH_TIMEOUT(buttonOf(row, "closeRecording"), 60000);
        const int before = kept().size();
        m_test->answerNextBox(QStringLiteral("Cancel"));
        buttonOf(row, "closeRecording")->click();
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("12 frames")),
                 qPrintable(m_test->answeredBox()));
        QCOMPARE(kept().size(), before);
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            if (dynamic_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                answer.stop();
                m_test->call("files.answer", {{QStringLiteral("path"), path("row")}});
            }
        });
        answer.start(20);
        buttonOf(row, "saveRecording")->click();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("row.rchx")), 60000);
        QTRY_VERIFY_WITH_TIMEOUT(list().topLevelItem(row)->text(4) == QLatin1String("Saved"), 60000);
        buttonOf(row, "closeRecording")->click();
        QTRY_COMPARE_WITH_TIMEOUT(kept().size(), before - 1, 60000);
        QCOMPARE(RecordingFile::open(path("row.rchx"))->count(), 12);
    }

    void clearingTheLogPaneLeavesTheLog() {
        qInfo("a line of this test");
        QCoreApplication::processEvents();
        auto* const pane = viewer().mainWindow().findChild<LogPane*>();
        auto* const text = find<QPlainTextEdit>("logText");
        QVERIFY(text->toPlainText().contains(QStringLiteral("a line of this test")));
        pane->findChild<QToolButton*>()->click();
        QVERIFY(!text->toPlainText().contains(QStringLiteral("a line of this test")));
        QVERIFY(!m_test->logged(QStringLiteral("a line of this test")).isEmpty());
        qInfo("and one after it");
        QCoreApplication::processEvents();
        QVERIFY(text->toPlainText().contains(QStringLiteral("and one after it")));
    }

    // Cameras and shots are told apart by their names; without numbers in them, by one that is put behind.
    void whatIsKeptIsSavedUnasked() {
        const QDir folder(path("auto")); // the first save makes it
        setSaving({{"recording/AutoSave", true},
                   {"export/dir", folder.path()},
                   {"export/format", QStringLiteral("RCHX")}});
        bool isTold = true;
        const auto watch = connect(&shelf(), &RecordingShelf::allKept, this,
                                   [&] { isTold = isTold && viewer().host().isAutoExporting(); });
        for (const bool isNumbered : {true, true, false}) {
            setSaving({{"export/filenameaddnumber", isNumbered}});
            shoot();
            QTRY_VERIFY_WITH_TIMEOUT(!viewer().host().isAutoExporting(), 60000);
        }
        disconnect(watch);
        QVERIFY(isTold);
        const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
        QCOMPARE(
            names.join(QLatin1Char(' ')),
            QStringLiteral("recording.rchx recording_2.rchx recording_C001S0001.rchx "
                           "recording_C001S0002.rchx recording_C002S0001.rchx recording_C002S0002.rchx"));
        QSet<QString> recordings;
        for (const QString& name : names) {
            const FrameSourcePtr saved = RecordingFile::open(folder.filePath(name));
            QCOMPARE(saved->count(), 12);
            recordings.insert(saved->info().id);
            const bool isFirst = saved->info().camera == documents().cameras().first()->title();
            QVERIFY(!name.contains(QStringLiteral("_C")) || isFirst == name.contains(QStringLiteral("C001")));
        }
        QCOMPARE(recordings.size(), names.size());
        const QList<FileDocument*> all = documents().recordings();
        QCOMPARE(
            std::count_if(all.end() - names.size(), all.end(), [](auto* each) { return each->isSaved(); }),
            names.size());
    }

    // The file and the reason are told, and the recording is in the spool as before.
    void whatCantBeSavedUnaskedIsTold() {
        QFile file(path("nofolder"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        setSaving({{"export/dir", file.fileName()}});
        QStringList told;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told.append(box->text());
                box->buttons().first()->click();
            }
        });
        answer.start(20);
        shoot();
        QTRY_VERIFY_WITH_TIMEOUT(!told.isEmpty() && !QApplication::activeModalWidget(), 60000);
        QVERIFY2(told.first().contains(file.fileName()) && told.first().contains(QStringLiteral("folder")),
                 qPrintable(told.first()));
        const FileDocument& last = *documents().recordings().last();
        QVERIFY(!last.isSaved() && QFile::exists(last.spoolPath()));
        setSaving({{"recording/AutoSave", false}});
    }

    // What is nowhere on a disk is asked about when the program ends; after a yes it ends.
    void quittingAsksOnlyForWhatIsNowhere() {
        MainWindow& window = viewer().mainWindow();
        viewer().preferences().setValue(QStringLiteral("recording/AutoDownload"), false);
        shoot();
        m_test->answerNextBox(QStringLiteral("Cancel"));
        QVERIFY(!window.close());
        QVERIFY2(m_test->answeredBox().contains(documents().cameras().first()->title()),
                 qPrintable(m_test->answeredBox()));
        for (CameraDocument* const camera : documents().cameras()) {
            shelf().keep(*camera);
        }
        QTRY_VERIFY_WITH_TIMEOUT(!shelf().isKeeping(), 60000);
        QVERIFY(window.close()); // no question: the spool has them
    }

    // What a program that is gone has left in the spool, the file that it was writing included.
    void whatACrashLeftIsOffered() {
        const QString left = path("recordings/crashed");
        QVERIFY(QDir().mkpath(left));
        const auto write = [](const QString& to, const QByteArray& bytes) {
            QFile file(to);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        };
        write(left + QStringLiteral("/lock"), "");
        m_test = nullptr;
        std::unique_ptr<Viewer> again;
        const FrameSourcePtr frames = recordingOf(RecordingInfo(), 3, QSize(64, 48));
        RecordingInfo info = frames->info();
        info.camera = QStringLiteral("Marlin");
        RecordingCopy().run(*frames, info, left + QStringLiteral("/kept.rchx"));
        QFile whole(left + QStringLiteral("/kept.rchx"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        write(left + QStringLiteral("/.zel-abcdef.part"), whole.readAll().left(int(whole.size()) / 2));
        for (const bool opens : {false, true}) {
            QString asked;
            QTimer answer;
            connect(&answer, &QTimer::timeout, this, [&] {
                if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    asked = box->text();
                    box->button(opens ? QMessageBox::Yes : QMessageBox::No)->click();
                }
            });
            answer.start(20);
            Options options;
            options.settings = m_folder.path();
            again = nullptr;
            again = std::make_unique<Viewer>(options);
            again->start();
            QTRY_VERIFY_WITH_TIMEOUT(!asked.isEmpty(), 60000);
            QVERIFY2(asked.contains(QStringLiteral("Marlin: 3 frames")), qPrintable(asked));
            QTRY_COMPARE_WITH_TIMEOUT(again->documents().mode(), opens ? HOST_MODE_FILE : HOST_MODE_LIVE,
                                      60000);
            QCOMPARE(again->documents().recordings().size(), opens ? 2 : 0);
        }
        QVERIFY(again->mainWindow().close()); // without a question: they stay in the spool
        again = nullptr;
        QCOMPARE(QDir(left).entryList({QStringLiteral("*.rchx")}, QDir::Files).size(), 2);
    }
};

QTEST_MAIN(tst_RecordingsPanel)
#include "tst_recordings_panel.moc"
