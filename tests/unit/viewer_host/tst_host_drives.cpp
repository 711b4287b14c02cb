// What the host tells of documents that can be saved, and of the cards of cameras as drives.
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "tests/support/LogCapture.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/commands/CameraCommands.h"
#include "viewer/export/ExportJob.h"
#include "viewer/export/readers/OpenFile.h"
#include "viewer/recordings/RecordingError.h"
#include "viewer/recordings/RecordingFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QVariantMap infoOf(Document& document) {
    return docAs<DOC_Geometry>(document.face()).getInfoMap(1, 0, false, false, 1).toMap();
}

QVariantMap partitionOf(const QVariantMap& info, int number) {
    return info.value(QStringLiteral("partitions")).toList().value(number - 1).toMap();
}

} // namespace

class tst_HostDrives : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    /// A recording as a file.
    QString file(HostTest& test, const char* name) {
        const QImage frame(4, 4, QImage::Format_Grayscale8);
        FileDocument* const document = test.list.addRecording(recordingOf({frame}, QStringLiteral("Mono")));
        const QString path = m_folder.filePath(QLatin1String(name));
        document->save(path);
        test.list.remove(document);
        return path;
    }
    void record(HostTest& test) {
        SimulatedBody& body = *test.body("Mono");
        body.recordReady().result();
        test.rig.clock().advanceMs(body.model().readyTimeMs + 50);
        body.triggerIn().result();
        test.rig.clock().advanceMs(60000);
        QCOMPARE(body.state(), CameraState::Memory);
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void aRowSaysWhatAPartitionHolds() {
        HostTest test;
        CameraDocument& camera = *test.camera("Mono");
        camera.customItems().add(
            {QStringLiteral("Project"), QStringLiteral("crash"), QString(), false, false});
        QVariantMap info = infoOf(camera);
        QCOMPARE(info.value(QStringLiteral("partitions")).toList().size(), 4);
        QCOMPARE(partitionOf(info, 2).value(QStringLiteral("totalframesplain")).toInt(),
                 1); // the live picture: there is no recording yet
        QCOMPARE(info.value(QStringLiteral("ipaddress")).toString(), QStringLiteral("192.168.0.11"));
        QCOMPARE(info.value(QStringLiteral("Custom_Project")).toString(), QStringLiteral("crash"));
        record(test);
        test.list.setMode(HOST_MODE_MEMORY);
        info = infoOf(camera);
        const QVariantMap partition = partitionOf(info, 1);
        const QSize size = camera.head()->recording(1).settings.resolution;
        const qint64 frames = camera.head()->recording(1).frames;
        QVERIFY(frames > 0);
        QCOMPARE(partition.value(QStringLiteral("totalframesplain")).toLongLong(), frames);
        QCOMPARE(partition.value(QStringLiteral("capacity")).toLongLong(),
                 frames * size.width() * size.height() * 2); // 12 bits
        QCOMPARE(partitionOf(info, 2).value(QStringLiteral("totalframesplain")).toInt(), 0);
        for (const char* const key : {"totalframes", "exportframes", "resolution", "capacitylabel"}) {
            QVERIFY2(!partition.value(QLatin1String(key)).toString().isEmpty(), key);
        }
        QCOMPARE(partition.value(QStringLiteral("currentpartition")).toString(), QStringLiteral("true"));
        QCOMPARE(partitionOf(info, 2).value(QStringLiteral("currentpartition")).toString(),
                 QStringLiteral("false"));
    }

    void aSavedFileIsNumberedByItsCameraAndHead() {
        HostTest test;
        bool used = true;
        auto& save = docAs<DOC_Save>(test.camera("Twin", 1)->face());
        QCOMPARE(save.composeSaveSuffix(1, 1, 3, used, QDateTime()), QString());
        QVERIFY(!used);
        // Heads are told apart unless the user has chosen digits.
        test.preferences.values = {{QStringLiteral("export/filenameaddnumber"), true},
                                   {QStringLiteral("export/filenameaddnumbercameranodigits"), 3}};
        QCOMPARE(save.composeSaveSuffix(1, 1, 3, used, QDateTime()), QStringLiteral("C004H2"));
        QCOMPARE(docAs<DOC_Save>(test.camera("Mono")->face()).composeSaveSuffix(1, 1, 3, used, QDateTime()),
                 QStringLiteral("C001"));
        test.preferences.values = {{QStringLiteral("export/filenameaddnumber"), true},
                                   {QStringLiteral("export/filenameaddnumbercameranodigits"), 3},
                                   {QStringLiteral("export/filenameaddnumberheadnodigits"), 2},
                                   {QStringLiteral("export/filenameaddnumbersessionnodigits"), 4}};
        QCOMPARE(save.composeSaveSuffix(1, 1, 3, used, QDateTime()), QStringLiteral("C004H02S0003"));
        QVERIFY(used);
        save.setSavePartition(2);
        save.setSaveInfo(true);
        save.resetSaveFlags();
        const SaveState state = test.camera("Twin", 1)->saveState();
        QVERIFY(state.partition == 2 && !state.withInfo);
    }

    void aCardKeepsItsLetterWhenAnotherOneGoes() {
        HostTest test;
        StorageUnit& cards = *test.body("Mono")->storage();
        QCOMPARE(test.host.getSDDriveMask(), 0U);
        cards.insert(StorageKind::SDCard, 0, {});
        cards.insert(StorageKind::SDCard, 1, {});
        test.body("Colour")->storage()->insert(StorageKind::SDCard, 0, {});
        QCOMPARE(test.host.getSDDriveMask(), 0x38U); // D, E, F
        cards.pull(StorageKind::SDCard, 0);
        QCOMPARE(test.host.getSDDriveMask(), 0x30U);
        test.body("Colour")->disconnectLink();
        QCOMPARE(test.host.getSDDriveMask(), 0x10U);
        QVERIFY_EXCEPTION_THROWN(test.host.openSDDrive(0x8), CameraFailure);  // no card
        QVERIFY_EXCEPTION_THROWN(test.host.openSDDrive(0x1), CameraFailure);  // no slot
        QVERIFY_EXCEPTION_THROWN(test.host.openSDDrive(0x20), CameraFailure); // no link
    }

    void aDriveOpensWhatCanBeReadAndTellsTheRest() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        StorageUnit& cards = *test.body("Mono")->storage();
        cards.insert(StorageKind::SDCard, 1, {});
        QVERIFY(QDir(cards.slot(StorageKind::SDCard, 1).folder).removeRecursively());
        cards.fill(StorageKind::SDCard, 1, {QStringLiteral("a"), 1, 0, 0}, file(test, "a.rch"));
        QFile foreign(m_folder.filePath(QStringLiteral("b.rch")));
        QVERIFY(foreign.open(QIODevice::WriteOnly) && foreign.write("no recording") > 0);
        foreign.close();
        cards.fill(StorageKind::SDCard, 1, {QStringLiteral("b"), 1, 0, 0}, foreign.fileName());
        uint open = 0;
        QVERIFY(!test.host.getCurrentSDDrive(open));
        QVERIFY_EXCEPTION_THROWN(test.host.openSDDrive(0x10), DOC_ReadFileException);
        QCOMPARE(test.list.documentCount(), 1);
        QVERIFY(test.host.getCurrentSDDrive(open) && open == 0x10);
        Document& record = *test.list.documents().first();
        QVERIFY(!record.face()->isStandaloneKindA());
        const QVariantMap info = infoOf(record);
        QCOMPARE(info.value(QStringLiteral("drivename")).toString(), QStringLiteral("E: Mono, SD card 2"));
        QCOMPARE(info.value(QStringLiteral("serialno")).toString(), QStringLiteral("SN-1011"));
        QCOMPARE(info.value(QStringLiteral("datano")).toString(), QStringLiteral("0-1-1"));
        QCOMPARE(test.host.listTemporaryKeys(), QList<DOCKEY>{record.key()});
        test.host.closeDockStoreRecords(0);
        QCOMPARE(test.list.documentCount(), 1);
        test.host.closeSDDocuments();
        QCOMPARE(test.list.documentCount(), 0);
        QVERIFY(!test.host.getCurrentSDDrive(open) && test.host.listTemporaryKeys().isEmpty());
        cards.format(StorageKind::SDCard, 1).result();
        test.host.openSDDrive(0x10);
        QCOMPARE(test.list.documentCount(), 0);
    }

    // A recording of a drive counts as saved where all of its frames are, whatever the file is called.
    void whatIsSavedOfADriveIsFoundAndRenamed() {
        const LogCapture quiet;
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        StorageUnit& cards = *test.body("Mono")->storage();
        cards.insert(StorageKind::SDCard, 0, {});
        QVERIFY(QDir(cards.slot(StorageKind::SDCard, 0).folder).removeRecursively());
        for (const char* const name : {"one", "two"}) {
            RecordingInfo info;
            info.camera = QStringLiteral("Mono");
            info.triggered = QDateTime(QDate(2024, 1, name[0] == 'o' ? 1 : 2), QTime(12, 0));
            FileDocument* const made = test.list.addRecording(recordingOf(info, 3, QSize(4, 4)));
            const QString path = m_folder.filePath(QLatin1String(name) + QStringLiteral(".rch"));
            made->save(path);
            test.list.remove(made);
            cards.fill(StorageKind::SDCard, 0, {QLatin1String(name), 3, 0, 0}, path);
        }
        test.host.openSDDrive(0x8);
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("group/sub")));
        const QList<QPair<QString, QString>> both{{QStringLiteral("SN-1011"), QStringLiteral("0-0-1")},
                                                  {QStringLiteral("SN-1011"), QStringLiteral("0-0-2")}};
        QVERIFY(test.host.findSavedData(both, folder.path()).isEmpty());
        auto* const second = dynamic_cast<FileDocument*>(test.list.documents().last());
        ExportRequest request;
        request.source = second->source();
        request.info = second->info();
        request.last = 1; // not all of it
        request.format = ExportFormat::Raww;
        request.path = folder.filePath(QStringLiteral("group/sub/other.raww"));
        ExportJob(request).run();
        QVERIFY(test.host.findSavedData(both, folder.path()).isEmpty());
        request.last = 2;
        request.format = ExportFormat::TiffPages;
        request.path = folder.filePath(QStringLiteral("group/sub/all.tif"));
        RecordingFile::addReader(OpenFile::pictureSuffixes(), &OpenFile::fromPictures);
        ExportJob(request).run();
        QCOMPARE(test.host.findSavedData(both, folder.path()), both.mid(1));
        QVERIFY(test.host.findSavedData(both.mid(0, 1), folder.path()).isEmpty());

        auto& settings = docAs<DOC_Settings>(second->face());
        QVERIFY(settings.canConvertDataName(0));
        settings.setDataName(QStringLiteral("third"));
        QCOMPARE(second->title(), QStringLiteral("third"));
        QVERIFY(QFile::exists(second->path()));
        QVERIFY_EXCEPTION_THROWN(settings.setDataName(QStringLiteral("one")), RecordingError); // taken
        QVERIFY_EXCEPTION_THROWN(settings.setDataName(QStringLiteral("a/b")), RecordingError);
        cards.setProtected(StorageKind::SDCard, 0, true);
        QVERIFY(!settings.canConvertDataName(0));
        QVERIFY_EXCEPTION_THROWN(settings.setDataName(QStringLiteral("x")), CameraFailure);
        QCOMPARE(second->title(), QStringLiteral("third"));
    }

    void whatADialogDoesNotTakeIsClosed() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        test.host.openFiles({file(test, "c.rch"), file(test, "d.rch")}, 1, 1, 1, 0, 0);
        const QList<DOCKEY> keys = test.host.listNewKeys();
        QCOMPARE(keys.size(), 2);
        test.host.importTargets({keys.last()});
        QVERIFY(!test.list.find(keys.first()) && test.list.find(keys.last()));
        QCOMPARE(test.list.currentKey(), keys.last()); // and is what shows
        test.host.importTargets({});
        QVERIFY(test.list.find(keys.last())); // it is the user's now
    }

    // What the user took stays open whatever a dialog opens, cancels or formats beside it.
    void whatTheUserTookStaysOpen() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        BodyDescription description;
        description.name = QStringLiteral("Other");
        description.model = QStringLiteral("mono12");
        description.address = QStringLiteral("192.168.0.30");
        description.serial = QStringLiteral("SN-2000");
        test.list.addCamera(test.rig.addBody(description));
        const int number = test.list.devices().size() - 1;
        for (const char* const name : {"Mono", "Other"}) {
            StorageUnit& stores = *test.body(name)->storage();
            stores.insert(StorageKind::DockStore, 0, {});
            QVERIFY(QDir(stores.slot(StorageKind::DockStore, 0).folder).removeRecursively());
            for (const char* const each : {"e.rch", "f.rch"}) {
                stores.fill(StorageKind::DockStore, 0, {QLatin1String(each), 1, 0, 0}, file(test, each));
            }
        }
        test.host.openDockStore(1, 0, 0, QString());
        const QList<DOCKEY> mono = test.host.listNewKeys();
        QCOMPARE(mono.size(), 2);
        QCOMPARE(infoOf(*test.list.find(mono.last())).value(QStringLiteral("datano")).toString(),
                 QStringLiteral("1-0-2"));
        test.host.importTargets({mono.last()});
        test.host.openDockStore(1, 0, 0, QString()); // once more: only what is not open
        QCOMPARE(test.host.listNewKeys().size(), 1);
        QCOMPARE(infoOf(*test.list.find(test.host.listNewKeys().first()))
                     .value(QStringLiteral("datano"))
                     .toString(),
                 QStringLiteral("1-0-1"));
        test.host.openDockStore(1, number, 0, QString());
        QCOMPARE(test.list.documentCount(), 4);
        test.host.formatDockStore(1, number, 0);
        test.host.refreshDriveDocuments(2);
        QCOMPARE(test.list.documentCount(), 2); // of the other camera's
        test.host.importTargets({});
        QCOMPARE(test.list.documentCount(), 1);
        QVERIFY(test.list.find(mono.last()));
    }

    // A drive that nothing is open of any more is not in the way of another one.
    void aDriveIsOpenAsLongAsItsRecordings() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        StorageUnit& cards = *test.body("Mono")->storage();
        cards.insert(StorageKind::SDCard, 0, {});
        QVERIFY(QDir(cards.slot(StorageKind::SDCard, 0).folder).removeRecursively());
        cards.fill(StorageKind::SDCard, 0, {QStringLiteral("g"), 1, 0, 0}, file(test, "g.rch"));
        uint open = 0;
        test.host.openSDDrive(0x8);
        QVERIFY(test.host.getCurrentSDDrive(open) && open == 0x8);
        test.host.importTargets({}); // the dialog was cancelled
        QVERIFY(!test.host.getCurrentSDDrive(open));
        test.host.openSDDrive(0x8);
        QCOMPARE(test.list.documentCount(), 1);
        cards.pull(StorageKind::SDCard, 0); // nobody can take what was on it any more
        QTRY_COMPARE(test.list.documentCount(), 0);
    }

    void formattingACardClosesWhatWasOpenedFromIt() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        StorageUnit& cards = *test.body("Mono")->storage();
        for (const int slot : {0, 1}) {
            cards.insert(StorageKind::SDCard, slot, {});
            QVERIFY(QDir(cards.slot(StorageKind::SDCard, slot).folder).removeRecursively());
            cards.fill(StorageKind::SDCard, slot, {QStringLiteral("h"), 1, 0, 0}, file(test, "h.rch"));
        }
        test.host.openSDDrive(0x8);
        test.host.importTargets(test.host.listNewKeys());
        test.host.openSDDrive(0x10);
        test.host.importTargets(test.host.listNewKeys());
        QCOMPARE(test.list.documentCount(), 2);
        docAs<DOC_Settings>(test.camera("Mono")->face()).formatSDSlot(0);
        QCOMPARE(test.list.documentCount(), 1);
        QCOMPARE(infoOf(*test.list.documents().first()).value(QStringLiteral("datano")).toString(),
                 QStringLiteral("0-1-1"));
    }

    // The camera had another place in the list when they were opened.
    void recordingsAreClosedByTheirCamera() {
        HostTest test;
        test.list.setMode(HOST_MODE_FILE);
        BodyDescription description;
        description.name = QStringLiteral("Other");
        description.model = QStringLiteral("mono12");
        description.address = QStringLiteral("192.168.0.30");
        description.serial = QStringLiteral("SN-2000");
        test.list.addCamera(test.rig.addBody(description));
        const int number = test.list.devices().size() - 1;
        StorageUnit& stores = *test.body("Other")->storage();
        stores.insert(StorageKind::DockStore, 0, {});
        QVERIFY(QDir(stores.slot(StorageKind::DockStore, 0).folder).removeRecursively());
        stores.fill(StorageKind::DockStore, 0, {QStringLiteral("i"), 1, 0, 0}, file(test, "i.rch"));
        test.host.openDockStore(1, number, 0, QString());
        QCOMPARE(test.list.documentCount(), 1);
        test.list.remove(test.list.devices().first()->heads().first());
        test.host.closeDockStoreRecords(number);
        QCOMPARE(test.list.documentCount(), 1);
        test.host.closeDockStoreRecords(number - 1);
        QCOMPARE(test.list.documentCount(), 0);
    }

    void aStoreIsLockedFormattedAndMeasured() {
        const LogCapture quiet;
        HostTest test;
        StorageUnit& stores = *test.body("Mono")->storage();
        CardContent content;
        content.password = QStringLiteral("key");
        content.capacity = 1024 * 1024;
        content.written = 512 * 1024;                              // half of it
        content.records.push_back({QStringLiteral("a"), 4, 0, 0}); // a quarter
        stores.insert(StorageKind::DockStore, 0, content);
        QCOMPARE(test.host.listDockStores().first().value(QStringLiteral("drivetype")), QStringLiteral("1"));
        try {
            test.host.openDockStore(1, 0, 0, QString());
            QFAIL("it is locked");
        } catch (const APP_Exception& error) {
            QCOMPARE(error.errorCode(), 407);
        }
        // Neither does it tell or lose anything by another way.
        auto& settings = docAs<DOC_Settings>(test.camera("Mono")->face());
        uint frames = 0;
        QVERIFY_EXCEPTION_THROWN(settings.getDockStoreRecordFrames(0, 0, frames), CameraFailure);
        QVERIFY_EXCEPTION_THROWN(settings.setDockStoreRecordName(0, 0, QString(), false), CameraFailure);
        QVERIFY_EXCEPTION_THROWN(settings.formatDockStoreSlot(0), CameraFailure);
        QVERIFY_EXCEPTION_THROWN(test.host.formatDockStore(1, 0, 0), CameraFailure);
        QVERIFY(!test.host.checkDockStorePassword(1, 0, QStringLiteral("x")));
        QVERIFY(test.host.checkDockStorePassword(1, 0, QStringLiteral("key")));
        QVERIFY(!test.host.checkDockStorePassword(1, 0, QStringLiteral("x"))); // it stays open
        uint total = 0;
        uint rest = 1;
        settings.getDockStoreCapacity(0, total, rest);
        QVERIFY(total == 1 && rest == 0); // whole megabytes
        test.host.openDockStore(1, 0, 0, QString());
        QCOMPARE(test.host.getDockStoreUseRatio(1, 0, 0, 1), 25.0);
        QCOMPARE(test.host.getTotalWrittenAmount(1, 0, 0, 1), quint64(1) << 29);
        test.host.formatDockStore(1, 0, 0);
        QCOMPARE(test.host.getDockStoreUseRatio(1, 0, 0, 1), 0.0);
        QVERIFY_EXCEPTION_THROWN(test.host.formatCFast(1, 0, 0), CameraFailure); // empty slot
        QVERIFY(test.host.setDockStorePassword(1, 0, QStringLiteral("key"), QString()));
        // A record's name comes as the bytes of its text.
        stores.fill(StorageKind::DockStore, 0, {QStringLiteral("b"), 4, 0, 0});
        const QString name = QString::fromUtf8("né");
        settings.setDockStoreRecordName(0, 0, QString::fromLatin1(name.toUtf8()), false);
        QCOMPARE(settings.getDockStoreRecordName(0, 0), name);
        QVERIFY_EXCEPTION_THROWN(settings.setDockStoreRecordName(0, 9, name, false), CameraFailure);
        QVERIFY_EXCEPTION_THROWN(docAs<DOC_Settings>(test.camera("Plain")->face()).formatSDSlot(0),
                                 CameraFailure);
        // What is in a slot of a camera without a link, nobody knows.
        bool there = false;
        bool isFormatted = false;
        settings.getDockStoreState(0, there, isFormatted);
        QVERIFY(there);
        test.body("Mono")->disconnectLink();
        settings.getDockStoreState(0, there, isFormatted);
        QVERIFY(!there && settings.isDockStoreSlotEnabled(0));
        QVERIFY(test.host.listDockStores().isEmpty());
    }
};

QTEST_MAIN(tst_HostDrives)
#include "tst_host_drives.moc"
