// One rectangle in three spaces: what the page shows, what the plug-in edits on the image, what the camera
// measures. Random images, steps, turns, mirrorings and reductions.

#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/unit/viewer_host/HostTest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <random>

class tst_AreaSpaces : public QObject {
    Q_OBJECT

    std::mt19937 m_random{20};
    std::unique_ptr<HostTest> m_test;
    std::unique_ptr<PLG_livecontrol> m_plugin;
    std::unique_ptr<JS_Mediator_LiveControl> m_live;

    int upTo(int limit) { return static_cast<int>(m_random() % unsigned(limit)); }

    /// Another camera with another image, seen in another way.
    CameraDocument& someCamera(int mostReduction) {
        static const char* const kNames[] = {"Mono", "Colour", "Twin"};
        CameraDocument& camera = *m_test->camera(kNames[upTo(3)]);
        m_test->list.setSelection({&camera});
        m_test->list.setCurrent(&camera);
        const QList<QSize> sizes = camera.head()->resolutionList();
        camera.head()->setResolution(sizes.at(upTo(sizes.size()))).result();
        ViewState view;
        view.quarterTurns = upTo(4);
        view.flipA = upTo(2);
        view.flipB = upTo(2);
        view.imageScale = 1 << upTo(mostReduction);
        view.binning = upTo(mostReduction);
        view.zoom = view.reduction() * (0.25 + upTo(40) / 10.0);
        view.imageToView = view.userviewTransform(camera.imageSize()) *
                           QTransform::fromScale(view.zoom, view.zoom) * QTransform::fromTranslate(13, -7);
        camera.setView(view);
        const QSize image = camera.imageSize();
        ExposureControl wish = camera.head()->settings().exposure;
        wish.area = QRect(upTo(image.width()), upTo(image.height()), 1 + upTo(image.width()),
                          1 + upTo(image.height()));
        camera.head()->setExposureControl(wish).result();
        m_live->resetSelectArea();
        return camera;
    }

    QJsonObject settings() {
        return QJsonDocument::fromJson(m_live->getAutoExposureSettings().toUtf8()).object();
    }

private slots:
    void init() {
        m_test = std::make_unique<HostTest>();
        m_plugin = std::make_unique<PLG_livecontrol>();
        m_plugin->init(&m_test->host);
        m_live = std::make_unique<JS_Mediator_LiveControl>(&m_test->host, m_plugin.get());
    }
    void cleanup() {
        m_live.reset();
        m_plugin.reset();
        m_test.reset();
    }

    void anAreaComesBackAsItWas() {
        for (int i = 0; i < 600; ++i) {
            CameraDocument& camera = someCamera(3);
            const QRect atCamera = camera.head()->settings().exposure.area;
            const QJsonObject page = settings();
            QCOMPARE(m_plugin->getSelectArea(), atCamera);
            const int factor = camera.view().reduction();
            const auto whole = [factor](const QRect& r, const QSize& image) {
                return r.x() % factor + r.y() % factor + r.width() % factor + r.height() % factor +
                           image.width() % factor + image.height() % factor ==
                       0;
            };
            if (!whole(atCamera, camera.imageSize())) {
                continue; // the user's view has no whole pixel for it
            }
            const QByteArray what = QStringLiteral("case %1").arg(i).toUtf8();
            m_live->sendSelectArea(m_live->recvSelectArea());
            QVERIFY2(m_plugin->getSelectArea() == atCamera, what);
            QJsonObject apply{{QStringLiteral("AutoExposureOn"), false},
                              {QStringLiteral("AutoExposureValue"), 100}};
            m_live->setAutoExposure(QString::fromUtf8(QJsonDocument(apply).toJson()));
            QVERIFY2(camera.head()->settings().exposure.area == atCamera, what);
            // The page's limits stand as the user sees the image: the area lies within them.
            const QJsonObject size = page[QStringLiteral("AutoExposureArea")].toObject();
            const QJsonObject place = page[QStringLiteral("AutoExposurePos")].toObject();
            if (factor == 1) {
                QVERIFY2(place[QStringLiteral("X")].toInt() + size[QStringLiteral("Width")].toInt() <=
                             size[QStringLiteral("WidthMax")].toInt(),
                         what);
                QVERIFY2(size[QStringLiteral("Height")].toInt() >= size[QStringLiteral("HeightMin")].toInt(),
                         what);
            }
        }
    }

    void aDragStaysInTheImageAndAboveTheSmallestSize() {
        m_test->host.setAutoExposureSetting(true);
        for (int i = 0; i < 400; ++i) {
            CameraDocument& camera = someCamera(1);
            settings();
            const QRect image(QPoint(), camera.imageSize());
            const ExposureMeter& meter = camera.head()->model().meter;
            const QSize least = meter.areaMin.boundedTo(image.size());
            const DOCKEY key = camera.key();
            const auto inView = [&camera](const QPointF& p) {
                return camera.view().imageToView.map(p).toPoint();
            };
            const QRectF area = m_plugin->getSelectArea();
            const QPointF from[] = {area.center(), area.topLeft(), area.bottomRight(),
                                    QPointF(area.left(), area.center().y())};
            m_plugin->mousePress(inView(from[upTo(4)]), key);
            for (int move = 0; move < 12; ++move) {
                const QPoint to(upTo(1600) - 200, upTo(1400) - 200);
                m_plugin->mouseMove(inView(to), key);
                const QRect now = m_plugin->getArea();
                const QByteArray what = QStringLiteral("case %1: %2,%3 %4x%5")
                                            .arg(i)
                                            .arg(now.x())
                                            .arg(now.y())
                                            .arg(now.width())
                                            .arg(now.height())
                                            .toUtf8();
                QVERIFY2(image.contains(now), what);
                // Its limits turn with the view, so either side may have either one.
                const int smallest = qMin(least.width(), least.height());
                QVERIFY2(now.width() >= smallest && now.height() >= smallest, what);
                // The pointer rests. The first move may still bring a large area within turned limits.
                m_plugin->mouseMove(inView(to), key);
                QVERIFY2(move == 0 || m_plugin->getArea() == now, what);
            }
            m_plugin->mouseRelease(QPoint(), key);
            QVERIFY(!m_plugin->isDragging());
        }
    }

    void theModeEndsWithTheLink() {
        m_test->select({m_test->camera("Mono")});
        m_test->host.setAutoExposureSetting(true);
        m_test->host.setProcessingDisabled(true, {QStringLiteral("binning")});
        m_test->body("Colour")->unplug(); // another camera
        QVERIFY(m_test->host.isAutoExposureSetting());
        m_test->body("Mono")->unplug();
        QVERIFY(!m_test->host.isAutoExposureSetting());
        QVERIFY(m_test->list.tools().isAllowed(QStringLiteral("binning")));
    }
};

QTEST_MAIN(tst_AreaSpaces)
#include "tst_area_spaces.moc"
