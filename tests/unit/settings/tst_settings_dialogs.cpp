// The mediator that keeps the settings of the cameras: the steps, their order, and what each failure leaves.

#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/settings/CameraRows.h"
#include "livecontrol/settings/JS_Mediator_CameraSettingsDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ModalAnswer.h"
#include "tests/unit/settings/SettingsTest.h"

#include <QDir>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QtTest>

namespace {
QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

QString okText(int mode, const QString& presets) {
    return QStringLiteral(R"({"dialogMode":%1,"directoyPath":"/x","filePath":"y","presetList":[%2]})")
        .arg(mode)
        .arg(presets);
}
} // namespace

class tst_SettingsDialogs : public QObject, private SettingsTest {
    Q_OBJECT

    std::unique_ptr<JS_Mediator_CameraSettingsDialog> m_mediator;

    bool ends(int mode, const QString& presets = QString()) {
        const QSignalSpy accepted(m_mediator.get(), &JS_Mediator_Dialog::accept);
        m_mediator->ok(okText(mode, presets));
        return !accepted.isEmpty();
    }

private slots:
    void init() {
        setUp();
        m_mediator = std::make_unique<JS_Mediator_CameraSettingsDialog>(&m_rig->host, m_folder.path());
        m_rig->host.calls.clear();
    }
    void cleanup() {
        m_mediator.reset();
        tearDown();
    }

    void listsEachDeviceOnce() {
        const QVariantList list = m_mediator->getPresetList();
        QCOMPARE(list.size(), 2); // the heads 7 and 8 share one, 5 is no camera
        QCOMPARE(
            list.at(1).toString(),
            QStringLiteral(R"({"devicename":"<b>M</b>","ipaddress":"10.0.0.7","key":"7","name":"Marlin",)"
                           R"("presets":[{"presetno":1,"selected":false},{"presetno":2,"selected":true},)"
                           R"({"presetno":3,"selected":false}],"selNone":false})"));
        QCOMPARE(parsed(list.at(0).toString())[QStringLiteral("selNone")], QJsonValue(true)); // 5 of 2
        m_rig->host.calls.failNext(QStringLiteral("DOC_Settings.getDeviceName"),
                                   throwing(std::runtime_error("mute")));
        QCOMPARE(m_mediator->getPresetList().size(), 0);
        QCOMPARE(m_errors.size(), 1);
        m_rig->camera.onGetDevice = [] { return nullptr; };
        m_other->onGetDevice = [] { return nullptr; };
        QCOMPARE(m_mediator->getPresetList().size(), 3); // nothing says that two of them are one
    }

    void composesTheName_data() {
        QTest::addColumn<QVariantMap>("prefs");
        QTest::addColumn<QString>("bare");
        QTest::addColumn<QString>("whole"); // a pattern
        const QString user = QStringLiteral("zcsx/userFileName");
        const QString original = QStringLiteral("zcsx/filenameasoriginal");
        const QString time = QStringLiteral("zcsx/filenameaddtime");
        const QString format = QStringLiteral("zcsx/filenameaddtimeformat");
        QTest::newRow("camera") << QVariantMap{} << QStringLiteral("Marlin")
                                << QStringLiteral("Marlin\\.zcsx");
        QTest::newRow("user") << QVariantMap{{user, QStringLiteral("mine")}, {original, true}}
                              << QStringLiteral("mine") << QStringLiteral("mine\\.zcsx");
        QTest::newRow("time") << QVariantMap{{time, true}, {format, QStringLiteral("yyyy")}}
                              << QStringLiteral("Marlin") << QStringLiteral("Marlin_\\d{4}\\.zcsx");
        QTest::newRow("time alone") << QVariantMap{{original, true},
                                                   {time, true},
                                                   {format, QStringLiteral("yyyy")}}
                                    << QString() << QStringLiteral("\\d{4}\\.zcsx");
        QTest::newRow("no format") << QVariantMap{{time, true}, {format, QString()}}
                                   << QStringLiteral("Marlin") << QStringLiteral("Marlin_\\.zcsx");
    }
    void composesTheName() {
        QFETCH(QVariantMap, prefs);
        QFETCH(QString, bare);
        QFETCH(QString, whole);
        m_prefs = prefs;
        QCOMPARE(m_mediator->getFileName(), bare);
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(whole));
        const QString name = m_mediator->getFileName(true);
        QVERIFY2(pattern.match(name).hasMatch(), qPrintable(name));
        const QJsonObject paths = parsed(m_mediator->getFilePathSettings());
        QCOMPARE(paths[QStringLiteral("FileName")].toString(), bare);
        QCOMPARE(paths[QStringLiteral("FolderPath")].toString(), m_folder.path());
    }

    void theNameDialogsDataGoBothWays() {
        QCOMPARE(parsed(m_mediator->recvFileNameDialogData())[QStringLiteral("addTimeFormat")].toString(),
                 QStringLiteral("yyyyMMdd_HHmmss"));
        const QString data =
            QStringLiteral(R"({"addTime":true,"addTimeFormat":"HH","original":true,"userFileName":"a"})");
        m_mediator->sendFileNameDialogData(data);
        QCOMPARE(m_mediator->recvFileNameDialogData(), data);
        QCOMPARE(count("HostApplication.updateAll"), 1);
        m_prefs[QStringLiteral("zcsx/filenameaddtimeformat")] = QString();
        QCOMPARE(parsed(m_mediator->recvFileNameDialogData())[QStringLiteral("addTimeFormat")].toString(),
                 QStringLiteral("yyyyMMdd_HHmmss"));
    }

    void writesTheFileOnThePool() {
        QThread* worker = nullptr;
        m_rig->host.onSaveCameraSettings = [&](const QString& path, int) {
            worker = QThread::currentThread();
            m_saved.append(path);
        };
        QVERIFY(ends(0));
        QCOMPARE(m_saved, QStringList(path(QStringLiteral("Marlin.zcsx"))));
        QVERIFY(worker && worker != QThread::currentThread());
        QCOMPARE(m_mediator->getDialogMode(), 0);
        m_rig->host.onSaveCameraSettings = [](const QString&, int) {
            throw APP_Exception(QStringLiteral("full"), 1);
        };
        QVERIFY(ends(0)); // nothing that this dialog could mend
        m_rig->host.onSaveCameraSettings = [](const QString&, int) { throw std::runtime_error("torn"); };
        QVERIFY(ends(0)); // keeps its text on the way between the threads
        QCOMPARE(m_errors, (QStringList{QStringLiteral("full"), QStringLiteral("torn")}));
    }

    // A host may need its own thread for what the cameras hold.
    void aFailingProgressDoesNotHoldUpTheWriting() {
        QObject inGuiThread;
        m_rig->host.onSaveCameraSettings = [&](const QString& path, int) {
            const auto gather = [&] { m_saved.append(path); };
            QMetaObject::invokeMethod(&inGuiThread, gather, Qt::BlockingQueuedConnection);
        };
        m_rig->host.onRunWithProgress = [](const QString&, QFutureWatcher<void>&) {
            throw std::runtime_error("no window");
        };
        QVERIFY(ends(0));
        QCOMPARE(m_saved.size(), 1);
        QCOMPARE(m_errors, QStringList{QStringLiteral("no window")});
    }

    void aFailureLeavesWhatWasReadBefore() {
        const LogCapture log;
        m_failingPref = QStringLiteral("zcsx/filenameaddtime");
        QCOMPARE(m_mediator->getFileName(true), QStringLiteral("Marlin"));
        QCOMPARE(m_mediator->recvFileNameDialogData(),
                 QStringLiteral(R"({"original":false,"userFileName":""})"));
        QCOMPARE(m_errors.size(), 2);
        // No file is written under half a name, and one message is enough.
        QVERIFY(!ends(0));
        QVERIFY(m_saved.isEmpty() && m_alerts.isEmpty());
        QCOMPARE(m_errors.size(), 3);
        QCOMPARE(log.with(QStringLiteral("[ENTER] \"JS_Mediator_CameraSettingsDialog::getFileName\"")).size(),
                 2);
        m_rig->camera.onGetCameraName = [](bool) { return QStringLiteral("Marlin.zcsx"); }; // looks whole
        QVERIFY(!ends(0));
        QVERIFY(m_saved.isEmpty());
    }

    // The image stands still only as long as it must.
    void suspendsLiveAsTheWorkNeeds() {
        QVERIFY(ends(0));
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostLive.suspendLive")), QVariantList{false});
        QCOMPARE(count("HostLive.stopLiveForRefresh"), 0);
        m_rig->host.calls.clear();
        QVERIFY(ends(1, QStringLiteral(R"({"key":"7","value":"1"})")));
        const QStringList names = m_rig->host.calls.names();
        const int stored = names.indexOf(QStringLiteral("DOC_Settings.storePreset"));
        QVERIFY(stored > names.indexOf(QStringLiteral("HostLive.stopLiveForRefresh")));
        QVERIFY(names.mid(stored).contains(QStringLiteral("HostLive.resumeLive")));
        QCOMPARE(count("HostLive.stopLiveForRefresh"), 1);
        QCOMPARE(count("HostLive.suspendLive") + count("DOC_Transfer.restartTransfer"), 0);
    }

    void startsInTheLastFolderThatIsStillThere() {
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString fallback = documents + QStringLiteral("/Corvane/TORM");
        QCOMPARE(settingsFolder(m_rig->host), fallback);
        m_prefs[QStringLiteral("zcsx/path")] = m_folder.path();
        QCOMPARE(settingsFolder(m_rig->host), m_folder.path());
        m_prefs[QStringLiteral("zcsx/path")] = path(QStringLiteral("gone"));
        QCOMPARE(settingsFolder(m_rig->host), fallback);
    }

    void keepsItsFolderUnlessAnotherIsChosen() {
        const auto folder = [this] {
            return parsed(m_mediator->getFilePathSettings())[QStringLiteral("FolderPath")].toString();
        };
        {
            const ModalAnswer<QFileDialog> cancel([this](QFileDialog& files) {
                QCOMPARE(files.directory().path(), m_folder.path());
                QMetaObject::invokeMethod(&files, "reject");
            });
            QVERIFY(!m_mediator->openFolder() && cancel.seen);
        }
        QCOMPARE(folder(), m_folder.path());
        QVERIFY(m_prefs.isEmpty());
        const QTemporaryDir other;
        const ModalAnswer<QFileDialog> choose([&other](QFileDialog& files) {
            files.findChild<QLineEdit*>()->setText(other.path());
            QMetaObject::invokeMethod(&files, "accept");
        });
        QVERIFY(m_mediator->openFolder());
        QCOMPARE(folder(), other.path());
        QCOMPARE(settingsFolder(m_rig->host), other.path());
    }

    void staysOpenForANameThatCantBe_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("alert");
        const QString invalid = QStringLiteral("Invalid filename.");
        QTest::newRow("empty") << QString() << invalid;
        QTest::newRow("dot") << QStringLiteral(".hidden") << invalid;
        for (const char forbidden : {'\\', '*', '?', '|', '"', ':', '<', '>', '%', '\n', '\t'}) {
            QTest::newRow(qPrintable(QString::number(forbidden)))
                << QStringLiteral("a") + QLatin1Char(forbidden) << invalid;
        }
        QTest::newRow("folder") << QStringLiteral("taken") << invalid;
        QTest::newRow("long") << QStringLiteral("LONG")
                              << QStringLiteral("The path of the target is too long.");
    }
    void staysOpenForANameThatCantBe() {
        QFETCH(QString, name);
        QFETCH(QString, alert);
        QDir(m_folder.path()).mkpath(QStringLiteral("taken.zcsx"));
        const int room = 260 - path(QStringLiteral(".zcsx")).size(); // UTF-16 units of a name that fits
        m_prefs[QStringLiteral("zcsx/filenameasoriginal")] = true;
        m_prefs[QStringLiteral("zcsx/userFileName")] =
            name == QLatin1String("LONG") ? QString(room + 1, QLatin1Char('n')) : name;
        QVERIFY(!ends(0));
        QCOMPARE(m_alerts, QStringList(alert));
        QVERIFY(m_saved.isEmpty());
        m_prefs[QStringLiteral("zcsx/userFileName")] = QString(room, QLatin1Char('n'));
        QVERIFY(ends(0));
        QCOMPARE(m_saved.first().size(), 260);
    }

    void asksBeforeItOverwrites() {
        QFile file(path(QStringLiteral("Marlin.zcsx")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QMap<QString, QString> asked;
        m_rig->host.onConfirm = [&](const QString&, QWidget*, const QMap<QString, QString>& options) {
            asked = options;
            return false;
        };
        QVERIFY(!ends(0));
        QVERIFY(m_saved.isEmpty());
        // Enter alone writes nothing over.
        QCOMPARE(asked, (QMap<QString, QString>{{QStringLiteral("under"), file.fileName()},
                                                {QStringLiteral("default"), QStringLiteral("no")}}));
        m_rig->host.onConfirm = [](const QString&, QWidget*, const QMap<QString, QString>&) { return true; };
        QVERIFY(ends(0));
        file.remove();
    }

    void storesPresetsInTheOrderOfTheKeys() {
        const QString choices =
            QStringLiteral(R"({"key":"9","value":"2"},{"key":"7","value":"3"},)"
                           R"({"key":"4","value":"1"},{"key":"6"},{"key":"5","value":"-1"})");
        QList<int> stored;
        m_rig->camera.onStorePreset = [&](int preset) { stored.append(preset); };
        m_other->onStorePreset = [&](int preset) { stored.append(preset * 10); };
        QVERIFY(ends(1, choices));
        QCOMPARE(stored, QList<int>({3, 20}));
        m_rig->camera.onStorePreset = [](int) { throw std::runtime_error("worn out"); };
        stored.clear();
        QVERIFY(!ends(1, choices));
        QCOMPARE(m_errors, QStringList(QStringLiteral("worn out")));
        QVERIFY(stored.isEmpty()); // the walk ends at the first that fails
        QVERIFY(ends(1, QStringLiteral(R"({"key":"7","value":"-1"})")));
    }
};

QTEST_MAIN(tst_SettingsDialogs)
#include "tst_settings_dialogs.moc"
