// Saving and loading the settings of the cameras, through both dialogs and to the simulated cameras.

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QJsonArray>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kSave = QStringLiteral("Device Save");
const QString kOk = QStringLiteral("#camerasettings_OK");
const QString kPresets = QStringLiteral("#camerasettings_to_place_preset");

QFileDialog* fileDialog() { return dynamic_cast<QFileDialog*>(QApplication::activeModalWidget()); }

} // namespace

class tst_SettingsFiles : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QTemporaryDir m_folder;

    SimulatedHead& head(const char* camera = "Marlin") { return m_test->head(QLatin1String(camera)); }
    QString path() const { return m_folder.filePath(QStringLiteral("Marlin.zcsx")); }
    void setPref(const char* name, const QVariant& value) {
        m_test->viewer().preferences().setValue(QLatin1String(name), value);
    }
    QString presetRadio(const char* camera, const char* preset) {
        return QStringLiteral("#preset_%1_%2")
            .arg(m_test->keyOf(QLatin1String(camera)))
            .arg(QLatin1String(preset));
    }
    void save() { m_test->click(QStringLiteral("#livecontrol_save_button")); }
    void load() { m_test->click(QStringLiteral("#livecontrol_load_button")); }
    /// Answers the file dialog as soon as it is there.
    bool choose(const QString& file) {
        if (!fileDialog()) {
            return false;
        }
        m_test->call("files.answer", {{QStringLiteral("path"), file}});
        return true;
    }
    void saveTo(const QString& file) {
        ModalSteps steps(*m_test);
        steps.expect(kSave, QStringLiteral("$('#camerasettings_filename').val() === 'Marlin'"))
            .click(kSave, kOk);
        save();
        FINISH(steps);
        QVERIFY(QFile::exists(file));
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        setPref("zcsx/path", m_folder.path());
        QFile::remove(path());
        m_test->openDevices();
        m_test->clearLogs();
    }
    void cleanup() { m_test.reset(); }

    void aFileKeepsAllCamerasAndBringsThemBack() {
        head().setRate(500).result();
        head("Plover").setShutter(8000).result();
        saveTo(path());
        const QJsonObject before = head("Plover").state();
        head().setRate(2000).result();
        head("Plover").setShutter(4000).result();
        head("Plover").setLed(true).result();
        ModalSteps steps(*m_test);
        steps.run([this] { return choose(path()); });
        load();
        FINISH(steps);
        QCOMPARE(head().settings().rate, 500U);
        QCOMPARE(head("Plover").state(), before);
        QVERIFY(m_test->waitForBox(200).isEmpty()); // nothing was left out
        QCOMPARE(m_test->logged(QStringLiteral("camerasettings_OK")).size(), 1);
    }

    void theNameIsComposedInItsDialog() {
        const QString name = QStringLiteral("#camerasettings_filename_edit_dialog_user_file_name");
        ModalSteps steps(*m_test);
        steps.click(kSave, QStringLiteral("#camerasettings_filename_edit"))
            .click(kSave, QStringLiteral("#camerasettings_filename_edit_dialog_user"))
            .click(kSave, QStringLiteral("#camerasettings_filename_ok"))
            .press(QStringLiteral("OK")) // a name is missing
            .type(kSave, name, QStringLiteral("  "))
            .click(kSave, QStringLiteral("#camerasettings_filename_ok"))
            .press(QStringLiteral("OK")) // blanks alone are none
            .type(kSave, name, QStringLiteral("ru/n%7"))
            .expect(kSave, QStringLiteral("$('#camerasettings_filename_preview').text() === 'run7'"))
            .click(kSave, QStringLiteral("#camerasettings_filename_ok"))
            .expect(kSave, QStringLiteral("$('#camerasettings_filename').val() === 'run7'"))
            .click(kSave, kOk);
        save();
        FINISH(steps);
        QVERIFY(QFile::exists(m_folder.filePath(QStringLiteral("run7.zcsx"))));
    }

    void aTypedNameSurvivesTheCamerasName() {
        const QString dialog = QStringLiteral("#camerasettings_filename_edit_dialog");
        const QString edit = QStringLiteral("#camerasettings_filename_edit");
        const QString user = dialog + QStringLiteral("_user");
        const QString cameraName = dialog + QStringLiteral("_camera_name");
        const QString name = user + QStringLiteral("_file_name");
        const QString holdsMine = QStringLiteral("$('%1').val() === 'mine'").arg(name);
        ModalSteps steps(*m_test);
        steps.click(kSave, edit)
            .click(kSave, user)
            .type(kSave, name, QStringLiteral("mine"))
            .click(kSave, cameraName)
            .expect(kSave, QStringLiteral("$('%1').val() === '' && $('%1').prop('disabled')").arg(name))
            .click(kSave, user)
            .expect(kSave, holdsMine)
            .click(kSave, cameraName)
            .click(kSave, QStringLiteral("#camerasettings_filename_ok"))
            .click(kSave, edit)
            .expect(kSave, QStringLiteral("$('%1').prop('checked')").arg(cameraName))
            .click(kSave, user)
            .expect(kSave, holdsMine)
            .click(kSave, QStringLiteral("#camerasettings_filename_cancel"))
            .click(kSave, QStringLiteral("#camerasettings_cancel"));
        save();
        FINISH(steps);
    }

    void overwritingCanBeRefused() {
        saveTo(path());
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray old = file.readAll();
        head().setRate(2000).result();
        ModalSteps steps(*m_test);
        steps.click(kSave, kOk)
            .press(QStringLiteral("No"))
            .click(kSave, QStringLiteral("#camerasettings_cancel"));
        save();
        FINISH(steps);
        file.seek(0);
        QCOMPARE(file.readAll(), old);
    }

    void aFailureToWriteIsTold() {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("gone"))));
        setPref("zcsx/path", m_folder.filePath(QStringLiteral("gone")));
        ModalSteps steps(*m_test);
        steps
            .run([this] {
                const bool ready =
                    m_test->viewer().calls().count(QStringLiteral("HostDocuments.listCameraKeys")) > 0;
                return ready && QDir().rmdir(m_folder.filePath(QStringLiteral("gone")));
            })
            .click(kSave, kOk)
            .press(QStringLiteral("OK"));
        save();
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(QStringLiteral("can't be written")),
                 qPrintable(steps.boxes().at(0)));
    }

    void whatCouldNotBeRestoredIsListed() {
        saveTo(path());
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray text = file.readAll();
        text.replace("\"rate\": 1000", "\"rate\": 1234");
        text.replace("\"partition\": 1", "\"partition\": 77");
        text.replace("600,", "5000,"); // the focus
        text.replace("\"channels\": [", "\"channels\": [{\"number\": 3, \"rate\": 7, \"size\": [10, 10]}");
        file.resize(0);
        file.write(text);
        file.close();
        m_test->viewer().rig().findName(QStringLiteral("Plover"))->unplug();
        m_test->viewer()
            .rig()
            .findName(QStringLiteral("Gemini"))
            ->set(QStringLiteral("name"), QStringLiteral("Twins"));
        m_test->settle();
        ModalSteps steps(*m_test);
        steps.run([this] { return choose(path()); }).press(QStringLiteral("OK"));
        load();
        FINISH(steps);
        const QString told = steps.boxes().at(0);
        QVERIFY2(!told.contains(QLatin1String("Gemini")),
                 qPrintable(told)); // it is known by its serial number
        for (const char* const line :
             {"Marlin: Partition: 77 \u2192 1", "Marlin: Variable 3: 7 fps, 10 x 10 \u2192 ---",
              "Marlin: Frame rate: 1234 fps \u2192 1000 fps", "Marlin: Focus: 5000 \u2192 1000",
              "Plover: this camera is not connected."}) {
            QVERIFY2(told.contains(QString::fromUtf8(line)), qPrintable(told));
        }
        QCOMPARE(head().settings().rate, 1000U);
    }

    void aBrokenFileTouchesNoCamera() {
        saveTo(path());
        QVERIFY(QFile::resize(path(), QFileInfo(path()).size() - 400));
        head().setRate(2000).result();
        const QJsonObject before = head().state();
        ModalSteps steps(*m_test);
        steps.run([this] { return choose(path()); }).press(QStringLiteral("OK"));
        load();
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(path()), qPrintable(steps.boxes().at(0)));
        QCOMPARE(head().state(), before);
    }

    void presetsAreStoredAndLoaded() {
        head().setRate(250).result();
        head("Plover").setRate(125).result();
        ModalSteps stores(*m_test);
        stores.click(kSave, kPresets)
            .click(kSave, presetRadio("Marlin", "2"))
            .click(kSave, presetRadio("Plover", "1"))
            .click(kSave, kOk);
        save();
        FINISH(stores);
        QCOMPARE(head().body()->currentPreset(), 2);
        head().setRate(2000).result();
        head("Plover").setRate(500).result();

        // One of the two has to start again for it.
        ModalSteps loads(*m_test);
        loads
            .run([] {
                if (!fileDialog()) {
                    return false;
                }
                fileDialog()->findChild<QCheckBox*>()->click();
                return true;
            })
            .run([] {
                for (QPushButton* const button : fileDialog()->findChildren<QPushButton*>()) {
                    if (button->isVisible() && button->isEnabled() && button->text() == QLatin1String("OK")) {
                        QTimer::singleShot(0, button, &QPushButton::click);
                        return true;
                    }
                }
                return false;
            })
            .press(QStringLiteral("OK"));
        load();
        FINISH(loads);
        QVERIFY2(loads.boxes().at(0).contains(QStringLiteral("Plover")), qPrintable(loads.boxes().at(0)));
        QCOMPARE(head().settings().rate, 250U);
        QVERIFY(!m_test->deviceRows().contains(QStringLiteral("Plover"))); // until a search finds it again
        SimulatedBody* const body = m_test->viewer().rig().findName(QStringLiteral("Plover"));
        body->powerOff();
        body->powerOn();
        QTRY_COMPARE(body->head()->settings().rate, 125U);
    }

    void aCameraLostBetweenTwoPresetsIsTold() {
        head("Plover").body()->faults().unplugDuringNext = true;
        ModalSteps steps(*m_test);
        steps.click(kSave, kPresets)
            .click(kSave, presetRadio("Marlin", "3"))
            .click(kSave, presetRadio("Plover", "1"))
            .click(kSave, kOk)
            .press(QStringLiteral("OK"))
            .expect(kSave, QStringLiteral("$('%1').prop('checked')").arg(presetRadio("Marlin", "3")))
            .click(kSave, QStringLiteral("#camerasettings_cancel"));
        save();
        FINISH(steps);
        QVERIFY2(steps.boxes().at(0).contains(QStringLiteral("Plover")), qPrintable(steps.boxes().at(0)));
        QCOMPARE(head().body()->currentPreset(), 3);
        QVERIFY(!head("Plover").body()->isConnected());
    }

    void aCameraWithoutALinkIsMarkedAndKeepsNoOtherFromItsPreset() {
        head().body()->storePreset(2).result(); // which would be stored again
        head().body()->unplug();
        m_test->settle();
        const QString row = QStringLiteral(".item[data-key=%1]").arg(m_test->keyOf(QStringLiteral("Marlin")));
        ModalSteps steps(*m_test);
        steps
            // The list can be scrolled while a file is the target.
            .expect(kSave, QStringLiteral("(r => $(document.elementFromPoint(r.left + 20, r.top + 20))"
                                          ".closest('.scroll').length === 1)"
                                          "($('#camerasettings_camera_lock')[0].getBoundingClientRect())"))
            .click(kSave, kPresets)
            .expect(kSave, QStringLiteral("$('%1').text().indexOf('Not connected') >= 0").arg(row))
            .expect(kSave, QStringLiteral("$('%1 input:enabled').length === 0").arg(row))
            .click(kSave, presetRadio("Plover", "1"))
            .click(kSave, kOk)
            .run([] { return !QApplication::activeModalWidget(); }); // no box comes
        save();
        FINISH(steps);
        QCOMPARE(head("Plover").body()->currentPreset(), 1);
    }

    void theFolderIsChosenInItsDialog() {
        const QString folder = m_folder.filePath(QStringLiteral("shots"));
        QVERIFY(QDir().mkpath(folder));
        ModalSteps steps(*m_test);
        steps.click(kSave, QStringLiteral("#camerasettings_path_edit"))
            .run([&] { return choose(folder); })
            .expect(kSave, QStringLiteral("$('#camerasettings_path').val() === '%1'").arg(folder))
            .click(kSave, QStringLiteral("#camerasettings_filename_edit"))
            .click(kSave, QStringLiteral("#camerasettings_filename_cancel"))
            .click(kSave, QStringLiteral("#camerasettings_cancel"));
        save();
        FINISH(steps);
        QCOMPARE(m_test->viewer().preferences().value(QStringLiteral("zcsx/path")).toString(), folder);
        QVERIFY(QDir(folder).isEmpty());
    }

    void cancelledLoadingLeavesTheCameras() {
        saveTo(path());
        head().setRate(2000).result();
        ModalSteps steps(*m_test);
        steps.run([] {
            if (fileDialog()) {
                QTimer::singleShot(0, fileDialog(), &QFileDialog::reject);
            }
            return fileDialog() != nullptr;
        });
        load();
        FINISH(steps);
        QCOMPARE(head().settings().rate, 2000U);
        bool prepared = false;
        for (const QJsonValue call : m_test->call("host.calls").toArray()) {
            const bool isIt =
                call[QStringLiteral("name")] == QLatin1String("HostApplication.prepareSettingsLoad");
            prepared = prepared || (isIt && call[QStringLiteral("args")].toArray() == QJsonArray{false});
        }
        QVERIFY(prepared);
    }

    void lowLightForbidsBoth() {
        head().setLowLight(true).result();
        m_test->answerNextBox(QStringLiteral("OK"));
        save();
        QCOMPARE(m_test->answeredBox(),
                 QStringLiteral("The setting can not be saved because low light ON camera is included."));
        m_test->answerNextBox(QStringLiteral("OK"));
        load();
        QCOMPARE(
            m_test->answeredBox(),
            QStringLiteral("The settings cannot be loaded because a camera with low light ON is included."));
    }
};

QTEST_MAIN(tst_SettingsFiles)
#include "tst_settings_files.moc"
