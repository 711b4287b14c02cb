// Names and target folders of saved files: what the preferences say, and what the disk already holds.

#include "tests/unit/storage/NamingRig.h"

#include <QtTest>

namespace {

const QVariantList kDirs{"export/dir"_s, "/e"_s,       "layout/dir"_s, "/l"_s,         "convert/dir"_s,
                         "/c"_s,         "snap/dir"_s, "/s"_s,         "report/dir"_s, "/r"_s};
const QVariantList kNames{"export/filename"_s, "e"_s, "layout/filename"_s, "l"_s, "convert/filename"_s, "c"_s,
                          "snap/filename"_s,   "s"_s, "report/filename"_s, "r"_s};
const QVariantList kMulti{"export/multipathlist"_s, "first|/own?odd|/a|/b?second|/else?"_s,
                          "export/multipathdevicelist"_s, "192.168.0.10|first?192.168.0.11|second?x"_s};
const QVariantList kInfo{"export/media"_s,   "file"_s, "save/SaveInfFile"_s, true,
                         "export/saveinf"_s, true,     "convert/saveinf"_s,  true};

} // namespace

class tst_export_names : public QObject {
    Q_OBJECT

private slots:
    void writesSequenceNumbers();
    void formatsInEnglish();
    void findsFolder_data();
    void findsFolder();
    void takesName_data();
    void takesName();
    void goesOnWithoutDocument();
    void joinsCustomItems();
    void namesConversionLikeExport();
    void numbersPastWhatIsThere();
    void numbersPatternsLiterally_data();
    void numbersPatternsLiterally();
    void looksInGroupAndSubFolder();
    void endsWithoutFreeName();
    void readsOtherFoldersAsEmpty();
};

void tst_export_names::writesSequenceNumbers() {
    QCOMPARE(composeSequenceNumber(1, 1, 1, 3, 3, 4), QStringLiteral("C001H001S0001"));
    QCOMPARE(composeSequenceNumber(12, 3, 123, 1, 0, 2), QStringLiteral("C12S123"));
    QCOMPARE(composeSequenceNumber(1, 1, 1, 0, -1, 0), QString());
    QCOMPARE(composeSequenceNumber(0, 0, 7, 0, 0, 2000000000).size(), 256);
}

void tst_export_names::formatsInEnglish() {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Japanese));
    const QString text = formatDateTime(NamingRig().time, QStringLiteral("dMMMyyyy_HHmmss"));
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("4Mar2021_050607"));
}

void tst_export_names::findsFolder_data() {
    QTest::addColumn<int>("saveType");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QVariantList>("prefs");
    QTest::addColumn<QString>("dir");
    const auto row = [](const char* title, int type, const char* mode, const QVariantList& prefs,
                        const char* dir) { QTest::newRow(title) << type << mode << kDirs + prefs << dir; };
    const QMap<int, const char*> families{
        {-1, "/e"},          {0, "/e"},  {1, "/e"},  {2, "/e"},  {3, "/e"},
        {4, "/l"},           {5, "/l"},  {6, "/c"},  {7, "/s"},  {8, "/e"},
        {11, "/c"},          {16, "/r"}, {17, "/r"}, {18, "/l"}, {19, "/records/old"},
        {20, "/records/old"}};
    for (auto it = families.cbegin(); it != families.cend(); ++it) {
        QTest::addRow("save type %d", it.key()) << it.key() << "live" << kDirs << it.value();
    }
    row("original, live", 1, "live", {"export/dirasoriginal"_s, true}, "/e");
    row("original, file mode", 1, "file", {"export/dirasoriginal"_s, true}, "/records/old");
    row("original, conversion", 6, "live", {"convert/dirasoriginal"_s, true}, "/records/old");
    row("a folder a camera", 1, "live", kMulti, "/own");
    row("a folder a camera, second kind", 2, "memory", kMulti, "/own");
    row("not for other kinds", 3, "live", kMulti, "/e");
    row("not in file mode", 1, "file", kMulti, "/e");
    row("one folder for all", 1, "live", kMulti + QVariantList{"export/singlepath"_s, true}, "/e");
    row("entry name missing", 1, "live", kMulti + QVariantList{"export/multipathlist"_s, "second|/else"_s},
        "/e");
    row("three fields", 1, "live", kMulti + QVariantList{"export/multipathlist"_s, "first|/a|/b"_s}, "/e");
    row("camera missing", 1, "live",
        kMulti + QVariantList{"export/multipathdevicelist"_s, "10.0.0.1|first"_s}, "/e");
}

void tst_export_names::findsFolder() {
    QFETCH(int, saveType);
    QFETCH(QVariantList, prefs);
    QFETCH(QString, mode);
    NamingRig rig;
    rig.mode = mode;
    rig.set(prefs);
    QTEST(rig.dir(saveType), "dir");
}

void tst_export_names::takesName_data() {
    QTest::addColumn<int>("saveType");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QVariantList>("prefs");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("full");
    const auto row = [](const char* title, int type, const char* mode, const QVariantList& prefs,
                        const char* base, const char* full) {
        QTest::newRow(title) << type << mode << kNames + prefs << base << full;
    };
    const QVariantList numbered{"numbered"_s, true};
    const QVariantList time{"export/filenameaddtime"_s, true, "export/filenameaddtimeformat"_s,
                            "yyyyMMdd-HH:mm"_s};
    row("fixed", 1, "live", {}, "e", "e");
    row("fixed, of layouts", 18, "live", {}, "l", "l");
    row("fixed, of conversions", 6, "live", {}, "c", "c");
    row("fixed, of reports", 17, "live", {}, "r", "r");
    row("number", 1, "live", numbered, "e", "e_S0001");
    row("number alone", 1, "live", numbered + QVariantList{"export/filename"_s, ""_s}, "", "S0001");
    row("number and time, cleaned", 1, "live", numbered + time, "e", "e_S0001_20210304-05_06");
    row("time alone", 1, "live", time + QVariantList{"export/filename"_s, ""_s}, "", "20210304-05_06");
    row("time of other kinds", 7, "live", time, "s", "s");
    row("nothing", 1, "live", {"export/filename"_s, ""_s}, "", "");
    row("original", 1, "live", {"export/filenameasoriginal"_s, true}, "own", "own");
    row("original conversion, not in memory", 6, "live", {"convert/filenameasoriginal"_s, true}, "own",
        "own");
    row("partition", 1, "live", {"export/filenameaspartitionname"_s, true}, "part_2", "part_2");
    row("partition before original", 1, "live",
        {"export/filenameaspartitionname"_s, true, "export/filenameasoriginal"_s, true}, "part_2", "part_2");
    row("partition, file mode", 1, "file", {"export/filenameaspartitionname"_s, true}, "e", "e");
    row("custom without items", 1, "live", {"export/filenameusecustom"_s, true}, "", "");
    row("medium, all else ignored", 19, "live", numbered + time + kInfo, "medium", "medium");
    row("test number", 1, "live", numbered + kInfo + QVariantList{"export/inf_testno"_s, "T/7"_s}, "T_7",
        "T_7");
    row("test number of conversions", 6, "live",
        numbered + kInfo + QVariantList{"export/inf_testno"_s, "T7"_s}, "T7", "T7");
    row("no information of snapshots", 7, "live",
        kInfo + QVariantList{"snap/saveinf"_s, true, "export/inf_testno"_s, "T7"_s}, "s", "s");
    row("not to files", 1, "live",
        kInfo + QVariantList{"export/media"_s, "sd"_s, "export/inf_testno"_s, "T7"_s}, "e", "e");
    row("information off", 1, "live",
        kInfo + QVariantList{"save/SaveInfFile"_s, false, "export/inf_testno"_s, "T7"_s}, "e", "e");
    row("information off for the kind", 1, "live",
        kInfo + QVariantList{"export/saveinf"_s, false, "export/inf_testno"_s, "T7"_s}, "e", "e");
    row("test number from the items", 1, "live", kInfo + numbered + QVariantList{"items"_s, true}, ".._T1",
        ".._T1");
    row("no test number anywhere", 1, "live", kInfo + numbered, "", "S0001");
}

void tst_export_names::takesName() {
    QFETCH(int, saveType);
    QFETCH(QVariantList, prefs);
    QFETCH(QString, mode);
    NamingRig rig;
    rig.mode = mode;
    rig.set(prefs);
    rig.isNumbered = rig.prefs.value("numbered"_s).toBool();
    if (rig.prefs.contains("items"_s)) {
        rig.camera.onGetCustomItems = [] {
            return QVariantList{customItem("Place", "hall", "", true),
                                customItem("TestNo", "../T1", "", false),
                                customItem("TestNo", "T2", "", false)};
        };
    }
    QTEST(rig.name(saveType, false), "base");
    QTEST(rig.name(saveType, true), "full");
}

void tst_export_names::goesOnWithoutDocument() {
    NamingRig rig;
    rig.set(kDirs + kNames + kMulti);
    const auto name = [&](int saveType) {
        return composeExportFileName(&rig.host, saveType, nullptr, 1, true, rig.time);
    };
    QCOMPARE(composeExportDir(&rig.host, 1, nullptr), QStringLiteral("/e"));
    QCOMPARE(composeExportDir(&rig.host, 19, nullptr), QString());
    rig.camera.onGetFilePath = nullptr;
    QCOMPARE(rig.dir(19), QString()); // not the folder that the program runs in
    QCOMPARE(name(1), QStringLiteral("e"));
    QCOMPARE(name(19), QString());
    rig.set("export/filenameasoriginal", true);
    QCOMPARE(name(1), QString());
    rig.set(kInfo);
    rig.set("export/filenameasoriginal", false);
    rig.set({"export/filenameaddtime"_s, true, "export/filenameaddtimeformat"_s, "yyyy"_s});
    QCOMPARE(name(1), QString()); // an information file without a test number
}

void tst_export_names::joinsCustomItems() {
    NamingRig rig;
    rig.camera.onGetCustomItems = [] {
        return QVariantList{customItem("Load", "5:1", "kN", true), customItem("Hidden", "no", "", false),
                            customItem("Place", "hall/2", "", true)};
    };
    FakeCamera other{rig.host.calls};
    other.onGetCustomItems = [] { return QVariantList{customItem("Load", "9", "N", true)}; };
    rig.host.onDocByKey = [&](DOCKEY key, bool) -> DOC_Interface* { return key == 8 ? &other : nullptr; };
    rig.set(
        {"snap/filename"_s, "fixed"_s, "snap/filenameasoriginal"_s, true, "snap/filenameusecustom"_s, true});
    QCOMPARE(rig.name(7), QStringLiteral("5_1_hall_2"));
    rig.set("snap/filenameusecustomincludeunit", true);
    QCOMPARE(rig.name(7), QStringLiteral("5_1kN_hall_2"));
    rig.set("snap/filenameusecustomfromtargetkey", 8);
    QCOMPARE(rig.name(7), QStringLiteral("5_1kN_hall_2"));
    rig.set("snap/filenameusecustomfromtarget", true);
    QCOMPARE(rig.name(7), QStringLiteral("9N"));
    rig.set("snap/filenameusecustomfromtargetkey", -1);
    QCOMPARE(rig.name(7), QStringLiteral("5_1kN_hall_2"));
    rig.set("snap/filenameusecustomfromtargetkey", 9); // closed meanwhile
    QCOMPARE(rig.name(7), QString());
    rig.host.onDocByKey = [&](DOCKEY key, bool) -> DOC_Interface* { return key == 0 ? &other : nullptr; };
    rig.set("snap/filenameusecustomfromtargetkey", 0); // a key like any other
    QCOMPARE(rig.name(7), QStringLiteral("9N"));
}

void tst_export_names::namesConversionLikeExport() {
    NamingRig rig;
    rig.set({"export/filename"_s, "e"_s, "convert/filename"_s, "c"_s, "convert/filenameasoriginal"_s, true});
    rig.camera.onIsRecordInMemory = [] { return true; };
    QCOMPARE(rig.name(6), QStringLiteral("own"));
    rig.mode = QStringLiteral("memory");
    QCOMPARE(rig.name(6), QStringLiteral("e"));
    rig.set({"export/filenameaddtime"_s, true, "export/filenameaddtimeformat"_s, "yyyy"_s});
    QCOMPARE(rig.name(6, false), QStringLiteral("e"));
    QCOMPARE(rig.name(6), QStringLiteral("e_2021"));
    rig.camera.onIsRecordInMemory = [] { return false; };
    QCOMPARE(rig.name(6), QStringLiteral("own"));
}

void tst_export_names::numbersPastWhatIsThere() {
    QTemporaryDir folder;
    NamingRig rig;
    rig.isNumbered = true;
    rig.set({"export/dir"_s, folder.path(), "export/filename"_s, "shot"_s,
             "export/filenameaddnumbersessionnodigits"_s, 4});
    QVERIFY(touch(folder.filePath("shot_S0001.raw"_s)));
    QVERIFY(touch(folder.filePath("SHOT_s0002_more.raw"_s))); // the same name to some systems
    QVERIFY(QDir(folder.path()).mkdir("shot_S0003"_s));       // a folder doesn't count
    QCOMPARE(rig.name(1), QStringLiteral("shot_S0003"));
    rig.pendingPaths.insert(folder.filePath("shot_S0003"_s));
    QCOMPARE(rig.name(1), QStringLiteral("shot_S0004"));
    rig.set("export/dir", folder.path() + QLatin1Char('/'));
    QCOMPARE(rig.name(1), QStringLiteral("shot_S0004"));
    rig.set("export/filenameaddnumbersessionnodigits", 0); // what is there is then the caller's matter
    QCOMPARE(rig.name(1), QStringLiteral("shot_S0001"));
    rig.set("export/filenameaddnumbersessionnodigits", 4);
    rig.isNumbered = false;
    QVERIFY(touch(folder.filePath("shot.raw"_s)));
    QCOMPARE(rig.name(1), QStringLiteral("shot"));
}

void tst_export_names::numbersPatternsLiterally_data() {
    QTest::addColumn<QString>("name");
    const QStringList names{"[1]"_s, "[a-z]"_s, "a]b"_s,  "[!x]"_s, "a["_s,
                            "*"_s,   "a?"_s,    "a\\b"_s, "   "_s,  "(x)+$^{2}"_s};
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
    QTest::newRow("right to left") << QString::fromUtf8("\u0643\u0627\u0645");
    QTest::newRow("emoji") << QString::fromUtf8("\U0001F3A5\U0001F468\u200D\U0001F52C");
    QTest::newRow("long") << QString(240, QLatin1Char('n'));
}

void tst_export_names::numbersPatternsLiterally() {
    QFETCH(QString, name);
    QTemporaryDir folder;
    NamingRig rig;
    rig.isNumbered = true;
    rig.set(
        {"snap/dir"_s, folder.path(), "snap/filename"_s, name, "snap/filenameaddnumbersessionnodigits"_s, 4});
    QVERIFY(touch(folder.filePath("1_S0001.tif"_s)) && touch(folder.filePath("ax_S0001.tif"_s)));
    QCOMPARE(rig.name(7), name + QStringLiteral("_S0001")); // nobody else's file is taken for it
    QVERIFY(touch(folder.filePath(name + QStringLiteral("_S0001.tif"))));
    QCOMPARE(rig.name(7), name + QStringLiteral("_S0002")); // its own is
}

void tst_export_names::looksInGroupAndSubFolder() {
    QTemporaryDir folder;
    NamingRig rig;
    rig.isNumbered = true;
    rig.set({"snap/dir"_s, folder.path(), "snap/filename"_s, "s"_s, "snap/filenameaddnumbersessionnodigits"_s,
             2, "snap/groupdir"_s, true, "snap/groupdirname"_s, "group"_s, "snap/subdir"_s, true,
             "snap/subdirasfilename"_s, true});
    QVERIFY(QDir(folder.path()).mkpath("group/s"_s) && QDir(folder.path()).mkpath("group/s_S0001"_s));
    QVERIFY(touch(folder.filePath("s_S0001.tif"_s)) && touch(folder.filePath("group/s_S0001/s_S0001.tif"_s)));
    QCOMPARE(rig.name(7), QStringLiteral("s_S0001"));
    QVERIFY(touch(folder.filePath("group/s/s_S0001.tif"_s)));
    QCOMPARE(rig.name(7), QStringLiteral("s_S0002"));
    rig.set("snap/subdirasfilenameincludeoption", true);
    QCOMPARE(rig.name(7), QStringLiteral("s_S0002")); // of the first there is one in its own folder
}

void tst_export_names::endsWithoutFreeName() {
    QTemporaryDir folder;
    NamingRig rig;
    rig.set({"export/dir"_s, folder.path(), "export/filename"_s, "e"_s,
             "export/filenameaddnumbersessionnodigits"_s, 4});
    rig.camera.onComposeSaveSuffix = [](int, PARTITIONNUMBER, int, bool& used, const QDateTime&) {
        used = true;
        return QStringLiteral("same");
    };
    QVERIFY(touch(folder.filePath("e_same.raw"_s)));
    QCOMPARE(rig.name(1), QStringLiteral("e_same"));
}

void tst_export_names::readsOtherFoldersAsEmpty() {
    QTemporaryDir folder;
    NamingRig rig;
    rig.isNumbered = true;
    rig.set({"export/filename"_s, "e"_s, "export/filenameaddnumbersessionnodigits"_s, 4});
    QVERIFY(touch(folder.filePath("file"_s)) && QDir(folder.path()).mkdir("locked"_s));
    QVERIFY(touch(folder.filePath("locked/e_S0001.raw"_s)));
    const QString locked = folder.filePath("locked"_s);
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
    for (const QString& dir : {folder.filePath("missing"_s), folder.filePath("file"_s), QString()}) {
        rig.set("export/dir", dir);
        QCOMPARE(rig.name(1), QStringLiteral("e_S0001"));
    }
    rig.set("export/dir", locked);
    QCOMPARE(rig.name(1), QStringLiteral("e_S0002")); // to be read is enough
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QTEST_GUILESS_MAIN(tst_export_names)
#include "tst_export_names.moc"
