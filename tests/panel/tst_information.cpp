// The information over the image in the whole viewer: it follows the preferences, the language, the mode and
// what was noted, and is there again with a recording.

#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_Information : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QTemporaryDir m_folder;

    ImageView* view() { return m_test->viewer().mainWindow().area().currentView(); }
    CameraDocument& camera() { return m_test->camera(QStringLiteral("Marlin")); }
    QString rows() {
        QStringList texts;
        if (!view()) {
            return QString(); // not arranged yet
        }
        for (const OverlayLayout::Row& row : view()->info().layout().rows()) {
            texts += row.text;
        }
        return texts.join(QLatin1Char('|'));
    }
    void prefer(const char* key, const QVariant& value) {
        m_test->viewer().preferences().setValue(QLatin1String(key), value);
    }
    void save(const char* name) {
        const QString folder = qEnvironmentVariable("SHOTS");
        if (!folder.isEmpty()) {
            QTest::qWait(700);
            m_test->viewer().mainWindow().grab().save(folder + QLatin1Char('/') + QLatin1String(name));
        }
    }

private slots:
    void init() { m_test = std::make_unique<PanelTest>(QStringLiteral(":/rigs/default.json")); }
    void cleanup() { m_test.reset(); }

    void itFollowsThePreferences() {
        QTRY_VERIFY(rows().startsWith(QLatin1String("Marlin||Frame rate: ")));
        QVERIFY(!rows().contains(QLatin1String("Frame No"))); // the strip has it
        save("live.png");
        prefer("info/display", QStringLiteral("Comment:true,<hr>,Resolution:true,Camera name:false"));
        camera().setComment(QStringLiteral("<b>first</b>{Separator}second"));
        QTRY_COMPARE(rows(), QStringLiteral("Comment: <b>first</b>|second||Resolution: 1280 x 1024"));
        const QColor color(255, 0, 255);
        const auto inked = [&] {
            const QImage image = view()->grabFramebuffer();
            int count = 0;
            for (int y = 0; y < image.height() / 2; ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    count += image.pixelColor(x, y) == color ? 1 : 0;
                }
            }
            return count;
        };
        QCOMPARE(inked(), 0);
        prefer("info/ForegroundColor", color.name());
        prefer("info/FontSize", QStringLiteral("28"));
        QTRY_VERIFY(inked() > 200);
        save("style.png");
        prefer("env/language", QStringLiteral("ja"));
        QTRY_VERIFY(rows().endsWith(QString::fromUtf8("解像度: 1280 x 1024")));
        m_test->viewer().mainWindow().setInfoShown(false);
        QTRY_COMPARE(inked(), 0);
    }

    void itStaysWithTheRecording() {
        prefer("info/LogoPath", m_folder.filePath(QStringLiteral("logo.png")));
        prefer("info/display",
               QStringLiteral("Device:true,RecDateTime:true,<hr>,FrameRate:true,FrameNumber:true,"
                              "MaxFrames:true,Length:true,TimeIrigCode:true,Trigger:true,"
                              "RecEndTime:true,ZoomRate:true,EventMarker:true,<hr>,Comment:true,"
                              "Logo:true,Custom:true"));
        QImage logo(200, 100, QImage::Format_RGB32);
        logo.fill(QColor(255, 0, 255));
        QVERIFY(logo.save(m_folder.filePath(QStringLiteral("logo.png"))));
        camera().setComment(QStringLiteral("crash 7\nleft side"));
        camera().customItems().add({QStringLiteral("Load"), QStringLiteral("9"), QStringLiteral("kN"), true});
        camera().head()->setTrigger(2, 1).result(); // the trigger at the end
        prefer("recording/keepFrames", 20);
        CameraBody& body = *camera().body();
        m_test->viewer().recording().ready();
        QTRY_COMPARE_WITH_TIMEOUT(body.state(), CameraState::Ready, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(camera().head()->shotProgress().before >= 40, 20000);
        m_test->viewer().recording().record();
        QTRY_COMPARE_WITH_TIMEOUT(m_test->viewer().documents().mode(), HOST_MODE_MEMORY, 20000);
        const auto hasLogo = [this] { return view() && view()->info().layout().isShown("Logo"); };
        QTRY_VERIFY(rows().contains(QStringLiteral("Frame No: 1 (T\u2212")) && hasLogo());
        QTRY_VERIFY2(rows().contains(QLatin1String("Trigger mode: End Trg|Rec end time: 2")),
                     qPrintable(rows()));
        QVERIFY(view()->isNumberDrawn());
        const QString end =
            rows().section(QStringLiteral("Rec end time: "), 1).section(QLatin1Char('|'), 0, 0);
        save("memory.png");

        QTRY_VERIFY_WITH_TIMEOUT(!m_test->viewer().recordings().isKeeping(), 20000);
        camera().toggleMark(camera().recordedFrames() - 1); // the last one that is kept, too
        prefer("info/LogoPath", QString());                 // the recording has its own
        camera().setComment(QString());
        m_test->viewer().recording().setMode(HOST_MODE_FILE);
        DocumentList& documents = m_test->viewer().documents();
        QTRY_COMPARE_WITH_TIMEOUT(documents.documents().size(), 1, 20000); // all of it is on the disk
        documents.setCurrent(documents.documents().first());
        QTRY_VERIFY(rows().contains(QLatin1String("Comment: crash 7|left side|")) && hasLogo());
        for (const char* const part : {"Date/Time Rec: 2", "Trigger mode: End Trg", "Rec end time: 2",
                                       "Current Time: -00:00:00.", "Load: 9 kN"}) {
            QVERIFY2(rows().contains(QLatin1String(part)), qPrintable(rows()));
        }
        QVERIFY2(rows().contains(QStringLiteral("Rec end time: ") + end),
                 qPrintable(rows())); // the same moment
        QVERIFY(!rows().contains(QLatin1String("Event: ")));
        documents.current()->setPlayPosition(19);
        QTRY_VERIFY2(rows().contains(QLatin1String("Event: 1")), qPrintable(rows()));
        save("file.png");
        documents.current()->toggleMark(19);
        QTRY_VERIFY2(!rows().contains(QLatin1String("Event: ")), qPrintable(rows()));
    }
};

QTEST_MAIN(tst_Information)
#include "tst_information.moc"
