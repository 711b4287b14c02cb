// What the plug-in paints over an image, and what it counts there.

#include "livecontrol/devices/JS_Mediator_DeviceList.h"
#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestRig.h"

#include <QOpenGLWidget>
#include <QtTest>

#include <functional>

class tst_PluginPaint : public QObject {
    Q_OBJECT

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<PLG_livecontrol> m_plugin;

private slots:
    void init() {
        m_rig = std::make_unique<TestRig>();
        m_plugin = std::make_unique<PLG_livecontrol>();
        m_plugin->init(&m_rig->host);
    }
    void cleanup() {
        m_plugin.reset();
        m_rig.reset();
    }

    void tellsOfAPageThatIsMissing() {
        struct Pageless : PLG_HTML {
            Pageless() { m_name = QStringLiteral("tool"); }
        } plugin;
        LogCapture log;
        QCOMPARE(plugin.getHtml(), QString());
        QCOMPARE(log.with(QStringLiteral("Not Found \":/tool.html\"")).size(), 1);
        QCOMPARE(log.lines().first().type, QtWarningMsg);
    }

    // The page hears of the area of the current document, which all that are locked together take over.
    void drawsTheAreaOfTheCurrentDocumentAlone() {
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_plugin->setSelectArea({10, 20, 300, 200});
        QList<QRect> drawn;
        m_rig->camera.onMapRectToView = [&](const QRect& area, bool) {
            drawn.append(area);
            return area;
        };
        const QString script = QStringLiteral("HostApplication.runPageScript");
        m_rig->host.onIsMultiLock = [] { return true; };
        m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr);
        QVERIFY(drawn.isEmpty()); // another one is current
        m_rig->host.onIsCurrentDocument = [this](DOC_Interface* document) {
            return document == &m_rig->camera;
        };
        m_plugin->onPaintOverlay(&m_rig->camera, true, nullptr);
        QCOMPARE(drawn, QList<QRect>{m_plugin->getSelectArea()});
        QCOMPARE(m_rig->host.calls.count(script), 1);
        m_rig->host.onIsMultiLock = [] { return false; };
        m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr);
        QCOMPARE(drawn.size(), 2);
        QCOMPARE(m_rig->host.calls.count(script), 1);
        m_rig->camera.onIsConnected = [] { return false; };
        m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr);
        QCOMPARE(drawn.size(), 2);
    }

    // The host tells the resolutions of the current camera alone: they say nothing about another one.
    void marksTheResolutionWhereItBelongs() {
        m_rig->camera.onIsLowLight = [] { return true; };
        m_rig->camera.onGetLowLightType = [] { return 2; };
        m_rig->host.onGetResolution = [](unsigned& width, unsigned& height) {
            width = 641;
            height = 480;
        };
        m_rig->host.onGetMaxResolution = [](unsigned& width, unsigned& height) {
            width = 1280;
            height = 1024;
        };
        QRect drawn;
        m_rig->camera.onMapRectToView = [&](const QRect& area, bool) { return drawn = area; };
        const auto marked = [&](bool pass = false) {
            drawn = QRect();
            m_plugin->onPaintOverlay(&m_rig->camera, pass, nullptr);
            return drawn;
        };
        const auto channel = [this](unsigned number) {
            m_rig->camera.onGetCurrentVariableChannel = [number] { return number; };
        };
        m_rig->camera.onGetVariableChannelInfo = [](unsigned number, VariableChannelInfo& info) {
            info.width = 320;
            info.height = 240;
            info.posX = number;
            info.posY = 48;
        };
        QCOMPARE(marked(), QRect());
        channel(20);
        QCOMPARE(marked(), QRect(20, 48, 320, 240)); // its own numbers
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        QCOMPARE(marked(), QRect(20, 48, 641, 480));
        channel(21);
        QCOMPARE(marked(), QRect(319, 272, 641, 480));
        QCOMPARE(marked(true), QRect());
        m_rig->camera.onGetLowLightType = [] { return 1; };
        QCOMPARE(marked(), QRect());
    }

    void handsTheCountsToTheGraphWhileItShows() {
        m_rig->host.onIsCurrentDocument =
            m_rig->host.onIsDisplayingPersmatch = [](DOC_Interface*) { return true; };
        m_plugin->setSelectArea({0, 0, 8, 8});
        m_plugin->setHistogramBitDepth(8);
        m_plugin->createWidget();
        const std::unique_ptr<QWidget> owner(m_plugin->getWidget()); // as the page that embeds it
        auto& graph = dynamic_cast<QOpenGLWidget&>(*owner);
        graph.resize(340, 230);
        graph.show();
        QVERIFY(QTest::qWaitForWindowExposed(&graph));
        std::vector<quint8> samples(64, 128);
        IMG_FrameBuffer frame;
        frame.width = frame.height = frame.stride = 8;
        frame.samples8 = samples.data();
        const auto bar = [&] { // in the middle of the graph, where half of the scale lies
            m_plugin->onPaintOverlay(&m_rig->camera, false, &frame);
            const QImage picture = graph.grabFramebuffer();
            int grey = 0;
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, 100);
                grey += color.red() > 150 && qAbs(color.red() - color.green()) < 2 ? 1 : 0;
            }
            return grey;
        };
        QCOMPARE(bar(), 0);
        m_plugin->setHistogramVisible(true);
        QVERIFY(m_plugin->getOverlayEnabled());
        QCOMPARE(bar(), 0); // no page that shows it
        m_rig->host.onIsHwTriggerSetting = [] { return true; };
        QVERIFY(bar() > 0);
        QCoreApplication::processEvents();
        const QSignalSpy painted(&graph, &QOpenGLWidget::frameSwapped);
        m_plugin->onPaintOverlay(&m_rig->camera, false, &frame);
        QTRY_VERIFY(!painted.isEmpty()); // by itself
        m_plugin->setHistogramVisible(false);
        QVERIFY(!m_plugin->getOverlayEnabled() && !m_plugin->getWidget());
        m_plugin->onPaintOverlay(&m_rig->camera, false, &frame); // the page has dropped the graph
    }

    // Of a colour frame the graph shows green, and green alone says how high it is.
    void scalesTheGraphByWhatItShows() {
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_plugin->setSelectArea({0, 0, 8, 8});
        m_plugin->createWidget();
        const std::unique_ptr<QWidget> owner(m_plugin->getWidget());
        auto& graph = dynamic_cast<QOpenGLWidget&>(*owner);
        graph.resize(340, 230);
        graph.show();
        QVERIFY(QTest::qWaitForWindowExposed(&graph));
        std::vector<quint8> samples(64 * 3, 128);
        for (size_t pixel = 0; pixel < 64; ++pixel) {
            samples[pixel * 3 + 1] = quint8(16 + pixel % 16 * 8); // a sixteenth of what red has in one bin
        }
        IMG_FrameBuffer frame;
        frame.width = frame.height = 8;
        frame.stride = 8 * 3;
        frame.isColor = true;
        frame.samples8 = samples.data();
        m_plugin->setHistogramVisible(true);
        m_plugin->onPaintOverlay(&m_rig->camera, false, &frame);
        const QImage picture = graph.grabFramebuffer();
        int green = 0;
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, 60);
            green += color.green() > 150 && color.red() < 50 ? 1 : 0;
        }
        QVERIFY2(green >= 10, qPrintable(QString::number(green)));
    }

    // The line runs through the outermost pixels of what it encloses, as one does that is drawn there by
    // itself.
    void framesTheAreaToThePixel() {
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->camera.onMapRectToView = [](const QRect& area, bool) { return area; };
        m_plugin->setSelectArea({QPoint(30, 20), QPoint(89, 59)});
        struct View : QOpenGLWidget {
            void paintGL() override {
                glClearColor(0.5F, 0.5F, 0.5F, 1.0F);
                glClear(GL_COLOR_BUFFER_BIT);
                glLoadIdentity();
                glOrtho(-0.5, width() - 0.5, height() - 0.5, -0.5, -1, 1); // pixels by their centers
                paint();
            }
            std::function<void()> paint;
        } view;
        view.setFixedSize(200, 120);
        const auto inked = [&view](const std::function<void()>& paint) {
            view.paint = paint;
            const QImage picture = view.grabFramebuffer();
            QRect part;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const int off = qAbs(picture.pixelColor(x, y).lightness() - 128);
                    part |= off > 64 ? QRect(x, y, 1, 1) : QRect();
                }
            }
            return part;
        };
        const QRect wanted = inked([] {
            glEnable(GL_LINE_SMOOTH);
            glColor3d(0, 0, 0);
            glBegin(GL_LINE_LOOP);
            for (const QPoint& corner : {QPoint(30, 59), QPoint(30, 20), QPoint(89, 20), QPoint(89, 59)}) {
                glVertex2i(corner.x(), corner.y());
            }
            glEnd();
            glDisable(GL_LINE_SMOOTH);
        });
        QVERIFY(wanted.width() >= 60 && wanted.width() < 65);
        QCOMPARE(inked([&] { m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr); }), wanted);
        // White dashes on black, which show on any image.
        const QImage top = view.grabFramebuffer().copy(40, 20, 40, 1);
        QSet<int> shades;
        for (int x = 0; x < top.width(); ++x) {
            shades.insert(top.pixelColor(x, 0).lightness() / 64);
        }
        QVERIFY(shades.contains(0) && shades.contains(3));
    }

    // The host goes on painting in the same pass.
    void leavesTheHostsPassAsItWas() {
        m_rig->host.onIsCurrentDocument = [](DOC_Interface*) { return true; };
        m_rig->host.onIsAutoExposureSetting = [] { return true; };
        m_rig->camera.onMapRectToView = [](const QRect& area, bool) { return area; };
        m_plugin->setSelectArea({10, 20, 300, 200});
        struct Pass : QOpenGLWidget {
            void paintGL() override { paint(); }
            std::function<void()> paint;
        } view;
        bool isPainted = false;
        view.paint = [&] {
            m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr);
            m_rig->camera.onIsLowLight = [] { return true; };
            m_rig->camera.onGetLowLightType = [] { return 2; };
            m_plugin->onPaintOverlay(&m_rig->camera, false, nullptr); // in red
            isPainted = true;
            float width = 0;
            glGetFloatv(GL_LINE_WIDTH, &width);
            float color[4] = {};
            glGetFloatv(GL_CURRENT_COLOR, color);
            QVERIFY(!glIsEnabled(GL_LINE_STIPPLE) && !glIsEnabled(GL_LINE_SMOOTH));
            QCOMPARE(width, 1.0F);
            QCOMPARE(color[0] + color[1] + color[2] + color[3], 4.0F);
        };
        view.show();
        QTRY_VERIFY(isPainted);
    }
};

QTEST_MAIN(tst_PluginPaint)
#include "tst_plugin_paint.moc"
