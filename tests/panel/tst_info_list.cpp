// The dialogs on the information over the image and on that of saved pictures, in the viewer, with real mouse
// and key events.

#include "tests/support/ModalSteps.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/SavedPictures.h"
#include "viewer/messages/Translated.h"
#include "viewer/prefs/Preferences.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const QString kButton = QStringLiteral("#livecontrol_editInfoButton");
const QString kTitle = QStringLiteral("edit information");
const QString kOk = QStringLiteral("#ok_btn");
const QString kList = QStringLiteral(
    "Camera name:true,FrameRate:true,<hr>,Comment:true,Custom:true,Logo:false,ShutterSpeed:true,"
    "MaxFrames:true,Length:true,TimeIrigCode:true");
} // namespace

class tst_InfoList : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    std::unique_ptr<ModalSteps> m_steps;

    Preferences& prefs() { return m_test->viewer().preferences(); }
    QString saved(int group) {
        return prefs().value(QStringLiteral("saveinfo/display%1").arg(group)).toString();
    }
    /// All that the saved view has, as it counts.
    QVariantMap savedView() {
        QVariantMap all;
        for (const char* const name : {"collectiveSetting", "WithinImage", "LogoPath"}) {
            all[QStringLiteral("saveinfo/") + QLatin1String(name)] = {};
        }
        for (const char* const name :
             {"display", "FontName", "FontSize", "Bold", "Italic", "ForegroundColor", "Alignment", "Width",
              "UseBackgroundColor", "BackgroundColor", "ToColumn", "ColumnNum", "ColumnSpacing",
              "FixedFontSizeRatio", "FixedFontSizeRatioBaseResolution"}) {
            for (int group = 0; group < 7; ++group) {
                all[QStringLiteral("saveinfo/%1%2").arg(QLatin1String(name)).arg(group)] = {};
            }
        }
        for (auto it = all.begin(); it != all.end(); ++it) {
            it.value() = prefs().value(it.key());
        }
        return all;
    }
    QString display() { return prefs().value(QStringLiteral("info/display")).toString(); }
    ModalSteps& drag(const char* item, int dy, int dx = 0) {
        return m_steps->run([=] {
            m_test->call("page.drag", {{QStringLiteral("selector"), QLatin1String(item)},
                                       {QStringLiteral("dx"), dx},
                                       {QStringLiteral("dy"), dy},
                                       {QStringLiteral("steps"), 8},
                                       {QStringLiteral("dialog"), true}});
            return true;
        });
    }
    ModalSteps& expectList(const QString& list) {
        return m_steps->run([=] { return display() == list; });
    }
    void open() {
        m_test->click(kButton);
        FINISH(*m_steps);
    }
    void openSavedView() {
        m_test->call("windows.choose", {{QStringLiteral("action"), QStringLiteral("savedView")}});
        FINISH(*m_steps);
    }
    ModalSteps& leave(const QString& way) {
        if (way == QLatin1String("button")) {
            return m_steps->click(kTitle, QStringLiteral("#cancel_btn"));
        }
        if (way == QLatin1String("escape")) {
            return m_steps->key(kTitle, QString(), QStringLiteral("Escape"));
        }
        return m_steps->run([] {
            QApplication::activeModalWidget()->close();
            return true;
        });
    }

private slots:
    void initTestCase() { m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json")); }
    void init() {
        m_test->selectOnly(QStringLiteral("Marlin"));
        prefs().setValue(QStringLiteral("info/display"), kList);
        prefs().setValue(QStringLiteral("info/BlankLine"), false);
        prefs().setValue(QStringLiteral("info/Width"), QStringLiteral("300"));
        prefs().setValue(QStringLiteral("info/FontSize"), QStringLiteral("12"));
        m_steps = std::make_unique<ModalSteps>(*m_test);
    }
    void cleanup() {
        m_steps.reset();
        const QJsonArray errors = m_test->call("page.errors").toArray();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }
    void cleanupTestCase() { m_test.reset(); }

    void anItemIsDraggedAndMovedByKeys() {
        m_steps->expect(kTitle, QStringLiteral("$('.ei-items li').length === 9"));
        drag(".ei-items li:eq(0)", 60);
        m_steps->run([this] { return !display().startsWith(QLatin1String("Camera name")); })
            .click(kTitle, QStringLiteral("#editinfo_reset"))
            .press(QStringLiteral("No"))
            .key(kTitle, QStringLiteral("#Comment"), QStringLiteral("Alt+Up"));
        m_steps->run([this] { return display().contains(QLatin1String("Comment:true,<hr>")); });
        m_steps->click(kTitle, kOk);
        open();
        QVERIFY(display().contains(QLatin1String("Comment:true,<hr>")));
    }

    void everyChangeIsToldToTheViewsAtOnce() {
        m_steps->click(kTitle, QStringLiteral("#Comment"));
        expectList(QString(kList).replace(QLatin1String("Comment:true"), QLatin1String("Comment:false")));
        m_steps
            ->run([this] {
                m_test->call("host.calls", {{QStringLiteral("clear"), true}});
                return true;
            })
            .click(kTitle, QStringLiteral("#blankline"))
            .run([this] {
                QStringList names;
                const QJsonArray calls = m_test->call("host.calls").toArray();
                for (const QJsonValue& call : calls) {
                    names += call.toObject()[QStringLiteral("name")].toString();
                }
                const int stored = names.indexOf(QStringLiteral("HostApplication.setPrefBool"));
                return stored >= 0 && names.indexOf(QStringLiteral("HostApplication.updateAll")) > stored;
            })
            .click(kTitle, kOk);
        open();
        QVERIFY(prefs().value(QStringLiteral("info/BlankLine")).toBool());
        QVERIFY(!m_test->logged(QStringLiteral("JS_Mediator_DeviceControl::editInfo")).isEmpty());
    }

    void everyWayOutButOkTakesAllBack_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way : {"button", "escape", "window"}) {
            QTest::newRow(way) << QString::fromLatin1(way);
        }
    }
    void everyWayOutButOkTakesAllBack() {
        QFETCH(QString, way);
        m_steps->click(kTitle, QStringLiteral("#Comment"))
            .click(kTitle, QStringLiteral("#blankline"))
            .key(kTitle, QStringLiteral("#Comment"), QStringLiteral("Alt+Down"))
            .click(kTitle, QStringLiteral("#editinfo_fontsetting"))
            .click(kTitle, QStringLiteral("#font-bold"))
            .click(kTitle, QStringLiteral("#font-color-span"))
            .click(kTitle, QStringLiteral("#font-color-span-palette button:eq(5)"))
            .type(kTitle, QStringLiteral("#numberWidth"), QStringLiteral("1"))
            .key(kTitle, QString(), QStringLiteral("Tab"))
            .click(kTitle, QStringLiteral("#editfont_dialog_ok"))
            .run([this] {
                return display() != kList && prefs().value(QStringLiteral("info/Bold")).toBool() &&
                       prefs().value(QStringLiteral("info/ForegroundColor")) == QLatin1String("#ff0000") &&
                       prefs().value(QStringLiteral("info/Width")) == QLatin1String("1");
            });
        leave(way);
        const QVariant color = prefs().value(QStringLiteral("info/ForegroundColor"));
        open();
        QCOMPARE(display(), kList);
        QVERIFY(!prefs().value(QStringLiteral("info/BlankLine")).toBool());
        QVERIFY(!prefs().value(QStringLiteral("info/Bold")).toBool());
        QCOMPARE(prefs().value(QStringLiteral("info/ForegroundColor")).toString(), color.toString());
        QCOMPARE(prefs().value(QStringLiteral("info/Width")).toInt(), 300);
    }

    void everyLinkLeadsToItsDialog() {
        const QList<QPair<QString, QString>> links{
            {QStringLiteral("edit_comment"), QStringLiteral("Comment")},
            {QStringLiteral("edit_custom"), QStringLiteral("Custom info")},
            {QStringLiteral("edit_shutter"), QStringLiteral("Shutter speed disp")},
            {QStringLiteral("edit_recordrate"), QStringLiteral("recordrate disp")},
            {QStringLiteral("edit_frame"), QStringLiteral("frame disp")},
            {QStringLiteral("edit_rectime"), QStringLiteral("Recording time disp")},
            {QStringLiteral("time_code"), QStringLiteral("Current Time Setting")}};
        for (const auto& [link, title] : links) {
            m_steps->click(kTitle, QStringLiteral("a#%1").arg(link))
                .click(title, QStringLiteral("#cancel_btn"));
        }
        m_steps->click(kTitle, kOk);
        open();
        QCOMPARE(display(), kList);
    }

    // Only what the dialog on the comment itself takes back comes back with it.
    void theCommentIsThatOfTheCurrentCamera() {
        m_steps->click(kTitle, QStringLiteral("a#edit_comment"))
            .type(QStringLiteral("Comment"), QStringLiteral("#comment"), QStringLiteral("new"))
            .click(QStringLiteral("Comment"), kOk)
            .click(kTitle, kOk);
        open();
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).comment(), QStringLiteral("new"));
        m_test->camera(QStringLiteral("Marlin")).setComment(QString());
    }

    void aLogoIsChosenFromAFile() {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("logo.png"));
        QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(path));
        m_steps->click(kTitle, QStringLiteral("a#select_logo"))
            .run([=] {
                return m_test->call("files.answer", {{QStringLiteral("path"), path}}).isBool();
            })
            .run([=] { return prefs().value(QStringLiteral("info/LogoPath")).toString() == path; })
            .click(kTitle, QStringLiteral("a#select_logo"))
            .run([=] {
                return m_test->call("files.answer", {{QStringLiteral("path"), QJsonValue::Null}}).isBool();
            })
            .click(kTitle, kOk);
        open();
        QCOMPARE(prefs().value(QStringLiteral("info/LogoPath")).toString(), path); // none was chosen
        prefs().remove(QStringLiteral("info/LogoPath"));
    }

    // --- What stands round a saved picture ---

    void anItemIsCarriedToAnotherPlace() {
        m_steps->expect(kTitle, QStringLiteral("$('#preview img:visible').length === 1"));
        drag("#ei-items2 li:eq(0)", 200, 610);
        m_steps->run([this] { return saved(5).contains(QLatin1String("FrameRate:true")); }).run([this] {
            return !saved(2).contains(QLatin1String("FrameRate"));
        });
        drag("#ei-items0 li:eq(0)", -210, 40); // out of stock, into an empty place
        m_steps->run([this] { return saved(4) == QLatin1String("File name:true"); })
            .key(kTitle, QStringLiteral("#ShutterSpeed"), QStringLiteral("Alt+Right"))
            .run([this] {
                return saved(2) == QLatin1String("Resolution:true") &&
                       saved(3).endsWith(QLatin1String("ShutterSpeed:true"));
            })
            .click(kTitle, kOk);
        openSavedView();
        QVERIFY(saved(5).contains(QLatin1String("FrameRate:true")));
        m_steps->click(kTitle, QStringLiteral("#editinfo_reset"))
            .press(QStringLiteral("Yes"))
            .expect(kTitle, QStringLiteral("$('#ei-items2 #FrameRate').length === 1"))
            .click(kTitle, kOk);
        openSavedView();
        QVERIFY(saved(4).isEmpty());
    }

    void theSavedViewIsTakenBack_data() { everyWayOutButOkTakesAllBack_data(); }
    void theSavedViewIsTakenBack() {
        QFETCH(QString, way);
        const QVariantMap before = savedView();
        const QString keep = QStringLiteral("!!(window.before = $('#preview img').attr('src'))");
        const QString differs = QStringLiteral("$('#preview img').attr('src') !== window.before");
        m_steps->expect(kTitle, keep)
            .click(kTitle, QStringLiteral("#within-image"))
            .expect(kTitle, differs)
            .expect(kTitle, keep)
            .click(kTitle, QStringLiteral("#Date"))
            .expect(kTitle, differs)
            .key(kTitle, QStringLiteral("#Time"), QStringLiteral("Alt+Left"))
            .click(kTitle, QStringLiteral(".left-upper .portlet-font"))
            .click(kTitle, QStringLiteral("#font-bold"));
        for (const char* const box : {"use-background", "to-column", "fixed-ratio", "collective"}) {
            m_steps->click(kTitle, QLatin1Char('#') + QLatin1String(box));
        }
        m_steps->click(kTitle, QStringLiteral("#editfont_dialog_ok")).run([this, before] {
            const QVariantMap now = savedView();
            int changed = 0;
            for (auto it = now.begin(); it != now.end(); ++it) {
                changed += it.value() != before.value(it.key()) ? 1 : 0;
            }
            // Two flags, two lists, and five settings in each of the six places: one has its columns already.
            return changed >= 2 + 2 + 4 * 6 && now.value(QStringLiteral("saveinfo/Bold6")).toBool();
        });
        leave(way);
        openSavedView();
        const QVariantMap after = savedView();
        for (auto it = before.begin(); it != before.end(); ++it) {
            QVERIFY2(after.value(it.key()) == it.value(), qPrintable(it.key()));
        }
    }

    void everyLinkOfASavedItemLeadsToItsDialog() {
        const QList<QPair<QString, QString>> links{
            {QStringLiteral("edit_comment"), QStringLiteral("Comment")},
            {QStringLiteral("edit_custom"), QStringLiteral("Custom info")},
            {QStringLiteral("edit_shutter"), QStringLiteral("Shutter speed disp")},
            {QStringLiteral("edit_recordrate"), QStringLiteral("recordrate disp")},
            {QStringLiteral("edit_frame"), QStringLiteral("frame disp")},
            {QStringLiteral("time_code"), QStringLiteral("Current Time Setting")}};
        for (const auto& [link, title] : links) {
            m_steps->click(kTitle, QStringLiteral("a#%1").arg(link))
                .click(title, QStringLiteral("#cancel_btn"));
        }
        m_steps->click(kTitle, QStringLiteral("a#select_logo"))
            .run([=] {
                return m_test->call("files.answer", {{QStringLiteral("path"), QJsonValue::Null}}).isBool();
            })
            .click(kTitle, kOk);
        openSavedView();
    }

    void theTextsOfWhatIsSavedMayBeJapanese() {
        const auto size = [this] {
            return m_test->viewer().documents().savedPictures()->size(
                {m_test->camera(QStringLiteral("Marlin")), 0, 0, QDateTime::currentDateTime()});
        };
        const QSize english = size();
        prefs().setValue(QStringLiteral("display/outputLanguage"), 2);
        QVERIFY(size() != english);
        prefs().remove(QStringLiteral("display/outputLanguage"));
        const OutputLanguage::Scope scope(OutputLanguage::chosen(2));
        QCOMPARE(translated("Date"), QString::fromUtf8("\xe6\x97\xa5\xe4\xbb\x98"));
    }

    void aCameraThatGoesEndsNothing() {
        DocumentList& documents = m_test->viewer().documents();
        m_steps->expect(kTitle, QStringLiteral("$('.ei-items li').length === 9"))
            .run([&] {
                documents.remove(&m_test->camera(QStringLiteral("Marlin")));
                return true;
            })
            .click(kTitle, QStringLiteral("#Comment"))
            .click(kTitle, QStringLiteral("a#edit_frame"))
            .click(QStringLiteral("frame disp"), QStringLiteral("#cancel_btn"))
            .click(kTitle, kOk);
        open();
        QVERIFY(display().contains(QLatin1String("Comment:false")));
        documents.addAllCameras();
    }
};

QTEST_MAIN(tst_InfoList)
#include "tst_info_list.moc"
