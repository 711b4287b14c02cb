#include "tests/support/SmallRig.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/FrameTimer.h"
#include "viewer/views/ViewTransform.h"

#include <QPolygonF>
#include <QTest>

namespace {

ViewState stateOf(int turns, bool flipA, bool flipB, int binning = 0, int scale = 1) {
    ViewState state;
    state.quarterTurns = turns;
    state.flipA = flipA;
    state.flipB = flipB;
    state.binning = binning;
    state.imageScale = scale;
    return state;
}

double distance(const QPointF& a, const QPointF& b) { return QLineF(a, b).length(); }

} // namespace

class TestViewTransform : public QObject {
    Q_OBJECT

private slots:
    void tonesKeepGrayAndFullScale() {
        QImage image(3, 1, QImage::Format_RGB888);
        const QColor colors[] = {QColor(0, 0, 0), QColor(90, 90, 90), QColor(200, 100, 50)};
        for (int i = 0; i < 3; ++i) {
            image.setPixelColor(i, 0, colors[i]);
        }
        QCOMPARE(Tones().applied(image), image);
        const QImage gray = Tones{0, 0}.applied(image);
        QCOMPARE(gray.pixelColor(1, 0), colors[1]);
        QCOMPARE(gray.pixelColor(2, 0).saturation(), 0);
        const QImage strong = Tones{0, 200}.applied(image);
        QCOMPARE(strong.pixelColor(1, 0), colors[1]);
        QVERIFY(strong.pixelColor(2, 0).saturation() > colors[2].saturation());
        QCOMPARE(strong.pixelColor(2, 0).red(), 255); // as far as a sample goes
        QCOMPARE(strong.pixelColor(2, 0).blue(), 0);
        for (int lut = 0; lut < int(Tones::kLuts.size()); ++lut) {
            const int black = Tones{lut, 100}.applied(image).pixelColor(0, 0).red();
            QCOMPARE(black, lut == 3 ? 255 : 0);
        }
        QVERIFY(Tones({2, 100}).applied(image).pixelColor(1, 0).red() >
                Tones({1, 100}).applied(image).pixelColor(1, 0).red());
    }

    // Every turn, flip, reduction and zoom: there and back again is where it began, and every pixel of the
    // original is found again from the middle of the place where it shows.
    void roundTrips_data() {
        QTest::addColumn<int>("turns");
        QTest::addColumn<int>("flips");
        QTest::addColumn<int>("binning");
        QTest::addColumn<double>("zoom");
        for (int turns = 0; turns < 4; ++turns) {
            for (int flips = 0; flips < 4; ++flips) {
                for (const auto& [binning, zoom] :
                     {std::pair(0, 0.0), std::pair(0, 1.0), std::pair(1, 2.8), std::pair(2, 0.5)}) {
                    QTest::addRow("turns %d flips %d binning %d zoom %.1f", turns, flips, binning, zoom)
                        << turns << flips << binning << zoom;
                }
            }
        }
    }

    void roundTrips() {
        QFETCH(int, turns);
        QFETCH(int, flips);
        QFETCH(int, binning);
        QFETCH(double, zoom);
        const QSize original(640, 480);
        const ViewTransform transform(original, stateOf(turns, (flips & 1) != 0, (flips & 2) != 0, binning),
                                      QSize(401, 303), zoom, QPointF(0.2, 0.7));
        for (const QPoint& pixel : {QPoint(0, 0), QPoint(639, 0), QPoint(639, 479), QPoint(17, 311)}) {
            const QPointF middle = QPointF(pixel) + QPointF(0.5, 0.5);
            QVERIFY(distance(transform.userviewToOriginal(transform.originalToUserview(middle)), middle) <
                    1e-6);
            QVERIFY(distance(transform.viewToOriginal(transform.originalToView(middle)), middle) < 1e-6);
            QVERIFY(QRectF(QPointF(), QSizeF(transform.userviewSize()))
                        .contains(transform.originalToUserview(middle)));
        }
        QCOMPARE(transform.isAxisSwapped(), turns % 2 == 1);
        QCOMPARE(transform.userviewSize(), (turns % 2 ? original.transposed() : original) / (1 << binning));
    }

    // Worked out by hand: where the original's top left pixel and the one right of it lie in the user's view.
    void turnComesBeforeFlip_data() {
        QTest::addColumn<int>("turns");
        QTest::addColumn<bool>("flipA");
        QTest::addColumn<bool>("flipB");
        QTest::addColumn<QPointF>("first");
        QTest::addColumn<QPointF>("second");
        const auto row = [](const char* name, int turns, bool a, bool b, QPointF first, QPointF second) {
            QTest::newRow(name) << turns << a << b << first << second;
        };
        row("as it is", 0, false, false, {0.5, 0.5}, {1.5, 0.5});
        row("90", 1, false, false, {2.5, 0.5}, {2.5, 1.5});
        row("180", 2, false, false, {3.5, 2.5}, {2.5, 2.5});
        row("270", 3, false, false, {0.5, 3.5}, {0.5, 2.5});
        row("left to right", 0, true, false, {3.5, 0.5}, {2.5, 0.5});
        row("top to bottom", 0, false, true, {0.5, 2.5}, {1.5, 2.5});
        row("90, then left to right", 1, true, false, {0.5, 0.5}, {0.5, 1.5});
        row("90, then top to bottom", 1, false, true, {2.5, 3.5}, {2.5, 2.5});
    }

    void turnComesBeforeFlip() {
        QFETCH(int, turns);
        QFETCH(bool, flipA);
        QFETCH(bool, flipB);
        QFETCH(QPointF, first);
        QFETCH(QPointF, second);
        const ViewTransform transform(QSize(4, 3), stateOf(turns, flipA, flipB), QSize(100, 100), 0);
        QVERIFY(distance(transform.originalToUserview({0.5, 0.5}), first) < 1e-9);
        QVERIFY(distance(transform.originalToUserview({1.5, 0.5}), second) < 1e-9);
    }

    void fittedImageFillsTheWindowAndStaysWhole() {
        const ViewTransform wide(QSize(640, 480), ViewState(), QSize(1280, 480), 0, QPointF(0.9, 0.1));
        QCOMPARE(wide.zoom(), 1.0);
        QCOMPARE(wide.imageRect(), QRectF(320, 0, 640, 480));
        const ViewTransform turned(QSize(640, 480), stateOf(1, false, false), QSize(480, 640), 0);
        QCOMPARE(turned.imageRect(), QRectF(0, 0, 480, 640));
    }

    // A center near the edge leaves no gap that the image could fill.
    void movedImageCoversTheWindow() {
        const ViewTransform transform(QSize(640, 480), ViewState(), QSize(300, 200), 1, QPointF(0, 1));
        const QRectF image = transform.imageRect();
        QCOMPARE(image.left(), 0.0);
        QCOMPARE(image.bottom(), 200.0);
        const ViewTransform narrow(QSize(100, 480), ViewState(), QSize(300, 200), 1, QPointF(0, 0.5));
        QCOMPARE(narrow.imageRect().left(), 100.0); // smaller than the window: in the middle
    }

    void pixelIsClampedOnlyOnRequest() {
        const ViewTransform transform(QSize(640, 480), ViewState(), QSize(640, 480), 1);
        QCOMPARE(transform.pixelAt(QPoint(0, 0), true), QPoint(0, 0));
        QCOMPARE(transform.pixelAt(QPoint(639, 479), true), QPoint(639, 479));
        QCOMPARE(transform.pixelAt(QPoint(-5, 900), true), QPoint(0, 479));
        QCOMPARE(transform.pixelAt(QPoint(-5, 900), false), QPoint(-5, 900));
    }

    void zoomAtThePointerKeepsThePointThere() {
        const QSize window(400, 300);
        const QPointF pointer(310, 40);
        const ViewTransform before(QSize(1280, 1024), stateOf(1, true, false), window, 1, QPointF(0.4, 0.5));
        const QPointF under = before.viewToOriginal(pointer);
        const ViewTransform after(QSize(1280, 1024), stateOf(1, true, false), window, 2,
                                  before.centerForZoomAt(pointer, 2));
        QVERIFY(distance(after.originalToView(under), pointer) <= 1.0); // the image lies on whole pixels
    }

    void zoomGoesInSteps() {
        QCOMPARE(ViewTransform::steppedZoom(1, 2), 2.0);
        QCOMPARE(ViewTransform::steppedZoom(2, -2), 1.0);
        QCOMPARE(ViewTransform::steppedZoom(0.9, 1), 1.0); // to the next rung, not past it
        QCOMPARE(ViewTransform::steppedZoom(1.1, -1), 1.0);
        QCOMPARE(ViewTransform::steppedZoom(30, 9), ViewTransform::MaxZoom);
        QCOMPARE(ViewTransform::steppedZoom(0.03, -9), ViewTransform::MinZoom);
    }

    void nothingToShowIsNoFault() {
        const ViewTransform none(QSize(), ViewState(), QSize(400, 300), 0);
        QVERIFY(none.isEmpty());
        QCOMPARE(none.pixelAt(QPoint(5, 5), true), QPoint());
    }

    void tilesAreAsLargeAsTheyCanBe_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("area");
        QTest::addColumn<int>("columns");
        QTest::newRow("one") << 1 << QSize(800, 600) << 1;
        QTest::newRow("two, wide") << 2 << QSize(1600, 600) << 2;
        QTest::newRow("two, high") << 2 << QSize(600, 1200) << 1;
        QTest::newRow("four") << 4 << QSize(800, 600) << 2;
        QTest::newRow("sixty-four") << 64 << QSize(800, 600) << 8;
    }

    void tilesAreAsLargeAsTheyCanBe() {
        QFETCH(int, count);
        QFETCH(QSize, area);
        QTEST(DocumentArea::columnsFor(count, area), "columns");
    }

    void theStateTellsHowFarAShotHasCome() {
        SmallRig small;
        SimulatedBody& body = *small.body("Mono");
        const Document& camera = *small.camera("Mono");
        QCOMPARE(DocumentText::state(camera), QStringLiteral("Live"));
        small.head("Mono").setRate(1000).result();
        small.head("Mono").setTrigger(TriggerCenter, 0, 0, 0).result();
        body.recordReady().result();
        small.rig.clock().advanceMs(body.model().readyTimeMs + 10);
        const ShotProgress shot = small.head("Mono").shotProgress();
        const QLocale english(QLocale::English);
        QCOMPARE(DocumentText::state(camera),
                 QStringLiteral("Ready, %1 of %2 before the trigger")
                     .arg(english.toString(shot.before), english.toString(shot.wantedBefore)));
        small.rig.clock().advanceMs(small.head("Mono").totalFrames());
        body.triggerIn().result();
        const QString recording = DocumentText::state(camera);
        QVERIFY2(recording.startsWith(QLatin1String("Recording, ")) &&
                     recording.endsWith(QLatin1String(" s left")),
                 qPrintable(recording));
        small.rig.clock().advanceMs(small.head("Mono").totalFrames() * 2.0);
        QVERIFY2(!DocumentText::state(camera).contains(QLatin1Char(',')),
                 qPrintable(DocumentText::state(camera)));
        small.list.setMode(HOST_MODE_MEMORY);
        QCOMPARE(DocumentText::state(camera), QStringLiteral("Memory"));
        small.list.setMode(HOST_MODE_LIVE);
        body.disconnectLink();
        QCOMPARE(DocumentText::state(camera), QStringLiteral("Disconnected"));
    }

    // Drawing gets at most half of the time, and a beat comes at least once a second.
    void slowDrawingSlowsTheBeat() {
        QCOMPARE(FrameTimer::nextPeriod(2'000'000), FrameTimer::PeriodMs);
        QCOMPARE(FrameTimer::nextPeriod(100'000'000), 200);
        QCOMPARE(FrameTimer::nextPeriod(9'000'000'000), FrameTimer::LongestPeriodMs);
    }
};

QTEST_APPLESS_MAIN(TestViewTransform)
#include "tst_view_transform.moc"
