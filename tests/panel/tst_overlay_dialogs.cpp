// The dialogs of comment, custom time code, formats and digits in the viewer, with real mouse and key events.

#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/overlays/formats/GUI_FrameFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_ShutterSpeedFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/notes/GUI_CommentDialog.h"
#include "tests/support/ModalSteps.h"
#include "tests/support/NotesOver.h"
#include "tests/support/PanelTest.h"
#include "tests/support/Recordings.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/RecordingFile.h"
#include "viewer/recordings/TimeCodeRecord.h"
#include "viewer/views/DocumentText.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const QString kButton = QStringLiteral("#livecontrol_editCommentButton");
const QString kComment = QStringLiteral("Comment");
const QString kTimeCode = QStringLiteral("Current Time Setting");
const QString kText = QStringLiteral("#comment");
const QString kOk = QStringLiteral("#ok_btn");
const QString kCancel = QStringLiteral("#cancel_btn");
} // namespace

class tst_OverlayDialogs : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    std::unique_ptr<ModalSteps> m_steps;

    CameraDocument& camera(const char* name = "Marlin") { return m_test->camera(QLatin1String(name)); }
    HostObject* host() { return &m_test->viewer().host(); }
    QVariant pref(const char* key) { return m_test->viewer().preferences().value(QLatin1String(key)); }
    void selectBoth() {
        m_test->viewer().documents().selectKeepCurrent(&camera("Plover"));
        m_test->settle();
    }
    /// Opens a select box of the front dialog and chooses the row with this text, with the mouse.
    ModalSteps& choose(const QString& title, const QString& id, const QString& text) {
        return m_steps->click(title, QStringLiteral(".SumoSelect:has(%1) .CaptionCont").arg(id))
            .click(title, QStringLiteral(".SumoSelect:has(%1) li.opt:contains('%2')").arg(id, text));
    }
    ModalSteps& see(const QString& title, const QString& script) { return m_steps->expect(title, script); }
    ModalSteps& closeWindow() {
        return m_steps->run([] {
            QWidget* const front = QApplication::activeModalWidget();
            return front && front->isVisible() && front->close();
        });
    }

private slots:
    // One viewer for all of them, which each finds as it starts.
    void initTestCase() { m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json")); }
    void init() {
        m_test->viewer().documents().addAllCameras(); // that were removed
        m_test->selectOnly(QStringLiteral("Marlin"));
        for (CameraDocument* const each : m_test->viewer().documents().cameras()) {
            each->setComment(QString());
        }
        m_steps = std::make_unique<ModalSteps>(*m_test);
    }
    void cleanup() {
        m_steps.reset();
        const QJsonArray errors = m_test->call("page.errors").toArray();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }
    void cleanupTestCase() { m_test.reset(); }

    // --- Comment ---

    void aCommentStandsOverTheImageLineByLine() {
        m_steps->type(kComment, kText, QStringLiteral("<b>1</b>"))
            .key(kComment, QString(), QStringLiteral("Return"))
            .run([this] { // what no keyboard of the test has
                m_test->call("page.type",
                             {{QStringLiteral("selector"), QString()},
                              {QStringLiteral("text"),
                               QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d{Separator}\xe2\x9a\xa0")},
                              {QStringLiteral("dialog"), true}});
                return true;
            });
        see(kComment, QStringLiteral("$('#comment').val().indexOf('\u26a0') > 0 && $('b').length === 0 && "
                                     "!$('#documents').is(':visible')"));
        m_steps->click(kComment, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(notesOver(camera()), (QStringList{QStringLiteral("<b>1</b>"),
                                                   QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d"),
                                                   QStringLiteral("\u26a0")}));
        QCOMPARE(notesOver(camera("Plover")), QStringList());

        m_steps->expect(kComment, QStringLiteral("$('#comment').val().split('\\n').length === 3"))
            .click(kComment, kOk); // only looked at
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(notesOver(camera()).size(), 3);
    }

    void allSelectedCamerasGetTheComment() {
        camera("Plover").setComment(QStringLiteral("old"));
        selectBoth();
        see(kComment, QStringLiteral("$('#documents .ui-selected').length === 2 && "
                                     "$('#documents .current').text() === 'Marlin' && "
                                     "$('#hint').text().indexOf('all selected cameras') > 0"));
        m_steps->type(kComment, kText, QStringLiteral("both"))
            .key(kComment, QString(), QStringLiteral("Ctrl+Return")); // the field still has the focus
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QStringLiteral("both"));
        QCOMPARE(camera("Plover").comment(), QStringLiteral("both"));
    }

    // A comment that was only looked at keeps its own text.
    void eachCameraMayHaveItsOwn() {
        camera("Plover").setComment(QStringLiteral("old"));
        selectBoth();
        const QString plover = QStringLiteral("#documents tr:contains('Plover')");
        m_steps->click(kComment, QStringLiteral("#documents tr:contains('Marlin')"))
            .type(kComment, kText, QStringLiteral("mine"))
            .click(kComment, plover)
            .expect(kComment, QStringLiteral("$('#comment').val() === 'old' && $('#hint').text() === ''"))
            .key(kComment, plover, QStringLiteral("Up"))
            .key(kComment, QStringLiteral("#documents tr:eq(0)"), QStringLiteral("Down"))
            .click(kComment, QStringLiteral("#all_btn"))
            .expect(kComment, QStringLiteral("$('#documents .current').text() === 'Plover' && "
                                             "$('#comment').val() === 'old'"))
            .key(kComment, kText, QStringLiteral("Ctrl+Return"));
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QStringLiteral("mine"));
        QCOMPARE(camera("Plover").comment(), QStringLiteral("old"));
    }

    // From another dialog, whose document need not be among those that are open.
    void aGivenDocumentIsTheOneThatIsEdited() {
        m_steps->expect(kComment, QStringLiteral("$('#documents .ui-selected').text() === 'Plover'"))
            .type(kComment, kText, QStringLiteral("hers"))
            .click(kComment, kOk);
        GUI_CommentDialog(host(), camera("Plover").face()).exec();
        FINISH(*m_steps);
        QCOMPARE(camera().comment() + camera("Plover").comment(), QStringLiteral("hers"));
        m_steps
            ->expect(kComment, QStringLiteral("$('#comment').prop('disabled') && "
                                              "$('#hint').text() === 'Select a camera.'"))
            .click(kComment, QStringLiteral("#documents tr:contains('Marlin')"))
            .type(kComment, kText, QStringLiteral("his"))
            .click(kComment, kOk);
        GUI_CommentDialog(host(), camera("Spare").face()).exec();
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QStringLiteral("his"));
    }

    void everyWayOutButOkLeavesTheComment_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way : {"button", "escape", "window"}) {
            QTest::newRow(way) << QString::fromLatin1(way);
        }
    }
    void everyWayOutButOkLeavesTheComment() {
        QFETCH(QString, way);
        camera().setComment(QStringLiteral("kept"));
        m_steps->type(kComment, kText, QStringLiteral("lost"));
        if (way == QLatin1String("button")) {
            m_steps->click(kComment, kCancel);
        } else if (way == QLatin1String("escape")) {
            m_steps->key(kComment, QString(), QStringLiteral("Escape"));
        } else {
            closeWindow();
        }
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QStringLiteral("kept"));
    }

    // From what a document reports to what it gets back, through the page.
    void aLongCommentComesThroughWhole() {
        QString text;
        while (text.size() < 1000000) {
            text += QStringLiteral("line %1 of a very long test report\n").arg(text.size());
        }
        camera().setComment(text);
        QElapsedTimer timer;
        timer.start();
        m_steps->key(kComment, kText, QStringLiteral("Ctrl+Home"))
            .key(kComment, QString(), QStringLiteral("A"))
            .expect(kComment, QStringLiteral("$('#comment').val().charAt(0) === 'a'"))
            .click(kComment, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QLatin1Char('a') + text);
    }

    void aCameraThatGoesTakesItsCommentWithIt() {
        selectBoth();
        m_steps->type(kComment, kText, QStringLiteral("both"))
            .run([this] {
                m_test->viewer().documents().remove(&camera("Plover"));
                return true;
            })
            .click(kComment, kOk);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(camera().comment(), QStringLiteral("both"));
    }

    // A recording shows the comment that its camera had, and may get another one.
    void aRecordingHasAComment() {
        DocumentList& documents = m_test->viewer().documents();
        RecordingInfo info;
        info.camera = QStringLiteral("Tank");
        info.comment = QStringLiteral("before");
        FileDocument* const file = documents.addRecording(recordingOf(info, 1, QSize(8, 8)));
        documents.setMode(HOST_MODE_FILE);
        documents.setCurrent(file);
        m_test->settle();
        QCOMPARE(notesOver(*file), QStringList(QStringLiteral("before")));
        m_steps->type(kComment, kText, QStringLiteral("after")).click(kComment, kOk);
        GUI_CommentDialog(host(), file->face()).exec();
        FINISH(*m_steps);
        QCOMPARE(file->comment(), QStringLiteral("after"));
        QTemporaryDir folder;
        file->save(folder.filePath(QStringLiteral("a.rchx")));
        QCOMPARE(RecordingFile::open(file->path())->info().comment, QStringLiteral("after"));
        documents.remove(file);
        documents.setMode(HOST_MODE_LIVE);
    }

    void theButtonIsThereWhileInformationShows() {
        m_test->click(QStringLiteral("#livecontrol_showInfoCheckbox"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').prop('disabled')").arg(kButton)));
        m_test->click(QStringLiteral("#livecontrol_showInfoCheckbox"));
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').prop('disabled')").arg(kButton)));
        m_steps->click(kComment, kCancel);
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(m_test->logged(QStringLiteral("JS_Mediator_DeviceControl::editComment")).size(), 2);
        QVERIFY(!m_test->logged(QStringLiteral("[URL:qrc:/commentview.html] [ID:cancel_btn]")).isEmpty());
        const QString frame = QStringLiteral("[URL:GUI_CommentDialog] [ID:close]");
        QVERIFY(m_test->logged(frame).isEmpty()); // it was a button
        closeWindow();
        m_test->click(kButton);
        FINISH(*m_steps);
        QCOMPARE(m_test->logged(frame).size(), 1);
    }

    // --- Time code ---

    void aValueForEachFrameIsSet() {
        choose(kTimeCode, QStringLiteral("#kind"), QStringLiteral("Value in a unit"));
        m_steps->type(kTimeCode, QStringLiteral("#unit_text"), QStringLiteral("rad"))
            .type(kTimeCode, QStringLiteral("#one_frame"), QStringLiteral("-0,25"))
            .key(kTimeCode, QString(), QStringLiteral("Tab"))
            .expect(kTimeCode, QStringLiteral("$('#sample').val() === '-000.2500 rad'"))
            .type(kTimeCode, QStringLiteral("#start_value"), QStringLiteral("90"))
            .click(kTimeCode, QStringLiteral("#reset"))
            .type(kTimeCode, QStringLiteral("#reset_value"), QStringLiteral("360"))
            .key(kTimeCode, QString(), QStringLiteral("Tab"))
            .expect(kTimeCode, QStringLiteral("$('#reset_value').val() === '360'")); // frames are whole
        choose(kTimeCode, QStringLiteral("#reset_unit"), QStringLiteral("Value in the unit"))
            .expect(kTimeCode, QStringLiteral("$('#reset_value').val() === '0.0000'"))
            .click(kTimeCode, kOk);
        GUI_TimeCodeCustomDialog(host(), m_test->viewer().window()).exec();
        FINISH(*m_steps);
        const TimeCodeSetting setting = TimeCodeRecord::fromMap(pref("info/timeCode").toMap());
        QCOMPARE(setting.oneFrame, -0.25);
        QCOMPARE(setting.startValue, 90.0);
        QCOMPARE(setting.resetValue, 0.0);
        m_test->viewer().preferences().remove(TimeCodeRecord::kPreference);
        QVERIFY(setting.index == 1 && setting.reset && setting.displayUnit == QLatin1String("rad"));
        QVERIFY(!m_test
                     ->logged(QStringLiteral("[URL:qrc:/prefs_customize_timecode.html] [ID:one_frame] "
                                             "[Control:Spinner] [Operation:changed] [Value:-0.25]"))
                     .isEmpty());
    }

    void aTimeIsShownAsChosen() {
        choose(kTimeCode, QStringLiteral("#scope"), QStringLiteral("Microseconds"));
        choose(kTimeCode, QStringLiteral("#places"), QStringLiteral("6"));
        m_steps->click(kTimeCode, QStringLiteral("#divide"))
            .expect(kTimeCode, QStringLiteral("$('#sample').val() === '+2000.000 000 usec'"))
            .click(kTimeCode, QStringLiteral("#reset_btn"))
            .expect(kTimeCode, QStringLiteral("$('#sample').val() === '+00:00:00.002 '"))
            .key(kTimeCode, QString(), QStringLiteral("Escape"));
        GUI_TimeCodeCustomDialog dialog(host(), m_test->viewer().window());
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        FINISH(*m_steps);
        QVERIFY(!pref("info/timeCode").isValid());
    }

    // --- Formats ---

    void theShutterFollowsWhileItIsChosen() {
        const QString title = QStringLiteral("Shutter speed disp");
        const QString before = m_test->caption(QStringLiteral("#livecontrol_shutterspeed"));
        see(title, QStringLiteral("$('#unit').prop('disabled')"));
        choose(title, QStringLiteral("#format"), QStringLiteral("Exposure time"));
        choose(title, QStringLiteral("#unit"), QStringLiteral("Milliseconds")).run([this, before] {
            const QString now = m_test->caption(QStringLiteral("#livecontrol_shutterspeed"));
            return now != before && now.endsWith(QLatin1String(" ms"));
        });
        m_steps->click(title, kCancel);
        GUI_ShutterSpeedFormatDialog(host()).exec();
        FINISH(*m_steps);
        QCOMPARE(pref("display/ShutterSpeed").toInt(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")), before,
                                  60000);
    }

    // Tab, Space and Return do what the mouse does; Escape does nothing to them.
    void digitsAreGroupedByKey() {
        const QString rate = QStringLiteral("recordrate disp");
        see(rate, QStringLiteral("document.activeElement.id === 'ok_btn'"));
        m_steps->key(rate, QStringLiteral("#delimiter"), QStringLiteral("Space"))
            .expect(rate, QStringLiteral("$('#delimiter').prop('checked')"))
            .key(rate, QString(), QStringLiteral("Escape"))
            .key(rate, QString(), QStringLiteral("Return"));
        GUI_RecordRateFormatDialog(host(), m_test->viewer().window()).exec();
        FINISH(*m_steps);
        QVERIFY(pref("display/recordRateInsertDelimiter").toBool());
        QVERIFY(DocumentText::facts(camera()).first().contains(QLatin1Char(',')));

        const QString frames = QStringLiteral("frame disp");
        m_steps->click(frames, QStringLiteral("#delimiter")).click(frames, kOk);
        GUI_FrameFormatDialog(host()).exec();
        FINISH(*m_steps);
        QVERIFY(pref("display/frameInsertDelimiter").toBool());

        const QString time = QStringLiteral("Recording time disp");
        choose(time, QStringLiteral("#unit"), QStringLiteral("Milliseconds"));
        m_steps->click(time, kOk);
        GUI_RectimeFormatDialog(host()).exec();
        FINISH(*m_steps);
        QCOMPARE(pref("info/RecTimeUnit").toInt(), 2);
    }

    // --- Digits ---

    void digitsAreStoredByOkAlone() {
        const QString title = QStringLiteral("Adding a number");
        m_steps->type(title, QStringLiteral("#camera_digits"), QStringLiteral("2"))
            .type(title, QStringLiteral("#session_digits"), QStringLiteral("5"))
            .key(title, QString(), QStringLiteral("Tab"))
            .expect(title, QStringLiteral("$('#preview').val() === 'C01S00001' && "
                                          "!$('#modes').is(':visible')"))
            .key(title, kCancel, QStringLiteral("Return"));
        GUI_AddNumberDialog(host(), nullptr, 2, 12, 1).exec();
        FINISH(*m_steps);
        QCOMPARE(pref("export/filenameaddnumbercameranodigits").toInt(), 3);
        QCOMPARE(pref("export/filenameaddnumbersessionnodigits").toInt(), 4);

        m_steps->type(title, QStringLiteral("#camera_digits"), QStringLiteral("5"))
            .click(title, QStringLiteral("#auto"))
            .expect(title, QStringLiteral("$('#preview').val() === 'C01S0001' && "
                                          "$('#camera_digits').prop('disabled')"))
            .type(title, QStringLiteral("#session_digits"), QStringLiteral("2"))
            .key(title, QString(), QStringLiteral("Tab"))
            .click(title, QStringLiteral("#manual")) // brings back what was set there
            .expect(title, QStringLiteral("$('#preview').val() === 'C00001S01'"))
            .click(title, QStringLiteral("#auto"))
            .key(title, QStringLiteral("#session_digits"), QStringLiteral("Return"));
        GUI_AddNumberDialog(host(), nullptr, 0, 12, 1).exec();
        FINISH(*m_steps);
        QCOMPARE(pref("export/groupdiraddnumberformat").toString(), QStringLiteral("auto"));
        QCOMPARE(pref("export/groupdiraddnumbersessionnodigits").toInt(), 2);

        see(title, QStringLiteral("$('input:visible').length === 2")) // session and preview
            .click(title, kOk);
        GUI_AddNumberDialog(host(), nullptr, 5, 12, 1).exec();
        FINISH(*m_steps);
    }
};

QTEST_MAIN(tst_OverlayDialogs)
#include "tst_overlay_dialogs.moc"
