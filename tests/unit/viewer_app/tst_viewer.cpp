// The whole program, with the real plug-in: what its parts do together.

#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "simulator/device/Rig.h"
#include "simulator/files/RigFile.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_app/RunningViewer.h"
#include "tests/unit/viewer_app/WindowWords.h"
#include "viewer/app/LoadedPlugin.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/look/AppStyle.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

class TestViewer : public QObject, RunningViewer {
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void cleanup() { m_viewer.reset(); }

    void panelOpensWithTheProgram() {
        start();
        QCOMPARE(run("$('#panels').length").toInt(), 1);
        QCOMPARE(m_viewer->host().plugins().current(), &m_viewer->plugin()->get());
        QVERIFY(m_viewer->takeScriptErrors().isEmpty());
        QCOMPARE(m_viewer->mainWindow().area().windowKeys(true).size(), 1);
    }

    void camerasAreCounted() {
        m_options.rig = QStringLiteral(RIGS_FOLDER "/one-camera.json");
        start();
        QTRY_VERIFY(shows("1 camera, 1 selected"));
        m_viewer->rig().bodies().first()->unplug(); // its mark stays in the list
        QTRY_VERIFY(shows("Not connected: "));
        QVERIFY(shows("1 camera, 1 selected"));
    }

    void theFirstThatAreNotConnectedAreNamed() {
        start(); // with a dummy, which is never connected
        for (SimulatedBody* const body : m_viewer->rig().bodies()) {
            body->unplug();
        }
        QTRY_VERIFY(shows("Not connected: Marlin, Plover, Gemini Left (+1)"));
    }

    void recordingsAreSavedUnderTheirEnding() {
        startWithRecording();
        const QString plain = m_folder->filePath(QStringLiteral("take"));
        const QString full = plain + QStringLiteral(".rchx");
        QCOMPARE(boxesOf("save", plain), QStringList());
        QTRY_VERIFY(QFile::exists(full) && !QFile::exists(plain));
        // A file that would be replaced stays after a no, whatever was typed of its name.
        write(full, "other");
        write(plain + QStringLiteral(".v2.rchx"), "other");
        for (const QString& typed : {plain, full, plain + QStringLiteral(".v2")}) {
            const QStringList asked = boxesOf("save", typed);
            QCOMPARE(asked.size(), 1);
            QVERIFY2(asked.first().contains(QStringLiteral(".rchx")), qPrintable(asked.first()));
        }
        QCOMPARE(QFileInfo(full).size(), 5);
        QCOMPARE(QFileInfo(plain + QStringLiteral(".v2.rchx")).size(), 5);
        QVERIFY(!QFile::exists(plain + QStringLiteral(".v2")));
    }

    void failuresOfRecordingsNameFileAndReason() {
        startWithRecording();
        const QString junk = m_folder->filePath(QStringLiteral("junk.rchx"));
        const QString nowhere = m_folder->filePath(QStringLiteral("nope/x.rchx"));
        write(junk, "{\"no\": \"recording\"}");
        QCOMPARE(boxesOf("open", junk),
                 QStringList(QStringLiteral("File read failed.\n%1\nThe file is no recording.").arg(junk)));
        QCOMPARE(
            boxesOf("save", nowhere),
            QStringList(QStringLiteral("File write failed.\n%1\nThe folder does not exist.").arg(nowhere)));
        m_viewer->preferences().setValue(QStringLiteral("env/language"), QStringLiteral("ja"));
        m_viewer->logLines(true);
        QCOMPARE(boxesOf("open", junk),
                 QStringList(QString::fromUtf8("ファイルの読み込みに失敗しました。\n%1\n"
                                               "撮影データのファイルではありません。")
                                 .arg(junk)));
        int english = 0;
        for (const auto& line : m_viewer->logLines(false)) {
            english += line.text == junk + QStringLiteral(": The file is no recording.") ? 1 : 0;
        }
        QCOMPARE(english, 1);
    }

    void preferencesThatAreNotKeptAreTold() {
        start();
        QString told;
        answering(
            [this] {
                emit dynamic_cast<FilePreferences&>(m_viewer->preferences())
                    .writeFailed(QStringLiteral("Full"));
            },
            [&told](QWidget& box) {
                told = dynamic_cast<QMessageBox&>(box).text();
                box.close();
            });
        QCOMPARE(told, QStringLiteral("Full"));
    }

    // The live panel serves live mode; it comes back on the page that it was left on.
    void panelLeavesAndComesBackWithTheMode() {
        start();
        run("$('#livecontrol_open_devicesetting').click()");
        QCOMPARE(m_viewer->plugin()->get().getLastPage(), 1);
        m_viewer->recording().setMode(HOST_MODE_FILE);
        QVERIFY(!m_viewer->panelView().plugin());
        QVERIFY(!m_viewer->panelView().isVisible());
        QVERIFY(shows("Ctrl+1")); // which leads back to it
        m_viewer->recording().setMode(HOST_MODE_LIVE);
        QTRY_VERIFY(m_viewer->panelView().isPageOpen());
        QVERIFY(run("$('#livecontrol_page_devicesetting').is(':visible')").toBool());
        // The way back is another one in each mode, whenever it was closed.
        m_viewer->mainWindow().action(QStringLiteral("panel"))->trigger();
        QVERIFY(shows("Ctrl+P"));
        m_viewer->recording().setMode(HOST_MODE_MEMORY);
        QVERIFY(shows("Ctrl+1") && !shows("Ctrl+P"));
    }

    void panelCanBeClosedAndOpenedByHand() {
        start();
        QAction* const action = m_viewer->mainWindow().action(QStringLiteral("panel"));
        QTRY_VERIFY(action->isChecked());
        action->trigger();
        QVERIFY(!m_viewer->panelView().isPageOpen());
        action->trigger();
        QTRY_VERIFY(m_viewer->panelView().isPageOpen());
    }

    void languageReachesWindowAndPage() {
        start();
        QCOMPARE(run("$('#panels h2:visible').text()").toString(), QStringLiteral("Live control"));
        QVERIFY(
            wordsOn(m_viewer->mainWindow()).contains(QStringLiteral("One frame back"))); // hidden parts too
        m_viewer->preferences().setValue(QStringLiteral("env/language"), QStringLiteral("ja"));
        QTRY_VERIFY(m_viewer->panelView().isPageOpen());
        QCOMPARE(run("$('#panels h2:visible').text()").toString(), QString::fromUtf8("ライブコントロール"));
        QCOMPARE(m_viewer->mainWindow().action(QStringLiteral("record"))->text(), QString::fromUtf8("撮影"));
        // Every widget says what it would say after a start in that language.
        QStringList left;
        for (const QString& text : wordsOn(m_viewer->mainWindow())) {
            if (translated(text.toUtf8().constData()) != text) {
                left.append(text);
            }
        }
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QStringLiteral(" | "))));
        QVERIFY(m_viewer->takeScriptErrors().isEmpty());
    }

    void styleReachesWindowAndPage() {
        start();
        QVERIFY(AppStyle::isDark());
        m_viewer->mainWindow().action(QStringLiteral("style"))->trigger();
        QVERIFY(!AppStyle::isDark());
        QCOMPARE(run("$('html').hasClass('style-light')").toBool(), true);
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 128);
    }

    void commandLineAndReplaySpeedAreRemembered() {
        m_options.style = QStringLiteral("light");
        m_options.language = QStringLiteral("ja");
        start();
        const auto replayRate = [this] { return m_viewer->mainWindow().area().pacer().playbackRate(); };
        QCOMPARE(replayRate(), 30);
        m_viewer->preferences().setValue(QStringLiteral("recording/playbackRate"), 60);
        QCOMPARE(replayRate(), 60);
        QCOMPARE(m_viewer->mainWindow().findChild<QSpinBox*>(QStringLiteral("playSpeed"))->value(), 60);
        m_viewer.reset();
        m_options.style.clear();
        m_options.language.clear();
        start();
        QVERIFY(!AppStyle::isDark());
        QCOMPARE(replayRate(), 60);
        QCOMPARE(m_viewer->preferences().value(QStringLiteral("env/language")).toString(),
                 QStringLiteral("ja"));
    }

    // With no settings yet: what the dialog shows holds in the panel, so OK on it changes nothing.
    void preferencesAndPanelAgreeFromTheStart() {
        start();
        const char* const shown =
            "$('#livecontrol_framerate')[0].sumo.select.find('.CaptionCont > span').text() + "
            "livecontrol.getControlStatus()";
        const QString before = run(shown).toString();
        QVERIFY2(before.contains(QStringLiteral("\"IsLiveNoAutoDownloadSetting\":false")),
                 qPrintable(before));
        const QStringList keys = m_viewer->preferences().keys();
        bool keeps = false;
        trigger("settings", [&keeps](QWidget& dialog) {
            for (const QCheckBox* const box : dialog.findChildren<QCheckBox*>()) {
                keeps |= box->text() == QLatin1String("Keep each recording when it ends") && box->isChecked();
            }
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        QVERIFY(keeps);
        QCoreApplication::processEvents();
        QCOMPARE(run(shown).toString(), before);
        QCOMPARE(m_viewer->preferences().keys(), keys);
    }

    void missingPluginIsToldAndTheProgramGoesOn() {
        m_options.plugin = m_folder->filePath(QStringLiteral("none.zel"));
        m_viewer = std::make_unique<Viewer>(m_options);
        m_viewer->start();
        QVERIFY(!m_viewer->plugin());
        const QLabel* note = nullptr;
        for (const QLabel* const label : m_viewer->mainWindow().findChildren<QLabel*>()) {
            note = label->text().contains(QStringLiteral("none.zel")) ? label : note;
        }
        QVERIFY(note && note->isVisible());
        m_viewer->recording().setMode(HOST_MODE_FILE);
        m_viewer->recording().setMode(HOST_MODE_LIVE);
    }

    void brokenPreferencesAreTold() {
        QFile file(m_folder->filePath(QStringLiteral("settings.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[env]\nlanguage=\"en\"\nstyle\n");
        file.close();
        bool told = false;
        answering([this] { start(); },
                  [&told](QWidget& box) {
                      told = true;
                      box.close();
                  });
        QVERIFY(told);
    }

    void phaseWarningReachesThePlugin() {
        start();
        // By name: the module has a meta-object of its own for the mediator's class.
        QSignalSpy spy(m_viewer->plugin()->get().getMediator(), SIGNAL(signalPhaseAdjustWarning()));
        QVERIFY(spy.isValid());
        for (QCheckBox* const box : m_viewer->mainWindow().rigDock().findChildren<QCheckBox*>()) {
            if (box->text() == QLatin1String("Phase warning")) {
                QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
                QVERIFY(box->isChecked());
            }
        }
        QTRY_COMPARE(spy.count(), 1);
    }

    // Undo takes back the turn and leaves the zoom, which the user has set since.
    void turnsAreUndone() {
        start();
        MainWindow& window = m_viewer->mainWindow();
        QAction* const undo = window.action(QStringLiteral("undo"));
        QVERIFY(!undo->isEnabled());
        window.action(QStringLiteral("rotateRight"))->trigger();
        window.action(QStringLiteral("flipA"))->trigger();
        Document* const document = m_viewer->documents().current();
        QCOMPARE(document->view().quarterTurns, 1);
        QVERIFY(document->view().flipA);
        QTRY_VERIFY(window.area().currentView());
        window.area().currentView()->setZoom(2);
        undo->trigger();
        undo->trigger();
        QCOMPARE(document->view().quarterTurns, 0);
        QVERIFY(!document->view().flipA);
        QCOMPARE(document->view().zoom, 2.0);
        QVERIFY(!undo->isEnabled());
        window.action(QStringLiteral("redo"))->trigger();
        QCOMPARE(document->view().quarterTurns, 1);
    }

    void aNarrowToolBarShowsThatThereIsMore() {
        start();
        MainWindow& window = m_viewer->mainWindow();
        window.resize(window.minimumSizeHint());
        auto* const more = window.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
        QTRY_VERIFY(more && more->isVisible());
        const QImage shown = more->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        const auto* const first = shown.constBits();
        QVERIFY(std::count_if(first, first + shown.sizeInBytes(), [](uchar gray) { return gray > 160; }) >
                10);
    }

    void placesAreKept() {
        start();
        m_viewer->mainWindow().action(QStringLiteral("single"))->trigger();
        m_viewer->mainWindow().setInfoShown(false);
        QVERIFY(m_viewer->mainWindow().windowTitle().startsWith(m_viewer->documents().current()->title()));
        // Of the docks those that the menu of views shows or hides.
        const auto isShown = [this](const char* name) {
            return m_viewer->mainWindow().findChild<QDockWidget*>(QLatin1String(name))->isVisible();
        };
        const bool isLogShown = isShown("logDock");
        const bool isRigShown = isShown("rigDock");
        int found = 0;
        for (QMenu* const menu : m_viewer->mainWindow().menuBar()->findChildren<QMenu*>()) {
            for (QAction* const entry : menu->actions()) {
                const QString text = entry->text().remove(QLatin1Char('&'));
                if (text == QLatin1String("Log") || text == QLatin1String("Simulated cameras")) {
                    entry->trigger();
                    ++found;
                }
            }
        }
        QCOMPARE(found, 2);
        QVERIFY(isShown("logDock") != isLogShown && isShown("rigDock") != isRigShown);
        m_viewer->mainWindow().close();
        m_viewer.reset();
        start();
        QCOMPARE(m_viewer->mainWindow().area().arrangement(), DocumentArea::Arrangement::Single);
        QVERIFY(!m_viewer->mainWindow().isInfoShown());
        QVERIFY(isShown("logDock") != isLogShown && isShown("rigDock") != isRigShown);
        m_viewer->mainWindow().action(QStringLiteral("tile"))->trigger();
        m_viewer->mainWindow().setInfoShown(true);
        m_viewer->mainWindow().close();
        m_viewer.reset();
        start();
        QCOMPARE(m_viewer->mainWindow().area().arrangement(), DocumentArea::Arrangement::Tile);
        QVERIFY(m_viewer->mainWindow().isInfoShown());
    }

    // What is wrong with a rig file stands on stderr with the line, and the exit code says so.
    void wrongRigEndsTheProgram() {
        const QString path = m_folder->filePath(QStringLiteral("rig.json"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\n  \"cameras\": [\n    {\"name\": \"A\", \"model\": \"no such model\", \"address\": "
                   "\"10.0.0.1\"}\n  ]\n}\n");
        file.close();
        QCOMPARE(exitCodeOf({QStringLiteral("--rig"), path}), 2);
        QVERIFY2(m_stderr.contains(QStringLiteral("rig.json")) && m_stderr.contains(QStringLiteral("3")),
                 qPrintable(m_stderr));
        QCOMPARE(exitCodeOf({QStringLiteral("--rig"), m_folder->filePath(QStringLiteral("absent.json"))}), 2);
        QVERIFY2(m_stderr.contains(QStringLiteral("absent.json")), qPrintable(m_stderr));
        QCOMPARE(exitCodeOf({QStringLiteral("--style"), QStringLiteral("blue")}), 2);
        QCOMPARE(exitCodeOf({QStringLiteral("--help")}), 0);
    }

private:
    void startWithRecording() {
        start();
        RecordingInfo info;
        info.camera = QStringLiteral("Marlin");
        m_viewer->documents().addRecording(recordingOf(info, 1, QSize(4, 4)));
        m_viewer->recording().setMode(HOST_MODE_FILE);
    }

    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    bool shows(const char* text) {
        const QList<QLabel*> labels = m_viewer->mainWindow().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [text](const QLabel* label) {
            return label->isVisible() && label->text().contains(QLatin1String(text));
        });
    }

    int exitCodeOf(const QStringList& arguments) {
        QProcess program;
        program.start(QStringLiteral(VIEWER_PROGRAM),
                      QStringList{QStringLiteral("--settings"), m_folder->path()} + arguments);
        if (!program.waitForFinished(20000)) {
            return -1;
        }
        m_stderr = QString::fromUtf8(program.readAllStandardError());
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -2;
    }

    QString m_stderr;
};

QTEST_MAIN(TestViewer)
#include "tst_viewer.moc"
