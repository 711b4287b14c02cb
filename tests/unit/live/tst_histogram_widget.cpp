// What the brightness graph paints, looked up in its picture.

#include "livecontrol/live/GUI_ImageTriggerHistgramWidget.h"
#include "livecontrol/live/GraphText.h"
#include "tests/support/TestRig.h"

#include <QtTest>
#include <memory>

namespace {

constexpr QSize kSize(340, 230);
constexpr QRect kGraph(35, 15, kSize.width() - 35 - 12,
                       kSize.height() - 15 - 15); // from the lower left corner

} // namespace

class tst_HistogramWidget : public QObject {
    Q_OBJECT

    TestRig m_rig;
    std::unique_ptr<GUI_ImageTriggerHistgramWidget> m_widget;
    std::array<histogram::Row, 3> m_bins{};
    QImage m_picture;

    void paint(int channels, int peak) {
        m_widget->setHistogramData(m_bins.front().data(), 8, channels, peak);
        m_picture = m_widget->grabFramebuffer();
        QCOMPARE(m_picture.size(), kSize * m_widget->devicePixelRatio());
        m_picture = m_picture.scaled(kSize);
    }

    /// The color in the middle of a bin's column, at that part of the graph's height.
    QColor at(int bin, double height) const {
        const int x = kGraph.left() + static_cast<int>(kGraph.width() * (bin + 0.5) / 257);
        const int y = kGraph.top() + static_cast<int>(kGraph.height() * height);
        return m_picture.pixelColor(x, kSize.height() - 1 - y);
    }

    int lit(const QRect& part) const {
        int count = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                count += m_picture.pixelColor(x, y).lightness() > 60 ? 1 : 0;
            }
        }
        return count;
    }

    int verticalLabels() const { return lit({0, 0, kGraph.left() - 2, kSize.height() - kGraph.top()}); }

private slots:
    void init() {
        m_widget = std::make_unique<GUI_ImageTriggerHistgramWidget>(&m_rig.host, QString(), nullptr);
        m_widget->resize(kSize);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
        m_bins = {};
        m_bins[0].fill(1000);
        for (int bin = 50; bin < 60; ++bin) {
            m_bins[1][bin] = 900;
            m_bins[1][bin + 40] = 450;
        }
    }
    void cleanup() { m_widget.reset(); }

    void aColourFrameShowsItsGreenRow() {
        paint(3, 900);
        QCOMPARE(at(55, 0.1), QColor(0, 255, 0));
        QCOMPARE(at(55, 0.95), QColor(0, 255, 0));
        QCOMPARE(at(95, 0.47), QColor(0, 255, 0));
        QVERIFY(at(95, 0.53).green() < 200);
        QVERIFY(at(20, 0.1).green() < 200);
    }

    void aMonochromeFrameShowsItsOnlyRow() {
        m_bins[0].fill(0);
        m_bins[0].at(70) = m_bins[0].at(71) = m_bins[0].at(72) = 8;
        paint(1, 8);
        const QColor grey = at(71, 0.9);
        QVERIFY(qAbs(grey.red() - 178) <= 1 && grey.red() == grey.green() && grey.green() == grey.blue());
        QVERIFY(at(55, 0.1).lightness() < 150);
    }

    void theStatisticsStandOnTheirPanel() {
        paint(3, 900);
        const int left = kGraph.left() + kGraph.width() * 60 / 100;
        const int top = kSize.height() - kGraph.top() - kGraph.height() * 75 / 100;
        const QColor panel = m_picture.pixelColor(left + 2, top + 2);
        QVERIFY(panel.blue() > panel.red() + 40);
        int written = 0;
        for (int y = top; y < top + kGraph.height() / 5; ++y) {
            for (int x = left; x < left + kGraph.width() / 3; ++x) {
                written += m_picture.pixelColor(x, y).lightness() < 10 ? 1 : 0;
            }
        }
        QVERIFY2(written > 100, qPrintable(QString::number(written)));
    }

    // Of one brightness least and greatest are alike; a second one, above, moves the greatest and the mean.
    void eachFigureStandsInItsLine_data() {
        QTest::addColumn<int>("channels");
        QTest::newRow("monochrome") << 1;
        QTest::newRow("colour") << 3;
    }
    void eachFigureStandsInItsLine() {
        QFETCH(int, channels);
        const auto lines = [this, channels](std::initializer_list<int> values) {
            m_bins = {};
            m_bins[0].fill(4);
            histogram::Row& shown = m_bins[channels / 2];
            shown = {};
            for (const int value : values) {
                shown.at(value) = 8;
            }
            paint(channels, 8);
            QList<QImage> parts;
            for (const double baseline : {69.5, 63.5, 57.5}) {
                const int y =
                    kSize.height() - kGraph.top() - static_cast<int>(kGraph.height() * baseline / 100);
                parts.append(m_picture.copy(kGraph.left() + kGraph.width() * 62 / 100, y - 9, 70, 9));
            }
            return parts;
        };
        const QList<QImage> dark = lines({20});
        const QList<QImage> both = lines({20, 200});
        const QList<QImage> bright = lines({200});
        QCOMPARE(both.at(0), dark.at(0));
        QCOMPARE(both.at(1), bright.at(1));
        QVERIFY(both.at(0) != bright.at(0) && both.at(1) != dark.at(1));
        QVERIFY(both.at(2) != dark.at(2) && both.at(2) != bright.at(2));
    }

    /// Where GLUT can't be had the same letters come from the system.
    void writesWithoutGlut() {
        m_widget->makeCurrent();
        glViewport(0, 0, kSize.width(), kSize.height());
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0, kSize.width(), 0, kSize.height(), -1, 1);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        constexpr int kCell = 20;
        constexpr int kBaseline = 6;
        for (const graphtext::Font font : {graphtext::Font::Scale, graphtext::Font::Statistics}) {
            glClearColor(0, 0, 0, 0);
            glClear(GL_COLOR_BUFFER_BIT);
            glColor4f(1, 1, 1, 1);
            const QByteArray letters("0123456789MA");
            for (int i = 0; i < letters.size(); ++i) {
                glRasterPos2i(i * kCell, kBaseline);
                graphtext::drawWithoutGlut(font, letters.at(i));
            }
            QSet<QByteArray> shapes;
            for (int i = 0; i < letters.size(); ++i) {
                QByteArray pixels(kCell * kCell, '\0');
                glPixelStorei(GL_PACK_ALIGNMENT, 1);
                glReadPixels(i * kCell, 0, kCell, kCell, GL_RED, GL_UNSIGNED_BYTE, pixels.data());
                QCOMPARE(pixels.left(kCell * (kBaseline - 1)).count('\xff'), 0); // stands on its line
                QVERIFY(pixels.mid(kCell * kBaseline, kCell).count('\xff') > 0);
                QVERIFY(pixels.count('\xff') >= 5);
                shapes.insert(pixels);
            }
            QCOMPARE(shapes.size(), letters.size()); // all told apart
        }
        m_widget->doneCurrent();
    }

    void theScaleFollowsThePeak() {
        paint(3, 1);
        QCOMPARE(verticalLabels(), 0);
        QVERIFY(lit({0, kSize.height() - 14, kSize.width() - 12, 14}) > 50); // 0 to 255 below the graph
        paint(3, 900);
        QVERIFY(verticalLabels() > 30);
        // Their last digits stand before the graph, in which there is nothing but the grid.
        const int height = kSize.height() - kGraph.top() - 4;
        QVERIFY(lit({kGraph.left() - 5, 0, 4, height}) > 10);
        QVERIFY(lit({kGraph.left() + 1, 0, 3, height}) < 30);
        // And their first ones, of three, as the single one of 0 below the graph.
        QVERIFY(lit({kGraph.left() - 16, 0, 5, height}) > 10);
        QVERIFY(lit({kGraph.left() - 2, kSize.height() - 14, 12, 14}) > 5);
    }

    // A line goes up at each quarter, dashed, and at both ends.
    void theGridStandsAtTheQuarters() {
        m_bins = {};
        paint(1, 900);
        const auto inked = [this](int column) {
            int most = 0;
            for (const int x : {column - 1, column, column + 1}) {
                most = qMax(most, lit({x, 4, 1, kGraph.height() - 8}));
            }
            return most;
        };
        const auto columnOf = [](double part) {
            return kGraph.left() + static_cast<int>(kGraph.width() * part);
        };
        // And one along the top, where the highest count is.
        QVERIFY(lit({kGraph.left() + 4, kSize.height() - kGraph.top() - kGraph.height() - 1, 80, 3}) >= 78);
        const int gap = inked(columnOf(0.12));
        for (const double part : {0.25, 0.5}) { // the statistics cover the third
            QVERIFY2(inked(columnOf(part)) > gap + kGraph.height() / 5, qPrintable(QString::number(part)));
        }
    }

    // The last number ends where the graph does.
    void theScaleBelowStaysUnderTheGraph() {
        paint(3, 900);
        const int below = kSize.height() - 14;
        QVERIFY(lit({kGraph.right() - 15, below, 15, 14}) > 15);
        QCOMPARE(lit({kGraph.right() + 1, below, kSize.width() - kGraph.right() - 1, 14}), 0);
    }
};

QTEST_MAIN(tst_HistogramWidget)
#include "tst_histogram_widget.moc"
