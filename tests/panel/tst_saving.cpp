// The dialogs that save and open, and the page of a camera's storage, through the viewer.

#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "tests/unit/viewer_export/HeldSource.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/saving/SavingDialogs.h"

#include <QAction>
#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const QString kSave = QStringLiteral("Save");
const QString kOpen = QStringLiteral("Open");
const QString kStorage = QStringLiteral("Camera storage");
const QString kPassword = QStringLiteral("Input password");
const QString kOk = QStringLiteral("#ok_btn");
const QString kCancel = QStringLiteral("#cancel_btn");
const QString kName = QStringLiteral("#file_name");
const QString kFormat = QStringLiteral("#format_btn");
} // namespace

class tst_Saving : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    std::unique_ptr<ModalSteps> m_steps;
    QTemporaryDir m_folder;

    void open(const char* dialog) {
        m_test->viewer().mainWindow().action(QStringLiteral("dialog:") + QLatin1String(dialog))->trigger();
    }
    void pref(const char* key, const QVariant& value) {
        m_test->viewer().preferences().setValue(QLatin1String(key), value);
    }
    QVariant pref(const char* key) { return m_test->viewer().preferences().value(QLatin1String(key)); }
    void card(const char* kind, int slot, const char* action, QJsonObject more = {}) {
        more[QStringLiteral("key")] = int(m_test->keyOf(QStringLiteral("Marlin")));
        more[QStringLiteral("kind")] = QLatin1String(kind);
        more[QStringLiteral("slot")] = slot;
        more[QStringLiteral("action")] = QLatin1String(action);
        m_test->call("camera.card", more);
    }
    void set(const char* camera, const char* name, const QJsonValue& value) {
        m_test->call("camera.set", {{QStringLiteral("key"), int(m_test->keyOf(QLatin1String(camera)))},
                                    {QStringLiteral("name"), QLatin1String(name)},
                                    {QStringLiteral("value"), value}});
    }
    /// Records with the selected cameras, as long as the ring took to fill that far, and shows the memory.
    void record() {
        for (const char* const camera : {"Marlin", "Plover"}) {
            set(camera, "triggerMode", 2);
        }
        RecordingControl& control = m_test->viewer().recording();
        control.ready();
        QTRY_VERIFY_WITH_TIMEOUT(control.acceptsTrigger(), 10000);
        control.record();
        QTRY_VERIFY_WITH_TIMEOUT(control.isAny(CameraState::Memory), 20000);
        control.setMode(HOST_MODE_MEMORY);
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_steps = std::make_unique<ModalSteps>(*m_test);
        pref("export/dir", m_folder.path());
        pref("recording/keepFrames", 20);
    }
    void cleanup() {
        m_steps.reset();
        QCOMPARE(m_test->call("page.errors").toArray(), QJsonArray());
        m_test.reset();
    }

    // Rates of 1000 and 750 share a grid of 4 ms.
    void rowsAreTickedAndSkippedOnTheGridOfTheirRates() {
        set("Marlin", "rate", 750);
        set("Plover", "rate", 1000);
        m_test->viewer().documents().setSelection(
            {&m_test->camera(QStringLiteral("Marlin")), &m_test->camera(QStringLiteral("Plover"))});
        record();
        m_steps->expect(kSave, QStringLiteral("$('#rows tbody input:checked').length === 2"))
            .expect(kSave, QStringLiteral("$('#thumbnail').attr('src').length > 100"))
            .expect(kSave, QStringLiteral("($('#skip_unit').val('1').trigger('change'), true)"))
            .expect(kSave, QStringLiteral(
                               "filesavedialog.getSkipMinFrames() === 4 && $('#skip_value').val() === '4'"))
            .key(kSave, QStringLiteral("#skip_value"), QStringLiteral("Up"))
            .expect(kSave,
                    QStringLiteral("$('#skip_value').val() === '8' && filesavedialog.getSkipFrames() === 8"))
            .expect(kSave, QStringLiteral("$('#name_preview').val().indexOf('recording') > 0"))
            .click(kSave, kOk);
        open("save");
        FINISH(*m_steps);
        ExportJobs& jobs = m_test->viewer().jobs();
        QCOMPARE(jobs.list().size(), 2);
        for (const ExportJobs::Entry& job : jobs.list()) {
            QVERIFY2(job.path.startsWith(m_folder.path()) && job.path.endsWith(QStringLiteral(".png")) &&
                         jobs.cancel(job.id),
                     qPrintable(job.path));
        }
        QCOMPARE(pref("export/skipsavemsec").toDouble(), 8.0);
        QCOMPARE(pref("export/skipsaveframe").toInt(), 2);
    }

    // As it shows, with what stands round it; a second one has the next number.
    void aSnapshotIsAPictureOfWhatShows() {
        pref("snap/dir", m_folder.filePath(QStringLiteral("new folder")));
        pref("snap/format", QStringLiteral("Png"));
        record();
        Document& document = *m_test->viewer().documents().current();
        document.setPlayPosition(document.recordedFrames() / 2);
        ViewState view = document.view();
        view.quarterTurns = 1;
        document.setView(view);
        for (const int count : {1, 2}) {
            m_steps->click(QStringLiteral("Snapshot"), kOk);
            open("snapshot");
            FINISH(*m_steps);
            QTRY_VERIFY_WITH_TIMEOUT(!m_test->viewer().jobs().isBusy(), 20000);
            const QList<ExportJobs::Entry> jobs = m_test->viewer().jobs().list();
            QCOMPARE(jobs.size(), count);
            QCOMPARE(jobs.last().failure.english(), QString());
            const QImage image(jobs.last().path);
            const QJsonValue opened =
                m_test->call("recording.open", {{QStringLiteral("path"), jobs.last().path}});
            QCOMPARE(opened.toArray().size(), 1); // what was saved opens again
            QCOMPARE(image.size().expandedTo(document.imageSize().transposed()), image.size());
        }
        QCOMPARE(QDir(m_folder.filePath(QStringLiteral("new folder"))).entryList(QDir::Files).size(), 2);
    }

    // What runs before keeps both in the queue.
    void aNameThatAJobWaitsForIsNotGivenAgain() {
        pref("snap/dir", m_folder.filePath(QStringLiteral("queue")));
        pref("snap/format", QStringLiteral("Png"));
        record();
        ExportJobs& jobs = m_test->viewer().jobs();
        const auto held = std::make_shared<HeldSource>(2);
        const auto letGo = qScopeGuard([&held] { held->gate.release(10); });
        ExportRequest first =
            m_test->viewer().recordings().requestTo(m_folder.filePath(QStringLiteral("held.rchx")));
        first.source = held;
        first.last = 1;
        const int id = jobs.start(first, QStringLiteral("held"));
        QVERIFY(!m_test->viewer().host().isBackgroundSaving()); // it reads no camera: all can go on
        QSet<QString> paths;
        for (const int count : {1, 2}) {
            m_steps->click(QStringLiteral("Snapshot"), kOk);
            open("snapshot");
            FINISH(*m_steps);
            QCOMPARE(jobs.list().last().state, ExportJob::State::Waiting);
            paths.insert(jobs.list().last().path);
            QCOMPARE(paths.size(), count);
        }
        QVERIFY(m_test->viewer().host().isBackgroundSaving());
        held->gate.release(10);
        QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), 20000);
        for (const ExportJobs::Entry& job : jobs.list()) {
            QVERIFY2(job.id == id || QFileInfo(job.path).isFile(), qPrintable(job.path));
        }
        QCOMPARE(m_test->viewer().host().isBackgroundSaving(), false);
    }

    void theSettingsMakeTheRequest() {
        record();
        SaveRequest got;
        SavingDialogs dialogs(m_test->viewer().host(), m_test->viewer().preferences(),
                              [&](const SaveRequest& request) { got = request; });
        m_steps->type(kSave, kName, QStringLiteral("n"));
        for (const char* const key : {"Home", "R", "U"}) { // not at its end
            m_steps->key(kSave, QString(), QLatin1String(key));
        }
        m_steps->click(kSave, QStringLiteral("#group_on"))
            .type(kSave, QStringLiteral("#group_name"), QStringLiteral("day"))
            .expect(kSave, QStringLiteral("/\\/day\\/run_C001S0001$/.test($('#name_preview').val())"))
            .click(kSave, kOk);
        dialogs.save();
        FINISH(*m_steps);
        QCOMPARE(got.format, QStringLiteral("PNG"));
        QVERIFY(got.withInfo && got.skip.step(1000) == 1 && got.items.size() >= 1);
        QCOMPARE(got.items.first().path, m_folder.path() + QStringLiteral("/day/run_C001S0001"));
    }

    // A name that was typed before a Cancel is in none of them.
    void everyKindSavesByItsOwnSettings() {
        record();
        SaveRequest got;
        SavingDialogs dialogs(m_test->viewer().host(), m_test->viewer().preferences(),
                              [&](const SaveRequest& request) { got = request; });
        const std::tuple<const char*, QString, const char*, int> kinds[] = {
            {"snapshot", QStringLiteral("Snapshot"), "snap/dir", 7},
            {"report", QStringLiteral("Report"), "report/dir", 16},
            {"layout", QStringLiteral("Save layout"), "layout/dir", 4}};
        for (const auto& [slot, title, folder, saveType] : kinds) {
            pref(folder, m_folder.path());
            m_steps->type(title, kName, QStringLiteral("dropped")).click(title, kCancel);
            QMetaObject::invokeMethod(&dialogs, slot);
            FINISH(*m_steps);
            m_steps->click(title, kOk);
            QMetaObject::invokeMethod(&dialogs, slot);
            FINISH(*m_steps);
            QCOMPARE(got.saveType, saveType);
            QCOMPARE(got.items.size(), 1);
            QCOMPARE(got.items.first().path,
                     m_folder.filePath(QLatin1String(slot) + QStringLiteral("_S0001")));
            QVERIFY(!got.format.isEmpty());
        }
    }

    // The names of a batch are edited in a dialog over it, beside the files as they lie.
    void aBatchIsNamedAndHandedOver() {
        record();
        m_test->viewer().recording().keep();
        m_test->viewer().recording().setMode(HOST_MODE_FILE);
        auto& documents = m_test->viewer().documents();
        QTRY_VERIFY_WITH_TIMEOUT(dynamic_cast<FileDocument*>(documents.current()), 60000);
        static_cast<FileDocument*>(documents.current())->save(m_folder.filePath(QStringLiteral("drop.rch")));
        pref("convert/dirasoriginal", true);
        SaveRequest got;
        SavingDialogs dialogs(m_test->viewer().host(), m_test->viewer().preferences(),
                              [&](const SaveRequest& request) { got = request; });
        const QString convert = QStringLiteral("Convert");
        const QString names = QStringLiteral("Saved after the automatic conversion");
        m_steps->click(convert, QStringLiteral("#names_btn"))
            .expect(names, QStringLiteral("convertparametereditdialog.getTargetItems().length === 1"))
            .click(names, QStringLiteral("#file_asoriginal"))
            .type(names, kName, QStringLiteral("done"))
            .expect(names, QStringLiteral("/done_S0001$/.test($('#name_preview').val())"))
            .click(names, kOk)
            .expect(convert, QStringLiteral("/done_S0001$/.test($('#name_preview').val())"))
            .click(convert, QStringLiteral("#names_btn")) // a second time, and not taken
            .type(names, kName, QStringLiteral("other"))
            .expect(names, QStringLiteral("/other_S0001$/.test($('#name_preview').val())"))
            .click(names, kCancel)
            .expect(convert, QStringLiteral("/done_S0001$/.test($('#name_preview').val())"))
            .click(convert, kOk);
        dialogs.convert();
        FINISH(*m_steps);
        QCOMPARE(got.saveType, 6);
        QCOMPARE(got.items.size(), 1);
        QCOMPARE(got.items.first().path, m_folder.filePath(QStringLiteral("done_S0001")));
    }

    // Each change is stored at once; one that isn't agreed to is given back, one that was applied stays.
    void whatIsCancelledChangesNothing() {
        record();
        pref("export/filename", QStringLiteral("kept"));
        pref("export/skipsaveframe", 3);
        const auto change = [&](const char* name, bool applies) {
            m_steps->type(kSave, kName, QLatin1String(name))
                .click(kSave, QStringLiteral("#group_on"))
                .type(kSave, QStringLiteral("#skip_value"), QStringLiteral("5"));
            if (applies) {
                m_steps->click(kSave, QStringLiteral("#apply_btn"))
                    .type(kSave, kName, QStringLiteral("dropped"));
            }
            m_steps->click(kSave, kCancel);
            open("save");
            FINISH(*m_steps);
        };
        change("dropped", false);
        QCOMPARE(pref("export/filename").toString(), QStringLiteral("kept"));
        QVERIFY(!pref("export/groupdir").toBool());
        QCOMPARE(pref("export/skipsaveframe").toInt(), 3);
        change("applied", true);
        QCOMPARE(pref("export/filename").toString(), QStringLiteral("applied"));
        QVERIFY(pref("export/groupdir").toBool());
        QCOMPARE(pref("export/skipsaveframe").toInt(), 5);
    }

    void storageListsFormatsAndMissesAPulledCard() {
        m_steps->expect(kStorage, QStringLiteral("$('#slots button').length === 4"))
            .click(kStorage, QStringLiteral("#slots button:eq(1)"))
            .expect(kStorage, QStringLiteral("$('#records tbody tr').length === 2 && "
                                             "$('#records td:eq(3)').text() === '2021/3/5'"))
            .click(kStorage, kFormat)
            .press(QStringLiteral("No"))
            .expect(kStorage, QStringLiteral("$('#records tbody tr').length === 2"))
            .run([this] {
                card("sd", 2, "pullDuringNext");
                return true;
            })
            .click(kStorage, QStringLiteral("#slots button:eq(1)")) // gone in the middle of the list
            .press(QStringLiteral("OK"))
            .expect(kStorage, QStringLiteral("$('#records tbody tr').length === 0"))
            .run([this] {
                card("sd", 2, "insert", {{QStringLiteral("protected"), true}});
                return true;
            })
            .click(kStorage, QStringLiteral("#slots button:eq(1)"))
            .expect(kStorage, QStringLiteral("/protected/.test($('#state').text())"))
            .click(kStorage, kFormat)
            .press(QStringLiteral("Yes"))
            .press(QStringLiteral("OK")) // refused
            .click(kStorage, QStringLiteral("#slots button:eq(2)"))
            .click(kStorage, QStringLiteral("#unlock_btn")) // its records are in no list before
            .type(kPassword, QStringLiteral("#password"), QStringLiteral("open"))
            .click(kPassword, kOk)
            .click(kStorage, QStringLiteral("#records tbody tr"))
            .type(kStorage, QStringLiteral("#data_name"), QStringLiteral("w2"))
            .click(kStorage, QStringLiteral("#rename_btn"))
            .expect(kStorage, QStringLiteral("$('#records td:eq(1)').text() === 'w2'"))
            .click(kStorage, kFormat)
            .press(QStringLiteral("Yes"))
            .expect(kStorage, QStringLiteral("$('#records tbody tr').length === 0"))
            .click(kStorage, QStringLiteral("#slots button:eq(3)"))
            .expect(kStorage, QStringLiteral("/^Formatted/.test($('#state').text())"))
            .run([this] {
                card("cfast", 1, "pull");
                return true;
            })
            .expect(kStorage, QStringLiteral("$('#state').text() === 'Empty slot'")) // by itself
            .click(kStorage, QStringLiteral("#close_btn"));
        open("storage");
        FINISH(*m_steps);
        const QStringList boxes = m_steps->boxes();
        QVERIFY2(boxes.first().contains(QStringLiteral("Slot 2 of Marlin")), qPrintable(boxes.first()));
        QVERIFY2(boxes.at(1).contains(QStringLiteral("no card in slot 2")), qPrintable(boxes.at(1)));
        QVERIFY2(boxes.at(3).contains(QStringLiteral("write protected")), qPrintable(boxes.at(3)));
    }

    // A card's folder is a drive of the dialog; what isn't taken is closed again.
    void aDriveIsOpenedWithItsPasswordAndClosedByCancel() {
        record();
        m_test->viewer().recording().keep();
        m_test->viewer().recording().setMode(HOST_MODE_FILE);
        auto& documents = m_test->viewer().documents();
        QTRY_VERIFY_WITH_TIMEOUT(dynamic_cast<FileDocument*>(documents.current()), 60000);
        const QString file = m_folder.filePath(QStringLiteral("drop.rch"));
        static_cast<FileDocument*>(documents.current())->save(file);
        card("dockstore", 1, "fill",
             {{QStringLiteral("name"), QStringLiteral("drop")},
              {QStringLiteral("frames"), 10},
              {QStringLiteral("file"), file}});
        const int before = documents.documentCount();
        const auto openStore = [&]() -> ModalSteps& {
            return m_steps->click(kOpen, QStringLiteral(".drive[data-kind=fd]"));
        };
        openStore()
            .type(kPassword, QStringLiteral("#password"), QStringLiteral("wrong"))
            .click(kPassword, kOk)
            .press(QStringLiteral("OK"))
            .type(kPassword, QStringLiteral("#password"), QStringLiteral("open"))
            .click(kPassword, kOk)
            .expect(kOpen, QStringLiteral("$('#rows tbody tr').length === 1"))
            .click(kOpen, kCancel);
        open("open");
        FINISH(*m_steps);
        QCOMPARE(documents.documentCount(), before);
        openStore().expect(kOpen, QStringLiteral("$('#rows tbody tr').length === 1")).click(kOpen, kOk);
        open("open");
        FINISH(*m_steps);
        QCOMPARE(documents.documentCount(), before + 1);
        QCOMPARE(documents.mode(), HOST_MODE_FILE);
    }

    // Files can be opened whatever shows; who takes none is back where he was.
    void filesAreOpenedFromTheLiveView() {
        auto& documents = m_test->viewer().documents();
        record();
        m_test->viewer().recording().keep();
        QTRY_COMPARE_WITH_TIMEOUT(documents.recordings().size(), 1, 60000);
        const QString file = m_folder.filePath(QStringLiteral("live.rch"));
        documents.recordings().first()->save(file);
        card("cfast", 1, "fill",
             {{QStringLiteral("name"), QStringLiteral("live")},
              {QStringLiteral("frames"), 10},
              {QStringLiteral("file"), file}});
        const QString isListed = QStringLiteral("$('#rows tbody tr').length === 1");
        const QString drive = QStringLiteral(".drive[data-kind=cf]");
        for (const HostMode mode : {HOST_MODE_LIVE, HOST_MODE_MEMORY}) {
            m_test->viewer().recording().setMode(mode);
            m_steps->click(kOpen, drive).expect(kOpen, isListed).click(kOpen, kCancel);
            open("open");
            FINISH(*m_steps);
            QCOMPARE(documents.mode(), mode);
        }
        m_steps->click(kOpen, drive).expect(kOpen, isListed).click(kOpen, kOk);
        open("open");
        FINISH(*m_steps);
        QCOMPARE(documents.mode(), HOST_MODE_FILE);
        QCOMPARE(documents.recordings().size(), 2);
    }
};

QTEST_MAIN(tst_Saving)
#include "tst_saving.moc"
