// The script objects of the dialogs that save and open, without their pages.

#include "livecontrol/storage/dialogs/FrameSkip.h"
#include "livecontrol/storage/dialogs/GUI_FileSaveDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_ConvertParameterEditDialog.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileSaveDialog.h"
#include "tests/support/ModalAnswer.h"
#include "tests/unit/storage/NamingRig.h"

#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

constexpr DOCKEY kOther = 8;

QJsonArray rowsOf(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).array(); }

QVariantMap partition(int frames) {
    return {{"totalframesplain"_s, QString::number(frames)},
            {"totalframes"_s, QString::number(frames) + "f"_s},
            {"exportframes"_s, "1-9"_s},
            {"resolution"_s, "64x48"_s},
            {"currentpartition"_s, "true"_s},
            {"capacity"_s, "99"_s},
            {"capacitylabel"_s, "0.10KB"_s}};
}

} // namespace

class tst_FileDialog : public QObject {
    Q_OBJECT

    std::unique_ptr<NamingRig> m_rig;
    std::unique_ptr<FakeCamera> m_other;
    QVariantMap m_info;
    QMap<int, uint> m_rates;  // by partition
    QMap<int, uint> m_frames; // by partition

    FakeHost& host() { return m_rig->host; }
    int count(const char* operation) { return host().calls.count(QLatin1String(operation)); }
    void setMode(HostMode mode) {
        host().onGetMode = [mode] { return int(mode); };
        host().onIsLiveMode = [mode] { return mode == HOST_MODE_LIVE; };
        host().onIsMemoryMode = [mode] { return mode == HOST_MODE_MEMORY; };
        host().onIsFileMode = [mode] { return mode == HOST_MODE_FILE; };
    }
    QList<int> listedPartitions(JS_Mediator_FileDialog& dialog) {
        QList<int> numbers;
        const QJsonArray rows = rowsOf(dialog.list());
        for (const QJsonValue& row : rows) {
            numbers.append(row.toObject()["partitionno"_s].toString().toInt());
        }
        return numbers;
    }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); } // "C" counts no numbers
    void init() {
        m_rig = std::make_unique<NamingRig>();
        m_other = std::make_unique<FakeCamera>(m_rig->host.calls);
        host().onSetPrefInt = [this](const QString& key, int value) { m_rig->prefs[key] = value; };
        host().onSetPref = [this](const QString& key, const QVariant& value) { m_rig->prefs[key] = value; };
        host().onSetPrefString = [this](const QString& key, const QString& value) {
            m_rig->prefs[key] = value;
        };
        host().onGetPref = [this](const QString& key, const QVariant&) { return m_rig->prefs.value(key); };
        host().onDocByKey = [this](DOCKEY key, bool) {
            return key == TestRig::kKey ? &m_rig->camera : key == kOther ? m_other.get() : nullptr;
        };
        host().onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{TestRig::kKey}; };
        host().onGetSelectedKeys = [](bool) { return QList<DOCKEY>{TestRig::kKey}; };
        m_info = {{"dockey"_s, "7"_s},
                  {"cameraname"_s, "<b>Marlin</b>"_s},
                  {"filepath"_s, "/data"_s},
                  {"name"_s, "run 3"_s},
                  {"drivename"_s, "E:"_s},
                  {"serialno"_s, "42"_s},
                  {"datano"_s, "1"_s},
                  {"Custom_Project"_s, "crash"_s},
                  {"partitions"_s, QVariantList{partition(10), partition(0), partition(30)}}};
        m_rig->camera.onGetInfoMap = [this](int, int, bool, bool, int) { return QVariant(m_info); };
        m_rig->camera.onGetPartitionNumber = [](bool) { return 3; };
        m_rig->camera.onIsSelected = [] { return true; };
        m_rates = {{1, 1000}, {2, 750}, {3, 0}};
        m_frames = {{1, 100}, {2, 40}, {3, 5}};
        m_rig->camera.onGetPartitionRecordRate = [this](int number) { return m_rates.value(number); };
        m_rig->camera.onGetPartitionFrames = [this](int number, int) { return m_frames.value(number); };
        setMode(HOST_MODE_MEMORY);
    }
    void cleanup() {
        m_rig.reset();
        m_other.reset();
    }

    void theKindFollowsTheWidget_data() {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<int>("thumbnail");
        QTest::addColumn<bool>("convert");
        QTest::addColumn<bool>("layout");
        QTest::addColumn<QString>("infoKey");
        QTest::newRow("export") << "filesavedialog"_s << 10 << false << false << "export/saveinfo"_s;
        QTest::newRow("batch") << "batchconverter"_s << 11 << true << false << "convert/saveinfo"_s;
        QTest::newRow("open") << "fileopendialog"_s << 9 << false << false << "export/saveinfo"_s;
        QTest::newRow("report") << "reportExportDialog"_s << 17 << false << false << "export/saveinfo"_s;
        QTest::newRow("snapshot") << "snapshotdialog"_s << 10 << false << false << "export/saveinfo"_s;
        QTest::newRow("layout") << "layoutsavedialog"_s << 18 << false << true << "export/saveinfo"_s;
    }
    void theKindFollowsTheWidget() {
        QFETCH(QString, widget);
        QFETCH(int, thumbnail);
        QFETCH(bool, convert);
        QFETCH(bool, layout);
        QFETCH(QString, infoKey);
        m_rig->prefs = {{infoKey, true}, {"export/savecorrect"_s, true}, {"export/savescale"_s, true}};
        JS_Mediator_FileDialog dialog(&host(), widget);
        QCOMPARE(count("HostExporter.endNaming"), 1);
        QCOMPARE(dialog.scriptName(), widget);
        dialog.list();
        QCOMPARE(host().calls.lastArgs("DOC_Geometry.getInfoMap"_s),
                 (QVariantList{1, 0, convert, layout, 1}));
        QCOMPARE(host().calls.lastArgs("DOC_Save.setSaveInfo"_s), QVariantList{true});
        QCOMPARE(host().calls.lastArgs("DOC_Save.setSaveCorrect"_s), QVariantList{!convert});
        QCOMPARE(host().calls.lastArgs("DOC_Save.setSaveScale"_s), QVariantList{!convert && !layout});
        m_rig->camera.onRenderThumbnail = [](int, int width, int height, PARTITIONNUMBER, int, QDateTime*) {
            QPixmap picture(width, height);
            picture.fill(Qt::red);
            return picture;
        };
        m_rig->device.onGetHeadCount = [] { return 2; };
        QSignalSpy heads(&dialog, &JS_Mediator_FileDialog::selectedDocHeadCount);
        const QString png = dialog.select(TestRig::kKey, 3, 8, 6);
        QCOMPARE(QImage::fromData(QByteArray::fromBase64(png.toLatin1()), "PNG").size(), QSize(8, 6));
        QCOMPARE(host().calls.lastArgs("DOC_Geometry.renderThumbnail"_s).first().toInt(), thumbnail);
        QVERIFY(heads.size() == 1 && heads.first().first() == 2);
        setMode(HOST_MODE_LIVE);
        QVERIFY(dialog.select(kOther, 1, 8, 6).isEmpty());
        QCOMPARE(dialog.getSelectDocKey(), ulong(kOther));
    }

    void rowsOfCamerasHaveNoGap() {
        JS_Mediator_FileDialog dialog(&host(), "filesavedialog"_s);
        const QJsonArray rows = rowsOf(dialog.list());
        QCOMPARE(rows.size(), 2); // the second partition is empty
        const QJsonObject last = rows.at(1).toObject();
        const QJsonObject wanted{{"recid"_s, 2},
                                 {"multiskip"_s, false},
                                 {"dockey"_s, "7"_s},
                                 {"selected"_s, "true"_s},
                                 {"cameraname"_s, "<b>Marlin</b>"_s},
                                 {"ipaddress"_s, ""_s},
                                 {"path"_s, "/data"_s},
                                 {"slotno"_s, ""_s},
                                 {"Custom_Project"_s, "crash"_s},
                                 {"Comments"_s, ""_s},
                                 {"recordrate"_s, ""_s},
                                 {"partitionno"_s, "3"_s},
                                 {"currentpartition"_s, "true"_s},
                                 {"totalframes"_s, "30f"_s},
                                 {"saveframes"_s, "1-9"_s},
                                 {"resolution"_s, "64x48"_s},
                                 {"capacity"_s, "99"_s},
                                 {"capacitylabel"_s, "0.10KB"_s}};
        QCOMPARE(last, wanted);
        QCOMPARE(rows.at(0).toObject()["selected"_s].toString(), "false"_s);
        host().onIsQmonRunning = [] { return true; };
        QCOMPARE(rowsOf(dialog.list()).at(0).toObject()["selected"_s].toString(), "true"_s);
        m_rig->camera.onIsListHidden = [] { return true; };
        QVERIFY(rowsOf(dialog.list()).isEmpty());
        m_rig->camera.onIsListHidden = {};
        m_rig->camera.onIs3D = [] { return true; };
        QCOMPARE(dialog.list(), "[]"_s);
    }

    void liveModeListsWhatASeriesWillFill() {
        setMode(HOST_MODE_LIVE);
        m_info["partitions"_s] = QVariantList{partition(5), partition(6), partition(7), partition(8)};
        JS_Mediator_FileDialog dialog(&host(), "filesavedialog"_s);
        QCOMPARE(listedPartitions(dialog), QList<int>{3});
        m_rig->set({"recording/LoopRecord"_s, true, "recording/AutoIncrementPartition"_s, true});
        QCOMPARE(listedPartitions(dialog), (QList<int>{1, 2, 3, 4}));
        m_rig->set("recording/StopRecordingAfterLastPartition", true);
        QCOMPARE(listedPartitions(dialog), (QList<int>{3, 4}));
    }

    void recordsOfADriveAreMarkedOnceChecked() {
        setMode(HOST_MODE_FILE);
        host().onListTemporaryKeys = [] { return QList<DOCKEY>{kOther, TestRig::kKey}; };
        m_other->onGetInfoMap = [](int, int, bool, bool, int) {
            return QVariant(
                QVariantMap{{"name"_s, "run 10"_s}, {"partitions"_s, QVariantList{partition(1)}}});
        };
        m_other->onGetDisplayName = [] { return "run 10"_s; };
        m_rig->camera.onGetDisplayName = [] { return "run 9"_s; };
        JS_Mediator_FileDialog dialog(&host(), "fileopendialog"_s);
        QJsonArray rows = rowsOf(dialog.list(true));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).toObject()["filename"_s].toString(), "run 3"_s); // as a user counts
        QCOMPARE(rows.at(0).toObject()["path"_s].toString(), "E:"_s);
        QVERIFY(!rows.at(0).toObject().contains("style"_s));

        const QTemporaryDir folder;
        host().onFindSavedData = [](const QList<QPair<QString, QString>>& pairs, const QString&) {
            return pairs.mid(0, 1);
        };
        const QVariantList records{QVariantMap{{"serialno"_s, "42"_s}, {"datano"_s, "1"_s}}};
        {
            const ModalAnswer<QFileDialog> cancel(
                [](QFileDialog& files) { static_cast<QDialog&>(files).reject(); });
            QVERIFY(!dialog.savedCheck(records));
        }
        QVERIFY(!rowsOf(dialog.list(true)).at(0).toObject().contains("style"_s));
        m_rig->set("export/dir", folder.path());
        const ModalAnswer<QFileDialog> agree(
            [](QFileDialog& files) { static_cast<QDialog&>(files).accept(); });
        QVERIFY(dialog.savedCheck(records));
        rows = rowsOf(dialog.list(true));
        QVERIFY(!rows.at(0).toObject().contains("style"_s));
        QCOMPARE(rows.at(2).toObject()["style"_s].toString(), "background-color:red;"_s);
        m_rig->camera.onIsStandaloneKindB = [] { return true; }; // a file has no number of its own
        QVERIFY(!rowsOf(dialog.list()).at(0).toObject().contains("serialno"_s));
    }

    void twoRatesShareAGrid() {
        m_rig->set({"export/skipunit"_s, 1, "export/skipsavemsec"_s, 0.0, "export/skipsaveframe"_s, 1});
        JS_Mediator_FileDialog dialog(&host(), "filesavedialog"_s);
        dialog.refreshSkipFrame({});
        QCOMPARE(dialog.getSkipMinFrames(), 1.0);
        dialog.refreshSkipFrame({{"7"_s, QVariantList{1, 2, 3}}, {"99"_s, QVariantList{1}}});
        QCOMPARE(dialog.getSkipMinFrames(), 4.0); // of 250 fps
        QCOMPARE(dialog.getSkipMaxFrames(), 160.0);
        QCOMPARE(dialog.getSkipFrames(), 4.0);
        dialog.setSkipFrames(9.9);
        QCOMPARE(m_rig->prefs["export/skipsavemsec"_s].toDouble(), 8.0);
        QCOMPARE(m_rig->prefs["export/skipsaveframe"_s].toInt(), 2);
        m_frames[2] = 1;
        dialog.refreshSkipFrame({{"7"_s, QVariantList{2}}});
        QCOMPARE(dialog.getSkipMinFrames(), 1.33333);
        QCOMPARE(dialog.getSkipFrames(), 1.33333); // held
    }

    void withoutARateFramesAreCounted() {
        m_rig->set({"report/skipunit"_s, 1, "report/skipsaveframe"_s, 900});
        setMode(HOST_MODE_FILE);
        JS_Mediator_FileDialog dialog(&host(), "reportExportDialog"_s);
        dialog.refreshSkipFrame({{"7"_s, QVariantList{1, 2}}});
        QCOMPARE(dialog.getSkipMode(), 0);
        QCOMPARE(dialog.getSkipMaxFrames(), 40.0);
        QCOMPARE(dialog.getSkipFrames(), 40.0);
        m_frames.clear();
        dialog.refreshSkipFrame({{"7"_s, QVariantList{1, 2}}});
        QCOMPARE(dialog.getSkipMaxFrames(), 4294967295.0);
        QVERIFY(!m_rig->prefs.contains("export/skipunit"_s));
    }

    // Reports and layouts have a skip of their own.
    void eachKindKeepsItsSkip_data() {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("family");
        QTest::newRow("export") << "filesavedialog"_s
                                << "export/"_s;
        QTest::newRow("batch") << "batchconverter"_s
                               << "export/"_s;
        QTest::newRow("report") << "reportExportDialog"_s
                                << "report/"_s;
        QTest::newRow("layout") << "layoutsavedialog"_s
                                << "layout/"_s;
    }
    void eachKindKeepsItsSkip() {
        QFETCH(QString, widget);
        QFETCH(QString, family);
        for (const char* const other : {"export/", "report/", "layout/"}) {
            m_rig->prefs[QLatin1String(other) + "skipsaveframe"_s] = 2;
        }
        m_rig->prefs[family + "skipsaveframe"_s] = 7;
        auto wanted = m_rig->prefs;
        JS_Mediator_FileDialog dialog(&host(), widget);
        QCOMPARE(dialog.getSkipFrames(), 7.0);
        dialog.setSkipFrames(3);
        dialog.setSkipMode(1);
        wanted[family + "skipsaveframe"_s] = 3;
        wanted[family + "skipunit"_s] = 1;
        QCOMPARE(m_rig->prefs, wanted);
    }

    void skipGridsHoldTheirProperties() {
        QRandomGenerator random(14);
        for (int round = 0; round < 500; ++round) {
            const uint rate = uint(random.bounded(1, 200000));
            const uint frames = uint(random.bounded(1, 3000));
            const SkipLimits limits = skipLimits(rate, frames);
            const QList<double> values = skipGrid(limits.least, limits.most);
            QVERIFY(std::is_sorted(values.begin(), values.end()));
            QCOMPARE(values.last(), limits.most);
            QVERIFY(values.size() >= int(frames) && values.size() <= int(frames) + 1);
            const double wish = random.generateDouble() * limits.most;
            const double near = nearestSkip(wish, values);
            for (const double value : values) {
                QVERIFY(std::abs(value - wish) > std::abs(near - wish) - 0.0002);
            }
            const double grid = millisecondsFromFrames(7, rate);
            QCOMPARE(framesFromMilliseconds(grid, rate), 7.0);
        }
        QCOMPARE(nearestSkip(2.0, {1.0, 3.0}), 3.0); // the later of two equal ones
        QCOMPARE(roundToFive(-2.0000051), -2.00001);
        QCOMPARE(framesFromMilliseconds(5, 0), 1.0);
    }

    void namesFollowTheRowInHand() {
        m_rig->set({"export/dir"_s, "/out"_s, "export/filename"_s, "shot"_s, "export/groupdir"_s, true,
                    "export/groupdirasfilename"_s, true, "export/subdir"_s, true, "export/subdirname"_s,
                    "sub"_s, "convert/fd/datanameaddnumber"_s, true});
        m_rig->isNumbered = true;
        JS_Mediator_FileDialog dialog(&host(), "filesavedialog"_s);
        dialog.setSelectDocKey(kOther);
        QCOMPARE(dialog.getExportGroupDir(), "shot"_s); // without number
        QCOMPARE(dialog.getSelectDocKey(), ulong(kOther));
        QCOMPARE(dialog.getExportPath(), "/out"_s);
        QCOMPARE(dialog.getExportFile(), "shot"_s); // the other document numbers nothing
        QCOMPARE(host().calls.lastArgs("HostExporter.setGroupDir"_s), QVariantList{"shot"_s});
        QCOMPARE(dialog.getExportSubDir(), "sub"_s);
        dialog.setSelectDocKey(TestRig::kKey);
        QCOMPARE(dialog.getExportFile(), "shot_S0001"_s);
        dialog.convertDataName(TestRig::kKey, "a%1"_s, 7, true);
        QCOMPARE(host().calls.lastArgs("DOC_Settings.setDataName"_s), QVariantList{"a%1_000007"_s});
        host().onGetSelectedKeys = {};
        QCOMPARE(dialog.getExportGroupDir(), QString());
    }

    void nothingIsEditedWhileAConversionRuns() {
        host().onIsBackgroundConverting = [] { return true; };
        JS_Mediator_FileDialog dialog(&host(), "filesavedialog"_s);
        QVERIFY(!dialog.openCustumTimeCodeDialog() && !dialog.saveInfoView({}) &&
                !dialog.openConvertParameterEditDialog({}));
        QCOMPARE(count("HostApplication.alert"), 3);
        host().onIsBackgroundConverting = {};
        QVERIFY(!dialog.openConvertParameterEditDialog({})); // there is no folder
        QCOMPARE(count("HostApplication.beginModal"), 0);
    }

    void aConversionMayStayBesideItsFile() {
        m_rig->set({"convert/dir"_s, "/out"_s, "convert/saveinfo"_s, true, "export/filename"_s, "shot"_s,
                    "export/dirasoriginal"_s, true});
        setMode(HOST_MODE_FILE);
        m_rig->camera.onGetPartitionCount = [](bool, bool) { return 3; };
        JS_Mediator_ConvertParameterEditDialog dialog(&host(), {"7"_s, "99"_s, "8"_s}, TestRig::kKey, 2);
        QCOMPARE(dialog.list(), QString());
        QCOMPARE(count("DOC_Save.setSaveInfo"), 2);
        QCOMPARE(dialog.getTargetItems().size(), 3);
        QCOMPARE(dialog.getExportPath(), "/out"_s);
        m_rig->set("convert/dirasoriginal", true);
        QCOMPARE(dialog.getExportPath(), "/records/old"_s);
        QCOMPARE(host().calls.names().mid(host().calls.names().lastIndexOf("DOC_Save.resetSaveFlags"_s)),
                 (QStringList{"DOC_Save.resetSaveFlags"_s, "HostExporter.endNaming"_s,
                              "HostExporter.beginGroupNaming"_s, "HostExporter.beginFileNaming"_s}));
        // Whatever fails is told, the steps behind a failure of the naming are still taken, and it works
        // again.
        for (const char* const failing :
             {"DOC_Save.setSavePartition", "DOC_Save.resetSaveFlags", "HostExporter.endNaming"}) {
            host().calls.clear();
            host().calls.failNext(QString::fromLatin1(failing), throwing(std::runtime_error("no answer")));
            QCOMPARE(dialog.getExportPath(), QString());
            QCOMPARE(count("HostApplication.handleError"), 1);
            QCOMPARE(count("DOC_Save.resetSaveFlags"), 1);
        }
        QCOMPARE(dialog.getExportPath(), "/records/old"_s);
        dialog.setSelectDocKey(99);
        QCOMPARE(dialog.getExportPath(), QString());
    }

    void theSaveDialogKeepsEachDocumentOnce() {
        GUI_FileSaveDialog dialog(&host(), nullptr);
        QSignalSpy counts(&dialog.page(), &JS_Mediator_FileDialog::selectedDocCount);
        emit dialog.page().exportTarget(TestRig::kKey, 1);
        emit dialog.page().exportTarget(kOther, 1);
        emit dialog.page().exportTarget(TestRig::kKey, 2);
        emit dialog.page().exportTarget(99, 2);
        QCOMPARE(dialog.exportKeys(), (QList<DOCKEY>{TestRig::kKey, kOther}));
        QCOMPARE(host().calls.lastArgs("DOC_Save.setSavePartition"_s), QVariantList{2});
        dialog.page().exportDocCount(5);
        QVERIFY(counts.size() == 1 && counts.first().first() == 5);
        QVERIFY(!dialog.page().isMultiTrimming(99) && dialog.page().getHeadNo(99) == 0);
    }
};

QTEST_MAIN(tst_FileDialog)
#include "tst_file_dialog.moc"
