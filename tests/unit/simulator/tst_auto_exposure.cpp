// A camera that exposes by itself: where it measures, how it settles, what stops it.
#include "simulator/device/Rig.h"
#include "simulator/settings/AutoExposure.h"

#include <QtTest>

namespace {

/// The model's numbers are those of the rig "Bench": target by 1024 and range by 64 to full scale.
ExposureControl control(const QRect& area, quint32 value, quint32 range, quint32 maxTime) {
    return {false, area, value, range, maxTime};
}

} // namespace

class AutoExposureTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Rig> m_rig;
    SimulatedHead* m_head = nullptr;

    /// Brightness of an area in the live image, by 1024 to full scale.
    int level(const QRect& area) {
        const Frame frame = m_head->liveFrame();
        return int(AutoExposure::meanLevel(frame.image.copy(area), frame.bitDepth) * 1024);
    }
    void letSettle() { m_rig->clock().advanceMs(4000); }
    const HeadSettings& settings() const { return m_head->settings(); }

private slots:
    void init() {
        m_rig = Rig::load(QStringLiteral(":/rigs/default.json"), Clock::Mode::Stepped);
        m_head = m_rig->findName(QStringLiteral("Marlin"))->head();
        m_head->setRate(125).result();
        m_head->setShutter(30000).result();
    }

    void settlesOnTheTargetInEachArea_data() {
        QTest::addColumn<QRect>("area");
        QTest::addColumn<int>("value");
        QTest::newRow("dark corner") << QRect(0, 0, 128, 128) << 300;
        QTest::newRow("bright corner") << QRect(1152, 896, 128, 128) << 300;
        QTest::newRow("bright target") << QRect(0, 0, 128, 128) << 700;
        QTest::newRow("whole image") << QRect(0, 0, 1280, 1024) << 400;
    }

    void settlesOnTheTargetInEachArea() {
        QFETCH(QRect, area);
        QFETCH(int, value);
        m_head->setExposureControl(control(area, quint32(value), 3, 125)).result();
        const int before = level(area);
        m_head->setAutoExposure(true).result();
        m_rig->clock().advanceMs(AutoExposure::StepMs);
        const int onTheWay = level(area);
        QVERIFY2(qAbs(onTheWay - value) < qAbs(before - value), "each step comes nearer");
        letSettle();
        const int band = 3 * 1024 / 64;
        QVERIFY2(qAbs(level(area) - value) <= band + 12, qPrintable(QString::number(level(area))));
        const quint32 settled = settings().shutter;
        m_rig->clock().advanceMs(200);
        QVERIFY(qAbs(int(settings().shutter) - int(settled)) < int(settled / 10)); // rests, the wheel turns
    }

    void staysWithinTheLongestTime() {
        m_head->setExposureControl(control(QRect(0, 0, 128, 128), 1000, 0, 1000)).result();
        m_head->setAutoExposure(true).result();
        letSettle();
        QCOMPARE(settings().shutter, 1000U);
        m_head->setRate(2000).result(); // a frame is shorter yet
        QVERIFY(settings().shutter >= 2000);
        QCOMPARE(settings().exposure.maxTime, 2000U);
    }

    void theChosenShutterComesBack() {
        m_head->setAutoExposure(true).result();
        letSettle();
        QVERIFY(settings().shutter != 30000);
        m_head->setAutoExposure(false).result();
        QCOMPARE(settings().shutter, 30000U);
        letSettle();
        QCOMPARE(settings().shutter, 30000U);
        // A shutter, or a dual slope, that is chosen ends it.
        m_head->setAutoExposure(true).result();
        m_head->setShutter(5000).result();
        QVERIFY(!settings().exposure.on);
        m_head->setAutoExposure(true).result();
        m_head->setDualSlope(40).result();
        QVERIFY(!settings().exposure.on);
        QCOMPARE(settings().shutter, 5000U);
        QVERIFY_EXCEPTION_THROWN(m_head->setAutoExposure(true).result(), CameraError);
    }

    void aTargetThatWasMetIsSeenForHalfASecond() {
        const QRect area(0, 0, 128, 128);
        const auto aimAt = [&](int value) {
            m_head->setImageTriggerControl({false, area, quint32(value), 1}).result();
        };
        aimAt(level(area));
        m_head->observeImage(true);
        m_rig->clock().advanceMs(AutoExposure::StepMs);
        QVERIFY(m_head->isImageTriggered());
        aimAt(level(area) + 500);
        m_rig->clock().advanceMs(400);
        QVERIFY(m_head->isImageTriggered());
        m_rig->clock().advanceMs(200);
        QVERIFY(!m_head->isImageTriggered());
    }

    void aRecordingIsExposedAlike() {
        m_head->setExposureControl(control(QRect(0, 0, 128, 128), 200, 3, 125)).result();
        m_head->setAutoExposure(true).result();
        letSettle();
        m_head->changeFromOutside(QStringLiteral("aperture"), 0.25);
        m_head->body()->recordReady().result();
        const quint32 shutter = settings().shutter;
        letSettle();
        QCOMPARE(settings().shutter, shutter);
        m_head->body()->stopRecording().result();
        letSettle();
        QVERIFY(settings().shutter < shutter); // it was too dark
    }

    void takesTheNearestAreaOfItsGrid() {
        const auto taken = [this](const QRect& area) {
            m_head->setExposureControl(control(area, 5000, 500, 130)).result();
            return settings().exposure.area;
        };
        QCOMPARE(taken(QRect(17, 31, 70, 79)), QRect(16, 16, 64, 64));
        QCOMPARE(taken(QRect(-50, 2000, 10, 5000)), QRect(0, 0, 64, 1024));
        QCOMPARE(settings().exposure.value, 1023U);
        QCOMPARE(settings().exposure.range, 63U);
        QCOMPARE(settings().exposure.maxTime, 250U);
        QVERIFY(m_head->setExposureControl(control(QRect(16, 16, 64, 64), 100, 10, 250)).result() ==
                CommandResult::Ok);
        // A smaller image takes the area along.
        m_head->setExposureControl(control(QRect(1152, 896, 128, 128), 100, 10, 250)).result();
        m_head->setResolution(QSize(128, 16)).result();
        QVERIFY(QRect(QPoint(), QSize(128, 16)).contains(settings().exposure.area));
    }

    void aCameraWithoutItRefuses() {
        SimulatedHead* const dummy = m_rig->findName(QStringLiteral("Spare"))->head();
        QVERIFY_EXCEPTION_THROWN(dummy->setAutoExposure(true).result(), CameraError);
        QVERIFY(dummy->settings().exposure.area.isNull());
    }
};

QTEST_GUILESS_MAIN(AutoExposureTest)
#include "tst_auto_exposure.moc"
