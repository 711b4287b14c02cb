// The strip above a picture: what it has room for, and what its lamp says of the camera.

#include "tests/support/Recordings.h"
#include "tests/unit/viewer_host/HostTest.h"
#include "viewer/documents/FileDocument.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/DocumentWindow.h"
#include "viewer/views/ImageView.h"
#include "viewer/views/TitleStrip.h"
#include "viewer/views/ViewClient.h"

#include <QLabel>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <functional>

namespace {

struct Client : ViewClient {
    PLG_Interface* openPlugin() override { return nullptr; }
    OverlayPreferences* shownInfo() override { return nullptr; }
};

QIcon noIcon(const QString&) { return QIcon(); }

/// The windows of a host's documents.
struct Windows {
    HostTest test;
    Client client;
    DocumentArea area{test.list, client, &noIcon};

    Windows() {
        area.resize(600, 450);
        area.show();
    }
    /// Null until it shows.
    DocumentWindow* of(const Document* document) const {
        for (DocumentWindow* const each : area.findChildren<DocumentWindow*>()) {
            if (&each->document() == document && each->isVisible()) {
                return each;
            }
        }
        return nullptr;
    }
};

bool hasColor(const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class tst_TitleStrip : public QObject {
    Q_OBJECT

private slots:
    void isPaintedAnewWhenSomethingHasChanged() {
        TitleStrip strip;
        struct Painted : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override {
                count += event->type() == QEvent::Paint ? 1 : 0;
                return false;
            }
        } painted;
        strip.installEventFilter(&painted);
        strip.show();
        QVERIFY(QTest::qWaitForWindowExposed(&strip));
        QTRY_VERIFY(painted.count > 0);
        for (const std::function<void()>& change : std::initializer_list<std::function<void()>>{
                 [&] { strip.setContent(QStringLiteral("Marlin"), {}, {}, {}, Qt::green); },
                 [&] { strip.setCurrent(true); }, [&] { strip.setCurrent(false); }}) {
            QCoreApplication::processEvents();
            painted.count = 0;
            change();
            QTRY_VERIFY(painted.count > 0);
        }
    }

    void lettersHaveRoomAllAround() {
        TitleStrip strip;
        strip.setContent(QString::fromUtf8("Ågjp|"), {QString::fromUtf8("Ågjp|")}, {},
                         QStringLiteral("|Live|"), QColor());
        strip.resize(600, strip.sizeHint().height());
        const QImage image = strip.grab().toImage();
        for (const int y : {0, 1, image.height() - 2, image.height() - 1}) {
            for (int x = 1; x < image.width(); ++x) {
                QCOMPARE(image.pixelColor(x, y), image.pixelColor(0, y));
            }
        }
        for (int y = 0; y < image.height(); ++y) {
            for (const int x :
                 {1, 2, 3, image.width() - 4, image.width() - 3, image.width() - 2, image.width() - 1}) {
                QCOMPARE(image.pixelColor(x, y), image.pixelColor(0, y));
            }
        }
    }

    void whateverChangesShows() {
        TitleStrip strip;
        strip.resize(600, strip.sizeHint().height());
        const auto picture = [&strip](int changed) {
            const auto text = [changed](int which) {
                return QStringLiteral("%1 %2").arg(which).arg(changed == which);
            };
            strip.setContent(text(0), {text(1)}, text(2), text(3), changed == 4 ? Qt::red : Qt::green);
            return strip.grab().toImage();
        };
        for (int changed = 0; changed <= 4; ++changed) {
            const QImage before = picture(-1);
            QVERIFY2(picture(changed) != before, qPrintable(QString::number(changed)));
            QCOMPARE(picture(-1), before);
        }
    }

    void theStripShowsStateAndNameInAnyWidth() {
        const QColor lamp(0xe5484d);
        TitleStrip strip;
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::white);
        palette.setColor(QPalette::Window, Qt::black);
        strip.setPalette(palette);
        strip.setContent(QStringLiteral("Marlin"),
                         {QStringLiteral("1,000 fps"), QStringLiteral("1280 x 1024")}, QStringLiteral("#12"),
                         QStringLiteral("Recording"), lamp);
        // Where the lamp is, and what is written at its left and at its right, in pixels.
        struct Found {
            int lamp = -1;
            int left = 0;
            int right = 0;
        };
        const auto found = [&](int width) {
            strip.resize(width, strip.sizeHint().height());
            const QImage image = strip.grab().toImage();
            Found result;
            for (int x = 0; x < image.width() && result.lamp < 0; ++x) {
                result.lamp = image.pixelColor(x, image.height() / 2 + 1) == lamp ? x : -1;
            }
            for (int x = 0; x < image.width(); ++x) {
                int inked = 0;
                for (int y = 0; y < image.height(); ++y) {
                    const QColor color = image.pixelColor(x, y);
                    inked += color.lightness() > 128 && color.saturation() < 40 ? 1 : 0;
                }
                (x < result.lamp ? result.left : result.right) += inked > 0 ? 1 : 0;
            }
            return result;
        };
        const Found wide = found(600);
        QVERIFY(wide.lamp > 300 && wide.right > 20);
        const Found narrower = found(220);
        QVERIFY(narrower.lamp > 100 && narrower.right == wide.right); // the facts give way
        QVERIFY(narrower.left < wide.left && narrower.left > 20);
        // However few facts have room, the name is whole and nothing runs into it.
        const auto name = [&](int width) {
            found(width);
            const int end = strip.fontMetrics().horizontalAdvance(QStringLiteral("Marlin")) + 12;
            return strip.grab().toImage().copy(0, 0, end, strip.height());
        };
        for (const int width : {300, 260, 220, 180}) {
            QVERIFY2(name(width) == name(600), qPrintable(QString::number(width)));
        }
        const Found tile = found(70);
        QVERIFY(tile.lamp > 56 && tile.right == 0); // at the edge, the lamp alone tells the state
        QVERIFY(tile.left > 10);
        strip.resize(600, strip.height());
        const QImage before = strip.grab().toImage();
        strip.setContent(QStringLiteral("Marlin"),
                         {QStringLiteral("1,000 fps"), QStringLiteral("1280 x 1024")}, QStringLiteral("#13"),
                         QStringLiteral("Recording"), lamp);
        QVERIFY(strip.grab().toImage() != before); // the next picture is a change
        strip.setContent(QStringLiteral("<i>Clip & Co"), {}, QString(), QStringLiteral("File"), QColor());
        QCOMPARE(found(300).lamp, -1);
        QVERIFY(Qt::mightBeRichText(strip.toolTip()));
        QCOMPARE(QTextDocumentFragment::fromHtml(strip.toolTip()).toPlainText(),
                 QStringLiteral("<i>Clip & Co\nFile"));
    }

    void theLampSaysWhatTheCameraDoes() {
        const QColor gray(0x8a8f95);
        const QColor green(0x30a46c);
        const QColor amber(0xf5a623);
        const QColor red(0xe5484d);
        HostTest test;
        Client client;
        DocumentArea area(test.list, client, &noIcon);
        area.resize(400, 300);
        test.select({test.camera("Mono")});
        QTRY_VERIFY(area.findChild<TitleStrip*>());
        auto* const strip = area.findChild<TitleStrip*>();
        strip->resize(400, strip->sizeHint().height());
        const auto shown = [&] {
            area.refreshAll();
            const QImage image = strip->grab().toImage();
            QString colors;
            for (const QColor& color : {gray, green, amber, red}) {
                colors += hasColor(image, color) ? color.name() : QString();
            }
            return colors;
        };
        SimulatedBody& mono = *test.body("Mono");
        QCOMPARE(shown(), green.name());
        mono.recordReady().result();
        QCOMPARE(mono.state(), CameraState::WaitingReady);
        QCOMPARE(shown(), amber.name());
        test.rig.clock().advanceMs(mono.model().readyTimeMs + 50);
        QCOMPARE(mono.state(), CameraState::Ready);
        QCOMPARE(shown(), amber.name());
        mono.triggerIn().result();
        QCOMPARE(shown(), red.name());
        mono.unplug();
        QCOMPARE(shown(), gray.name());
    }

    // The strip above a picture is pressed as the picture.
    void eachWindowHasItsPlace() {
        Windows windows;
        HostTest& test = windows.test;
        DocumentArea& area = windows.area;
        const auto window = [&](const Document* document) { return windows.of(document); };
        const auto isCurrent = [&](const Document* document) {
            return window(document)->property("current").toBool();
        };
        const auto* const empty = area.findChild<QLabel*>(QStringLiteral("emptyArea"));
        test.select({});
        QTRY_VERIFY(empty->isVisible() && empty->text().startsWith(QLatin1String("No camera is selected.")));
        QCOMPARE(empty->geometry(), area.rect());

        const QList<Document*> three{test.camera("Mono"), test.camera("Colour"), test.camera("Plain")};
        test.select({three[0]});
        QTRY_VERIFY(window(three[0]) && empty->isHidden() && !isCurrent(three[0])); // there is no other
        test.select(three);
        const QList<QRect> places{{0, 0, 298, 223}, {301, 0, 299, 223}, {0, 226, 298, 224}};
        for (int i = 0; i < 3; ++i) {
            QTRY_VERIFY(window(three[i]) && window(three[i])->geometry() == places[i]);
            QCOMPARE(isCurrent(three[i]), i == 0);
        }
        QTest::mouseClick(window(three[2])->findChild<TitleStrip*>(), Qt::LeftButton);
        QTRY_VERIFY(isCurrent(three[2]) && !isCurrent(three[0]));
        for (const Document* const each : three) { // its name is written as on a highlight
            auto* const strip = window(each)->findChild<TitleStrip*>();
            QPalette palette = strip->palette();
            palette.setColor(QPalette::HighlightedText, Qt::magenta);
            strip->setPalette(palette);
            QCOMPARE(hasColor(strip->grab().toImage(), Qt::magenta), isCurrent(each));
        }
        QTest::mouseDClick(window(three[0])->findChild<TitleStrip*>(), Qt::LeftButton);
        QVERIFY(window(three[0]) && !window(three[2]));
        area.resize(500, 400);
        QTRY_COMPARE(window(three[0])->size(), QSize(500, 400));
    }

    void wheelAndMiddleButtonMoveThePicture() {
        Windows windows;
        const Document* const mono = windows.test.camera("Mono");
        windows.test.select({windows.test.camera("Mono")});
        QTRY_VERIFY(windows.of(mono) && windows.of(mono)->height() > 400);
        ImageView& view = windows.of(mono)->view();
        view.setZoom(1);
        const QPointF at(200, 150);
        const QPointF pixel = view.transform().viewToOriginal(at);
        for (const auto& [angle, zoom] : {std::pair(60, 1.0), std::pair(240, 2.0), std::pair(-240, 1.0)}) {
            QWheelEvent event(at, view.mapToGlobal(at.toPoint()), {}, {0, angle}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&view, &event); // half a notch is none
            QCOMPARE(view.transform().zoom(), zoom);
            QVERIFY(QLineF(view.transform().viewToOriginal(at), pixel).length() < 1.5);
        }
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            const QPointF before = view.transform().center();
            QTest::mousePress(&view, button, {}, QPoint(100, 100));
            QMouseEvent move(QEvent::MouseMove, {60, 70}, view.mapToGlobal({60, 70}), Qt::NoButton, button,
                             {});
            QCoreApplication::sendEvent(&view, &move);
            QTest::mouseRelease(&view, button, {}, {60, 70});
            QCOMPARE(view.transform().center() != before, button == Qt::MiddleButton);
        }
    }

    void eachWindowTellsOfItsDocument() {
        Windows windows;
        HostTest& test = windows.test;
        const auto told = [&](const Document* document) {
            const QString tip = windows.of(document)->findChild<TitleStrip*>()->toolTip();
            return QTextDocumentFragment::fromHtml(tip).toPlainText().replace(QLatin1Char('\n'),
                                                                              QLatin1Char('|'));
        };
        const auto hasBar = [&](const Document* document) {
            return windows.of(document)->findChild<PlayBar*>()->isVisible();
        };
        Document* const mono = test.camera("Mono");
        test.select({mono});
        QTRY_VERIFY(windows.of(mono));
        QCOMPARE(told(mono), QStringLiteral("Mono|1000 fps|1/1000 sec|1280 x 1024|Live"));
        QVERIFY(!hasBar(mono));
        test.body("Mono")->unplug();
        QTRY_COMPARE(told(mono), QStringLiteral("Mono|Disconnected")); // the rest may be otherwise by now
        test.list.setMode(HOST_MODE_FILE);
        const auto* const empty = windows.area.findChild<QLabel*>(QStringLiteral("emptyArea"));
        QTRY_VERIFY(empty->isVisible() && empty->text().startsWith(QLatin1String("No recording is open.")));
        RecordingInfo info;
        info.camera = QStringLiteral("Marlin");
        info.rate = 500;
        info.shutter = 2000;
        FileDocument& file = *test.list.addRecording(recordingOf(info, 4, {64, 48}));
        test.select({&file});
        QTRY_VERIFY(windows.of(&file) && hasBar(&file));
        file.setPlaying(true);
        QCOMPARE(told(&file), QStringLiteral("Marlin|500 fps|1/2000 sec|64 x 48|Replay"));
        file.setPlaying(false);
        QCOMPARE(windows.of(&file)->findChild<TitleStrip*>()->accessibleName(),
                 QStringLiteral("Marlin, File"));
    }
};

QTEST_MAIN(tst_TitleStrip)
#include "tst_title_strip.moc"
