// Counting pixels into bins, and the figures that stand at the graph.

#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/live/HistogramFigures.h"
#include "tests/support/LogCapture.h"

#include <QRandomGenerator>
#include <QRect>
#include <QtTest>

#include <cmath>
#include <numeric>
#include <vector>

namespace {

/// A frame of random samples whose rows are longer than its pixels need.
struct TestFrame {
    TestFrame(int width, int height, int bits, bool color) {
        frame.width = width;
        frame.height = height;
        frame.stride = width * (color ? 3 : 1) + 5;
        frame.bitsPerSample = static_cast<quint8>(bits);
        frame.significantBits = static_cast<quint8>(bits);
        frame.isColor = color;
        const auto count = static_cast<size_t>(frame.stride) * height;
        QRandomGenerator random(42);
        narrow.resize(count);
        wide.resize(count);
        for (size_t i = 0; i < count; ++i) {
            wide[i] = static_cast<quint16>(random.bounded(1 << bits));
            narrow[i] = static_cast<quint8>(wide[i]);
        }
        frame.samples8 = narrow.data();
        frame.samples16 = bits > 8 ? wide.data() : nullptr;
    }

    int sample(int x, int y, int channel) const {
        const int channels = frame.isColor ? 3 : 1;
        const size_t at = static_cast<size_t>(y) * frame.stride + x * channels + channel;
        return frame.bitsPerSample > 8 ? wide[at] : narrow[at];
    }

    IMG_FrameBuffer frame;
    std::vector<quint8> narrow;
    std::vector<quint16> wide;
};

/// One pixel at a time, as plainly as it can be told.
std::vector<quint32> countPlainly(const TestFrame& test, int binCount, int depth, const QRect& rect,
                                  bool ellipse, bool inside) {
    const int channels = test.frame.isColor ? 3 : 1;
    std::vector<quint32> bins(static_cast<size_t>(channels) * binCount);
    const float scale = static_cast<float>(binCount - 1) / static_cast<float>((1 << depth) - 1);
    for (int y = 0; y < test.frame.height; ++y) {
        for (int x = 0; x < test.frame.width; ++x) {
            bool isIn = rect.contains(x, y);
            if (ellipse) {
                const double dx = (x + 0.5 - (rect.left() + rect.right() + 1) / 2.0) / (rect.width() / 2.0);
                const double dy = (y + 0.5 - (rect.top() + rect.bottom() + 1) / 2.0) / (rect.height() / 2.0);
                isIn = dx * dx + dy * dy <= 1.0;
            }
            for (int channel = 0; isIn == inside && channel < channels; ++channel) {
                const auto index = static_cast<int>(static_cast<float>(test.sample(x, y, channel)) * scale);
                ++bins[static_cast<size_t>(channel) * binCount + std::min(index, binCount - 1)];
            }
        }
    }
    return bins;
}

quint64 sum(const std::vector<quint32>& bins) {
    return std::accumulate(bins.begin(), bins.end(), quint64(0));
}

} // namespace

class tst_Histogram : public QObject {
    Q_OBJECT

private slots:
    void countsLikeThePlainWalk_data() {
        QTest::addColumn<int>("bits");
        QTest::addColumn<bool>("color");
        QTest::addColumn<int>("binCount");
        QTest::addColumn<int>("depth");
        QTest::newRow("8 bits") << 8 << false << 256 << 0;
        QTest::newRow("8 bits, colour") << 8 << true << 256 << 8;
        QTest::newRow("8 bits, few bins") << 8 << true << 10 << 0;
        QTest::newRow("8 bits on a scale of 6, past the last bin") << 8 << false << 256 << 6;
        QTest::newRow("12 bits") << 12 << false << 256 << 12;
        QTest::newRow("12 bits, colour") << 12 << true << 256 << 0;
        QTest::newRow("12 bits, a bin a value") << 12 << true << 4096 << 12;
        QTest::newRow("12 bits on a scale of 10, past the last bin") << 12 << false << 100 << 10;
        QTest::newRow("16 bits") << 16 << false << 65536 << 16;
    }

    void countsLikeThePlainWalk() {
        QFETCH(int, bits);
        QFETCH(bool, color);
        QFETCH(int, binCount);
        QFETCH(int, depth);
        TestFrame test(61, 23, bits, color);
        const QRect whole(0, 0, 61, 23);
        for (const QRect& rect : {whole, QRect(7, 3, 31, 12), QRect(60, 22, 1, 1)}) {
            for (const int kind : {0, 1, 2, 3}) {
                const bool ellipse = kind & 1;
                const bool inside = kind & 2;
                std::vector<quint32> bins(static_cast<size_t>(color ? 3 : 1) * binCount);
                test.frame.getHistogramBins(bins.data(), color ? 3 : 1, binCount, static_cast<qint8>(depth),
                                            &rect, ellipse, inside);
                QCOMPARE(bins, countPlainly(test, binCount, depth ? depth : bits, rect, ellipse, inside));
            }
        }
        std::vector<quint32> all(static_cast<size_t>(color ? 3 : 1) * binCount, 7);
        test.frame.getHistogramBins(all.data(), color ? 3 : 1, binCount, static_cast<qint8>(depth), nullptr,
                                    false, true);
        QCOMPARE(sum(all) - 7 * all.size(), quint64(61 * 23 * (color ? 3 : 1))); // added to what stood there
    }

    // Of so many the samples are counted two at a time, and each row has some left over.
    void countsALargeFrameLikeThePlainWalk() {
        TestFrame test(1021, 700, 8, false);
        const QRect whole(0, 0, 1021, 700);
        const QRect part(3, 2, 1001, 600);
        for (const auto& [rect, inside] :
             {std::pair(whole, true), std::pair(part, true), std::pair(part, false)}) {
            for (const auto& [binCount, depth] : {std::pair(256, 8), std::pair(256, 6), std::pair(10, 8)}) {
                std::vector<quint32> bins(static_cast<size_t>(binCount));
                test.frame.getHistogramBins(bins.data(), 1, binCount, static_cast<qint8>(depth), &rect, false,
                                            inside);
                QCOMPARE(bins, countPlainly(test, binCount, depth, rect, false, inside));
            }
        }
    }

    void narrowsAWidePlaneForALowDepth() {
        TestFrame test(16, 4, 12, false);
        test.wide[0] = 0xFFF;
        test.wide[1] = 0xFFFF; // more than the significant bits hold
        test.wide[2] = 0x01F;
        std::vector<quint32> bins(256);
        test.frame.getHistogramBins(bins.data(), 1, 256, 8, nullptr, false, true);
        QCOMPARE(int(test.narrow[0]), 255);
        QCOMPARE(int(test.narrow[1]), 255);
        QCOMPARE(int(test.narrow[2]), 1);
        QCOMPARE(sum(bins), quint64(64));
    }

    void countsNothingWithoutItsPlane() {
        TestFrame narrow(4, 4, 8, false);
        narrow.frame.samples8 = nullptr;
        TestFrame wide(4, 4, 12, false);
        wide.frame.samples16 = nullptr;
        std::vector<quint32> bins(256);
        narrow.frame.getHistogramBins(bins.data(), 1, 256, 0, nullptr, false, true);
        wide.frame.getHistogramBins(bins.data(), 1, 256, 0, nullptr, false, true);
        QCOMPARE(sum(bins), quint64(0));
    }

    void refusesARegionOutsideTheFrame_data() {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QString>("fault");
        QTest::newRow("the frame itself") << QRect(0, 0, 16, 8) << QString();
        QTest::newRow("corners exchanged") << QRect(QPoint(12, 6), QPoint(2, 3)) << QString();
        QTest::newRow("too wide") << QRect(0, 0, 17, 8) << QStringLiteral("size over flow");
        QTest::newRow("too high") << QRect(0, 0, 16, 9) << QStringLiteral("size over flow");
        QTest::newRow("shifted right") << QRect(1, 0, 16, 8) << QStringLiteral("coord over flow");
        QTest::newRow("above") << QRect(0, -1, 4, 4) << QStringLiteral("coord over flow");
    }

    void refusesARegionOutsideTheFrame() {
        QFETCH(QRect, rect);
        QFETCH(QString, fault);
        TestFrame test(16, 8, 8, false);
        std::vector<quint32> bins(256);
        LogCapture log;
        test.frame.getHistogramBins(bins.data(), 1, 256, 0, &rect, false, true);
        QCOMPARE(sum(bins) == 0, !fault.isEmpty());
        QCOMPARE(log.with(QStringLiteral("IMG_FrameBuffer::getHistogramBins")).size(),
                 fault.isEmpty() ? 0 : 1);
        QVERIFY(fault.isEmpty() || log.with(fault).size() == 1);
    }

    void dividesTheVerticalScale_data() {
        QTest::addColumn<int>("peak");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("unit");
        QTest::newRow("0") << 0 << 0 << 0;
        QTest::newRow("1") << 1 << 0 << 0;
        QTest::newRow("2") << 2 << 2 << 1;
        QTest::newRow("900") << 900 << 4 << 200;
        QTest::newRow("1000") << 1000 << 2 << 500;
        QTest::newRow("39,999,999") << 39999999 << 3 << 10000000;
        QTest::newRow("past the list") << 50000000 << 0 << 0;
    }

    void dividesTheVerticalScale() {
        QFETCH(int, peak);
        const histogram::Division division = histogram::verticalDivision(peak);
        QTEST(division.count, "count");
        QTEST(division.unit, "unit");
    }

    void labelsTheHorizontalScale() {
        QList<int> labels;
        for (int i = 0; i <= 4; ++i) {
            labels << histogram::horizontalLabel(i, 4, 8);
        }
        QCOMPARE(labels, (QList<int>{0, 63, 127, 191, 255}));
        QCOMPARE(histogram::horizontalLabel(4, 4, 12), 4095);
    }

    void tellsStatisticsOnItsScale() {
        histogram::Row row{};
        QCOMPARE(histogram::statistics(row, 8).min, -1);
        QCOMPARE(histogram::statistics(row, 8).max, -1);
        QCOMPARE(histogram::statistics(row, 8).average, 0);
        row[10] = 3;
        row[13] = 1; // the average of 10.75 is cut before it goes to the scale
        const histogram::Statistics figures = histogram::statistics(row, 12);
        QCOMPARE(figures.min, 160);
        QCOMPARE(figures.max, 208);
        QCOMPARE(figures.average, 160);
        row.fill(0xFFFFFFFF);
        QCOMPARE(histogram::statistics(row, 8).average, 127);
    }
};

QTEST_APPLESS_MAIN(tst_Histogram)
#include "tst_histogram.moc"
