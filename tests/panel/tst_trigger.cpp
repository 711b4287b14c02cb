// The trigger's mode and parameters, from the controls on the page to the camera and back.

#include "tests/panel/support/TriggerTest.h"

class tst_Trigger : public QObject, private TriggerTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void setsEachModeAndShowsWhatItNeeds() {
        const QMap<QString, QString> shown{
            {QStringLiteral("Manual Trg"), QStringLiteral("total manual")},
            {QStringLiteral("Random Trg"), QStringLiteral("random box count")},
            {QStringLiteral("Random Reset Trg"), QStringLiteral("random box count")},
            {QStringLiteral("Random Center Trg"), QStringLiteral("random count")},
            {QStringLiteral("Random Manual Trg"), QStringLiteral("random manual count")},
            {QStringLiteral("Random Loop Trg"), QStringLiteral("random")}};
        const QMap<QString, QString> elements{
            {QStringLiteral("total"), QStringLiteral("#livecontrol_trigger_total_frames_div")},
            {QStringLiteral("random"), QStringLiteral("#livecontrol_trigger_random_param")},
            {QStringLiteral("manual"), QStringLiteral("#livecontrol_trigger_manual_param")},
            {QStringLiteral("box"), QStringLiteral("#livecontrol_random_times_enable_div")},
            {QStringLiteral("count"), QStringLiteral("#livecontrol_random_times_max_div")}};
        const QStringList rows = m_test->rows(kTrigger);
        const QList<int> modes = m_test->head(m_mono).model().triggerModes;
        QCOMPARE(rows.size(), 15);
        for (int i = rows.size() - 1; i >= 0; --i) {
            m_test->choose(kTrigger, rows.at(i));
            const QStringList calls = m_test->calls();
            QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setTriggerModeParameters")), 1);
            QCOMPARE(calls.count(kUpdate), 1);
            QCOMPARE(now().triggerMode, modes.at(i));
            QCOMPARE(m_test->caption(kTrigger), rows.at(i));
            QCOMPARE(isShown(kBlock), shown.contains(rows.at(i)));
            for (auto it = elements.cbegin(); it != elements.cend(); ++it) {
                QVERIFY2(isShown(it.value()) == shown.value(rows.at(i)).contains(it.key()),
                         qPrintable(rows.at(i) + QLatin1Char(' ') + it.key()));
            }
        }
        // Nothing was refused or clamped on the way.
        QVERIFY(m_test->waitForBox(50).isEmpty());
    }

    void showsWhatTheCameraHas() {
        setMode(TriggerManual);
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                    {QStringLiteral("name"), QStringLiteral("afterFrames")},
                                    {QStringLiteral("value"), 819}});
        m_test->settle();
        QCOMPARE(m_test->text(QStringLiteral("$('#livecontrol_trigger_total_frames').text()")),
                 QString::number(kTotal));
        QCOMPARE(int(field(kAfterFrame)), 819);
        QCOMPARE(int(field(kBeforeFrame)), kTotal - 819);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kBeforePer)), QStringLiteral("75.00"));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kAfterPer)), QStringLiteral("25.00"));
        QCOMPARE(m_test->eval(QStringLiteral("$('#livecontrol_trig_slider').slider('value')")).toInt(),
                 kTotal - 819);
    }

    void sendsOnceAtTheEndOfADrag() {
        setMode(TriggerManual);
        m_test->eval(
            QStringLiteral("window.slides = [], $('#livecontrol_trig_slider').on('slide', function () {"
                           " slides.push($('%1').val()); }), 1")
                .arg(kAfterFrame));
        m_test->drag(kHandle, 100, 10);
        const QJsonArray args = applied();
        QCOMPARE(args.size(), 7);
        QCOMPARE(args.at(0).toInt(), 1); // the frames after the trigger were edited
        QCOMPARE(args.at(1).toInt(), int(TriggerManual));
        QCOMPARE(args.at(2).toInt() + args.at(3).toInt(), kTotal);
        QCOMPARE(now().afterFrames, args.at(3).toInt());
        QVERIFY(now().afterFrames < kTotal);
        // The fields went along all the way, and the camera heard of the last step only. (A handler that is
        // bound here runs after the page's own, whose result the event carries.)
        const QJsonArray steps = m_test->eval(QStringLiteral("slides")).toArray();
        QVERIFY(steps.size() > 5);
        QVERIFY(steps.first().toString().toInt() > steps.last().toString().toInt());
        QCOMPARE(int(field(kAfterFrame)), now().afterFrames);

        // At the right end one frame stays after the trigger.
        m_test->drag(kHandle, 400, 10);
        QCOMPARE(applied().at(3).toInt(), 1);
        QCOMPARE(now().afterFrames, 1);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kBeforePer)), QStringLiteral("99.97"));
        const QStringList user = m_test->logged(QStringLiteral("[USER]"));
        QCOMPARE(user.size(), 2);
        QVERIFY2(user.last().contains(QStringLiteral("Slider")), qPrintable(user.last()));
        QVERIFY(user.last().contains(QStringLiteral("livecontrol_trig_slider")));
    }

    // The handle stays where the hand has it, and the fields with it; the end of the drag sends that place.
    void anUpdateLosesNoDrag() {
        setMode(TriggerManual);
        const QString at = QStringLiteral("$('#livecontrol_trig_slider').slider('value')");
        m_test->holdMouse(kHandle);
        m_test->moveMouse(100);
        const int before = m_test->eval(at).toInt();
        QVERIFY(before > 500);
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                    {QStringLiteral("name"), QStringLiteral("shutter")},
                                    {QStringLiteral("value"), 2000}});
        m_test->settle();
        QVERIFY(m_test->calls().contains(QStringLiteral("HostCameraControl.getTriggerParameters")));
        QCOMPARE(m_test->eval(at).toInt(), before);
        QCOMPARE(int(field(kBeforeFrame)), before);
        QCOMPARE(int(field(kAfterFrame)), kTotal - before);
        // More frames of a smaller size fit in the memory: they lie after the trigger.
        const auto resize = [this](int width, int height) {
            m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                        {QStringLiteral("name"), QStringLiteral("resolution")},
                                        {QStringLiteral("value"), QJsonArray{width, height}}});
            m_test->settle();
        };
        resize(640, 480);
        QVERIFY(m_test->head(m_mono).triggerLimit() > kTotal);
        QCOMPARE(int(field(kBeforeFrame)), before);
        QCOMPARE(int(field(kAfterFrame)), m_test->head(m_mono).triggerLimit() - before);
        resize(1280, 1024);
        m_test->clearLogs();
        m_test->releaseMouse();
        QCOMPARE(applied().at(2).toInt(), before);
        QCOMPARE(now().afterFrames, kTotal - before);

        // Let go, it follows the camera again; a key holds it as well as the mouse does.
        setMode(TriggerManual);
        m_test->key(kHandle, QStringLiteral("Home"));
        QCOMPARE(now().afterFrames, kTotal);
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                    {QStringLiteral("name"), QStringLiteral("afterFrames")},
                                    {QStringLiteral("value"), 1000}});
        m_test->settle();
        QCOMPARE(m_test->eval(at).toInt(), kTotal - 1000);
    }

    void anUpdateLosesNoStep() {
        setMode(TriggerManual);
        const int after = now().afterFrames;
        const auto arrow = [this](const char* type) { // one that stays down for a while
            m_test->eval(QStringLiteral("$('%1').focus().trigger($.Event('%2', {which: 40})), 1")
                             .arg(kAfterFrame, QLatin1String(type)));
        };
        arrow("keydown");
        arrow("keydown");
        m_test->calls();
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                    {QStringLiteral("name"), QStringLiteral("shutter")},
                                    {QStringLiteral("value"), 2000}});
        m_test->settle();
        QVERIFY(m_test->calls().contains(QStringLiteral("HostCameraControl.getTriggerParameters")));
        QCOMPARE(int(field(kAfterFrame)), after - 2);
        arrow("keyup");
        QCOMPARE(now().afterFrames, after - 2);
    }

    void countsFramesByKeyWheelAndText() {
        setMode(TriggerManual);
        enter(kBeforeFrame, QStringLiteral("1000"));
        QJsonArray args = applied();
        QCOMPARE(args.at(0).toInt(), 0);
        QCOMPARE(args.at(2).toInt(), 1000);
        QCOMPARE(now().afterFrames, kTotal - 1000);
        spin(kBeforeFrame, "up");
        QCOMPARE(applied().at(2).toInt(), 1001);
        m_test->key(kAfterFrame, QStringLiteral("Down"));
        args = applied();
        QCOMPARE(args.at(0).toInt(), 1);
        QCOMPARE(args.at(3).toInt(), kTotal - 1002);
        QCOMPARE(int(field(kBeforeFrame)), 1002);
        enter(kAfterFrame, QStringLiteral("99999")); // clamped to all of them
        QCOMPARE(applied().at(3).toInt(), kTotal);
        enter(kBeforeFrame, QStringLiteral("99999"));
        QCOMPARE(applied().at(2).toInt(), kTotal - 1);
        const QStringList user = m_test->logged(QStringLiteral("[USER]"));
        QCOMPARE(user.size(), 5);
        QVERIFY2(user.first().contains(QStringLiteral("Spinner")), qPrintable(user.first()));
        m_test->clearLogs();
        m_test->key(kBeforeFrame, QStringLiteral("Ctrl+A"));
        m_test->type(QString(), QStringLiteral("700"));
        m_test->key(QString(), QStringLiteral("Return"));
        QCOMPARE(now().afterFrames, kTotal - 700);
        QCOMPARE(m_test->logged(QStringLiteral("[USER]")).size(), 1);
    }

    void refusesWhatIsNoNumber() {
        setMode(TriggerManual);
        for (const QString& text : {QStringLiteral("half"), QStringLiteral("12.5"), QString()}) {
            const int after = now().afterFrames;
            enter(kAfterFrame, text);
            QCOMPARE(m_test->calls().count(kApply), 0);
            QCOMPARE(now().afterFrames, after);
            QCOMPARE(int(field(kAfterFrame)), after);
        }
        m_test->type(kAfterFrame, QStringLiteral("half"));
        m_test->key(kAfterFrame, QStringLiteral("Return"));
        QVERIFY(isShown(QStringLiteral(".zel-hint")));
    }

    void countsFramesInPercentOfAShortMemory() {
        setMode(TriggerManual);
        enter(kBeforePer, QStringLiteral("50"));
        QJsonArray args = applied();
        QCOMPARE(args.at(0).toInt(), 2);
        QCOMPARE(args.at(2).toInt(), kTotal / 2);
        QCOMPARE(args.at(4).toDouble(), 50.0);
        spin(kBeforePer, "up"); // a frame, not a hundredth
        QCOMPARE(applied().at(2).toInt(), kTotal / 2 + 1);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kBeforePer)), QStringLiteral("50.03"));
        spin(kAfterPer, "up");
        QCOMPARE(applied().at(3).toInt(), kTotal / 2);
        enter(kAfterPer, QStringLiteral("0"));
        args = applied();
        QCOMPARE(args.at(3).toInt(), 1); // one frame stays
        QCOMPARE(now().afterFrames, 1);
        QVERIFY(m_test->waitForBox(50).isEmpty());
    }

    void countsHundredthsOfALongMemory() {
        setMode(TriggerManual);
        m_test->eval(QStringLiteral("livecontrol.setResolution('5'), 1")); // 640 x 480
        m_test->settle();
        const int total = m_test->head(m_mono).totalFrames();
        QVERIFY(total > 10000);
        enter(kAfterPer, QStringLiteral("25"));
        m_test->calls();
        spin(kAfterPer, "down");
        QJsonArray args = applied();
        QCOMPARE(args.at(0).toInt(), 2);
        QVERIFY(qAbs(args.at(4).toDouble() - 75.01) < 1e-4);
        QCOMPARE(now().afterFrames, total - qRound(total * 0.7501));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kAfterPer)), QStringLiteral("24.99"));
        spin(kBeforePer, "up");
        QVERIFY(qAbs(applied().at(4).toDouble() - 75.02) < 1e-4);
    }

    void keepsWhatIsLocked() {
        setMode(TriggerManual);
        enter(kAfterFrame, QStringLiteral("819")); // a quarter
        const auto locked = [this](const char* id) {
            return m_test
                ->eval(
                    QStringLiteral("$('#livecontrol_manu_trig_%1').hasClass('lock')").arg(QLatin1String(id)))
                .toBool();
        };
        QVERIFY(locked("before_per_lock") && locked("before_per_lock_2"));
        m_test->eval(QStringLiteral("livecontrol.setResolution('5'), 1"));
        m_test->settle();
        const int total = m_test->head(m_mono).totalFrames();
        QVERIFY(qAbs(now().afterFrames - total / 4) <= 1);

        m_test->click(kAfterFrame + QStringLiteral("_lock"));
        QVERIFY(locked("after_frame_lock") && !locked("before_per_lock") && !locked("before_frame_lock"));
        const int after = now().afterFrames;
        m_test->eval(QStringLiteral("livecontrol.setResolution('4'), 1"));
        QCOMPARE(now().afterFrames, after);

        m_test->click(kBeforeFrame + QStringLiteral("_lock"));
        QVERIFY(locked("before_frame_lock") && !locked("after_frame_lock"));
        const int before = m_test->head(m_mono).totalFrames() - now().afterFrames;
        m_test->eval(QStringLiteral("livecontrol.setResolution('5'), 1"));
        QCOMPARE(m_test->head(m_mono).totalFrames() - now().afterFrames, before);
    }

    void showsDashesForCamerasThatDiffer() {
        setMode(TriggerManual);
        QVERIFY(isShown(kBlock));
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        m_test->settle();
        QCOMPARE(m_test->caption(kTrigger), QStringLiteral("---"));
        QVERIFY(!isShown(kBlock));
        m_test->choose(kTrigger, QStringLiteral("Manual Trg"));
        QCOMPARE(m_test->head(m_color).settings().triggerMode, int(TriggerManual));
        QCOMPARE(m_test->caption(kTrigger), QStringLiteral("Manual Trg"));
        QVERIFY(isShown(kBlock));
    }

    void tellsARefusalAndShowsTheOldValue() {
        setMode(TriggerManual);
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                       {QStringLiteral("reason"), QStringLiteral("the ring is stuck")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        enter(kAfterFrame, QStringLiteral("100"));
        QTRY_VERIFY(m_test->answeredBox().contains(QStringLiteral("the ring is stuck")));
        QCOMPARE(int(field(kAfterFrame)), kTotal);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kAfterPer)), QStringLiteral("100.00"));
    }

    // The block goes with the link, and what was half typed in it goes too.
    void aHalfTypedNumberGoesWithItsBlock() {
        setMode(TriggerManual);
        const int after = now().afterFrames;
        m_test->key(kBeforeFrame, QStringLiteral("Ctrl+A"));
        m_test->type(QString(), QStringLiteral("77"));
        m_test->calls();
        const QJsonObject key{{QStringLiteral("key"), double(m_test->keyOf(m_mono))}};
        m_test->call("camera.unplug", key);
        m_test->settle();
        QVERIFY(!isShown(kBlock));
        m_test->call("camera.plug", key);
        QTRY_VERIFY(isShown(kBlock));
        m_test->settle();
        QCOMPARE(int(field(kBeforeFrame)), kTotal - after);
        m_test->key(QString(), QStringLiteral("Tab"));
        QVERIFY(!m_test->calls().contains(kApply));
        spin(kBeforeFrame, "up"); // and the field is as usable as before
        QCOMPARE(now().afterFrames, after - 1);
    }

    void survivesACameraThatIsUnpluggedDuringADrag() {
        setMode(TriggerManual);
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                       {QStringLiteral("duringNext"), true}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->drag(kHandle, 60, 6);
        QTRY_VERIFY(!m_test->answeredBox().isEmpty());
        QVERIFY(!m_test->camera(m_mono).isConnected());
        QCOMPARE(now().afterFrames, kTotal);
        QVERIFY(m_test->waitFor(
            QStringLiteral("$('#livecontrol_camera_item_list li').not('.found').length >= 1")));
    }
};

QTEST_MAIN(tst_Trigger)
#include "tst_trigger.moc"
