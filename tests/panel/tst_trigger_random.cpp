// Random recordings: how long they are and how many, from the controls on the page to the camera and back.

#include "tests/panel/support/TriggerTest.h"

class tst_TriggerRandom : public QObject, private TriggerTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void limitsTheCountByTheMemory() {
        setMode(TriggerRandom);
        QVERIFY(isDisabled(kTimes));
        QCOMPARE(int(field(kTimes)), 0);
        enter(kFrames, QStringLiteral("1000"));
        QJsonArray args = applied();
        QCOMPARE(args.at(0).toInt(), -1);
        QCOMPARE(args.at(5).toInt(), 1000);
        QVERIFY(!now().randomTimes);

        m_test->click(kTimesBox);
        QVERIFY(now().randomTimes);
        QVERIFY(!isDisabled(kTimes));
        QCOMPARE(int(field(kTimes)), 1);
        enter(kTimes, QStringLiteral("50"));
        QCOMPARE(now().randomCount, 3); // 3 x (1000 + 4) of 3276
        QCOMPARE(int(field(kTimes)), 3);
        enter(kFrames, QStringLiteral("1600"));
        QCOMPARE(now().randomFrames, 1600);
        QCOMPARE(now().randomCount, 2);
        QCOMPARE(int(field(kTimes)), 2);
        enter(kFrames, QStringLiteral("1634")); // 2 x (1634 + 4) of 3276
        QCOMPARE(int(field(kTimes)), 2);
        spin(kFrames, "up"); // the count gives way at once
        QCOMPARE(int(field(kTimes)), 1);
        enter(kFrames, QStringLiteral("1"));
        enter(kTimes, QStringLiteral("99999")); // 655 fit, and the camera counts to fewer
        QCOMPARE(now().randomCount, m_test->head(m_mono).model().randomCountMax);
        QCOMPARE(int(field(kTimes)), now().randomCount);
        m_test->click(kTimesBox);
        QVERIFY(!now().randomTimes);
        QCOMPARE(int(field(kTimes)), 0);
        QVERIFY(m_test->waitForBox(50).isEmpty());
        QCOMPARE(m_test->logged(QStringLiteral("CheckBox")).size(), 2);
    }

    void sharesOutARandomRecording() {
        setMode(TriggerRandomManual);
        QVERIFY(isDisabled(kTimesBox));
        QVERIFY(m_test->eval(QStringLiteral("$('%1').prop('checked')").arg(kTimesBox)).toBool());
        enter(kFrames, QStringLiteral("200"));
        QCOMPARE(now().randomFrames, 200);
        m_test->calls();
        enter(kAfterFrame, QStringLiteral("80"));
        QCOMPARE(int(field(kBeforeFrame)), 120);
        QCOMPARE(applied().at(2).toInt(), 120);
        enter(kFrames, QStringLiteral("150")); // the frames after the trigger stay
        QCOMPARE(now().randomFrames, 150);
        QCOMPARE(now().afterFrames, 80);
        QCOMPARE(int(field(kBeforeFrame)), 70);
        enter(kFrames, QStringLiteral("50")); // as far as they can
        QCOMPARE(now().afterFrames, 50);
        QCOMPARE(
            m_test->eval(QStringLiteral("$('#livecontrol_trig_slider').slider('option', 'max')")).toInt(),
            50);
    }

    void aModeHasItsOwnShareBackAndWhatAnotherCutIsSaid() {
        const QStringList rows = m_test->rows(kTrigger);
        const auto choose = [&](TriggerMode mode) {
            m_test->choose(kTrigger, rows.at(m_test->head(m_mono).model().triggerModes.indexOf(mode)));
        };
        const auto* const note =
            m_test->viewer().mainWindow().findChild<QWidget*>(QStringLiteral("changeNote"));
        setMode(TriggerRandom);
        enter(kFrames, QStringLiteral("327"));
        choose(TriggerManual);
        m_test->click(kAfterFrame + QStringLiteral("_lock"));
        enter(kAfterFrame, QStringLiteral("2276"));
        choose(TriggerRandomManual);
        QCOMPARE(now().afterFrames, 327);
        QVERIFY(note->isVisible());
        QVERIFY2(note->toolTip().contains(QStringLiteral("After trigger: 2276 \u2192 327")),
                 qPrintable(note->toolTip()));
        choose(TriggerManual);
        QCOMPARE(now().afterFrames, 2276);
        QCOMPARE(int(field(kBeforeFrame)), kTotal - 2276);
        QVERIFY(!note->isVisible());
        enter(kAfterFrame, QStringLiteral("1000"));
        choose(TriggerRandomManual); // by its own, that of before
        QCOMPARE(now().afterFrames, 327);
        QVERIFY(!note->isVisible());
        choose(TriggerManual);
        QCOMPARE(now().afterFrames, 1000);
        // Only what is new has something to come back.
        m_test->eval(
            QStringLiteral("livecontrol.setTriggerMode(%1, 0, 500, 0, 327, 0), 1").arg(TriggerManual));
        QCOMPARE(now().afterFrames, 500);
    }

    void recordsAsOftenAsThePanelSays() {
        setMode(TriggerRandom);
        enter(kFrames, QStringLiteral("20"));
        m_test->click(kTimesBox);
        enter(kTimes, QStringLiteral("2"));
        SimulatedBody& body = *m_test->head(m_mono).body();
        RecordingControl& recording = m_test->viewer().recording();
        recording.ready();
        QTRY_COMPARE(body.state(), CameraState::Ready);
        m_test->settle();
        QVERIFY(isDisabled(kFrames) && isDisabled(kTimes) && isDisabled(kTimesBox));
        recording.record();
        QTRY_COMPARE(body.state(), CameraState::Ready);
        QCOMPARE(body.head()->recording().frames, 20);
        recording.record();
        QTRY_COMPARE(body.state(), CameraState::Memory);
        QCOMPARE(body.head()->recording().frames, 40);
        QCOMPARE(body.head()->recording().shots.size(), 2);
    }
};

QTEST_MAIN(tst_TriggerRandom)
#include "tst_trigger_random.moc"
