// What the window tells and offers. Each source of the bar below it alone brings its text up and takes it
// away.

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_app/RunningViewer.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/panes/RecordingList.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/export/ExportJobs.h"
#include "viewer/export/ExportRequest.h"
#include "viewer/views/DocumentArea.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

class TestMainWindow : public QObject, RunningViewer {
    Q_OBJECT

    QStatusBar& bar() { return *m_viewer->mainWindow().statusBar(); }
    /// What goes on; empty if nothing shows.
    QString busy() {
        const auto* const label = m_viewer->mainWindow().findChild<QLabel*>(QStringLiteral("busyText"));
        return label->isHidden() ? QString() : label->text();
    }
    bool shows(const QString& text) {
        const QList<QLabel*> labels = bar().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
    }

    /// The names of actions; "-" separates them.
    static QString namesOf(const QList<QAction*>& actions) {
        QStringList names;
        for (const QAction* const each : actions) {
            names += each->isSeparator()            ? QStringLiteral("-")
                     : each->objectName().isEmpty() ? each->text().remove(QLatin1Char('&'))
                                                    : each->objectName();
        }
        return names.join(QLatin1Char(' '));
    }
    FileDocument& addRecording() {
        RecordingInfo info;
        info.camera = QStringLiteral("Marlin");
        return *m_viewer->documents().addRecording(recordingOf(info, 2, QSize(4, 4)));
    }

private slots:
    void init() {
        prepare();
        m_options.rig = QStringLiteral(RIGS_FOLDER "/two-alike.json");
        start();
        bar().clearMessage();
    }
    void cleanup() { m_viewer.reset(); }

    void whatHasBeenDoneIsTold() {
        emit m_viewer->recordings().told(QStringLiteral("Kept"));
        QCOMPARE(bar().currentMessage(), QStringLiteral("Kept"));
        emit m_viewer->documents().told(QStringLiteral("Found"));
        QCOMPARE(bar().currentMessage(), QStringLiteral("Found"));
    }

    // It had no place while a message showed.
    void whatGoesOnShowsBehindAMessage() {
        DocumentArea& area = m_viewer->mainWindow().area();
        area.setBusyText(kInvalidDockey, QStringLiteral("Focus"));
        QCOMPARE(busy(), QStringLiteral("Focus"));
        area.setBusyText(kInvalidDockey, QString());
        QCOMPARE(busy(), QString());
        bar().showMessage(QStringLiteral("Kept"));
        area.setBusyText(kInvalidDockey, QStringLiteral("Focus"));
        QCOMPARE(busy(), QString());
        bar().clearMessage();
        QCOMPARE(busy(), QStringLiteral("Focus"));
    }

    void aJobTellsHowFarItIs() {
        ExportRequest request;
        request.source = recordingOf(RecordingInfo(), 5, QSize(4, 4));
        request.last = 4;
        request.path = m_folder->filePath(QStringLiteral("a.rchx"));
        m_viewer->jobs().start(request, QStringLiteral("Take"));
        QVERIFY(busy().startsWith(QStringLiteral("Take: ")) &&
                busy().endsWith(QStringLiteral(" of 5 frames")));
        QTRY_COMPARE(busy(), QString());
    }

    // Before any camera has answered, and without anybody waiting.
    void aSlowCameraIsNamed() {
        const QList<CameraDocument*> cameras = m_viewer->documents().cameras();
        m_viewer->documents().setSelection({cameras.first()});
        m_viewer->rig().bodies().first()->faults().delayMs = 1500;
        struct Shown : QObject {
            QStringList texts;
            bool eventFilter(QObject* label, QEvent* event) override {
                if (event->type() == QEvent::Show) {
                    texts += qobject_cast<QLabel*>(label)->text();
                }
                return false;
            }
        } shown;
        m_viewer->mainWindow().findChild<QLabel*>(QStringLiteral("busyText"))->installEventFilter(&shown);
        RecordingControl& recording = m_viewer->recording();
        recording.ready();
        QVERIFY(recording.isSending() && shown.texts.isEmpty()); // it may be quick
        QTRY_VERIFY(!recording.isSending());
        QCOMPARE(shown.texts, QStringList{QStringLiteral("Waiting for %1").arg(cameras.first()->title())});
        QCOMPARE(busy(), QString());
    }

    void theZoomIsThatOfTheImageThatShows() {
        action("zoomOne").trigger();
        QTRY_VERIFY(shows(QStringLiteral("100 %")));
    }

    void camerasAreCountedAndTheLostOnesNamed() {
        const QList<CameraDocument*> cameras = m_viewer->documents().cameras();
        const auto* const lost = bar().findChild<QLabel*>(QStringLiteral("lostLinks"));
        m_viewer->documents().setSelection({cameras[0]});
        QTRY_VERIFY(shows(QStringLiteral("2 cameras, 1 selected")) && lost->isHidden());
        m_viewer->documents().setSelection({cameras[0], cameras[1]});
        for (CameraDocument* const camera : cameras) {
            m_viewer->documents().setCurrent(camera);
            QVERIFY(m_viewer->mainWindow().windowTitle().startsWith(camera->title()));
            m_viewer->rig().findName(camera->title())->unplug();
        }
        QTRY_COMPARE(lost->text(), QStringLiteral("Not connected: Marlin, Merlin"));
        QVERIFY(lost->toolTip().contains(QLatin1String("Marlin")) &&
                lost->toolTip().contains(QLatin1String("Merlin")));
        for (SimulatedBody* const body : m_viewer->rig().bodies()) {
            body->plug();
            body->connectLink().result();
        }
        QTRY_VERIFY(lost->isHidden());
    }

    void eachToolHasItsPlace() {
        const auto& tools = *m_viewer->mainWindow().findChild<QToolBar*>(QStringLiteral("toolBar"));
        QStringList all{namesOf(tools.actions())};
        for (const QAction* const top : m_viewer->mainWindow().menuBar()->actions()) {
            all += top->text() + QLatin1Char(' ') + namesOf(top->menu()->actions());
        }
        const QStringList expected{
            QStringLiteral("live memory file - ready record stop play keep - tile single cycle full - "
                           "rotateLeft rotateRight "
                           "flipA flipB bin - zoomIn zoomOut zoomFit - undo redo - style language settings"),
            QStringLiteral(
                "&File open dialog:open dialog:storage - save dialog:save dialog:snapshot dialog:layout "
                "dialog:report dialog:convert savedView jobs - settings searchSettings - quit"),
            QStringLiteral("&Edit undo redo"),
            QStringLiteral("&Recording live memory file - ready record stop - play keep partition"),
            QStringLiteral("&Image rotateLeft rotateRight flipA flipB bin - zoomIn zoomOut zoomFit zoomOne - "
                           "Lookup table Saturation"),
            QStringLiteral(
                "&View tile single cycle full - panel info editInfo - toPanel toImage - style language - "
                "Side panel Simulated cameras Log"),
            QStringLiteral("&Help shortcuts - support - about")};
        QCOMPARE(all, expected);
    }

    void whatThereIsNoneOfCantBeChanged() {
        const auto disabled = [this] {
            QStringList found;
            for (const char* const name :
                 {"rotateLeft", "rotateRight", "flipA", "flipB",       "bin",       "zoomIn",    "zoomOut",
                  "zoomFit",    "zoomOne",     "lut1",  "saturation0", "savedView", "partition", "undo",
                  "redo",       "keep",        "play",  "save",        "stop",      "record"}) {
                found += action(name).isEnabled() ? QStringList() : QStringList(QLatin1String(name));
            }
            return found.join(QLatin1Char(' '));
        };
        const QString rest = QStringLiteral("undo redo keep play save stop record");
        QCOMPARE(disabled(), rest);
        ToolState& tools = m_viewer->documents().tools();
        for (const auto& [tool, actions] :
             {std::pair("rotation", "rotateLeft rotateRight "), std::pair("flip", "flipA flipB "),
              std::pair("binning", "bin ")}) {
            tools.setAllowed(QLatin1String(tool), false);
            QCOMPARE(disabled(), QLatin1String(actions) + rest);
            tools.setAllowed(QLatin1String(tool), true);
        }
        FileDocument& first = addRecording();
        FileDocument& second = addRecording();
        action("memory").trigger();
        QTRY_COMPARE(m_viewer->documents().mode(), HOST_MODE_MEMORY);
        for (FileDocument* const document : {&first, &second}) {
            emit m_viewer->mainWindow().findChild<RecordingList*>()->showAsked(document);
            QCOMPARE(m_viewer->documents().mode(), HOST_MODE_FILE);
            QCOMPARE(m_viewer->documents().current(), document);
        }
        QCOMPARE(disabled(), QStringLiteral("partition undo redo keep stop record"));
        m_viewer->documents().remove(&first);
        m_viewer->documents().remove(&second);
        QTRY_COMPARE(disabled().count(QLatin1Char(' ')), 19);
    }

    // Where the last one went, under what the recording is called; an ending of the older kind is taken.
    void aRecordingIsOfferedAFolderAndAName() {
        const FileDocument& recording = addRecording();
        action("file").trigger();
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("takes")));
        const QString path = m_folder->filePath(QStringLiteral("takes/one.rch"));
        QCOMPARE(boxesOf("save", path), QStringList());
        QTRY_VERIFY(QFile::exists(path) && recording.isSaved());
        QStringList offered;
        for (const char* const name : {"save", "open"}) {
            trigger(name, [&](QWidget& dialog) {
                offered += dynamic_cast<QFileDialog&>(dialog).directory().dirName() + QLatin1Char('/') +
                           dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
                dialog.close();
            });
        }
        QCOMPARE(offered.join(QLatin1Char(' ')), QStringLiteral("takes/one.rchx takes/"));
    }

    void whatFailsIsToldInWords() {
        action("ready").trigger();
        QTRY_VERIFY(m_viewer->recording().isAny(CameraState::Ready));
        m_viewer->rig().bodies().first()->faults().refuseNext(1, QStringLiteral("too hot"));
        QString told;
        answering(
            [&] {
                action("stop").trigger();
                QTRY_VERIFY(!told.isEmpty());
            },
            [&told](QWidget& box) {
                told = dynamic_cast<QMessageBox&>(box).text();
                box.close();
            });
        QCOMPARE(told, QString::fromUtf8("The operation failed: Stop the recording\n\n  • Marlin: too hot"));
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
