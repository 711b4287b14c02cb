#include "simulator/device/SimulatedBody.h"
#include "simulator/picture/Blur.h"
#include "simulator/settings/AutoExposure.h"

#include <QImage>
#include <QSignalSpy>
#include <QtTest>
#include <cmath>

class tst_LensUnit : public QObject {
    Q_OBJECT

    Clock m_clock{Clock::Mode::Stepped};

    std::unique_ptr<SimulatedBody> body(const char* model = "colour8") {
        BodyDescription description;
        description.name = QStringLiteral("Plover");
        description.model = QLatin1String(model);
        description.address = QStringLiteral("192.168.0.11");
        return std::make_unique<SimulatedBody>(m_clock, description, 1);
    }
    static int at(const SimulatedHead& head, LensAxis axis) { return head.lens().axis(axis).value; }

    /// How hard the edges are; 0 of an even picture.
    static double contrast(const Frame& frame) {
        const QImage image = frame.displayImage().convertToFormat(QImage::Format_Grayscale8);
        double sum = 0;
        for (int y = 8; y < image.height() - 40; ++y) {
            for (int x = 1; x < image.width(); ++x) {
                sum += std::pow(image.constScanLine(y)[x] - image.constScanLine(y)[x - 1], 2);
            }
        }
        return sum / image.width() / image.height();
    }
    static double brightness(const Frame& frame) {
        return AutoExposure::meanLevel(frame.image, frame.bitDepth);
    }

private slots:
    void movesAtAFiniteSpeed() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        QSignalSpy rest(&head, &SimulatedHead::changedOutside);
        const LensMotion& lens = head.model().lensMotion;
        QCOMPARE(at(head, LensAxis::Zoom), 240);
        QCOMPARE(head.moveLens(LensAxis::Zoom, 700).result(), CommandResult::Ok);
        m_clock.advanceMs(lens.travelMs / 2);
        QCOMPARE(at(head, LensAxis::Zoom), 470);
        QCOMPARE(rest.count(), 0);
        // Turned round on the way: it starts from where it is.
        head.moveLens(LensAxis::Zoom, 240).result();
        const int turned = at(head, LensAxis::Zoom);
        QVERIFY(turned > 465 && turned < 485); // a command takes time too
        m_clock.advanceMs(lens.travelMs);
        QCOMPARE(at(head, LensAxis::Zoom), 240);
        QCOMPARE(rest.count(), 1); // once for a row of moves
    }

    void stepsFromTheTargetAndStopsAtTheEnds() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        head.stepLens(LensAxis::Zoom, 2, true).result();
        head.stepLens(LensAxis::Zoom, 3, false).result(); // while it still moves
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Zoom), 240 + 2 * 50 + 3 * 5);
        QCOMPARE(head.stepLens(LensAxis::Zoom, -1000, true).result(), CommandResult::Clamped);
        QCOMPARE(head.moveLens(LensAxis::Iris, 9999).result(), CommandResult::Clamped);
        head.stepLens(LensAxis::Focus, INT_MAX, true).result();
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Zoom), 240);
        QCOMPARE(at(head, LensAxis::Iris), 220);
        QCOMPARE(at(head, LensAxis::Focus), 800);
    }

    // As settings are restored: the zoom is on its way when the focus is sent after it.
    void theFocusMayGoWhereTheZoomWillLetIt() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        head.moveLens(LensAxis::Zoom, 700).result();
        QCOMPARE(head.moveLens(LensAxis::Focus, 1150).result(), CommandResult::Ok);
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Focus), 1150);
        QCOMPARE(head.moveLens(LensAxis::Focus, 1250).result(), CommandResult::Clamped);
    }

    void theFocusRangeGoesWithTheZoom() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        QCOMPARE(head.lens().axis(LensAxis::Focus).max, 800);
        QCOMPARE(head.lens().view().blur, 0.0);
        head.moveLens(LensAxis::Zoom, 700).result();
        m_clock.advanceMs(5000);
        QCOMPARE(head.lens().axis(LensAxis::Focus).max, 1200);
        QVERIFY(head.lens().view().blur > 5); // zoomed, it must be focused anew
        head.moveLens(LensAxis::Focus, 720).result();
        m_clock.advanceMs(5000);
        QCOMPARE(head.lens().view().blur, 0.0);
        head.moveLens(LensAxis::Focus, 1200).result();
        m_clock.advanceMs(5000);
        head.moveLens(LensAxis::Zoom, 240).result();
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Focus), 800);
    }

    void thePictureShowsIt() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        const Frame sharp = head.liveFrame();
        camera->head()->changeFromOutside(QStringLiteral("focus"), 100);
        QVERIFY(contrast(head.liveFrame()) < contrast(sharp) / 2);
        QCOMPARE(FrameStamp::read(head.liveFrame().image).value_or(0), quint32(head.currentNumber()));
        const double open = contrast(head.liveFrame());
        head.changeFromOutside(QStringLiteral("iris"), 56); // two stops
        QVERIFY(contrast(head.liveFrame()) < open);         // darker
        const double share = brightness(head.liveFrame()) / brightness(sharp);
        QVERIFY2(share > 0.2 && share < 0.32, qPrintable(QString::number(share)));
        head.changeFromOutside(QStringLiteral("iris"), 28);
        head.changeFromOutside(QStringLiteral("focus"), 480);
        QCOMPARE(head.liveFrame().image, sharp.image);
        head.changeFromOutside(QStringLiteral("zoom"), 700);
        QVERIFY(head.liveFrame().image != sharp.image);
        QCOMPARE(head.liveFrame().area, sharp.area);
        const double dark = brightness(head.liveFrame());
        head.setLed(true).result();
        QVERIFY(brightness(head.liveFrame()) > dark * 1.2);
        head.setLed(false).result();
        const auto spot = [&head] {
            const QImage image = head.liveFrame().image;
            return image.pixelColor(image.rect().center());
        };
        QVERIFY(spot() != QColor(255, 0, 0));
        head.setLaser(true).result();
        QCOMPARE(spot(), QColor(255, 0, 0));
    }

    void aRecordingKeepsItsLens() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        head.changeFromOutside(QStringLiteral("iris"), 56);
        camera->recordReady().result();
        m_clock.advanceMs(500);
        camera->triggerIn().result();
        m_clock.advanceMs(60000);
        const Frame before = head.memoryFrame(0);
        QVERIFY(!before.isNull());
        head.changeFromOutside(QStringLiteral("iris"), 220);
        QCOMPARE(head.memoryFrame(0).image, before.image);
    }

    void aLensWithoutContactIsRefusedUntilItIsReadAnew() {
        const auto camera = body();
        SimulatedHead& head = *camera->head();
        head.changeFromOutside(QStringLiteral("lensContact"), false);
        QVERIFY_EXCEPTION_THROWN(head.moveLens(LensAxis::Iris, 56).result(), CameraError);
        head.changeFromOutside(QStringLiteral("lensContact"), true);
        QVERIFY(!head.lens().isKnown());
        QVERIFY(!head.lens().axis(LensAxis::Iris).drivable);
        head.changeFromOutside(QStringLiteral("lensContact"), false);
        QVERIFY_EXCEPTION_THROWN(head.resetLens().result(), CameraError);
        head.changeFromOutside(QStringLiteral("lensContact"), true);
        head.resetLens().result();
        head.moveLens(LensAxis::Iris, 56).result();
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Iris), 56);
        head.moveLens(LensAxis::Zoom, 700).result();
        head.closeLens().result();
        m_clock.advanceMs(5000);
        QCOMPARE(at(head, LensAxis::Iris), 220);
        QCOMPARE(at(head, LensAxis::Zoom), 240);
    }

    void refusesWhatTheLensDoesNotDrive() {
        const auto fixed = body("mono12"); // no zoom
        QVERIFY_EXCEPTION_THROWN(fixed->head()->stepLens(LensAxis::Zoom, 1, false).result(), CameraError);
        const auto none = body("plain");
        QVERIFY_EXCEPTION_THROWN(none->head()->resetLens().result(), CameraError);
        QCOMPARE(none->head()->lens().view().light, 1.0);
        const auto busy = body();
        busy->recordReady().result();
        QVERIFY_EXCEPTION_THROWN(busy->head()->moveLens(LensAxis::Focus, 1).result(), CameraError);
    }

    void blursAllFormatsAlike() {
        for (const QImage::Format format :
             {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_RGB888}) {
            QImage image(33, 17, format);
            image.fill(Qt::black);
            image.setPixelColor(16, 8, Qt::white);
            blurImage(image, 2);
            const int spread = qRound(255 / 25.0);
            QVERIFY(std::abs(image.pixelColor(14, 6).green() - spread) <= 1);
            QVERIFY(std::abs(image.pixelColor(18, 10).green() - spread) <= 1);
            QCOMPARE(image.pixelColor(13, 8).green(), 0);
            QCOMPARE(image.pixelColor(16, 11).green(), 0);
            image.fill(Qt::white);
            blurImage(image, 40); // larger than the image
            QVERIFY(image.pixelColor(0, 0).green() >= 254 && image.pixelColor(32, 16).green() >= 254);
        }
    }
};

QTEST_MAIN(tst_LensUnit)
#include "tst_lens_unit.moc"
