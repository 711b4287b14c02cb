// Which sizes run how fast, and the channels that a camera keeps of them.
#include "simulator/device/Rig.h"
#include "viewer/cameras/settings/VariableSize.h"

#include <QJsonArray>
#include <QtTest>

namespace {

// A row costs 1 us and 10 ns a column; from 400 to 600 fps rows come in blocks of 40.
QByteArray model(const char* band = "40", const char* fixed = R"(["x"])") {
    return QByteArray(R"({
    "title": "Table", "sensor": [800, 800], "sizeMin": [100, 20], "sizeStep": [100, 20], "bitDepth": 8,
    "readout": { "frameOverheadUs": 1, "rowOverheadUs": 1, "columnNs": 10 },
    "resolutions": [[800, 800], [400, 200], [100, 40]],
    "rates": [100, 200, 400, 600, 800, 1000, 5000, 20000, 90000], "shutters": [100, 90000],
    "variable": { "positionStep": [50, 20], "fixed": FIXED, "bands": [{ "from": 400, "to": 600, "heightStep": BAND }] },
    "triggerModes": [0, 4], "memoryMb": 10, "partitions": 3, "functions": ["variableChannels"] })")
        .replace("FIXED", fixed)
        .replace("BAND", band);
}

QString text(const HeadSettings& s) {
    return QStringLiteral("%1: %2x%3 %4")
        .arg(s.channel)
        .arg(s.resolution.width())
        .arg(s.resolution.height())
        .arg(s.rate);
}

} // namespace

class VariableSizeTest : public QObject {
    Q_OBJECT

    std::shared_ptr<const SimulatedModel> m_model =
        SimulatedModel::parse(model(), QStringLiteral("table.json"));
    std::unique_ptr<Rig> m_rig;
    SimulatedBody* m_body = nullptr;
    SimulatedHead* m_head = nullptr;

    template <class Action>
    QString refusal(Action action) {
        try {
            action();
        } catch (const CameraError& error) {
            return error.reason().english();
        }
        return QStringLiteral("taken");
    }

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_body = m_rig->findName(QStringLiteral("Marlin"));
        m_head = m_body->head();
    }

    void bothDirectionsCount() {
        // 800 columns: 9 us a row. 1e6 / (1 + 9 * 100) is 1109 fps.
        QCOMPARE(VariableSize::maxHeight(*m_model, 1000, 800), 100);
        QCOMPARE(VariableSize::maxHeight(*m_model, 1000, 100), 480); // 2 us a row: 499 rows, on the grid 480
        QCOMPARE(VariableSize::maxWidth(*m_model, 1000, 480), 100);
        QCOMPARE(VariableSize::maxWidth(*m_model, 1000, 100), 800);
        QCOMPARE(VariableSize::maxHeight(*m_model, 90000, 800), 0);
        QCOMPARE(VariableSize::maxHeight(*m_model, 1000, 150), 0); // off the grid
        QCOMPARE(VariableSize::maxWidth(*m_model, 1000, 0), 0);
        QCOMPARE(VariableSize::rates(*m_model).last(), 20000U); // 100 x 20 runs 24390
    }

    void everyLimitIsTight_data() {
        QTest::addColumn<int>("rate");
        for (const quint32 rate : VariableSize::rates(*m_model)) {
            QTest::newRow(QByteArray::number(rate)) << int(rate);
        }
    }
    void everyLimitIsTight() {
        QFETCH(int, rate);
        const auto fps = quint32(rate);
        const int step = m_model->heightStepAt(fps);
        for (int width = 100; width <= 800; width += 100) {
            const int height = VariableSize::maxHeight(*m_model, fps, width);
            QVERIFY(height == 0 || VariableSize::isValid(*m_model, fps, {width, height}));
            QVERIFY(height == 800 || !VariableSize::isValid(*m_model, fps, {width, height + step}));
        }
    }

    void aBandOfRatesHasItsOwnRows() {
        const QSize odd(100, 60);
        QVERIFY(VariableSize::isValid(*m_model, 200, odd));
        QVERIFY(!VariableSize::isValid(*m_model, 400, odd));
        QVERIFY(!VariableSize::isValid(*m_model, 600, odd));
        QVERIFY(VariableSize::isValid(*m_model, 800, odd));
        QVERIFY(!VariableSize::isValid(*m_model, 300, odd)); // no rate of the camera
        QCOMPARE(VariableSize::maxWidth(*m_model, 400, 60), 0);
    }

    void aPlaceIsOnTheGridAndOnTheSensor() {
        const QSize size(400, 200);
        QCOMPARE(VariableSize::settledPosition(*m_model, size, {0, 0}), QPoint(200, 0)); // x is fixed
        QCOMPARE(VariableSize::settledPosition(*m_model, size, {7, 39}), QPoint(200, 20));
        QCOMPARE(VariableSize::settledPosition(*m_model, size, {7, 999}), QPoint(200, 600));
        QCOMPARE(VariableSize::settledPosition(*m_model, size, {7, -5}), QPoint(200, 0));
    }

    void aModelThatContradictsItselfIsRefused() {
        const auto problem = [](const QByteArray& json) {
            try {
                SimulatedModel::parse(json, QStringLiteral("table.json"));
            } catch (const std::exception& error) {
                return QString::fromStdString(error.what());
            }
            return QString();
        };
        QVERIFY(problem(model("30")).contains(QStringLiteral("multiple")));
        QVERIFY(problem(model("80")).contains(QStringLiteral("200 rows")));
        QVERIFY(problem(model("40", R"(["z"])")).contains(QStringLiteral("axes")));
    }

    void aChannelIsStoredTakenAndLeft() {
        const VariableChannel small{5000, {384, 128}, {64, 16}};
        QCOMPARE(m_head->storeVariableChannel(3, small).result(), CommandResult::Ok);
        QCOMPARE(text(m_head->settings()), QStringLiteral("0: 1280x1024 1000"));
        m_head->setVariableChannel(3).result();
        QCOMPARE(text(m_head->settings()), QStringLiteral("3: 384x128 5000"));
        QCOMPARE(m_head->area(), QRect(64, 16, 384, 128));
        QCOMPARE(m_head->liveFrame().area, m_head->area());
        QVERIFY(m_head->settings().shutter >= 5000);

        // What is written over it, and what is erased under it, shows at once.
        m_head->storeVariableChannel(3, {5000, {256, 64}, {0, 0}}).result();
        QCOMPARE(text(m_head->settings()), QStringLiteral("3: 256x64 5000"));
        m_head->setRate(2000).result(); // a rate of its own: back to a preset
        QCOMPARE(text(m_head->settings()), QStringLiteral("0: 256x64 2000"));
        QCOMPARE(m_head->area().center(), QRect(0, 0, 1280, 1024).center());
        m_head->setVariableChannel(3).result();
        m_head->eraseVariableChannel(3).result();
        QCOMPARE(m_head->settings().channel, 0);
        QVERIFY(!m_body->variableChannel(3).isStored());
        QCOMPARE(m_body->stateJson()[QStringLiteral("channels")].toArray().size(), 0);
    }

    void whatACameraCantTakeIsRefused() {
        const VariableChannel small{5000, {384, 128}, {64, 16}};
        QVERIFY(refusal([&] {
                    m_head->setVariableChannel(4).result();
                }).contains(QStringLiteral("holds nothing")));
        QVERIFY(refusal([&] {
                    m_head->eraseVariableChannel(4).result();
                }).contains(QStringLiteral("holds nothing")));
        QVERIFY(refusal([&] {
                    m_head->storeVariableChannel(21, small).result();
                }).contains(QStringLiteral("no channel 21")));
        QVERIFY(refusal([&] {
                    m_head->storeVariableChannel(1, {200000, {1280, 1024}, {}}).result();
                }).contains(QStringLiteral("can't run")));
        QVERIFY(!m_body->variableChannel(1).isStored());
        QCOMPARE(m_head->storeVariableChannel(1, {5000, {384, 128}, {65, 17}}).result(),
                 CommandResult::Clamped);
        QCOMPARE(m_body->variableChannel(1).position, QPoint(64, 16));
        SimulatedHead* const plain = m_rig->findName(QStringLiteral("Plover"))->head();
        QVERIFY(plain->storeVariableChannel(1, {3000, {512, 256}, {0, 0}}).result() ==
                CommandResult::Clamped);
        QCOMPARE(plain->body()->variableChannel(1).position, QPoint(256, 384)); // both axes are fixed
    }

    void everythingComesBack() {
        m_head->setTrigger(TriggerManual, 100).result();
        m_head->setResolution({640, 480}).result();
        m_head->setRate(3000).result();
        m_head->setShutter(6000).result();
        m_head->setShutterLock(true).result();
        const HeadSettings before = m_head->settings();
        m_head->setResolution(m_head->maxResolution()).result();
        QVERIFY(m_head->settings() != before);
        m_head->restoreSettings(before).result();
        QVERIFY(m_head->settings() == before);

        m_head->storeVariableChannel(2, {5000, {384, 128}, {64, 16}}).result();
        m_head->setVariableChannel(2).result();
        const HeadSettings inChannel = m_head->settings();
        m_head->setResolution(m_head->maxResolution()).result();
        m_head->restoreSettings(inChannel).result();
        QVERIFY(m_head->settings() == inChannel);
    }

    void partitionsKeepTheirRecordings() {
        QCOMPARE(m_body->partitionCount(), 4);
        const auto record = [this] {
            m_body->recordReady().result();
            m_rig->clock().advanceMs(m_body->model().readyTimeMs + 20);
            m_body->triggerIn().result();
            m_body->stopRecording().result();
            m_body->goLive().result();
        };
        record();
        const int frames = m_head->recording().frames;
        QVERIFY(frames > 0);
        m_body->setPartition(2).result();
        QVERIFY(m_head->recording().isEmpty());
        m_head->setRate(2000).result();
        record();
        QCOMPARE(m_head->recording(1).frames, frames);
        QCOMPARE(m_head->recording(2).settings.rate, 2000U);
        QVERIFY(m_head->recording(9).isEmpty());
        QVERIFY(
            refusal([this] { m_body->setPartition(5).result(); }).contains(QStringLiteral("no partition 5")));
        QCOMPARE(m_body->partition(), 2);
        m_body->recordReady().result();
        QVERIFY(refusal([this] { m_body->setPartition(1).result(); }) != QStringLiteral("taken"));
    }
};

QTEST_GUILESS_MAIN(VariableSizeTest)
#include "tst_variable_size.moc"
