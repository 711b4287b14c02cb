// What the program's own script objects do for the pages that save, open and unlock, without the pages.

#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/devices/JS_Mediator_InputPasswordDialog.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "tests/support/ModalAnswer.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_app/NotedMessages.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/app/PageMediators.h"
#include "viewer/app/panes/SelectedValues.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/saving/DrivesMediator.h"
#include "viewer/saving/SavingMediator.h"

#include <QFileDialog>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

/// A recording of a size that no disk has.
class VastSource : public FrameSource {
public:
    VastSource() {
        m_info.camera = QStringLiteral("Vast");
        m_info.size = QSize(8192, 8192);
        m_info.frames = 1000000000;
        m_info.rate = 1000;
    }
    Frame frame(int /*index*/) const override { return {}; }
};

/// A dialog without its script object would be closed once its page is loaded.
struct DialogShell : EmptyShell {
    void attachMediator(GUI_WebView* view, JS_Mediator* mediator) override {
        mediators.addMediator(view, mediator);
    }

    PageMediators mediators;
};

struct SavingRig : SmallRig {
    DialogShell shell;
    MapPreferences preferences;
    NotedMessages messages;
    ViewerHost host{list, preferences, messages, shell, calls};
    SaveRequest got;

    explicit SavingRig(const QString& folder) {
        set("dir", folder);
        set("filename", QStringLiteral("shot"));
        set("format", QStringLiteral("RCHX"));
        list.setMode(HOST_MODE_FILE);
    }
    void set(const char* key, const QVariant& value) {
        preferences.setValue(QStringLiteral("export/") + QLatin1String(key), value);
    }
    SavingMediator mediator(const char* widget) {
        return SavingMediator(&host, preferences, QLatin1String(widget), QDateTime::currentDateTime(),
                              [this](const SaveRequest& wish) { got = wish; }, {});
    }
    DOCKEY add(const FrameSourcePtr& source) { return list.addRecording(source)->key(); }
};

/// Asked whether it may write, the system answers for a user who isn't root: root may write anywhere.
class WithoutRights {
public:
    WithoutRights() {
        if (m_user == 0 && setreuid(kNobody, uid_t(-1)) != 0) {
            qWarning("root stays root");
        }
    }
    ~WithoutRights() {
        if (m_user == 0 && setreuid(0, uid_t(-1)) != 0) {
            qFatal("root is not root any more");
        }
    }
    Q_DISABLE_COPY(WithoutRights)

private:
    static constexpr uid_t kNobody = 65534;
    uid_t m_user = getuid();
};

QVariant row(DOCKEY key) {
    return QVariantMap{{QStringLiteral("dockey"), QString::number(key)}, {QStringLiteral("partitionno"), 1}};
}

} // namespace

class TestSavingMediators : public QObject {
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // Two recordings have two names, and looking at the names takes none.
    void whatHasGoneIsLeftOut() {
        SavingRig rig(m_folder->path());
        rig.set("filenameaddnumber", true);
        rig.set("filenameaddnumbersessionnodigits", 2);
        const DOCKEY first = rig.add(recordingOf({}, 2, {4, 4}));
        const DOCKEY second = rig.add(recordingOf({}, 2, {4, 4}));
        SavingMediator saving = rig.mediator("filesavedialog");
        const QVariantList rows{row(first), row(987654), row(second)};
        const QStringList paths = saving.pathsOf(rows);
        QCOMPARE(paths.size(), 2);
        QVERIFY(paths.first() != paths.last());
        QCOMPARE(saving.pathsOf(rows), paths);
        QVERIFY(saving.save(rows));
        QCOMPARE(rig.got.items.size(), 2);
        QCOMPARE(rig.got.items.first().key, first);
        QCOMPARE(rig.got.items.last().key, second);
        QCOMPARE(QStringList({rig.got.items.first().path, rig.got.items.last().path}), paths);
        QVERIFY(rig.messages.told.isEmpty());
        for (const QVariantList& none : {QVariantList(), QVariantList{row(987654)}}) {
            rig.got = SaveRequest();
            rig.messages.told.clear();
            QVERIFY(!saving.save(none));
            QVERIFY(rig.got.items.isEmpty());
            QCOMPARE(rig.messages.told.size(), 1);
            QVERIFY2(rig.messages.told.first().contains(QStringLiteral("There is nothing to save.")),
                     qPrintable(rig.messages.told.first()));
        }
    }

    void roomIsCountedInFramesThatAreLeft() {
        SavingRig rig(m_folder->path());
        RecordingInfo info;
        info.rate = 1000;
        const DOCKEY small = rig.add(recordingOf(info, 12, {16, 10}));
        const DOCKEY other = rig.add(recordingOf(info, 6, {16, 10}));
        const DOCKEY vast = rig.add(std::make_shared<VastSource>());
        SavingMediator saving = rig.mediator("filesavedialog");
        const auto needed = [&](const QVariantList& rows) { return saving.bytesNeeded(rows); };
        QCOMPARE(needed({}), QStringLiteral("0"));
        QCOMPARE(needed({row(small), row(other), row(987654)}), QString::number(18 * 160));
        QVERIFY(!saving.lacksRoom({}) && !saving.lacksRoom({row(small)}));
        QVERIFY(saving.lacksRoom({row(small), row(vast)}));
        rig.set("skipsaveframe", 3);
        QCOMPARE(needed({row(small), row(other)}), QString::number(6 * 160));
        rig.set("skipunit", 1);
        rig.set("skipsavemsec", 6); // of a thousand frames a second
        QCOMPARE(needed({row(small)}), QString::number(2 * 160));
        for (const char* const lossy : {"JPEG", "AVI", "MP4"}) {
            rig.set("format", QLatin1String(lossy));
            QCOMPARE(needed({row(vast)}), QStringLiteral("0"));
            QVERIFY(!saving.lacksRoom({row(vast)}));
        }
        const QString free = saving.freeSpace(m_folder->path()).section(QLatin1Char('.'), 0, 0);
        QVERIFY(!free.isEmpty());
        QVERIFY2(saving.freeSpace(m_folder->filePath(QStringLiteral("not/yet"))).startsWith(free),
                 qPrintable(free));
        const QString locked = m_folder->filePath(QStringLiteral("locked"));
        QVERIFY(QDir().mkdir(locked));
        QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
        const WithoutRights user;
        for (const QString& folder : {locked, locked + QStringLiteral("/not/yet")}) {
            QCOMPARE(saving.freeSpace(folder), QStringLiteral("The folder is write protected."));
        }
    }

    void filesAreChosenForTheDialog() {
        SavingRig rig(m_folder->path());
        const QString path = m_folder->filePath(QStringLiteral("one.rchx"));
        rig.list.addRecording(recordingOf({}, 2, {4, 4}))->save(path);
        const int before = rig.list.recordings().size();
        SavingMediator saving = rig.mediator("fileopendialog");
        QString title;
        {
            const ModalAnswer<QFileDialog> cancel([&title](QFileDialog& files) {
                title = files.windowTitle();
                static_cast<QDialog&>(files).reject();
            });
            QVERIFY(!saving.openFiles());
        }
        QCOMPARE(title, QStringLiteral("Open recording"));
        QVERIFY(!rig.preferences.values.contains(QStringLiteral("import/dir")));
        QCOMPARE(rig.list.recordings().size(), before);
        const ModalAnswer<QFileDialog> agree([&path](QFileDialog& files) {
            files.setDirectory(QFileInfo(path).path());
            files.selectFile(path);
            static_cast<QDialog&>(files).accept();
        });
        QVERIFY(saving.openFiles());
        QCOMPARE(rig.preferences.values.value(QStringLiteral("import/dir")).toString(), m_folder->path());
        QCOMPARE(rig.list.recordings().size(), before + 1);
        QCOMPARE(rig.list.recordings().last()->recordedFrames(), 2);
        QVERIFY(rig.messages.told.isEmpty());
    }

    // A wrong password is told and asked for again; who gives up leaves the store as it was.
    void aStoreIsUnlockedByItsPassword() {
        SavingRig rig(m_folder->path());
        rig.list.setMode(HOST_MODE_LIVE);
        CardContent content;
        content.password = QStringLiteral("key");
        content.capacity = 1024;
        content.records.push_back({QStringLiteral("a"), 4, 0, 0});
        rig.body("Mono")->storage()->insert(StorageKind::DockStore, 0, content);
        DrivesMediator drives(&rig.host, rig.host.drives(), rig.list);
        const DOCKEY mono = rig.camera("Mono")->key();
        const DOCKEY colour = rig.camera("Colour")->key();
        QVERIFY(drives.isLocked(mono, 0));
        QVERIFY(!drives.isLocked(mono, 1) && !drives.isLocked(colour, 0) && !drives.isLocked(987654, 0));
        QVERIFY(!drives.unlock(mono, 1) && !drives.unlock(colour, 0)); // no store there: nothing is asked
        QStringList passwords;
        QPointer<QDialog> answered; // which takes a while to go
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            auto* const dialog = qobject_cast<GUI_InputPasswordDialog*>(QApplication::activeModalWidget());
            if (dialog && dialog->isVisible() && dialog != answered) {
                answered = dialog;
                auto* const page = static_cast<JS_Mediator_InputPasswordDialog*>(dialog->mediator());
                passwords.isEmpty() ? page->onCancel() : page->onOk(passwords.takeFirst());
            }
        });
        answer.start(5);
        passwords = QStringList{QStringLiteral("wrong")};
        QVERIFY(!drives.unlock(mono, 0));
        QVERIFY(drives.isLocked(mono, 0));
        const auto told = [&rig] { return rig.messages.told.count(QStringLiteral("Invalid Password.")); };
        QCOMPARE(told(), 1);
        passwords = QStringList{QStringLiteral("wrong"), QStringLiteral("key"), QStringLiteral("unused")};
        QVERIFY(drives.unlock(mono, 0));
        QCOMPARE(passwords.size(), 1);
        QCOMPARE(told(), 2);
        QVERIFY(!drives.isLocked(mono, 0));
        QVERIFY(drives.unlock(mono, 0)); // it is open
        QCOMPARE(passwords.size(), 1);
        QCOMPARE(drives.count(QStringLiteral("fd"), 0, 0), 0); // its record is no file
        QVERIFY(drives.isLinked(mono) && !drives.isLinked(987654));
        rig.body("Mono")->disconnectLink();
        QVERIFY(!drives.isLinked(mono) && !drives.unlock(mono, 0));
    }

    // The panel's page shows in what the selected cameras differ, the current one first.
    void onlyWhatDiffersIsToldOfEachCamera() {
        SmallRig rig;
        const SelectedValues values(rig.list);
        CameraDocument* const mono = rig.camera("Mono");
        CameraDocument* const colour = rig.camera("Colour");
        for (SimulatedHead* const head : {&rig.head("Mono"), &rig.head("Colour")}) {
            head->setResolution({640, 480}).result();
            head->setRate(500).result();
            head->setShutter(500).result();
        }
        rig.select({mono, colour});
        QCOMPARE(values.differing(), QStringLiteral("{}"));
        QCOMPARE(values.currentKey(), QString::number(mono->key()));
        const auto row = [](const char* camera, const char* text) {
            return QStringLiteral("{\"camera\":\"%1\",\"text\":\"%2\"}")
                .arg(QLatin1String(camera), QLatin1String(text));
        };
        rig.list.setCurrent(colour);
        rig.head("Colour").setResolution({512, 256}).result();
        rig.head("Mono").setShutter(750).result();
        QCOMPARE(values.differing(), QStringLiteral("{\"resolution\":[%1,%2],\"shutter\":[%3,%4]}")
                                         .arg(row("Colour", "512 x 256"), row("Mono", "640 x 480"),
                                              row("Colour", "1/500 sec"), row("Mono", "1/750 sec")));
        rig.head("Colour").setResolution({640, 480}).result();
        rig.head("Mono").setShutter(500).result();
        rig.head("Mono").setRate(250).result();
        QCOMPARE(values.differing(),
                 QStringLiteral("{\"rate\":[%1,%2]}").arg(row("Colour", "500 fps"), row("Mono", "250 fps")));
        rig.select({colour});
        QCOMPARE(values.differing() + values.currentKey(), QStringLiteral("{}"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestSavingMediators)
#include "tst_saving_mediators.moc"
