// What the menus and the tool bar of the main window do.

#include "tests/support/Recordings.h"
#include "tests/unit/viewer_app/RunningViewer.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/jobs/JobsDialog.h"
#include "viewer/app/look/MenuKeys.h"
#include "viewer/app/panes/RigDock.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>

class TestViewerActions : public QObject, RunningViewer {
    Q_OBJECT

private slots:
    void init() { prepare(); }
    void cleanup() { m_viewer.reset(); }

    void theImageIsTurnedMirroredAndReduced() {
        start();
        const auto view = [this] { return m_viewer->documents().current()->view(); };
        action("rotateLeft").trigger();
        QCOMPARE(view().quarterTurns, 3);
        action("rotateRight").trigger();
        QCOMPARE(view().quarterTurns, 0);
        action("flipB").trigger();
        QVERIFY(view().flipB && !view().flipA && action("flipB").isChecked());
        action("lut2").trigger();
        action("saturation1").trigger();
        QCOMPARE(view().tones.lut, 2);
        QCOMPARE(view().tones.saturation, 50);
        QVERIFY(action("lut2").isChecked() && !action("lut0").isChecked());
        QVERIFY(action("saturation1").isChecked() && !action("saturation2").isChecked());
        for (const int binning : {1, 2, 3, 0}) {
            action("bin").trigger();
            QCOMPARE(view().binning, binning);
            const QString tip = action("bin").toolTip();
            QVERIFY2(binning == 0 ? tip.contains(QLatin1String("Ctrl+B"))
                                  : tip.contains(QStringLiteral("%1 by %1").arg(1 << binning)),
                     qPrintable(tip));
        }
    }

    void theImageIsMadeLargerAndSmaller() {
        start();
        const auto zoom = [this] { return m_viewer->documents().current()->view().zoom; };
        action("zoomOne").trigger();
        QTRY_COMPARE(zoom(), 1.0);
        action("zoomIn").trigger();
        QTRY_VERIFY(zoom() > 1);
        action("zoomOut").trigger();
        QTRY_COMPARE(zoom(), 1.0);
        action("zoomOut").trigger();
        QTRY_VERIFY(zoom() < 1);
        action("zoomFit").trigger();
        const double fitting = zoom();
        m_viewer->mainWindow().resize(m_viewer->mainWindow().size() * 0.8);
        QTRY_VERIFY(zoom() < fitting); // stays fitted
    }

    void windowsAreArranged() {
        m_options.rig = QStringLiteral(RIGS_FOLDER "/two-alike.json");
        start();
        DocumentArea& area = m_viewer->mainWindow().area();
        QCOMPARE(run("selected_cameras.currentKey()").toString(), QString()); // there is but one
        m_viewer->documents().setSelection(m_viewer->documents().documents());
        QCOMPARE(run("selected_cameras.currentKey()").toString(),
                 QString::number(m_viewer->documents().currentKey()));
        const auto* const shown = m_viewer->mainWindow().rigDock().findChild<QGroupBox*>();
        for (Document* const document : m_viewer->documents().documents()) {
            m_viewer->documents().setCurrent(document); // the dock of its hands follows
            QVERIFY(shown->title().endsWith(document->body()->name()));
        }
        action("single").trigger();
        QCOMPARE(area.windowCount(true), 1);
        QVERIFY(action("single").isChecked());
        action("tile").trigger();
        QCOMPARE(area.windowCount(true), 2);
        action("cycle").trigger();
        QVERIFY(area.isCycling() && action("cycle").isChecked());
        action("cycle").trigger();
        QVERIFY(!area.isCycling() && !action("cycle").isChecked());
        action("full").trigger();
        QTRY_VERIFY(m_viewer->mainWindow().isFullScreen() && action("full").isChecked());
        action("full").trigger();
        QTRY_VERIFY(!m_viewer->mainWindow().isFullScreen() && !action("full").isChecked());
        action("info").trigger();
        QVERIFY(!m_viewer->mainWindow().isInfoShown() && !action("info").isChecked());
        action("info").trigger();
        QVERIFY(m_viewer->mainWindow().isInfoShown());
    }

    void theKeyboardGoesToThePanelAndBack() {
        start();
        m_viewer->mainWindow().activateWindow();
        QTRY_VERIFY(QApplication::activeWindow());
        action("toPanel").trigger();
        QTRY_VERIFY(m_viewer->panelView().isAncestorOf(QApplication::focusWidget()));
        action("toImage").trigger();
        QTRY_COMPARE(QApplication::focusWidget(), m_viewer->mainWindow().area().currentView());
    }

    void modesAndReplayFollowTheirButtons() {
        start();
        RecordingControl& recording = m_viewer->recording();
        QVERIFY(!action("play").isEnabled());
        m_viewer->documents().addRecording(recordingOf(RecordingInfo(), 5, QSize(4, 4)));
        action("file").trigger();
        QCOMPARE(recording.mode(), HOST_MODE_FILE);
        QVERIFY(action("file").isChecked() && !action("live").isChecked() && !action("panel").isEnabled());
        const Document* const current = m_viewer->documents().current();
        action("play").trigger();
        QVERIFY(current->isPlaying() && action("play").isChecked());
        action("play").trigger();
        QVERIFY(!current->isPlaying() && !action("play").isChecked());
        QVERIFY(action("save").isEnabled());
        QVERIFY(action("dialog:storage").toolTip().contains(QLatin1String("live and memory mode")));
        action("memory").trigger();
        QCOMPARE(recording.mode(), HOST_MODE_MEMORY);
        QVERIFY(!action("save").isEnabled());
        action("live").trigger();
        QCOMPARE(recording.mode(), HOST_MODE_LIVE);
        action("ready").trigger();
        QTRY_VERIFY(recording.isAny(CameraState::Ready) && action("record").isEnabled());
        for (const char* const name : {"ready", "live", "memory", "file", "partition"}) {
            QVERIFY2(!action(name).isEnabled(), name);
        }
        action("stop").trigger();
        QTRY_VERIFY(action("ready").isEnabled() && !action("stop").isEnabled());
        QVERIFY(action("partition").isEnabled());
    }

    void theReplayHasARange() {
        start();
        m_viewer->documents().addRecording(recordingOf(RecordingInfo(), 5, QSize(4, 4)));
        action("file").trigger();
        Document* const current = m_viewer->documents().current();
        const auto press = [this](const char* button) {
            m_viewer->mainWindow().findChild<QAbstractButton*>(QLatin1String(button))->click();
        };
        const auto played = [current] { return qMakePair(current->firstPlayed(), current->lastPlayed()); };
        current->setPlayPosition(1);
        press("rangeOut");
        QCOMPARE(played(), qMakePair(0, 1));
        current->setPlayPosition(3); // behind the end, which makes way
        press("rangeIn");
        QCOMPARE(played(), qMakePair(3, 4));
        current->setPlayPosition(2);
        press("rangeOut");
        QCOMPARE(played(), qMakePair(2, 2));
        press("rangeAll");
        QCOMPARE(played(), qMakePair(0, 4));
        press("toTrigger");
        QCOMPARE(current->playPosition(), current->triggerIndex());
    }

    void aPulseAtTheSocketCountsIfThePreferencesSaySo() {
        start();
        RecordingControl& recording = m_viewer->recording();
        action("ready").trigger();
        QTRY_VERIFY(recording.isAny(CameraState::Ready));
        for (const bool counts : {false, true}) {
            m_viewer->preferences().setValue(QStringLiteral("io/externalTrigger"), counts);
            for (QPushButton* const button : m_viewer->mainWindow().rigDock().findChildren<QPushButton*>()) {
                if (button->text() == QLatin1String("Trigger pulse")) {
                    button->click();
                }
            }
            QCOMPARE(recording.isAny(CameraState::Recording), counts);
        }
        action("stop").trigger();
        QTRY_VERIFY(!action("stop").isEnabled() && action("live").isEnabled());
        QTRY_COMPARE(recording.mode(), HOST_MODE_MEMORY); // where the shot shows
        action("live").trigger();
        QTRY_VERIFY(action("ready").isEnabled());
    }

    void styleAndLanguageGoThereAndBack() {
        start();
        const Preferences& preferences = m_viewer->preferences();
        for (const char* const expected : {"light", "dark"}) {
            action("style").trigger();
            QCOMPARE(preferences.value(QStringLiteral("env/style")).toString(), QLatin1String(expected));
        }
        for (const char* const expected : {"ja", "en"}) {
            action("language").trigger();
            QCOMPARE(preferences.value(QStringLiteral("env/language")).toString(), QLatin1String(expected));
            QCoreApplication::processEvents(); // in which the texts follow
            QCOMPARE(m_viewer->host().getPowerWaitDialog()->windowTitle() == QLatin1String("Camera power"),
                     QLatin1String(expected) == QLatin1String("en"));
            QStringList latin; // what is not in Japanese
            trigger("shortcuts", [&latin](QWidget& window) {
                const auto* const keys = window.findChild<QTreeWidget*>();
                for (int i = 0; i < keys->topLevelItemCount(); ++i) {
                    const QString text = keys->topLevelItem(i)->text(1);
                    latin += QString::fromLatin1(text.toLatin1()) == text ? QStringList(text) : QStringList();
                }
                window.close();
            });
            QVERIFY2(QLatin1String(expected) == QLatin1String("ja") ? latin.size() < 3 : latin.size() > 40,
                     qPrintable(latin.join(QLatin1Char('|'))));
        }
        QTRY_VERIFY(m_viewer->panelView().isPageOpen());
    }

    void toolTipsNameTheKey() {
        start();
        QCOMPARE(action("live").toolTip(), action("live").text() + QStringLiteral(" (Ctrl+1)"));
        QCOMPARE(action("savedView").toolTip(), action("savedView").text()); // has none
    }

    // Each of them opens its own window, and is told by its title.
    void eachWindowIsOpenedByItsEntry() {
        start();
        m_viewer->documents().addRecording(recordingOf(RecordingInfo(), 5, QSize(4, 4)));
        const auto titleOf = [this](const char* name) {
            QString title;
            trigger(name, [&title](QWidget& window) {
                title = window.windowTitle();
                auto* const buttons = window.findChild<QDialogButtonBox*>();
                if (buttons && buttons->button(QDialogButtonBox::Close)) {
                    buttons->button(QDialogButtonBox::Close)->click();
                    title += window.isVisible() ? QStringLiteral(" stays") : QString();
                }
                window.close();
            });
            return title;
        };
        QCOMPARE(titleOf("settings"), QStringLiteral("Preferences"));
        QCOMPARE(titleOf("shortcuts"), QStringLiteral("Keys"));
        QCOMPARE(titleOf("about"), QStringLiteral("About ZEL viewer"));
        QCOMPARE(titleOf("dialog:storage"), QStringLiteral("Camera storage"));
        QCOMPARE(titleOf("dialog:snapshot"), QStringLiteral("Snapshot"));
        QCOMPARE(titleOf("open"), QStringLiteral("Open recording..."));
        QCOMPARE(titleOf("searchSettings"), QStringLiteral("Camera search settings"));
        QCOMPARE(titleOf("support"), QStringLiteral("Confirmation"));
        QCOMPARE(titleOf("savedView"), QStringLiteral("edit information"));
        QCOMPARE(titleOf("editInfo"), QStringLiteral("edit information"));
        QStringList keys;
        trigger("shortcuts", [&keys](QWidget& window) {
            auto* const list = window.findChild<QTreeWidget*>();
            for (int i = 0; i < list->topLevelItemCount(); ++i) {
                keys.append(list->topLevelItem(i)->text(0) + QLatin1Char('|') +
                            list->topLevelItem(i)->text(1));
            }
            window.close();
        });
        QVERIFY(keys.contains(QStringLiteral("F5|Record ready")));
        QVERIFY(keys.contains(QStringLiteral("F2|Edit the camera")));
        QCOMPARE(keys.removeDuplicates(), 0);
        QVERIFY(QStringList(keys.mid(0, keys.indexOf(QStringLiteral("Ctrl+Q|Quit")) + 1))
                    .replaceInStrings(QRegularExpression(QStringLiteral("\\|.*")), QString())
                    .join(QLatin1Char(' ')) ==
                QLatin1String(
                    "Ctrl+1 Ctrl+2 Ctrl+3 F5 F6 F7 Ctrl+K F8 Ctrl+T Ctrl+G F11 Ctrl+P F4 Shift+F4 Ctrl+I "
                    "Ctrl+L Ctrl+R Ctrl++ Ctrl+- Ctrl+0 Ctrl+9 Ctrl+B Ctrl+O Ctrl+S Ctrl+J Ctrl+Shift+O "
                    "Ctrl+Shift+S Ctrl+Z Ctrl+Shift+Z Ctrl+, F1 Ctrl+Q"));
        // The mode of files holds once something is opened, not before.
        QVERIFY(!titleOf("dialog:open").isEmpty());
        QCOMPARE(m_viewer->recording().mode(), HOST_MODE_LIVE);
        action("jobs").trigger();
        QVERIFY(m_viewer->mainWindow().findChild<JobsDialog*>()->isVisible());
    }

    // All that are not saved, each under what it is; a number where two are alike or one is there.
    void allRecordingsAreSavedAtOnce() {
        start();
        RecordingInfo info;
        info.camera = QStringLiteral("Mar/lin");
        info.triggered = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7));
        for (int i = 0; i < 2; ++i) {
            m_viewer->documents().addRecording(recordingOf(info, 2, QSize(4, 4)));
        }
        action("file").trigger();
        const QString folder = m_folder->filePath(QStringLiteral("kept"));
        QVERIFY(QDir().mkpath(folder));
        const auto saveAll = [&] {
            QCOMPARE(boxesOf([this] { emit m_viewer->mainWindow().saveAllAsked(); }, folder), QStringList());
        };
        saveAll();
        const auto saved = [&] { return QDir(folder).entryList(QDir::Files, QDir::Name); };
        const QStringList both{QStringLiteral("Mar_lin 2026-03-04 05-06-07 (2).rchx"),
                               QStringLiteral("Mar_lin 2026-03-04 05-06-07.rchx")};
        QTRY_COMPARE(saved(), both);
        for (const FileDocument* const document : m_viewer->documents().recordings()) {
            QTRY_VERIFY(document->isSaved());
        }
        saveAll();
        QCOMPARE(saved(), both);
        info.camera = QStringLiteral("Other");
        m_viewer->documents().addRecording(recordingOf(info, 2, QSize(4, 4)));
        saveAll();
        QTRY_COMPARE(saved().size(), 3);
        // And opened again: what is cut off is said, what is whole is not.
        QFile cut(folder + QLatin1Char('/') + both.last());
        QVERIFY(cut.resize(cut.size() - 40));
        const int before = m_viewer->documents().recordings().size();
        action("live").trigger();
        const QStringList told =
            boxesOf("open", QStringLiteral("\"%1\" \"%2\"").arg(both.first(), both.last()));
        QCOMPARE(m_viewer->documents().recordings().size(), before + 2);
        QCOMPARE(m_viewer->recording().mode(), HOST_MODE_FILE);
        QCOMPARE(told.size(), 1);
        QVERIFY2(told.first().contains(QLatin1String("cut off")), qPrintable(told.first()));
    }

    void menusGiveEachEntryAKey() {
        QMenu menu;
        giveMenuKeys(menu);
        for (const char* const text : {"Save", "Stop && go", "&Sat", "撮影", "保存(&H)", "aaa", "(&B)x"}) {
            menu.addAction(QString::fromUtf8(text));
        }
        menu.addSeparator();
        menu.addAction(QStringLiteral("Sounds"))->setVisible(false);
        QStringList texts;
        for (int i = 0; i < 2; ++i) { // the second time as the first
            emit menu.aboutToShow();
            texts.clear();
            for (const QAction* const entry : menu.actions()) {
                texts += entry->text();
            }
            QCOMPARE(texts, QStringList({QStringLiteral("&Save"), QStringLiteral("S&top && go"),
                                         QStringLiteral("S&at"), QString::fromUtf8("撮影(&B)"),
                                         QString::fromUtf8("保存(&C)"), QStringLiteral("aaa(&D)"),
                                         QStringLiteral("(B)&x"), QString(), QStringLiteral("Sounds")}));
        }
    }

    void eachEntryOfTheMenusHasItsKey() {
        start();
        for (const QAction* const top : m_viewer->mainWindow().menuBar()->actions()) {
            emit top->menu()->aboutToShow();
            QSet<QChar> letters;
            for (const QAction* const entry : top->menu()->actions()) {
                if (!entry->isSeparator()) {
                    const int key = entry->text().indexOf(QLatin1Char('&'));
                    QVERIFY2(key >= 0, qPrintable(entry->text()));
                    const QChar letter = entry->text().at(key + 1).toUpper();
                    QVERIFY2(!letters.contains(letter), qPrintable(entry->text()));
                    letters.insert(letter);
                }
            }
        }
    }
};

QTEST_MAIN(TestViewerActions)
#include "tst_viewer_actions.moc"
