// What is saved of the documents: frames, pictures, layouts, and what saves itself.

#include "tests/support/FullDisk.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/jobs/AutoSaver.h"
#include "viewer/app/jobs/SaveService.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/overlay/SavedViewPictures.h"
#include "viewer/saving/SaveSettings.h"
#include "viewer/saving/SavingMediator.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestSaveService : public QObject {
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void aPictureIsSavedAsItShows();
    void eachPictureBearsItsOwnName();
    void aLogoStandsOnMemoryAsOnFiles();
    void aSkipInMillisecondsFollowsEachRate();
    void aLayoutIsAsLargeAsItsWindows();
    void oneThatCantBeSavedUnaskedHoldsUpNoOther();
    void whatIsSavedUnaskedSharesItsGroupFolder();
    void whatIsSavedUnaskedBearsTheTimeOfItsRecording();
    void eachKindOfSavingHasItsSkip();
    void informationIsWantedOfAllButConversionsAtOnce();
    void aSaveThatFailsGivesItsNamesBack();
    void whatWasReadBeforeTheDiskWasFullIsKept();
    void aReportIsWrittenAsAWhole();
    void whatIsWantedOfTheFramesIsSaved();

private:
    /// Recordings of two cameras that save themselves as "shot".
    struct Unasked {
        explicit Unasked(const QString& folder)
            : shelf(host.list, host.preferences, host.messages, folder + QStringLiteral("/spool")) {
            set("recording/keepFrames", 5);
            set("recording/AutoSave", true);
            set("export/dir", folder);
            set("export/format", QStringLiteral("RCHX"));
            set("export/filename", QStringLiteral("shot"));
        }
        void set(const char* key, const QVariant& value) {
            host.preferences.setValue(QLatin1String(key), value);
        }
        /// False if one can't be read out of its camera.
        bool record() {
            for (const char* const camera : {"Mono", "Colour"}) {
                host.record(camera);
            }
            return shelf.keep(*host.camera("Mono")) && shelf.keep(*host.camera("Colour"));
        }

        HostTest host;
        RecordingShelf shelf;
        SavedViewPictures pictures{host.list, host.preferences};
        SaveService service{{host.list, shelf, pictures, {}}};
        const AutoSaver saver{{host.host, host.list, shelf, service, host.preferences}};
    };

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSaveService::aPictureIsSavedAsItShows() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    SaveService service({host.list, shelf, pictures, {}});
    QImage corner(4, 2, QImage::Format_Grayscale8);
    corner.fill(Qt::black);
    corner.setPixelColor(0, 0, Qt::white);
    Document& document = *host.list.addRecording(recordingOf({corner}));
    SaveRequest wish;
    wish.format = QStringLiteral("PNG");
    const auto whiteAt = [&](int turns, bool flipA, bool flipB) {
        ViewState view;
        view.quarterTurns = turns;
        view.flipA = flipA;
        view.flipB = flipB;
        document.setView(view);
        const int count = shelf.exports().list().size();
        wish.items = {{document.key(), 1, m_folder->filePath(QString::number(count))}};
        service.save(wish);
        const bool isSaved = QTest::qWaitFor([&] { return !shelf.exports().isBusy(); }, 60000);
        const QImage saved(isSaved ? shelf.exports().list().last().path : QString());
        for (int i = 0; i < saved.width() * saved.height(); ++i) {
            const QPoint place(i % saved.width(), i / saved.width());
            if (saved.pixelColor(place) == Qt::white) {
                return place;
            }
        }
        return QPoint(-1, -1);
    };
    QCOMPARE(whiteAt(0, false, false), QPoint(0, 0));
    QCOMPARE(whiteAt(0, true, false), QPoint(3, 0));
    QCOMPARE(whiteAt(0, false, true), QPoint(0, 1));
    QCOMPARE(whiteAt(1, true, false), QPoint(0, 0));
}

// Of two frames that are alike the names alone tell the pictures apart.
void TestSaveService::eachPictureBearsItsOwnName() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    SaveService service({host.list, shelf, pictures, {}});
    host.preferences.setValue(QStringLiteral("saveinfo/display1"), QStringLiteral("File name:true"));
    host.preferences.setValue(QStringLiteral("saveinfo/FontSize1"), QStringLiteral("12"));
    host.preferences.setValue(QStringLiteral("saveinfo/Width1"), QStringLiteral("600"));
    Document& document = *host.list.addRecording(recordingOf(RecordingInfo(), 2, {64, 64}));
    SaveRequest wish;
    wish.format = QStringLiteral("PNG");
    wish.withInfo = true;
    wish.items = {{document.key(), 1, m_folder->filePath(QStringLiteral("p"))}};
    service.save(wish);
    QTRY_VERIFY_WITH_TIMEOUT(!shelf.exports().isBusy(), 60000);
    const QImage first(m_folder->filePath(QStringLiteral("p_000000.png")));
    const QImage second(m_folder->filePath(QStringLiteral("p_000001.png")));
    QVERIFY(!first.isNull() && first.size() == second.size());
    QVERIFY(first != second);
}

void TestSaveService::aLogoStandsOnMemoryAsOnFiles() {
    HostTest host;
    const QString logo = m_folder->filePath(QStringLiteral("logo.png"));
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(logo));
    host.preferences.setValue(QStringLiteral("info/LogoPath"), logo);
    host.preferences.setValue(QStringLiteral("saveinfo/display1"), QStringLiteral("Logo:true"));
    host.preferences.setValue(QStringLiteral("saveinfo/FontSize1"), QStringLiteral("12"));
    host.preferences.setValue(QStringLiteral("saveinfo/Width1"), QStringLiteral("300"));
    host.record("Mono");
    host.list.setMode(HOST_MODE_MEMORY);
    SavedViewPictures pictures(host.list, host.preferences);
    const QImage picture = pictures.image({*host.camera("Mono"), 1, 1, QDateTime()}, QSize(400, 400));
    bool isRed = false;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        const QColor color = picture.pixelColor(i % picture.width(), i / picture.width());
        isRed = isRed || (color.red() > 200 && color.green() < 60 && color.blue() < 60);
    }
    QVERIFY(isRed);
}

// 8 ms are eight frames of one recording and six of the other.
void TestSaveService::aSkipInMillisecondsFollowsEachRate() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    SaveService service({host.list, shelf, pictures, {}});
    host.preferences.values = {{QStringLiteral("export/format"), QStringLiteral("RCHX")},
                               {QStringLiteral("export/skipsaveframe"), 2},
                               {QStringLiteral("export/skipsavemsec"), 8}};
    const auto framesSaved = [&](int unit) {
        host.preferences.setValue(QStringLiteral("export/skipunit"), unit);
        SaveRequest wish = SaveSettings::request(host.host, DialogKind::Export);
        QMap<QString, int> saved;
        for (const uint rate : {1000U, 750U}) {
            RecordingInfo info;
            info.rate = rate;
            Document& document = *host.list.addRecording(recordingOf(info, 24, {4, 4}));
            const QString path = m_folder->filePath(QStringLiteral("%1-%2").arg(unit).arg(rate));
            wish.items = {{document.key(), 1, path}};
            service.save(wish);
            saved.insert(QFileInfo(path).fileName(), shelf.exports().list().last().total);
        }
        return saved;
    };
    const QMap<QString, int> byFrames{{QStringLiteral("0-1000"), 12}, {QStringLiteral("0-750"), 12}};
    QCOMPARE(framesSaved(0), byFrames);
    const QMap<QString, int> byTime{{QStringLiteral("1-1000"), 3}, {QStringLiteral("1-750"), 4}};
    QCOMPARE(framesSaved(1), byTime);
    QTRY_VERIFY_WITH_TIMEOUT(!shelf.exports().isBusy(), 60000);
}

// Of two windows side by side the right one alone stands at the left edge.
void TestSaveService::aLayoutIsAsLargeAsItsWindows() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    QList<SaveService::Window> windows;
    for (const int gray : {100, 200}) {
        QImage image(8, 8, QImage::Format_Grayscale8);
        image.fill(gray);
        windows.append({host.list.addRecording(recordingOf({image})), QRect(8 * windows.size(), 4, 8, 8)});
    }
    const SaveService service({host.list, shelf, pictures, [&] { return windows; }});
    const QList<DOCKEY> keys{windows.first().document->key(), windows.last().document->key()};
    const QImage both = service.layoutPicture(keys, false, QSize(16, 8));
    QCOMPARE(both.size(), QSize(16, 8));
    QVERIFY(qGray(both.pixel(0, 0)) == 100 && qGray(both.pixel(15, 7)) == 200);
    const QImage right = service.layoutPicture({keys.last()}, false, QSize(8, 8));
    QCOMPARE(right.size(), QSize(8, 8));
    QVERIFY(qGray(right.pixel(0, 0)) == 200 && qGray(right.pixel(7, 7)) == 200);
}

// Each camera has a folder of its own, and that of the first one can't be made.
void TestSaveService::oneThatCantBeSavedUnaskedHoldsUpNoOther() {
    Unasked cameras(m_folder->path());
    QFile taken(m_folder->filePath(QStringLiteral("taken")));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    cameras.set("export/multipathlist", QStringLiteral("bad|%1").arg(taken.fileName()));
    cameras.set("export/multipathdevicelist", cameras.host.body("Mono")->address() + QStringLiteral("|bad"));
    QVERIFY(cameras.record());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder->filePath(QStringLiteral("shot.rchx"))), 60000);
    QTRY_VERIFY(!cameras.service.isExportingUnasked());
    const QStringList& errors = cameras.host.messages.errors;
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().contains(taken.fileName()), qPrintable(errors.first()));
}

// The folder has the next free number: one for both of them.
void TestSaveService::whatIsSavedUnaskedSharesItsGroupFolder() {
    Unasked cameras(m_folder->path());
    cameras.set("export/groupdir", true);
    cameras.set("export/groupdirname", QStringLiteral("run"));
    cameras.set("export/groupdiraddnumber", true);
    cameras.set("export/groupdiraddnumbersessionnodigits", 2);
    QVERIFY(cameras.record());
    const auto filesIn = [this](const QString& folder) {
        return QDir(m_folder->filePath(folder)).entryList({QStringLiteral("shot*.rchx")}, QDir::Files);
    };
    const auto folders = [this] {
        return QDir(m_folder->path()).entryList({QStringLiteral("run*")}, QDir::Dirs);
    };
    const QStringList both{QStringLiteral("shot.rchx"), QStringLiteral("shot_2.rchx")};
    QTRY_VERIFY_WITH_TIMEOUT(!folders().isEmpty() && !cameras.service.isExportingUnasked(), 60000);
    QCOMPARE(folders().size(), 1);
    QCOMPARE(filesIn(folders().first()), both);
}

// Not that of the saving: reading it out of the camera may take minutes.
void TestSaveService::whatIsSavedUnaskedBearsTheTimeOfItsRecording() {
    Unasked cameras(m_folder->path());
    const QString format = QStringLiteral("yyyyMMdd_HHmmss_zzz");
    cameras.set("export/filenameaddtime", true);
    cameras.set("export/filenameaddtimeformat", format);
    QVERIFY(cameras.record());
    QTRY_VERIFY_WITH_TIMEOUT(!cameras.shelf.isKeeping() && !cameras.service.isExportingUnasked(), 60000);
    const QList<FileDocument*> kept = cameras.host.list.recordings();
    QCOMPARE(kept.size(), 2);
    for (FileDocument* const document : kept) {
        const QString path =
            m_folder->filePath(QStringLiteral("shot_%1.rchx").arg(document->info().ended.toString(format)));
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
    cameras.set("recording/AutoSave", false);
    for (const char* const camera : {"Mono", "Colour"}) {
        cameras.host.body(camera)->goLive().result();
    }
    QVERIFY(cameras.record());
    QTRY_VERIFY_WITH_TIMEOUT(!cameras.shelf.isKeeping() && !cameras.service.isExportingUnasked(), 60000);
    QCOMPARE(cameras.shelf.exports().list().size(), 2); // nobody wishes the others
}

// A conversion skips as an export does, a layout and a report for themselves.
void TestSaveService::eachKindOfSavingHasItsSkip() {
    HostTest host;
    host.preferences.values = {{QStringLiteral("export/skipsaveframe"), 2},
                               {QStringLiteral("layout/skipsaveframe"), 3},
                               {QStringLiteral("report/skipsaveframe"), 5}};
    const QMap<DialogKind, int> steps{{DialogKind::Export, 2},
                                      {DialogKind::Convert, 2},
                                      {DialogKind::Snapshot, 1},
                                      {DialogKind::Layout, 3},
                                      {DialogKind::Report, 5}};
    for (auto it = steps.begin(); it != steps.end(); ++it) {
        QCOMPARE(SaveSettings::request(host.host, it.key()).skip.step(1000), it.value());
    }
}

// A conversion asks for it by itself; all others share the setting of the export.
void TestSaveService::informationIsWantedOfAllButConversionsAtOnce() {
    HostTest host;
    for (const bool isOfExport : {true, false}) {
        host.preferences.values = {{QStringLiteral("export/saveinfo"), isOfExport},
                                   {QStringLiteral("convert/saveinfo"), !isOfExport}};
        for (const DialogKind kind :
             {DialogKind::Export, DialogKind::Snapshot, DialogKind::Layout, DialogKind::Report}) {
            QCOMPARE(SaveSettings::request(host.host, kind).withInfo, isOfExport);
        }
        QCOMPARE(SaveSettings::request(host.host, DialogKind::Convert).withInfo, !isOfExport);
    }
}

void TestSaveService::aSaveThatFailsGivesItsNamesBack() {
    HostTest host;
    host.preferences.values = {{QStringLiteral("export/dir"), m_folder->path()},
                               {QStringLiteral("export/filename"), QStringLiteral("shot")},
                               {QStringLiteral("export/groupdir"), true},
                               {QStringLiteral("export/groupdirname"), QStringLiteral("run")}};
    const DOCKEY key = host.list.addRecording(recordingOf({}, 3, {4, 4}))->key();
    QString path;
    const auto fail = [&](const SaveRequest& wish) {
        path = wish.items.value(0).path;
        QVERIFY(host.host.isPendingPath(path) && !host.host.getGroupDir().isEmpty());
        throw RecordingError::unwritable(path, ENOSPC);
    };
    SavingMediator saving(&host.host, host.preferences, QStringLiteral("filesavedialog"),
                          QDateTime::currentDateTime(), fail, {});
    const QVariantMap row{{QStringLiteral("dockey"), key}, {QStringLiteral("partitionno"), 1}};
    QVERIFY(!saving.save({row}));
    QCOMPARE(path, m_folder->filePath(QStringLiteral("run/shot")));
    QCOMPARE(host.messages.errors.size(), 1);
    QVERIFY(!host.host.isPendingPath(path) && host.host.getGroupDir().isEmpty());
}

void TestSaveService::whatWasReadBeforeTheDiskWasFullIsKept() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    constexpr int kWanted = 400;
    host.preferences.setValue(QStringLiteral("recording/keepFrames"), kWanted);
    host.record("Mono");
    {
        const FullDisk disk(6 << 20);
        QVERIFY(shelf.keep(*host.camera("Mono")));
        QTRY_VERIFY_WITH_TIMEOUT(!shelf.isKeeping(), 60000);
    }
    const QStringList& errors = host.messages.errors;
    const int kept = host.list.recordings().isEmpty() ? 0 : host.list.recordings().first()->recordedFrames();
    QVERIFY2(kept > 0 && kept < kWanted, qPrintable(QString::number(kept)));
    QVERIFY(!host.list.recordings().first()->source()->frame(kept - 1).isNull());
    QCOMPARE(errors.size(), 2); // the reason, and how much there is
    QVERIFY2(errors.last().contains(QStringLiteral("%1 of").arg(kept)), qPrintable(errors.last()));
}

void TestSaveService::aReportIsWrittenAsAWhole() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    SaveService service({host.list, shelf, pictures, {}});
    const QString path = m_folder->filePath(QStringLiteral("report"));
    SaveRequest wish;
    wish.saveType = saveTypeOf(DialogKind::Report);
    wish.items = {{host.list.addRecording(recordingOf({}, 3, {4, 4}))->key(), 1, path}};
    QFile pdf(path + QStringLiteral(".pdf"));
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    QVERIFY_EXCEPTION_THROWN(service.save(wish), RecordingError);
    QVERIFY(!QFile::exists(path + QStringLiteral(".html"))); // it would be in the way next time
    QVERIFY(pdf.remove());
    service.save(wish);
    QVERIFY(QFile::exists(path + QStringLiteral(".html")) && pdf.exists());
}

// And while a conversion runs, it is told as one.
void TestSaveService::whatIsWantedOfTheFramesIsSaved() {
    HostTest host;
    RecordingShelf shelf(host.list, host.preferences, host.messages, m_folder->path());
    SavedViewPictures pictures(host.list, host.preferences);
    Document& document = *host.list.addRecording(recordingOf({}, 10, {4, 4}));
    document.setPlayPosition(7);
    SaveService service({host.list, shelf, pictures, [&] {
                             return QList<SaveService::Window>{{&document, {0, 0, 8, 8}}};
                         }});
    const auto saved = [&](int first, int last, DialogKind kind, const char* format) {
        SaveRequest wish;
        wish.format = QLatin1String(format);
        wish.saveType = saveTypeOf(kind);
        wish.firstFrame = first;
        wish.lastFrame = last;
        wish.items = {
            {document.key(), 1, m_folder->filePath(QString::number(shelf.exports().list().size()))}};
        service.save(wish);
        const QString text = QStringLiteral("%1%2%3")
                                 .arg(shelf.exports().list().last().total)
                                 .arg(QLatin1String(service.isConverting() ? " converted" : ""),
                                      QLatin1String(service.isSaving() ? " memory" : ""));
        return QTest::qWaitFor([&] { return !shelf.exports().isBusy(); }, 60000) ? text : QString();
    };
    QCOMPARE(saved(2, 5, DialogKind::Export, "RCHX"), QStringLiteral("4"));
    QCOMPARE(saved(2, 99, DialogKind::Export, "RCHX"), QStringLiteral("8"));
    QCOMPARE(saved(0, -1, DialogKind::Convert, "RCHX"), QStringLiteral("10 converted"));
    QVERIFY(!service.isConverting());
    QCOMPARE(saved(0, -1, DialogKind::Snapshot, "PNG"), QStringLiteral("1"));
    QSignalSpy begun(&service, &SaveService::begun);
    QCOMPARE(saved(0, 2, DialogKind::Layout, "PNG"), QStringLiteral("3"));
    QCOMPARE(begun.count(), 1); // the user waits for it
    QVERIFY(shelf.exports().list().last().title.startsWith(QLatin1String("Layout by the frames of ")));
}

QTEST_MAIN(TestSaveService)
#include "tst_save_service.moc"
