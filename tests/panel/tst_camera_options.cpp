// The options of page 0, each from its control to the simulated camera and back.

#include "tests/panel/support/OptionsTest.h"

class tst_CameraOptions : public QObject, private OptionsTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void theFanShowsItsState() {
        m_test->click(kFan);
        QCOMPARE(body().fanState(), FanStopped);
        QVERIFY(isChecked(kFan));
        set("temperature", 55);
        QVERIFY(isChecked(kFan) && isEnabled(kFan));
        QCOMPARE(textOf("livecontrol_fan_state_mark"), QStringLiteral("\u203b"));
        set("temperature", 65);
        QVERIFY(!isChecked(kFan) && !isEnabled(kFan));
        QCOMPARE(textOf("livecontrol_fan_caution"), QStringLiteral("Forced to spin"));
        set("temperature", 40);
        set("fanFault", true);
        QCOMPARE(textOf("livecontrol_fan_caution"), QStringLiteral("Error"));
        set("fanFault", false);
        m_test->click(kFan);
        QCOMPARE(body().fanState(), FanSpinning);
    }

    void whatIsRefusedIsToldAndShowsTheOldState_data() {
        QTest::addColumn<QString>("control");
        QTest::newRow("low light") << kLowLight;
        QTest::newRow("type") << kType;
        QTest::newRow("fan") << kFan;
        QTest::newRow("shading") << QStringLiteral("#livecontrol_shading_calib");
        QTest::newRow("LED") << kLed;
        QTest::newRow("links") << kReconfigure;
    }
    void whatIsRefusedIsToldAndShowsTheOldState() {
        QFETCH(QString, control);
        const QString camera = QLatin1String(control == kLed ? "Plover" : "Marlin");
        if (control == kLed) {
            m_test->selectOnly(camera);
            m_test->click(QStringLiteral("#livecontrol_led_laser_setting > .switch-expand"));
        } else if (control == kReconfigure) {
            set("outOfPhase", true);
            QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
        }
        const auto state = [&] {
            return m_test->text(
                QStringLiteral("$('%1').prop('checked') + ' ' + $('%1').prop('disabled') + ' ' + "
                               "$('%1').attr('class')")
                    .arg(control));
        };
        const QString before = state();
        const HeadSettings settings = m_test->head(camera).settings();
        const FanState fan = m_test->head(camera).body()->fanState();
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(camera))},
                                       {QStringLiteral("reason"), QStringLiteral("stuck")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(control);
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("stuck")), qPrintable(m_test->answeredBox()));
        QCOMPARE(state(), before);
        QVERIFY(m_test->head(camera).settings() == settings);
        QCOMPARE(m_test->head(camera).body()->fanState(), fan);
    }

    void shadingIsCalibrated() {
        // At the edge, where nothing moves.
        const auto corner = [this] { return qGray(head().liveFrame().displayImage().pixel(1275, 600)); };
        const int before = corner();
        set("temperature", 58);
        QVERIFY2(corner() < before * 0.9, qPrintable(QStringLiteral("%1 of %2").arg(corner()).arg(before)));
        m_test->click(QStringLiteral("#livecontrol_shading_calib"));
        QVERIFY(qAbs(corner() - before) <= 2);
    }

    void speedTakesPixelsFromTheLiveImage() {
        const auto& document = m_test->camera(QStringLiteral("Marlin"));
        QVERIFY(!document.isSentReduced());
        m_test->click(QStringLiteral("#livecontrol_livespeed"));
        QVERIFY(document.isSentReduced());
        m_test->selectOnly(QStringLiteral("Gemini Left"));
        QVERIFY(!isShown(QStringLiteral("#livecontrol_livespeed_block")));
        QVERIFY(!m_test->camera(QStringLiteral("Gemini Left")).isSentReduced());
    }

    void lampsShineAlike() {
        m_test->selectOnly(QStringLiteral("Plover"));
        m_test->click(QStringLiteral("#livecontrol_led_laser_setting > .switch-expand"));
        m_test->click(kLed);
        QVERIFY(head("Plover").settings().led && !head("Plover").settings().laser);
        QVERIFY(isTrue(QStringLiteral("$('%1').hasClass('on_state')").arg(kLed)));
        const quint64 commands = body("Plover").commandCount();
        update();
        QCOMPARE(body("Plover").commandCount(), commands); // though each update writes the state back
        m_test->click(kLaser);
        QVERIFY(head("Plover").settings().led && head("Plover").settings().laser);
        m_test->click(kLaser);
        QVERIFY(head("Plover").settings().led && !head("Plover").settings().laser);
        // What the current camera has, the others get.
        QVERIFY(!head("Gemini Left").settings().led);
        selectAlso("Gemini Left");
        QVERIFY(head("Gemini Left").settings().led && !head("Gemini Left").settings().laser);
        m_test->selectOnly(QStringLiteral("Plover"));
        // With one that has no lamps: what the current camera has shows, and stays as it is.
        selectAlso("Marlin");
        QVERIFY(isShown(kLed) && !isEnabled(kLed));
        QVERIFY(head("Plover").settings().led);
    }

    // What is written back at each update must not become a box at each update.
    void aLampThatRefusesIsToldOnce() {
        m_test->selectOnly(QStringLiteral("Plover"));
        head("Plover").setLed(true).result();
        const auto refuse = [this](const char* camera) {
            m_test->call("camera.refuse",
                         {{QStringLiteral("key"), double(m_test->keyOf(QLatin1String(camera)))},
                          {QStringLiteral("reason"), QStringLiteral("the lamp is stuck")}});
        };
        refuse("Gemini Left");
        m_test->answerNextBox(QStringLiteral("OK"));
        selectAlso("Gemini Left");
        QTRY_VERIFY2(m_test->answeredBox().contains(QStringLiteral("stuck")),
                     qPrintable(m_test->answeredBox()));
        const quint64 commands = body("Gemini Left").commandCount();
        update();
        update();
        QCOMPARE(body("Gemini Left").commandCount(), commands);
        QVERIFY(!head("Gemini Left").settings().led);
        // A user who asks again is heard, and so is a new selection.
        m_test->click(QStringLiteral("#livecontrol_led_laser_setting > .switch-expand"));
        for (int i = 0; i < 2; ++i) {
            refuse("Plover");
            m_test->answerNextBox(QStringLiteral("OK"));
            m_test->click(kLed);
            QVERIFY(!m_test->answeredBox().isEmpty());
        }
        m_test->selectOnly(QStringLiteral("Plover"));
        selectAlso("Gemini Left");
        QVERIFY(head("Gemini Left").settings().led);

        // While one of them records, all of the block is locked.
        body("Gemini Left").recordReady().result();
        QTRY_COMPARE(body("Gemini Left").state(), CameraState::Ready);
        head("Plover").setLed(false).result();
        const quint64 before = body("Gemini Left").commandCount();
        update();
        QCOMPARE(body("Gemini Left").commandCount(), before);
        QVERIFY(m_test->waitForBox(50).isEmpty());
        // One that could not while it recorded is asked again when it is live.
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->eval(QStringLiteral("livecontrol.setHeadLedLaser(false, 1), 1"));
        QVERIFY(!m_test->answeredBox().isEmpty());
        QVERIFY(head("Plover").settings().laser && !head("Gemini Left").settings().laser);
        update();
        QVERIFY(!head("Gemini Left").settings().laser);
        body("Gemini Left").stopRecording().result();
        QTRY_VERIFY(head("Gemini Left").settings().laser);
    }

    void blocksShowWhereACameraHasThem() {
        const QMap<QString, QString> blocks{
            {QStringLiteral("shading"), QStringLiteral("#livecontrol_shading")},
            {QStringLiteral("speed"), QStringLiteral("#livecontrol_livespeed_block")},
            {QStringLiteral("dark"), QStringLiteral("#livecontrol_lowlight_block")},
            {QStringLiteral("fan"), QStringLiteral("#livecontrol_fan_control")},
            {QStringLiteral("lamps"), QStringLiteral("#livecontrol_led_laser_setting")},
            {QStringLiteral("links"), QStringLiteral("#livecontrol_phase_adjust")}};
        const auto shown = [&] {
            QStringList names;
            for (auto it = blocks.cbegin(); it != blocks.cend(); ++it) {
                if (isShown(it.value())) {
                    names.append(it.key());
                }
            }
            return names.join(QLatin1Char(' '));
        };
        QCOMPARE(shown(), QStringLiteral("dark fan links shading speed"));
        m_test->selectOnly(QStringLiteral("Plover"));
        QCOMPARE(shown(), QStringLiteral("fan lamps links speed"));
        m_test->selectOnly(QStringLiteral("Gemini Left"));
        QCOMPARE(shown(), QStringLiteral("lamps links")); // the links are those of all cameras
        for (const char* const camera : {"Marlin", "Gemini Left"}) {
            m_test->call("camera.unplug",
                         {{QStringLiteral("key"), double(m_test->keyOf(QLatin1String(camera)))}});
        }
        m_test->selectOnly(QStringLiteral("Plover"));
        QCOMPARE(shown(), QStringLiteral("fan lamps speed"));
    }

    void aWarningOfTheLinksBlinksUntilTheyAreAdjusted() {
        QVERIFY(!isEnabled(kReconfigure));
        set("outOfPhase", true);
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
        QVERIFY(isEnabled(kReconfigure));
        QCOMPARE(m_test->text(QStringLiteral("'#' + document.activeElement.id")), kReconfigure);
        m_test->click(kReconfigure);
        QVERIFY(!body().isOutOfPhase());
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').hasClass('blinking')").arg(kReconfigure)));
        QVERIFY(!isEnabled(kReconfigure));
        // Whichever camera is selected: the links are those of all. Each warning leads to the button anew.
        m_test->eval(QStringLiteral("$('#livecontrol_camera_list > .switch-expand').focus(), 1"));
        QVERIFY(isTrue(QStringLiteral("$(document.activeElement).is('.switch-expand')")));
        set("outOfPhase", true, "Gemini Left");
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
        QCOMPARE(m_test->text(QStringLiteral("'#' + document.activeElement.id")), kReconfigure);
        m_test->click(kReconfigure);
        QVERIFY(!body("Gemini Left").isOutOfPhase());
    }

    void aWarningOfTheLinksLeavesTheFocusToWhoTypes() {
        m_test->choose(QStringLiteral("#livecontrol_trigger"), QStringLiteral("Manual Trg"));
        m_test->eval(QStringLiteral(
            "(window.typedIn = $('#livecontrol_trigger_param input:visible:enabled')[0]).focus(), 1"));
        const QString keepsIt = QStringLiteral("document.activeElement === window.typedIn");
        QVERIFY(isTrue(keepsIt));
        set("outOfPhase", true);
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
        update();
        QVERIFY(isTrue(keepsIt));

        // Nor does each update of a recording take it from another control, where the lock hides the warning.
        body().recordReady().result();
        QTRY_COMPARE(body().state(), CameraState::Ready);
        m_test->settle();
        m_test->eval(QStringLiteral(
            "(window.typedIn = $('#livecontrol_trigger_param > .switch-expand')[0]).focus(), 1"));
        QVERIFY(isTrue(keepsIt));
        QVERIFY(!isEnabled(kReconfigure));
        update();
        QVERIFY(isTrue(keepsIt));
        body().stopRecording().result();
        m_test->settle();
        QVERIFY(isTrue(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
        QVERIFY(isTrue(keepsIt)); // it was shown there once
    }

    void aRecordingLocksThemAll() {
        set("temperature", 65); // there is a note
        selectAlso("Plover");
        body().recordReady().result();
        body("Plover").recordReady().result();
        QTRY_COMPARE(body("Plover").state(), CameraState::Ready);
        m_test->settle();
        for (const QString& control : {kLowLight, kType, kFan, QStringLiteral("#livecontrol_shading_calib"),
                                       QStringLiteral("#livecontrol_livespeed"), kLed}) {
            QVERIFY2(!isEnabled(control), qPrintable(control));
        }
        QVERIFY(isTrue(QStringLiteral("$('%1').slider('option', 'disabled')").arg(kSlider)));
        QVERIFY(isTrue(QStringLiteral("$('#livecontrol_fan_caution').hasClass('disabled')")));
        body().stopRecording().result();
        body("Plover").stopRecording().result();
        m_test->settle();
        QVERIFY(isEnabled(kLowLight));
        QVERIFY(isTrue(QStringLiteral("!$('#livecontrol_fan_caution').hasClass('disabled')")));
        set("temperature", 40);
        QVERIFY(isEnabled(kFan));
    }
};

QTEST_MAIN(tst_CameraOptions)
#include "tst_camera_options.moc"
