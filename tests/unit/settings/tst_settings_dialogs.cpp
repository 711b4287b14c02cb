// The mediator that keeps the settings of the cameras and the dialog that brings them back: the steps, their
// order, and what each failure leaves.

#include "livecontrol/foundation/APP_Exception.h"
#include "livecontrol/settings/GUI_CameraFileDialog.h"
#include "livecontrol/settings/JS_Mediator_CameraSettingsDialog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QCheckBox>
#include <QDir>
#include <QFutureWatcher>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {
QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

QString okText(int mode, const QString& presets) {
    return QStringLiteral(R"({"dialogMode":%1,"directoyPath":"/x","filePath":"y","presetList":[%2]})")
        .arg(mode)
        .arg(presets);
}
} // namespace

class tst_SettingsDialogs : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<FakeCamera> m_other; // under the key 9, with a device of its own
    std::unique_ptr<FakeDevice> m_otherDevice;
    std::unique_ptr<JS_Mediator_CameraSettingsDialog> m_mediator;
    QTemporaryDir m_folder;
    QVariantMap m_prefs;
    QStringList m_saved;
    QStringList m_alerts;
    QStringList m_errors;

    void setPresets(FakeCamera& camera, int selected, int count) {
        camera.onGetPresetInfo = [=](PresetInfo& info) { info = {selected, count}; };
    }
    bool ends(int mode, const QString& presets = QString()) {
        const QSignalSpy accepted(m_mediator.get(), &JS_Mediator_Dialog::accept);
        m_mediator->ok(okText(mode, presets));
        return !accepted.isEmpty();
    }
    QString path(const QString& name) const { return m_folder.path() + QLatin1Char('/') + name; }
    int count(const char* name) { return m_rig->host.calls.count(QLatin1String(name)); }

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_other = std::make_unique<FakeCamera>(m_rig->host.calls);
        m_otherDevice = std::make_unique<FakeDevice>(m_rig->host.calls);
        m_prefs.clear();
        m_saved.clear();
        m_alerts.clear();
        m_errors.clear();
        FakeHost& host = m_rig->host;
        host.onGetPref = [this](const QString& name, const QVariant& value) {
            return m_prefs.value(name, value);
        };
        host.onSetPref = [this](const QString& name, const QVariant& value) { m_prefs[name] = value; };
        host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{9, 7, 8, 5}; };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* {
            return key == 9 ? m_other.get() : key == 7 || key == 8 ? &m_rig->camera : nullptr;
        };
        host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{7}; };
        host.onSaveCameraSettings = [this](const QString& path, int) { m_saved.append(path); };
        host.onRunWithProgress = [](const QString&, QFutureWatcher<void>& watcher) {
            watcher.waitForFinished();
        };
        host.onAlert = [this](const QString& text, QWidget*) { m_alerts.append(text); };
        host.onHandleError = [this](std::exception& error) {
            m_errors.append(QString::fromUtf8(error.what()));
        };
        m_rig->camera.onGetCameraName = [](bool) { return QStringLiteral("Marlin"); };
        m_rig->camera.onGetIPAddress = [](bool) { return QStringLiteral("10.0.0.7"); };
        m_rig->camera.onGetDeviceName = [](bool) { return QStringLiteral("<b>M</b>"); };
        m_other->onGetDevice = [this] { return m_otherDevice.get(); };
        setPresets(m_rig->camera, 2, 3);
        setPresets(*m_other, 5, 2);
        m_mediator = std::make_unique<JS_Mediator_CameraSettingsDialog>(&host, m_folder.path());
        host.calls.clear();
    }
    void cleanup() {
        m_mediator.reset();
        m_rig.reset();
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
        QCOMPARE(m_errors, QStringList(QStringLiteral("full")));
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
        m_rig->host.onConfirm = [](const QString&, QWidget*, const QMap<QString, QString>&) { return false; };
        QVERIFY(!ends(0));
        QVERIFY(m_saved.isEmpty());
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

    void theFileDialogLoadsAFile() {
        QFile file(path(QStringLiteral("a.zcsx")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, QStringLiteral("Device Open"), m_folder.path(),
                                    QString());
        dialog.show();
        auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QStringLiteral("missing.zcsx"));
        dialog.accept();
        QVERIFY(m_alerts.value(0).endsWith(QStringLiteral("missing.zcsx does not exist.")));
        name->setText(QStringLiteral("a%.zcsx"));
        dialog.accept();
        QCOMPARE(m_alerts.value(1), QStringLiteral("Invalid filename."));
        QVERIFY(dialog.isVisible());
        QCOMPARE(count("HostDocuments.loadCameraSettings"), 0);
        m_rig->host.onLoadCameraSettings = [](const QString&, int, int) {
            throw APP_Exception(QStringLiteral("cut off"), 0);
        };
        name->setText(QStringLiteral("a.zcsx"));
        dialog.accept();
        QCOMPARE(m_errors, QStringList(QStringLiteral("cut off")));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_prefs.value(QStringLiteral("zcsx/path")).toString(), m_folder.path());
    }

    void theFileDialogLoadsPresets() {
        LogCapture log;
        m_rig->camera.onIsPresetLoadedAfterReboot = [] { return true; };
        m_rig->camera.onGetDisplayName = [] { return QStringLiteral("Marlin A"); };
        m_rig->camera.onIsSharedHeadSettings = [] { return true; };
        m_rig->device.onGetHeads = [this](bool) {
            return QList<DOC_Interface*>{&m_rig->camera, m_other.get()};
        };
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, QStringLiteral("Device Open"), m_folder.path(),
                                    QString());
        dialog.show();
        const int high = dialog.height();
        auto* const fromCamera = dialog.findChild<QCheckBox*>();
        QVERIFY(fromCamera->isEnabled());
        fromCamera->click();
        QVERIFY(dialog.findChild<QListWidget*>(QString(), Qt::FindDirectChildrenOnly)->isVisible());
        QVERIFY(!dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->isEnabled());
        QCOMPARE(dialog.height(), int(float(high) * 1.7F));
        QVERIFY(log.lines().last().text.contains(QStringLiteral("[Operation:toggled]")));
        fromCamera->click();
        QVERIFY(qAbs(dialog.height() - high) <= 1);
        fromCamera->click();

        QString notice;
        m_rig->host.onConfirmOkCancel = [&](const QString& text, QWidget*) { return notice = text, false; };
        m_rig->host.calls.clear();
        dialog.on_ok_clicked(); // 7 has preset 2 in force; 9 none
        QVERIFY(notice.endsWith(QStringLiteral("Please restart the camera.\n\n Marlin A")));
        QVERIFY(dialog.isVisible());
        QCOMPARE(count("DOC_Settings.loadPreset"), 0);

        m_rig->host.onConfirmOkCancel = [](const QString&, QWidget*) { return true; };
        m_rig->host.calls.clear();
        dialog.on_ok_clicked();
        QStringList steps = m_rig->host.calls.names();
        steps = steps.mid(steps.indexOf(QStringLiteral("DOC_Interface.setConnected")), 7);
        steps.removeAll(QStringLiteral("HostDocuments.docByKey"));
        QCOMPARE(steps.mid(0, 4), QStringList({QStringLiteral("DOC_Interface.setConnected"),
                                               QStringLiteral("DOC_Settings.loadPreset"),
                                               QStringLiteral("DOC_Save.refreshCameraSettings"),
                                               QStringLiteral("DOC_Settings.isSharedHeadSettings")}));
        QCOMPARE(count("DOC_Save.refreshCameraSettings"), 2); // the other head too
        QCOMPARE(m_rig->host.calls.lastArgs(QStringLiteral("HostDocuments.closeDocument")),
                 (QVariantList{7, false}));
        QVERIFY(!dialog.isVisible());
    }

    void theFileDialogWithoutCamerasHasFilesOnly() {
        m_rig->host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>(); };
        GUI_CameraFileDialog dialog(&m_rig->host, nullptr, QStringLiteral("Device Open"),
                                    path(QStringLiteral("new")), QString());
        QVERIFY(!dialog.findChild<QCheckBox*>()->isEnabled());
        QVERIFY(QDir(path(QStringLiteral("new"))).exists());
    }
};

QTEST_MAIN(tst_SettingsDialogs)
#include "tst_settings_dialogs.moc"
