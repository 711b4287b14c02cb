// How the settings of a head clamp and depend on each other.
#include "simulator/device/Rig.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

// A sensor whose numbers are easy to follow: a row costs 10 us, so the rate is about 100000 / rows.
const QByteArray Model = R"({
    "title": "Table", "sensor": [800, 800], "sizeMin": [100, 100], "sizeStep": [100, 100], "bitDepth": 12,
    "readout": { "frameOverheadUs": 1, "rowOverheadUs": 10, "columnNs": 0 },
    "resolutions": [[800, 800], [800, 400], [400, 400], [400, 200], [100, 100]],
    "rates": [50, 100, 200, 400, 900], "shutters": [50, 100, 250, 500, 1000, 4000],
    "dualSlope": { "min": 10, "max": 95, "rateLimit": 200 },
    "triggerModes": [0, 4], "memoryMb": 10,
    "functions": ["shutterLock", "resolutionLock", "dualSlope"] })";

QString text(const HeadSettings& s) {
    return QStringLiteral("%1x%2 %3 1/%4")
        .arg(s.resolution.width())
        .arg(s.resolution.height())
        .arg(s.rate)
        .arg(s.shutter);
}

} // namespace

class CameraSettingsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Rig> m_rig;
    std::unique_ptr<SimulatedHead> m_table; // on a body of another model: only the numbers differ
    SimulatedHead* m_head = nullptr;

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_table = std::make_unique<SimulatedHead>(m_rig->findName(QStringLiteral("Marlin")), 0, QString(),
                                                  SimulatedModel::parse(Model, QStringLiteral("table.json")));
        m_head = m_table.get();
    }

    void startsAtTheFullSensor() {
        QCOMPARE(text(m_head->settings()), QStringLiteral("800x800 100 1/100"));
        QCOMPARE(m_head->shutterList(), (QList<quint32>{100, 250, 500, 1000, 4000}));
        QCOMPARE(m_head->totalFrames(), 10 * 1024 * 1024 / (800 * 800 * 2));
    }

    void clamps_data() {
        QTest::addColumn<QVariantList>("steps"); // name, value, name, value ...
        QTest::addColumn<bool>("clamped");       // the last step
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const QVariantList& steps, bool clamped, const char* expected) {
            QTest::newRow(name) << steps << clamped << QString::fromLatin1(expected);
        };
        const QString rate = QStringLiteral("rate");
        const QString size = QStringLiteral("resolution");
        const QString shutter = QStringLiteral("shutter");
        const QString keepSize = QStringLiteral("resolutionLock");
        const QString keepShutter = QStringLiteral("shutterLock");
        row("a rate between two rows becomes the lower", {rate, 99}, true, "800x800 50 1/100");
        row("a rate below all becomes the lowest", {rate, 1}, true, "800x800 50 1/100");
        row("a higher rate picks the largest size that runs it", {rate, 400}, false, "400x200 400 1/400");
        row("equal rows at equal cost take the larger", {rate, 200}, false, "800x400 200 1/200");
        row("a rate above all becomes the highest", {rate, 5000}, true, "100x100 900 1/900");
        row("a locked size holds the rate down", {size, QSize(800, 400), keepSize, true, rate, 900}, true,
            "800x400 200 1/200");
        row("a locked size lets it down", {keepSize, true, rate, 50}, false, "800x800 50 1/100");
        row("a larger size lowers the rate", {rate, 900, size, QSize(800, 800)}, false, "800x800 100 1/1000");
        row("a smaller size keeps the rate", {size, QSize(100, 100)}, false, "100x100 100 1/100");
        row("a size between presets", {size, QSize(799, 500)}, true, "400x400 100 1/100");
        row("a size below all presets", {size, QSize(10, 10)}, true, "100x100 100 1/100");
        row("no exposure is longer than a frame", {shutter, 50}, true, "800x800 100 1/100");
        row("an exposure between two becomes the shorter", {shutter, 300}, true, "800x800 100 1/500");
        row("no exposure is shorter than the shortest", {shutter, 9999}, true, "800x800 100 1/4000");
        row("a short exposure stays when the rate rises", {shutter, 1000, rate, 400}, false,
            "400x200 400 1/1000");
        row("a long one is cut", {shutter, 250, rate, 400}, false, "400x200 400 1/400");
        row("and stays cut, at the next in the list", {shutter, 250, rate, 400, rate, 100}, false,
            "400x200 100 1/500");
        row("a locked one comes back", {shutter, 250, keepShutter, true, rate, 900, rate, 100}, false,
            "100x100 100 1/250");
        row("as far as the rate allows", {shutter, 100, keepShutter, true, rate, 900, rate, 200}, false,
            "100x100 200 1/200");
        row("a choice under lock is the new wish", {shutter, 250, keepShutter, true, shutter, 1000, rate, 50},
            false, "800x800 50 1/1000");
        row("an open lock forgets the wish",
            {shutter, 250, keepShutter, true, rate, 900, keepShutter, false, rate, 100}, false,
            "100x100 100 1/1000");
    }

    // Commands and changes from outside follow the same rules.
    void clamps() {
        QFETCH(QVariantList, steps);
        QFETCH(bool, clamped);
        QFETCH(QString, expected);
        for (int i = 0; i < steps.size(); i += 2) {
            const QVariant& value = steps.at(i + 1);
            const QString name = steps.at(i).toString();
            CommandResult result{};
            if (name == QLatin1String("rate")) {
                result = m_head->setRate(value.toUInt()).result();
            } else if (name == QLatin1String("shutter")) {
                result = m_head->setShutter(value.toUInt()).result();
            } else {
                result = m_head->changeFromOutside(name, value);
            }
            if (i + 2 >= steps.size()) {
                QCOMPARE(result == CommandResult::Clamped, clamped);
            }
        }
        QCOMPARE(text(m_head->settings()), expected);
        QVERIFY(m_head->shutterList().contains(m_head->settings().shutter));
        QVERIFY(m_head->rateList().contains(m_head->settings().rate));
    }

    void theListOfRatesFollowsTheLock() {
        QCOMPARE(m_head->rateList(), (QList<quint32>{50, 100, 200, 400, 900}));
        m_head->setResolutionLock(true).result();
        QCOMPARE(m_head->rateList(), (QList<quint32>{50, 100}));
    }

    void dualSlopeHasLimits() {
        QCOMPARE(m_head->setDualSlope(3).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().dualSlope, 10);
        QCOMPARE(m_head->setDualSlope(99).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().dualSlope, 95);
        QCOMPARE(m_head->setDualSlope(0).result(), CommandResult::Ok);
        m_head->setDualSlope(50).result();
        m_head->setRate(400).result();
        QCOMPARE(m_head->settings().dualSlope, 0);
        QVERIFY(!m_head->isDualSlopeAvailable());
        QVERIFY_EXCEPTION_THROWN(m_head->setDualSlope(50).result(), CameraError);
        QCOMPARE(m_head->setDualSlope(0).result(), CommandResult::Ok);
    }

    void framesAfterTheTriggerFitTheMemory() {
        const int total = m_head->totalFrames();
        QCOMPARE(m_head->setTrigger(TriggerManual, total + 1).result(), CommandResult::Clamped);
        QCOMPARE(m_head->settings().afterFrames, total);
        m_head->setResolution(QSize(400, 400)).result();
        m_head->setTrigger(TriggerManual, m_head->totalFrames()).result();
        m_head->setResolution(QSize(800, 800)).result();
        QCOMPARE(m_head->settings().afterFrames, total);
        QVERIFY_EXCEPTION_THROWN(m_head->setTrigger(TriggerEnd, 1).result(), CameraError);
    }

    void functionsThatAreMissingAreRefused() {
        BodyDescription wren;
        wren.name = QStringLiteral("Wren");
        wren.address = QStringLiteral("10.0.0.1");
        wren.model = QStringLiteral("plain");
        SimulatedHead* const plain = m_rig->addBody(wren)->head();
        const QJsonObject before = plain->state();
        QVERIFY_EXCEPTION_THROWN(plain->setShutterLock(true).result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(plain->setResolutionLock(true).result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(plain->setDualSlope(10).result(), CameraError);
        QVERIFY_EXCEPTION_THROWN(plain->changeFromOutside(QStringLiteral("dualSlopeMode"), true),
                                 CameraError);
        QCOMPARE(plain->state(), before);
        QVERIFY(!plain->isDualSlopeAvailable());
    }

    void aChangeIsToldOnce() {
        QSignalSpy changed(m_head, &SimulatedHead::settingsChanged);
        QSignalSpy outside(m_head, &SimulatedHead::changedOutside);
        m_head->setRate(400).result();
        m_head->setRate(400).result();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(outside.count(), 0);
        m_head->changeFromOutside(QStringLiteral("rate"), QStringLiteral("100"));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(outside.count(), 1);
    }

    void senselessValuesFromOutside_data() {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("unknown setting") << QStringLiteral("colour") << QVariant(1);
        QTest::newRow("text for a number") << QStringLiteral("rate") << QVariant(QStringLiteral("fast"));
        QTest::newRow("fraction") << QStringLiteral("shutter") << QVariant(100.5);
        QTest::newRow("zero") << QStringLiteral("rate") << QVariant(0);
        QTest::newRow("not a number") << QStringLiteral("aperture") << QVariant(qQNaN());
        QTest::newRow("number for a lock") << QStringLiteral("shutterLock") << QVariant(1);
        QTest::newRow("half a size") << QStringLiteral("resolution") << QVariant(QStringLiteral("640x"));
    }

    void senselessValuesFromOutside() {
        QFETCH(QString, setting);
        QFETCH(QVariant, value);
        const HeadSettings before = m_head->settings();
        try {
            m_head->changeFromOutside(setting, value);
            QFAIL("taken");
        } catch (const CameraError& error) {
            QCOMPARE(error.kind(), CameraError::Kind::BadValue);
        }
        QVERIFY(m_head->settings() == before);
    }
};

QTEST_GUILESS_MAIN(CameraSettingsTest)
#include "tst_camera_settings.moc"
