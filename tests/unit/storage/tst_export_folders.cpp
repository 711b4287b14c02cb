// Group and sub folders, and the whole paths with what the host hears of them.

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/storage/NamingPreferences.h"
#include "tests/support/LogCapture.h"
#include "tests/unit/storage/NamingRig.h"

#include <QtTest>

namespace {

using Paths = QMap<PARTITIONNUMBER, QString>;

struct Composed {
    Paths groupDirs;
    Paths folders;
    Paths fullPaths;
    QString failure;
};

Composed compose(NamingRig& rig, int saveType, bool replaceFolder = false, int bracketMode = 0) {
    Composed result;
    try {
        composeExportPaths(&rig.host, saveType, &rig.camera, replaceFolder, result.groupDirs, result.folders,
                           result.fullPaths, rig.time, bracketMode);
    } catch (const UTL_Exception& exception) {
        result.failure = QString::fromUtf8(exception.what());
    }
    return result;
}

const QString kTooLong = QStringLiteral("The path of the target is too long.");
const QString kInvalid = QStringLiteral("Invalid filename.");

} // namespace

class tst_export_folders : public QObject {
    Q_OBJECT

private slots:
    void knowsDigits_data();
    void knowsDigits();
    void namesFolders_data();
    void namesFolders();
    void countsPastFolders();
    void prefersRunningJob();
    void tellsPaths();
    void numbersPartitionsApart();
    void roundsBrackets();
    void followsFileWithOption();
    void replacesFolder();
    void refusesEmptyNames_data();
    void refusesEmptyNames();
    void limitsLength();
    void limitsThumbnail_data();
    void limitsThumbnail();
};

void tst_export_folders::knowsDigits_data() {
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("stem");
    QTest::addColumn<bool>("hasHeads");
    const QStringList all{"export/groupdir"_s,  "export/subdir"_s,  "export/filename"_s,
                          "convert/groupdir"_s, "convert/subdir"_s, "convert/filename"_s,
                          "snap/groupdir"_s,    "snap/subdir"_s,    "snap/filename"_s};
    for (int i = 0; i < all.size(); ++i) {
        QTest::newRow(qPrintable(all.at(i))) << i << all.at(i) << true;
    }
    QTest::newRow("report sub folder") << 10 << "report/subdir" << false;
    QTest::newRow("report file") << 11 << "report/filename" << false;
    QTest::newRow("data name") << 13 << "export/fd/dataname" << true;
    QTest::newRow("layout sub folder") << 15 << "layout/subdir" << true;
    QTest::newRow("layout file") << 16 << "layout/filename" << true;
}

void tst_export_folders::knowsDigits() {
    QFETCH(int, target);
    QFETCH(QString, stem);
    QFETCH(bool, hasHeads);
    NamingRig rig;
    rig.prefs = {{stem + "addnumbercameranodigits"_s, 5},
                 {stem + "addnumberheadnodigits"_s, 6},
                 {stem + "addnumbersessionnodigits"_s, 7}};
    const DigitCounts counts = addNumberDigits(&rig.host, target);
    QCOMPARE(counts.camera, hasHeads ? 5 : 0);
    QCOMPARE(counts.head, hasHeads ? 6 : 0);
    QCOMPARE(counts.session, 7);
    const DigitCounts preset = addNumberDigits(nullptr, target);
    QVERIFY(preset.camera == 3 && preset.head == 3 && preset.session == 4);
}

void tst_export_folders::namesFolders_data() {
    QTest::addColumn<int>("saveType");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("settings"); // "key=value", "group" stands for both stems
    QTest::addColumn<QString>("groupDir");
    QTest::addColumn<QString>("subDir");
    const auto row = [](const char* title, int type, const char* mode, const char* settings,
                        const char* groupDir, const char* subDir) {
        QTest::newRow(title) << type << mode
                             << QString::fromLatin1(settings).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                             << groupDir << subDir;
    };
    row("fixed", 1, "live", "export/*=1 export/*name=g", "g", "g");
    row("off", 1, "live", "export/*name=g", "", "");
    row("on, without name", 1, "live", "export/*=1", "", "");
    row("after the file", 7, "live", "snap/*=1 snap/*name=g snap/*asfilename=1", "shot", "shot");
    row("conversion", 6, "live", "convert/*=1 convert/*name=c", "c", "c");
    row("report", 17, "live", "report/*=1 report/*name=r", "r", "r");
    row("layout has no group", 4, "live", "layout/*=1 layout/*name=l export/*=1 export/*name=e", "", "l");
    row("one layout has the export's", 18, "live", "layout/*=1 layout/*name=l export/*=1 export/*name=e", "e",
        "l");
    row("the document's have none", 19, "live", "export/*=1 export/*name=e", "", "");
    row("the document's have none, second kind", 20, "live", "export/*=1 export/*name=e", "", "");
    const char numbers[] = "export/*=1 export/*name=g export/*addnumber=1 export/*addnumbercameranodigits=3 "
                           "export/*addnumberheadnodigits=2 export/*addnumbersessionnodigits=4";
    row("number", 1, "live", numbers, "g_C012H02S0001", "g_C012H02S0001");
    row("number, file mode", 1, "file", numbers, "g_S0001", "g_S0001");
    const QByteArray numbered(numbers);
    row("number alone", 1, "live", numbered + " export/*name=", "C012H02S0001", "C012H02S0001");
    row("number by itself", 1, "live", numbered + " export/*addnumberformat=auto", "g_C12H2S0001",
        "g_C12H2S0001");
    row("by itself, file mode", 1, "file", numbered + " export/*addnumberformat=auto", "g_S0001", "g_S0001");
    row("no digits", 1, "live", "export/*=1 export/*name=g export/*addnumber=1", "g", "g");
    row("report numbers its sub folder", 16, "live",
        "report/*=1 report/*name=r report/*addnumber=1 report/*addnumbersessionnodigits=2", "r", "r_S01");
    row("time", 1, "live", "export/*=1 export/*name=g export/*addtime=1 export/*addtimeformat=yyyyMMdd",
        "g_20210304", "g_20210304");
    row("time alone", 1, "live", "export/*=1 export/*addtime=1 export/*addtimeformat=HHmm", "0506", "0506");
    row("time that leads up", 1, "live",
        "export/*=1 export/*name=g export/*addtime=1 export/*addtimeformat=/../../HH", "g_/__/__/05",
        "g_/__/__/05");
    row("number and time", 1, "live", numbered + " export/*addtime=1 export/*addtimeformat=HH",
        "g_C012H02S0001_05", "g_C012H02S0001_05");
}

void tst_export_folders::namesFolders() {
    QFETCH(int, saveType);
    QFETCH(QString, mode);
    QFETCH(QStringList, settings);
    QTemporaryDir folder;
    NamingRig rig;
    rig.mode = mode;
    for (const QString& setting : settings) {
        for (const char* const stem : {"groupdir", "subdir"}) {
            const QString key = setting.section(QLatin1Char('='), 0, 0).replace("*"_s, QLatin1String(stem));
            rig.prefs.insert(key, setting.section(QLatin1Char('='), 1));
        }
    }
    for (const char* const family : {"export/dir", "layout/dir", "convert/dir", "snap/dir", "report/dir"}) {
        rig.set(family, folder.path());
    }
    rig.camera.onGetCameraIndex = [] { return 11; };
    rig.camera.onGetHeadNumber = [] { return 2; };
    rig.camera.onGetHeadCount = [] { return 4; };
    rig.camera.onGetCameraCount = [] { return 16; };
    QTEST(rig.groupDir(saveType), "groupDir");
    QTEST(rig.subDir(saveType), "subDir");
    rig.camera.onGetHeadCount = [] { return 1; };
    if (settings.contains("export/*addnumberformat=auto"_s) && mode != "file"_s) {
        QCOMPARE(rig.groupDir(saveType), QStringLiteral("g_C12S0001"));
    }
}

void tst_export_folders::countsPastFolders() {
    QTemporaryDir folder;
    NamingRig rig;
    LogCapture log;
    rig.set({"export/dir"_s, folder.path(), "export/groupdir"_s, true, "export/groupdirname"_s, "g"_s,
             "export/groupdiraddnumber"_s, true, "export/groupdiraddnumbersessionnodigits"_s, 2,
             "export/groupdiraddtime"_s, true, "export/groupdiraddtimeformat"_s, "HH"_s});
    QVERIFY(QDir(folder.path()).mkdir("g_S01"_s));
    QVERIFY(touch(folder.filePath("g_S02"_s))); // no folder could be made in its place
    rig.pendingFolders.insert(folder.filePath("g_S03"_s));
    QCOMPARE(rig.groupDir(1), QStringLiteral("g_S04_05"));
    QCOMPARE(log.with("exists"_s).size(), 3);
    QCOMPARE(log.with(folder.filePath("g_S02"_s)).size(), 1);
    rig.set("export/dir", folder.path() + QLatin1Char('/'));
    QCOMPARE(rig.groupDir(1), QStringLiteral("g_S04_05"));
    rig.set("export/groupdiraddnumbersessionnodigits", 0);
    QCOMPARE(rig.groupDir(1), QStringLiteral("g_05"));
    rig.set("export/groupdiraddnumberheadnodigits", 3); // the only head of a camera has no number of its own
    QCOMPARE(rig.groupDir(1), QStringLiteral("g_H001_05"));
}

void tst_export_folders::prefersRunningJob() {
    NamingRig rig;
    rig.host.onGetGroupDir = [] { return QStringLiteral("job"); };
    rig.set({"snap/groupdirname"_s, "g"_s, "snap/groupdiraddtime"_s, true, "snap/groupdiraddtimeformat"_s,
             "HH"_s});
    QCOMPARE(rig.groupDir(7), QString());
    rig.set({"snap/groupdir"_s, true, "snap/subdir"_s, true, "snap/subdirname"_s, "s"_s});
    QCOMPARE(rig.groupDir(7), QStringLiteral("job"));
    QCOMPARE(rig.subDir(7), QStringLiteral("s"));
    QCOMPARE(rig.groupDir(19), QString());
}

void tst_export_folders::tellsPaths() {
    NamingRig rig;
    rig.camera.onGetPartitionCount = [](bool, bool) { return 2; };
    rig.set({"snap/dir"_s, "/data/"_s, "snap/filenameaspartitionname"_s, true, "snap/groupdir"_s, true,
             "snap/groupdirname"_s, "g"_s, "snap/subdir"_s, true, "snap/subdirasfilename"_s, true});
    const Composed result = compose(rig, 7);
    QCOMPARE(result.failure, QString());
    QCOMPARE(result.groupDirs, (Paths{{1, "g"_s}, {2, "g"_s}}));
    QCOMPARE(result.folders, (Paths{{1, "/data/g/part_1"_s}, {2, "/data/g/part_2"_s}}));
    QCOMPARE(result.fullPaths, (Paths{{1, "/data/g/part_1/part_1"_s}, {2, "/data/g/part_2/part_2"_s}}));
    QCOMPARE(rig.pendingPaths, (QSet<QString>{"/data/g/part_1/part_1"_s, "/data/g/part_2/part_2"_s}));
    QCOMPARE(rig.pendingFolders, (QSet<QString>{"/data/g"_s, "/data/part_1"_s, "/data/part_2"_s,
                                                "/data/g/part_1"_s, "/data/g/part_2"_s}));

    Composed none;
    composeExportPaths(&rig.host, 7, nullptr, false, none.groupDirs, none.folders, none.fullPaths, rig.time,
                       0);
    QVERIFY(none.groupDirs.isEmpty() && none.folders.isEmpty() && none.fullPaths.isEmpty());
}

void tst_export_folders::numbersPartitionsApart() {
    QTemporaryDir folder;
    NamingRig rig;
    rig.isNumbered = true;
    rig.camera.onGetPartitionCount = [](bool, bool) { return 3; };
    rig.set({"export/dir"_s, folder.path(), "export/filename"_s, "e"_s,
             "export/filenameaddnumbersessionnodigits"_s, 4});
    QVERIFY(touch(folder.filePath("e_S0002.raw"_s)));
    QCOMPARE(compose(rig, 1).fullPaths, (Paths{{1, folder.filePath("e_S0001"_s)},
                                               {2, folder.filePath("e_S0003"_s)},
                                               {3, folder.filePath("e_S0004"_s)}}));
    rig.pendingPaths.clear();
    rig.set({"export/groupdir"_s, true, "export/groupdirname"_s, "g"_s, "export/groupdiraddnumber"_s, true,
             "export/groupdiraddnumbersessionnodigits"_s, 1});
    QCOMPARE(compose(rig, 1).fullPaths, (Paths{{1, folder.filePath("g_S1/e_S0001"_s)},
                                               {2, folder.filePath("g_S2/e_S0001"_s)},
                                               {3, folder.filePath("g_S3/e_S0001"_s)}}));
    rig.pendingPaths.clear();
    rig.set({"export/groupdirasfilename"_s, true, "export/groupdiraddnumber"_s, false});
    QCOMPARE(compose(rig, 1).fullPaths, (Paths{{1, folder.filePath("e/e_S0001"_s)},
                                               {2, folder.filePath("e/e_S0002"_s)},
                                               {3, folder.filePath("e/e_S0003"_s)}}));
}

void tst_export_folders::roundsBrackets() {
    NamingRig rig;
    rig.set({"report/dir"_s, "/d[1]"_s, "report/filename"_s, "[a]"_s, "report/groupdir"_s, true,
             "report/groupdirasfilename"_s, true, "report/subdir"_s, true, "report/subdirname"_s, "s[]"_s});
    QCOMPARE(compose(rig, 16, false, 1).fullPaths.value(1), QStringLiteral("/d[1]/(a)/s()/(a)"));
    QCOMPARE(compose(rig, 16, false, 0).fullPaths.value(1), QStringLiteral("/d[1]/[a]/s[]/[a]"));
    QVERIFY(rig.pendingPaths.isEmpty()); // these make their own way
    QCOMPARE(compose(rig, 17, false, 1).fullPaths.value(1), QStringLiteral("/d[1]/[a]/s[]/[a]"));
    QCOMPARE(rig.pendingPaths.size(), 1);
}

void tst_export_folders::followsFileWithOption() {
    NamingRig rig;
    rig.isNumbered = true;
    rig.set({"snap/dir"_s, "/d"_s, "snap/filename"_s, "s"_s, "snap/groupdir"_s, true,
             "snap/groupdirasfilename"_s, true, "snap/subdir"_s, true, "snap/subdirasfilename"_s, true});
    QCOMPARE(compose(rig, 7).folders.value(1), QStringLiteral("/d/s/s"));
    rig.set("snap/groupdirasfilenameincludeoption", true);
    QCOMPARE(compose(rig, 7).folders.value(1), QStringLiteral("/d/s_S0001/s"));
    rig.set("snap/subdirasfilenameincludeoption", true);
    QCOMPARE(compose(rig, 7).folders.value(1), QStringLiteral("/d/s_S0001/s_S0001"));
}

void tst_export_folders::replacesFolder() {
    NamingRig rig;
    rig.set({"export/dir"_s, "/d"_s, "export/filename"_s, "e"_s, "export/groupdir"_s, true,
             "export/groupdirname"_s, "g"_s});
    QCOMPARE(compose(rig, 1, true).fullPaths.value(1), QStringLiteral("/d/g/e")); // the host has none
    rig.host.onGetReplacementFolder = [] { return QStringLiteral("/other"); };
    QCOMPARE(compose(rig, 1, false).folders.value(1), QStringLiteral("/d/g"));
    const Composed result = compose(rig, 1, true);
    QCOMPARE(result.folders.value(1), QStringLiteral("/other"));
    QCOMPARE(result.fullPaths.value(1), QStringLiteral("/other/e"));
    QCOMPARE(result.groupDirs.value(1), QStringLiteral("g"));
}

void tst_export_folders::refusesEmptyNames_data() {
    QTest::addColumn<int>("saveType");
    QTest::addColumn<QString>("failure");
    for (const int type : {1, 2, 4, 6, 7, 16, 20}) {
        QTest::addRow("%d", type) << type << kInvalid;
    }
    for (const int type : {9, 10, 11, 17, 18}) {
        QTest::addRow("%d", type) << type << QString();
    }
}

void tst_export_folders::refusesEmptyNames() {
    QFETCH(int, saveType);
    NamingRig rig;
    rig.camera.onGetMediaName = nullptr;
    QTEST(compose(rig, saveType).failure, "failure");
    rig.set("save/EnableBlankFilename", true);
    QCOMPARE(compose(rig, saveType).failure, QString());
}

void tst_export_folders::limitsLength() {
    NamingRig rig;
    const auto failure = [&](int saveType, int length) {
        rig.set({"export/filename"_s, QString(length - 3, QLatin1Char('n')), "export/dir"_s, "/d"_s,
                 "report/dir"_s, "/d"_s, "report/filename"_s, QString(length - 3, QLatin1Char('n'))});
        return compose(rig, saveType).failure;
    };
    QCOMPARE(failure(1, 245), QString());
    QCOMPARE(failure(1, 246), kTooLong);
    QCOMPARE(failure(1, 260), kTooLong);
    QCOMPARE(failure(17, 261), kTooLong);
    QCOMPARE(failure(16, 261), QString());
}

void tst_export_folders::limitsThumbnail_data() {
    QTest::addColumn<int>("saveType");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("export") << 1 << true;
    QTest::newRow("export, second kind") << 2 << true;
    QTest::newRow("other export") << 3 << false;
    QTest::newRow("conversion") << 6 << true;
    QTest::newRow("conversion, second kind") << 11 << false;
}

void tst_export_folders::limitsThumbnail() {
    QFETCH(int, saveType);
    QFETCH(bool, isWritten);
    NamingRig rig;
    for (const char* const family : {"export/", "convert/"}) {
        const QString prefix = QLatin1String(family);
        rig.set({prefix + "dir"_s, "/d"_s, prefix + "filename"_s, QString(237, QLatin1Char('n')),
                 prefix + "savethumbnailaddtextvalue"_s, "_thumb"_s});
    }
    QCOMPARE(compose(rig, saveType).failure, QString()); // 240 without a thumbnail, 246 with it
    rig.set({"export/savethumbnail"_s, true, "convert/savethumbnail"_s, true});
    QCOMPARE(compose(rig, saveType).failure, isWritten ? kTooLong : QString());
    rig.set(
        {"export/savethumbnailaddtextvalue"_s, "_tiny"_s, "convert/savethumbnailaddtextvalue"_s, "_tiny"_s});
    QCOMPARE(compose(rig, saveType).failure, QString());
    rig.set({"export/savethumbnailaddtextvalue"_s, "_thumb"_s, "convert/savethumbnailaddtextvalue"_s,
             "_thumb"_s, "export/media"_s, "file"_s, "save/SaveInfFile"_s, true, "export/saveinf"_s, true,
             "convert/saveinf"_s, true, "export/inf_testno"_s, QString(237, QLatin1Char('n'))});
    QCOMPARE(compose(rig, saveType).failure, QString()); // an information file in its stead
}

QTEST_GUILESS_MAIN(tst_export_folders)
#include "tst_export_folders.moc"
