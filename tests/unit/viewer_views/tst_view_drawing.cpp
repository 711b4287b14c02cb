// What stands on the screen: the information and the rectangles over a picture, the bar below it. Looked up
// in pictures of black scenes.

#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "tests/unit/viewer_views/PictureMarks.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/ViewClient.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace {

constexpr int kFrames = 20;
constexpr int kTrigger = 3;

struct Client : ViewClient {
    PLG_Interface* openPlugin() override { return plugin; }
    explicit Client(const Preferences& preferences) : overlay(preferences) {}
    OverlayPreferences* shownInfo() override { return info ? &overlay : nullptr; }
    OverlayPreferences overlay;
    PLG_Interface* plugin = nullptr;
    bool info = false;
};

QIcon noIcon(const QString&) { return QIcon(); }

QImage blackPicture(const FrameRequest& request) {
    QImage image(request.size, request.bitDepth > 8 ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8);
    image.fill(0);
    return image;
}

} // namespace

class tst_ViewDrawing : public QObject {
    Q_OBJECT

    std::unique_ptr<HostTest> m_test;
    std::unique_ptr<Client> m_client;
    std::unique_ptr<PLG_livecontrol> m_plugin;
    std::unique_ptr<QWidget> m_window; // has room for an area of any size
    DocumentArea* m_area = nullptr;

    ImageView* view(const Document* document) const { return m_area->view(document->key()); }

    QImage picture(const Document* document) const {
        view(document)->refresh();
        return view(document)->grabFramebuffer();
    }

    /// Shows the document in a view of that height.
    bool show(Document* document, int height) {
        m_test->select({document});
        m_window->show();
        const bool isShown = QTest::qWaitForWindowExposed(m_window.get()) &&
                             QTest::qWaitFor([&] { return view(document) && view(document)->isVisible(); });
        if (isShown) { // beside it stand a strip and a bar
            m_area->resize(400, m_area->height() + height - view(document)->height());
        }
        return isShown && view(document)->height() == height;
    }

    FileDocument& recording() {
        RecordingInfo info;
        info.camera = QStringLiteral("Marlin");
        info.device = QStringLiteral("Mono 12");
        info.rate = 1000;
        info.shutter = 2000;
        info.triggerIndex = kTrigger;
        FileDocument* const document = m_test->list.addRecording(recordingOf(info, kFrames, QSize(64, 48)));
        m_test->list.setMode(HOST_MODE_FILE);
        return *document;
    }

private slots:
    void init() {
        m_test = std::make_unique<HostTest>();
        for (SimulatedHead* const head : m_test->rig.heads()) {
            head->setPictureSource(&blackPicture);
        }
        m_plugin = std::make_unique<PLG_livecontrol>();
        m_plugin->init(&m_test->host);
        m_client = std::make_unique<Client>(m_test->preferences);
        m_window = std::make_unique<QWidget>();
        m_window->resize(420, 700);
        m_area = new DocumentArea(m_test->list, *m_client, &noIcon, m_window.get());
        m_area->resize(400, 400);
    }

    void cleanup() {
        m_window.reset();
        m_client.reset();
        m_plugin.reset();
        m_test.reset();
    }

    void whatTheUserWaitsForStandsInTheMiddle() {
        FileDocument& document = recording();
        QVERIFY(show(&document, 200));
        view(&document)->setBusyText(QStringLiteral("mmmm"));
        const QImage image = picture(&document);
        QRect inked;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                inked |= image.pixelColor(x, y).lightness() > 150 ? QRect(x, y, 1, 1) : QRect();
            }
        }
        const QPoint off = inked.center() - image.rect().center();
        QVERIFY2(inked.isValid() && qAbs(off.x()) < 6 && qAbs(off.y()) < 8,
                 qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
    }

    // What is recorded stays as it is; the image on the screen follows at once, also a live one that stands
    // still.
    void tonesChangeWhatShows() {
        const auto middle = [this](const Document& document) {
            const QImage image = picture(&document);
            return image.pixelColor(image.rect().center()).lightness();
        };
        const auto setLut = [](Document& document, int lut) {
            ViewState state = document.view();
            state.tones.lut = lut;
            document.setView(state);
        };
        FileDocument& document = recording();
        QVERIFY(show(&document, 200));
        QVERIFY(middle(document) < 10);
        const Frame before = document.frame();
        setLut(document, 3);
        QVERIFY(middle(document) > 245);
        QCOMPARE(document.frame().image, before.image);
        setLut(document, 0);
        QVERIFY(middle(document) < 10);

        CameraDocument& camera = *m_test->camera("Mono");
        m_test->list.setMode(HOST_MODE_LIVE);
        QVERIFY(show(&camera, 200));
        QVERIFY(middle(camera) < 10);
        m_test->list.live().beginHold();
        setLut(camera, 3);
        QVERIFY(middle(camera) > 245);
    }

    // However long the notes are: something stands there, in the upper half.
    void informationIsLaidOutLineByLine() {
        FileDocument& document = recording();
        constexpr int kFacts = 6;
        m_test->preferences.setValue(QStringLiteral("info/display"),
                                     QStringLiteral("Device:true,FrameRate:true,ShutterSpeed:true,"
                                                    "Resolution:true,FrameNumber:true,MaxFrames:true,"
                                                    "Comment:true,Custom:true"));
        QVERIFY(show(&document, 400));
        const QFont font = OverlayStyle().font();
        const int spacing = QFontMetrics(font).lineSpacing();
        const double height = lineHeight(font);
        const int most = (400 - 2 * 8) / spacing; // what the margins leave
        QCOMPARE(textRows(picture(&document), height), 0);
        m_client->info = true;
        QCOMPARE(textRows(picture(&document), height), kFacts);
        QVERIFY(view(&document)->isNumberDrawn());
        m_client->info = false;
        QCOMPARE(textRows(picture(&document), height), 0);
        QVERIFY(!view(&document)->isNumberDrawn()); // the title shows it then
        m_client->info = true;
        document.setComment(QStringLiteral("one\ntwo\r\nthree{Separator}four"));
        QCOMPARE(textRows(picture(&document), height), qMin(most, kFacts + 4));
        document.setComment(QString());
        document.customItems().add(
            {QStringLiteral("Load"), QStringLiteral("long\nlonger\nlongest"), QStringLiteral("kg"), true});
        QCOMPARE(textRows(picture(&document), height), kFacts + 3);
        document.setComment(QStringLiteral("line\n").repeated(500));
        QCOMPARE(textRows(picture(&document), height), most);
        QVERIFY(view(&document)->isNumberDrawn());

        document.setComment(QString());
        document.customItems().clear();
        QVERIFY(show(&document, 10 * spacing));
        QCOMPARE(textRows(picture(&document), height), kFacts);
        document.setComment(QStringLiteral("line\n").repeated(500));
        const int few = (10 * spacing - 2 * 8) / spacing; // the last is a mark that there are more
        QCOMPARE(textRows(picture(&document), height), few);
        m_area->setMinimumHeight(0); // as one tile of many is
        QVERIFY(show(&document, 3 * spacing));
        QCOMPARE(textRows(picture(&document), height), 1);
    }

    void theAreaIsDashedOnItsEdge() {
        CameraDocument& camera = *m_test->camera("Mono");
        m_test->head("Mono").setPictureSource([](const FrameRequest& request) {
            QImage image = blackPicture(request);
            for (int y = 0; y < image.height(); ++y) {
                auto* const row = reinterpret_cast<quint16*>(image.scanLine(y));
                std::fill_n(row, image.width(), quint16(2048)); // grey: black and white both show
            }
            return image;
        });
        QVERIFY(show(&camera, 300));
        m_client->plugin = m_plugin.get();
        m_plugin->setSelectArea({320, 256, 640, 512});
        const auto edge = [&] {
            const QImage image = picture(&camera);
            const QPoint left = view(&camera)->transform().originalToView(QPointF(320, 256)).toPoint();
            const QPoint right = view(&camera)->transform().originalToView(QPointF(960, 256)).toPoint();
            int light = 0;
            int dark = 0;
            for (int x = left.x() + 2; x < right.x() - 2; ++x) {
                light += image.pixelColor(x, left.y()).lightness() > 230 ? 1 : 0;
                dark += image.pixelColor(x, left.y()).lightness() < 30 ? 1 : 0;
            }
            const int length = right.x() - left.x();
            return QPair<bool, bool>(light > length / 3, dark > length / 3);
        };
        QCOMPARE(edge(), qMakePair(false, false)); // no page that edits it
        m_test->host.setAutoExposureSetting(true);
        QCOMPARE(edge(), qMakePair(true, true));
        m_test->select({&camera, m_test->camera("Colour")});
        m_test->list.setCurrent(m_test->camera("Colour"));
        QTRY_VERIFY(view(m_test->camera("Colour")));
        QCOMPARE(edge(), qMakePair(false, false)); // it is the other camera's now
    }

    // What is binned is there to be counted, however little it is enlarged.
    void binnedPixelsShowAsSquares() {
        CameraDocument& camera = *m_test->camera("Mono");
        m_test->head("Mono").setPictureSource([](const FrameRequest& request) {
            QImage image = blackPicture(request);
            for (int y = 0; y < image.height(); ++y) {
                auto* const row = reinterpret_cast<quint16*>(image.scanLine(y));
                for (int x = 1; x < image.width(); x += 2) {
                    row[x] = 4095;
                }
            }
            return image;
        });
        ViewState binned = camera.view();
        binned.binning = 2;
        camera.setView(binned);
        QVERIFY(show(&camera, 300));
        const double zoom = view(&camera)->transform().zoom();
        QVERIFY(zoom > 1 && zoom < 2);
        const QImage image = picture(&camera);
        int gray = 0;
        int white = 0;
        for (int x = 0; x < image.width(); ++x) {
            const int light = image.pixelColor(x, image.height() / 2).lightness();
            gray += light > 40 && light < 225 ? 1 : 0;
            white += light >= 225 ? 1 : 0;
        }
        QVERIFY(white > image.width() / 4);
        QCOMPARE(gray, 0);
    }

    // Two cameras in low light: the host's numbers are those of the current one.
    void theRedRectangleIsTheCurrentCamerasOwn() {
        CameraDocument& first = *m_test->camera("Mono");
        BodyDescription description;
        description.name = QStringLiteral("Second");
        description.model = QStringLiteral("mono12");
        description.address = QStringLiteral("192.168.0.20");
        SimulatedBody* const body = m_test->rig.addBody(description);
        body->connectLink().result();
        m_test->list.addAllCameras();
        CameraDocument& second = *m_test->camera("Second");
        m_test->head("Second").setPictureSource(&blackPicture);
        first.head()->setResolution({640, 480}).result();
        second.head()->setResolution({1280, 720}).result();
        for (CameraDocument* const camera : {&first, &second}) {
            camera->head()->setLowLight(true).result();
            camera->head()->setLowLightType(LowLight::WholeSensor).result();
        }
        QVERIFY(show(&first, 300));
        m_client->plugin = m_plugin.get();
        const auto onScreen = [this](const CameraDocument& camera, const QRectF& area) {
            return view(&camera)->transform().originalToViewTransform().mapRect(area).toRect();
        };
        QVERIFY(isAt(redPart(picture(&first)), onScreen(first, {320, 272, 640, 480})));
        m_test->select({&first, &second});
        for (CameraDocument* const current : {&first, &second}) {
            m_test->list.setCurrent(current);
            QTRY_VERIFY(view(&first)->isVisible() && view(&second) && view(&second)->isVisible());
            const CameraDocument& other = current == &first ? second : first;
            const QSize size = current->head()->settings().resolution;
            const QRect own(QPoint((1280 - size.width()) / 2, (1024 - size.height()) / 2), size);
            QVERIFY(isAt(redPart(picture(current)), onScreen(*current, own)));
            QCOMPARE(redPart(picture(&other)), QRect());
        }
    }

    void theBarTellsThePlaceAgainstTheTrigger() {
        FileDocument& document = recording();
        QString icon;
        PlayBar bar(document, [&icon](const QString& name) {
            icon = name;
            return QIcon();
        });
        auto* const label = bar.findChild<QLabel*>();
        auto* const slider = bar.findChild<QSlider*>();
        const auto buttons = bar.findChildren<QAbstractButton*>();
        QCOMPARE(buttons.size(), 4); // first, back, play, forward
        QCOMPARE(label->text(), QStringLiteral("1 / 20, 0.0200 s  (T\u22123, 0.0030 s)"));
        slider->setValue(kTrigger);
        QCOMPARE(label->text(), QStringLiteral("4 / 20, 0.0200 s  (T+0, 0.0000 s)"));
        buttons[3]->click();
        QCOMPARE(label->text(), QStringLiteral("5 / 20, 0.0200 s  (T+1, 0.0010 s)"));
        buttons[1]->click();
        buttons[1]->click();
        QCOMPARE(label->text(), QStringLiteral("3 / 20, 0.0200 s  (T\u22121, 0.0010 s)"));
        QCOMPARE(slider->value(), 2);
        buttons[2]->click();
        QVERIFY(document.isPlaying() && icon == QLatin1String("pause"));
        buttons[2]->click();
        QVERIFY(!document.isPlaying() && icon == QLatin1String("play"));
        document.setPlayPosition(kFrames);
        QCOMPARE(label->text(), QStringLiteral("20 / 20, 0.0200 s  (T+16, 0.0160 s)"));
        buttons[0]->click();
        QCOMPARE(document.playPosition(), 0);
        QVERIFY(bar.isEnabled());
        QStringList tips;
        for (const QAbstractButton* const button : buttons) {
            tips += button->toolTip() + QLatin1String(button->autoRepeat() ? " (again)" : "");
            QCOMPARE(button->accessibleName(), button->toolTip());
        }
        QCOMPARE(tips.join(QLatin1Char('|')),
                 QStringLiteral("First frame|One frame back (again)|Play or pause|"
                                "One frame forward (again)"));
        m_test->list.setMode(HOST_MODE_MEMORY);
        const PlayBar none(*m_test->camera("Mono"), &noIcon);
        QVERIFY(!none.isEnabled() && none.findChild<QLabel*>()->text() == QLatin1String("No recording"));
    }

    // What is waited for, of this camera or of all, or else why nothing is seen.
    void theMiddleSaysWhatGoesOn() {
        CameraDocument& camera = *m_test->camera("Plain");
        const auto says = [&](const char* text) {
            const QImage shown = picture(&camera);
            view(&camera)->setBusyText(QLatin1String(text));
            return picture(&camera) == shown;
        };
        m_area->setBusyText(kInvalidDockey, QStringLiteral("All")); // before there is a window
        m_test->list.live().beginHold();
        QVERIFY(show(&camera, 200));
        QVERIFY(says("All") && !says("Own"));
        m_area->setBusyText(camera.key(), QStringLiteral("Own"));
        QVERIFY(says("Own"));
        m_area->setBusyText(camera.key(), QString());
        QVERIFY(says("All"));
        m_area->setBusyText(kInvalidDockey, QString());
        m_test->list.setMode(HOST_MODE_MEMORY);
        QVERIFY(show(&camera, 200) && says("No recording"));
        m_area->setBusyText(kInvalidDockey, QString());
        m_test->body("Plain")->unplug();
        QVERIFY(says("Disconnected"));
    }

    void aReplayBeginsAgainAtItsEnd() {
        FileDocument& document = recording();
        m_area->pacer().setPlaybackRate(240);
        document.setPlayPosition(kFrames - 1);
        document.setPlaying(true);
        QTRY_VERIFY(document.playPosition() < kFrames - 1);
        QVERIFY(document.isPlaying());
        m_test->list.setMode(HOST_MODE_LIVE); // where nothing is replayed
        const int before = document.playPosition();
        QSignalSpy beats(&m_area->pacer(), &FrameTimer::beat);
        QTRY_VERIFY(beats.count() >= 2);
        QCOMPARE(document.playPosition(), before);
    }
};

QTEST_MAIN(tst_ViewDrawing)
#include "tst_view_drawing.moc"
