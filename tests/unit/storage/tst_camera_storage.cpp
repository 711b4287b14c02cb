// The script objects of the save settings and of a camera's own storage.

#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/overlays/formats/JS_Mediator_AddNumberDialog.h"
#include "livecontrol/overlays/notes/GUI_CustomInfoDialog.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveCFast.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveDockStore.h"
#include "livecontrol/storage/cards/JS_Mediator_SaveSD.h"
#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ModalAnswer.h"
#include "tests/unit/storage/NamingRig.h"

#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <memory>

namespace {
QJsonArray rowsOf(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).array(); }
} // namespace

class tst_CameraStorage : public QObject {
    Q_OBJECT

    static constexpr DOCKEY kKey = TestRig::kKey;
    static constexpr DOCKEY kGone = 99;
    std::unique_ptr<NamingRig> m_rig;

    FakeHost& host() { return m_rig->host; }
    int count(const char* operation) { return host().calls.count(QLatin1String(operation)); }

private slots:
    void init() {
        m_rig = std::make_unique<NamingRig>();
        m_rig->camera.onIsSDSlotEnabled = [](int slot) { return slot == 1; };
        m_rig->camera.onGetCameraName = [](bool) { return "<i>%2"_s; };
    }
    void cleanup() { m_rig.reset(); }

    void theFirstUsableSDSlotIsAskedFor() {
        JS_Mediator_SaveSD cards(&host());
        m_rig->camera.onGetSDSlotState = [](int slot, bool& inserted, bool& isProtected, bool& formatted) {
            inserted = slot == 1;
            isProtected = slot == 0;
            formatted = true;
        };
        QVERIFY(cards.isInserted(kKey, 0) && !cards.isInserted(kKey, 1) && cards.isProtected(kKey, 1) &&
                cards.isFormatted(kKey, 2) && cards.isEnabaleSlot(kKey, 0));
        QString question;
        bool agrees = false;
        host().onConfirm = [&](const QString& text, QWidget*, const QMap<QString, QString>&) {
            question = text;
            return agrees;
        };
        cards.format(kKey, 0);
        QCOMPARE(question, "All data connected to Slot 2 of <i>%2 will be deleted.<br>Is this OK?"_s);
        QCOMPARE(count("DOC_Settings.formatSDSlot"), 0);
        agrees = true;
        cards.format(kKey, 0);
        QCOMPARE(host().calls.lastArgs("DOC_Settings.formatSDSlot"_s), QVariantList{1});
        QCOMPARE(host().calls.lastArgs("DOC_Settings.refreshSDSlot"_s), QVariantList{1});
        m_rig->camera.onIsSDSlotEnabled = {};
        cards.format(kKey, 0); // no slot at all: the camera tells that
        QCOMPARE(host().calls.lastArgs("DOC_Settings.formatSDSlot"_s), QVariantList{-1});
        cards.format(kGone, 1);
        QCOMPARE(count("DOC_Settings.formatSDSlot"), 2);
        m_rig->camera.onGetSDCardInfo = [](int, int& speed, int& classNo, unsigned& size) {
            speed = 0x8003;
            classNo = 10;
            size = 2048;
        };
        QCOMPARE(cards.getSDInfo(kKey, 1),
                 (QVariantMap{{"class"_s, "Class10"_s}, {"speed"_s, "SDR104"_s}, {"size"_s, "2.00GB"_s}}));
    }

    void sdRecordsEndAtTheFirstWithoutFrames() {
        JS_Mediator_SaveSD cards(&host());
        QCOMPARE(cards.getDataList(kKey, 1), "[]"_s);
        m_rig->camera.onGetSDRecordFrames = [](int, int index, unsigned& frames) {
            frames = index < 3 ? 4000000000U : 0U;
        };
        m_rig->camera.onGetSDRecordDateTime = [](int, int index, unsigned& date, unsigned& time) {
            date = index == 0 ? 0x150312U : index == 1 ? 0U : 0x0100'0009U;
            time = 0x094501;
        };
        const QJsonArray rows = rowsOf(cards.getDataList(kKey, 1));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).toObject(), (QJsonObject{{"recid"_s, 1},
                                                     {"frame"_s, 4000000000.0},
                                                     {"date"_s, "2015/3/12"_s},
                                                     {"time"_s, "09:45:01"_s}}));
        QCOMPARE(rows.at(1).toObject()["date"_s].toString(), QString());
        QCOMPARE(rows.at(1).toObject()["time"_s].toString(), "09:45:01"_s);
        QCOMPARE(rows.at(2).toObject()["date"_s].toString(), "009"_s);
        // A card that is pulled in the middle.
        host().calls.failNext("DOC_Settings.getSDRecordDateTime"_s, throwing(std::runtime_error("gone")));
        QCOMPARE(cards.getDataList(kKey, 1), QString());
        QCOMPARE(count("HostApplication.handleError"), 1);
    }

    void dockStoresAreScannedOrCounted() {
        JS_Mediator_SaveDockStore stores(&host());
        m_rig->camera.onGetDockStoreRecordFrames = [](int, int, unsigned& frames) { frames = 9; };
        m_rig->camera.onGetDockStoreRecordName = [](int, int index) { return QString::number(index); };
        QCOMPARE(rowsOf(stores.getDataList(kKey, 0)).size(), 1024);
        QCOMPARE(host().calls.lastArgs("DOC_Settings.isFunctionSupported"_s), (QVariantList{163, true}));
        m_rig->camera.onIsFunctionSupported = [](int code, bool) { return code == 163; };
        m_rig->camera.onGetDockStoreRecordCount = [](int) { return 2U; };
        const QJsonArray rows = rowsOf(stores.getDataList(kKey, 0));
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows.at(1).toObject()["name"_s].toString(), "1"_s);
        stores.format(kGone, 0);
        QCOMPARE(count("HostDocuments.closeDockStoreRecords"), 0);
        stores.format(kKey, 1);
        QVERIFY(host().calls.calledInOrder({"HostDocuments.closeDockStoreRecords"_s,
                                            "DOC_Settings.formatDockStoreSlot"_s,
                                            "DOC_Settings.refreshDockStoreSlot"_s}));
        QCOMPARE(count("HostApplication.confirm"), 0);
        m_rig->set("convert/fd/datanameaddnumber", true);
        stores.convertDataName(kKey, 1, 4, QStringLiteral("é"), 12);
        QCOMPARE(host().calls.lastArgs("DOC_Settings.setDockStoreRecordName"_s),
                 (QVariantList{1, 4, QStringLiteral("Ã©_000012"), false}));
    }

    void freeSpaceIsThatOfAStorageThatIsThere() {
        JS_Mediator_SaveDockStore stores(&host());
        JS_Mediator_SaveCFast cards(&host());
        const auto both = [&](DOCKEY key) {
            return stores.getFreeSpace(key) + "|"_s + cards.getFreeSpace(key);
        };
        m_rig->camera.onGetDockStoreSlot = [] { return 1; };
        m_rig->camera.onGetDockStoreCapacity = [](int slot, unsigned& total, unsigned& free) {
            total = 8192;
            free = slot == 1 ? 4096 : 1;
        };
        m_rig->camera.onGetCFastCapacity = [](int, quint64& total, quint64& free, unsigned& records) {
            total = 9000;
            free = 1536;
            records = 2;
        };
        QCOMPARE(both(kKey), "|"_s);
        m_rig->camera.onIsDockStoreManaged = [] { return true; };
        m_rig->camera.onIsCFastManaged = [] { return true; };
        QCOMPARE(both(kKey), "|"_s);
        m_rig->camera.onGetDockStoreState = [](int, bool& connected, bool&) { connected = true; };
        m_rig->camera.onGetCFastState = [](int slot, bool& inserted, bool&) { inserted = slot == 0; };
        QCOMPARE(both(kKey), "4.00GB|1.50KB"_s);
        QCOMPARE(both(kGone), "|"_s);
        // The records of a CFast card count from 1, and those without frames have a row too.
        m_rig->camera.onGetCFastRecordFrames = [](int, int index, unsigned& frames) { frames = 2U - index; };
        const QJsonArray rows = rowsOf(cards.getDataList(kKey, 0));
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows.at(0).toObject()["frame"_s].toInt(), 1);
        QCOMPARE(rows.at(1).toObject()["frame"_s].toInt(), 0);
    }

    void numbersFollowTheKindOfTheDialog_data() {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("numbers"); // of group folder, sub folder and file
        QTest::addColumn<QList<int>>("settings");
        QTest::addColumn<int>("custom");
        QTest::newRow("export") << "filesavedialog"_s
                                << "C1H1S1 C01H01S01 C001H001S001"_s << QList<int>{0, 1, 2} << 2;
        QTest::newRow("convert") << "batchconverter"_s
                                 << "S1 S01 S001"_s << QList<int>{3, 4, 5} << 5;
        QTest::newRow("snapshot") << "snapshotdialog"_s
                                  << "C1H1S1 C01H01S01 C001H001S001"_s << QList<int>{6, 7, 8} << 8;
        QTest::newRow("report") << "reportExportDialog"_s
                                << " S01 S001"_s << QList<int>{0, 1, 2} << 11;
        QTest::newRow("layout") << "layoutsavedialog"_s
                                << "C1H1S1 C01H01S01 C001H001S001"_s << QList<int>{0, 15, 16} << 16;
    }
    void numbersFollowTheKindOfTheDialog() {
        QFETCH(QString, widget);
        QFETCH(QString, numbers);
        QFETCH(QList<int>, settings);
        QFETCH(int, custom);
        host().onGetPrefInt = [](const QString& key, const QVariant&) {
            return key.contains("groupdir"_s) ? 1 : key.contains("subdir"_s) ? 2 : 3;
        };
        JS_Mediator_SaveFile page(&host(), widget);
        QCOMPARE(QStringList({page.addNumber4GroupDir(), page.addNumber4SubDir(), page.addNumber4FileName()})
                     .join(" "_s),
                 numbers);
        QList<int> targets;
        const auto target = [&](void (JS_Mediator_SaveFile::*open)()) {
            const ModalAnswer<GUI_AddNumberDialog> answer([&](GUI_AddNumberDialog& dialog) {
                targets.append(
                    static_cast<JS_Mediator_AddNumberDialog*>(dialog.mediator())->getCallbackType());
                dialog.reject();
            });
            (page.*open)();
        };
        target(&JS_Mediator_SaveFile::numberSetting4GroupDir);
        target(&JS_Mediator_SaveFile::numberSetting4SubDir);
        target(&JS_Mediator_SaveFile::numberSetting4FileName);
        QCOMPARE(targets, settings);
        const ModalAnswer<GUI_CustomInfoDialog> answer([&](GUI_CustomInfoDialog& dialog) {
            QMetaObject::invokeMethod(dialog.mediator(), "getCallbackType", Q_RETURN_ARG(int, custom));
            dialog.reject();
        });
        const int wanted = custom;
        page.editCustom(false);
        QCOMPARE(custom, wanted);
    }

    void formatsAreInUpperCase() {
        JS_Mediator_SaveFile page(&host(), "filesavedialog"_s);
        QCOMPARE(page.getFileFormats(true).join(" "_s), "BMP TIFF JPEG PNG RAWW ZRAW GRAW AVI MOV MP4"_s);
        QVERIFY(!page.getFileFormats(false).contains("GRAW"_s));
        QVERIFY(page.isMovieFormat("WMV"_s) && !page.isMovieFormat("Tiff"_s));
        QVERIFY(page.isRawFormat("tiff (multi-page)"_s) && !page.isRawFormat("Png"_s));
        QVERIFY(!JS_Mediator_SaveFile(&host(), "snapshotdialog"_s).isRawFormat("Tiff"_s));
        m_rig->set("saveinfo/display5", "Device:true,File name:false"_s);
        QVERIFY(!page.isNeedRefreshPreview());
        m_rig->set("saveinfo/display6", "File name:true"_s);
        QVERIFY(page.isNeedRefreshPreview());
    }

    void eachCameraHasAFolder() {
        host().onGetAllKeys = [](bool) { return QList<DOCKEY>{kKey, kKey, kGone}; };
        JS_Mediator_SaveFile page(&host(), "filesavedialog"_s);
        QCOMPARE(rowsOf(page.getMultiPathDevices()).at(0).toObject()["pathselector"_s].toString(), QString());
        m_rig->set({"export/multipathlist"_s, "left|/a?broken?right|/b"_s});
        QCOMPARE(rowsOf(page.getMultiPaths()).size(), 2);
        QCOMPARE(rowsOf(page.getMultiPaths()).at(1).toObject()["recid"_s].toInt(), 2);
        QJsonArray rows = rowsOf(page.getMultiPathDevices());
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.at(0).toObject()["path"_s].toString(), "/a"_s);
        m_rig->set("export/multipathdevicelist", "192.168.0.10|right"_s);
        const QJsonObject row = rowsOf(page.getMultiPathDevices()).at(0).toObject();
        QCOMPARE(row["path"_s].toString(), "/b"_s);
        QCOMPARE(row["paths"_s].toArray().at(0).toObject(),
                 (QJsonObject{{"key"_s, "left"_s}, {"val"_s, "/a"_s}}));
    }
};

QTEST_MAIN(tst_CameraStorage)
#include "tst_camera_storage.moc"
