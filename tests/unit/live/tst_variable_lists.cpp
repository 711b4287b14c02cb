// Variable channels: the lists, the limits, and the walks from a size to one that a camera takes.

#include "tests/support/LogCapture.h"
#include "tests/unit/live/VariableTest.h"

#include <QtTest>
#include <stdexcept>

class tst_VariableLists : public QObject, private VariableTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void refusesRatesThatAreNotThere() {
        for (const int index : {-1, 4, 1000}) {
            LogCapture log;
            m_rig->host.calls.clear();
            m_live->setVariableChannelInfo(1, index, 400, 300, 0, 0);
            QCOMPARE(count("setVariableChannelInfoOf"), 0);
            QCOMPARE(log.with(QStringLiteral("no row")).size(), 1);
            QVERIFY(!m_live->validateFrameRateOnManual(index));
            QCOMPARE(m_live->correctVariableResolution(index, 433, 300, 800, false), 433UL);
            const QJsonObject none = parsed(m_live->getVariableResolutionList(false, index));
            QCOMPARE(none[QStringLiteral("VariableResolutionList")].toArray().size(), 0);
            QCOMPARE(none[QStringLiteral("MinValue")].toString(), QStringLiteral("0"));
            QCOMPARE(none[QStringLiteral("MaxPresetWidth")].toString(), QStringLiteral("0"));
            QCOMPARE(m_rig->host.calls.count(kHandleError), 0);
        }
        // Without a limit by the rate no row is read.
        const LogCapture log;
        QCOMPARE(
            column(parsed(m_live->getVariableResolutionList(true, -1)), "VariableResolutionList", "Value")
                .size(),
            3);
        QCOMPARE(log.with(QStringLiteral("no row")).size(), 0);
    }

    void listsTheRatesOfASize() {
        const auto rates = [&](const QString& text) {
            const QJsonObject object = parsed(text);
            QStringList rows;
            const QStringList values = column(object, "VariableFramerateList", "Value");
            const QStringList texts = column(object, "VariableFramerateList", "FrameRate");
            for (int i = 0; i < values.size(); ++i) {
                rows.append(values.at(i) + QLatin1Char('=') + texts.at(i).section(QLatin1Char(' '), 0, 0));
            }
            return rows.join(QLatin1Char(' '));
        };
        QCOMPARE(rates(m_live->getVariableFramerateList(true, 100, 50)),
                 QStringLiteral("0=500 1=1000 2=2000 3=4000"));
        QCOMPARE(count("getVariableMaxRate"), 0);
        QCOMPARE(rates(m_live->getVariableFramerateList(false, 400, 300)), QStringLiteral("0=500 1=1000"));
        QCOMPARE(rates(m_live->getVariableFramerateList(false, 200, 50)),
                 QStringLiteral("0=500 1=1000 2=2000"));
        // Without a size that of the first preset: 1000000 / (800 + 1200) is 500.
        QCOMPARE(rates(m_live->getVariableFramerateList(false)), QStringLiteral("0=500"));
        // A rate that is refused is skipped, and the numbers close up; the walk ends above the size's
        // maximum.
        m_refused = {1000};
        QCOMPARE(rates(m_live->getVariableFramerateList(false, 200, 50)), QStringLiteral("0=500 1=2000"));
        m_rig->host.onGetResolutionList = [](QList<ResolutionEntry>& list) { list.clear(); };
        QCOMPARE(rates(m_live->getVariableFramerateList(false)), QString());
    }

    void keepsThePlacesOfPresets() {
        const QJsonObject list = parsed(m_live->getVariableResolutionList(false, 1));
        QCOMPARE(column(list, "VariableResolutionList", "Value"),
                 (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
        QCOMPARE(column(list, "VariableResolutionList", "Resolution").at(0), QStringLiteral("400x300"));
        QCOMPARE(list[QStringLiteral("MinValue")].toString(), QStringLiteral("1"));
        QCOMPARE(list[QStringLiteral("MaxPresetHeight")].toString(), QStringLiteral("300"));
    }

    void limitsASizeToItsRate_data() {
        QTest::addColumn<int>("rate");
        QTest::addColumn<QSize>("user");
        QTest::addColumn<QSize>("expected");
        // At 1000 fps columns + 2 rows are at most 1000, at 2000 fps 500.
        QTest::newRow("as it stands") << 1 << QSize(400, 100) << QSize(800, 300);
        QTest::newRow("the height is cut first") << 1 << QSize(400, 600) << QSize(400, 300);
        QTest::newRow("too wide: walks down to 400") << 2 << QSize(800, 50) << QSize(400, 50);
        QTest::newRow("off the grid: no width reaches it") << 2 << QSize(450, 50) << QSize(800, 600);
        QTest::newRow("no width reaches the rate") << 3 << QSize(50, 50) << QSize(800, 600);
        QTest::newRow("without a rate") << -1 << QSize(400, 100) << QSize(800, 600);
    }
    void limitsASizeToItsRate() {
        QFETCH(int, rate);
        QFETCH(QSize, user);
        QFETCH(QSize, expected);
        const QJsonObject limits =
            parsed(m_live->getVariableRestriction(rate, ulong(user.width()), ulong(user.height())));
        QCOMPARE(QSize(limits[QStringLiteral("WidthMax")].toString().toInt(),
                       limits[QStringLiteral("HeightMax")].toString().toInt()),
                 expected);
        QCOMPARE(limits[QStringLiteral("WidthFrameMax")].toString(), QStringLiteral("800"));
        QCOMPARE(limits[QStringLiteral("PosXStep")].toString(), QStringLiteral("4"));
        QVERIFY(limits[QStringLiteral("PosXFree")].toBool());
        QVERIFY(!limits[QStringLiteral("PosYFree")].toBool());
    }

    void endsTheWalkWithoutAStep() {
        m_limits.widthStep = 0;
        m_limits.heightStep = 0;
        QCOMPARE(parsed(m_live->getVariableRestriction(2, 800, 50))[QStringLiteral("WidthMax")].toString(),
                 QStringLiteral("800"));
        QCOMPARE(m_live->correctVariableResolution(2, 800, 600, 600, true), 600UL);
        m_rates.clear();
        const QJsonObject limits = parsed(m_live->getVariableRestriction(0, 123, 45));
        QCOMPARE(limits[QStringLiteral("WidthMax")].toString(), QStringLiteral("123"));
        QCOMPARE(limits[QStringLiteral("HeightMax")].toString(), QStringLiteral("45"));
    }

    void exchangesTheAxesOfASwappedDocument() {
        m_rig->camera.onIsAxisSwapped = [] { return true; };
        QJsonObject limits = parsed(m_live->getVariableRestriction());
        const auto value = [&limits](const char* key) {
            return limits[QLatin1String(key)].toString().toInt();
        };
        QCOMPARE(
            (QList<int>{value("WidthStep"), value("WidthMin"), value("WidthMax"), value("WidthFrameMax")}),
            (QList<int>{50, 50, 600, 600}));
        QCOMPARE((QList<int>{value("HeightStep"), value("HeightMin"), value("HeightMax"),
                             value("HeightFrameMax")}),
                 (QList<int>{100, 100, 800, 800}));
        QCOMPARE((QList<int>{value("PosXStep"), value("PosYStep"), value("PosXMin"), value("PosYMin")}),
                 (QList<int>{2, 4, 0, 0}));
        QVERIFY(!limits[QStringLiteral("PosXFree")].toBool());
        QVERIFY(limits[QStringLiteral("PosYFree")].toBool());
        // What the rate leaves is exchanged with the rest.
        limits = parsed(m_live->getVariableRestriction(1, 400, 600));
        QCOMPARE(QSize(value("WidthMax"), value("HeightMax")), QSize(300, 400));
    }

    void correctsASize_data() {
        QTest::addColumn<int>("rate");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("max");
        QTest::addColumn<bool>("height");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("expected");
        QTest::newRow("valid at once") << 1 << QSize(400, 300) << 600 << true << true << 300;
        QTest::newRow("down to the next") << 1 << QSize(400, 500) << 600 << true << true << 300;
        QTest::newRow("the width as well") << 1 << QSize(800, 300) << 800 << false << true << 400;
        QTest::newRow("up, and down from the maximum") << 1 << QSize(400, 500) << 550 << true << false << 300;
        // 800 columns never reach 2000 fps: down past 50, up to 600, down again, and after the third turn it
        // ends one step above the minimum.
        QTest::newRow("three turns") << 2 << QSize(800, 200) << 600 << true << true << 100;
    }
    void correctsASize() {
        QFETCH(int, rate);
        QFETCH(QSize, size);
        QFETCH(int, max);
        QFETCH(bool, height);
        QFETCH(bool, down);
        QFETCH(int, expected);
        QCOMPARE(m_live->correctVariableResolution(rate, ulong(size.width()), ulong(size.height()),
                                                   ulong(max), height, down),
                 ulong(expected));
    }

    void asksTheCameraAtEachStepOfACorrection() {
        QList<int> asked;
        m_rig->camera.onIsValidVariableSize = [&asked](unsigned, unsigned, unsigned height) {
            asked.append(int(height));
            return false;
        };
        QCOMPARE(m_live->correctVariableResolution(0, 400, 100, 200, true, true), 100UL);
        QCOMPARE(asked, (QList<int>{100, 50, 100, 150, 200, 150, 100, 50, 100}));
        m_rig->host.onGetVariableRateList = [](QList<unsigned long>& list) { list.clear(); };
        asked.clear();
        QCOMPARE(m_live->correctVariableResolution(0, 400, 123, 200, true, true), 123UL);
        QVERIFY(asked.isEmpty());
    }

    void askedWhetherARateHasManualSizes() {
        QVERIFY(m_live->validateFrameRateOnManual(3)); // 100 x 50 runs 5000
        m_limits.heightMin = 100;
        QVERIFY(!m_live->validateFrameRateOnManual(3)); // 100 x 100 runs 3333
        m_rates.clear();
        QVERIFY(!m_live->validateFrameRateOnManual(0));
    }

    void survivesAFailingHost() {
        for (const char* const name : {"getVariableRateList", "getVariableRestriction"}) {
            m_rig->host.calls.failNext(operation(name), throwing(std::runtime_error("no")), -1);
        }
        QCOMPARE(m_live->getVariableRestriction(), QString());
        QCOMPARE(m_live->getVariableFramerateList(true), QString());
        QCOMPARE(m_live->getVariableResolutionList(true), QString());
        QVERIFY(!m_live->validateFrameRateOnManual(0));
        QCOMPARE(m_live->correctVariableResolution(0, 400, 300, 600), 300UL);
        QCOMPARE(m_rig->host.calls.count(kHandleError), 5);
    }
};

QTEST_MAIN(tst_VariableLists)
#include "tst_variable_lists.moc"
