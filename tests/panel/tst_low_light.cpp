// Low light: an exposure of its own for the live image, from the block on the page to the camera and back.

#include "tests/panel/support/OptionsTest.h"

class tst_LowLight : public QObject, private OptionsTest {
    Q_OBJECT

    /// Of each shutter that was set since the last look: whether for good.
    QList<bool> shutterSets() {
        QList<bool> sets;
        for (const QJsonValue call :
             m_test->call("host.calls", {{QStringLiteral("clear"), true}}).toArray()) {
            if (call.toObject()[QStringLiteral("name")] ==
                QLatin1String("HostCameraControl.setShutterSpeed")) {
                sets.append(call.toObject()[QStringLiteral("args")].toArray().at(1).toBool());
            }
        }
        return sets;
    }

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void lowLightHasAnExposureOfItsOwn() {
        QVERIFY(isTrue(QStringLiteral("$('%1').slider('option', 'disabled')").arg(kSlider)));
        m_test->click(kLowLight);
        QVERIFY(head().isLowLight());
        QVERIFY(isTrue(QStringLiteral("$('#livecontrol_lowlight_block').hasClass('lowlight-on')")));
        QVERIFY(!isEnabled(QStringLiteral("#livecontrol_resolution")));
        QVERIFY(!isEnabled(kType));
        QVERIFY(!isShown(QStringLiteral("#livecontrol_trigger_param")));

        const quint64 commands = body().commandCount();
        m_test->calls();
        m_test->drag(kSlider + QStringLiteral(" .ui-slider-handle"), 200, 40); // to the bright end
        QCOMPARE(head().settings().lowLight.shutter, 2U);
        QCOMPARE(head().settings().shutter, 1000U);
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")), QStringLiteral("1/2 sec"));
        // At each step, and once more at the end: of all these the last alone counts as set for good.
        const QList<bool> final = shutterSets();
        QVERIFY(final.size() > 8);
        QCOMPARE(body().commandCount() - commands, quint64(final.size()));
        QCOMPARE(final.indexOf(true), final.size() - 1);

        // The box and the slider are one.
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("1/60 sec"));
        QCOMPARE(head().settings().lowLight.shutter, 60U);
        const int rows = m_test->rows(QStringLiteral("#livecontrol_shutterspeed")).size();
        QCOMPARE(m_test->eval(QStringLiteral("$('%1').slider('value')").arg(kSlider)).toInt(),
                 rows - 1 - head().shutterList().indexOf(60));

        // Nothing is recorded with it, and the user hears why.
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->viewer().mainWindow().action(QStringLiteral("ready"))->trigger();
        QVERIFY(m_test->answeredBox().contains(QStringLiteral("low light is on")));

        m_test->click(kLowLight);
        QVERIFY(!head().isLowLight());
        QCOMPARE(head().settings().shutter, 1000U);
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")), QStringLiteral("1/1000 sec"));
        QVERIFY(isEnabled(QStringLiteral("#livecontrol_resolution")));
    }

    void lowLightTellsItsOwnExposureWhileAutoExposureRests() {
        head().setAutoExposure(true).result();
        m_test->click(kLowLight);
        const auto isTold = [this](quint32 shutter) {
            const int row = head().shutterList().indexOf(shutter);
            const int last = m_test->rows(QStringLiteral("#livecontrol_shutterspeed")).size() - 1;
            return m_test->caption(QStringLiteral("#livecontrol_shutterspeed")) ==
                       QStringLiteral("1/%1 sec").arg(shutter) &&
                   m_test->eval(QStringLiteral("$('%1').slider('value')").arg(kSlider)).toInt() == last - row;
        };
        QVERIFY(isTold(head().settings().lowLight.shutter));
        m_test->drag(kSlider + QStringLiteral(" .ui-slider-handle"), -40, 4);
        QVERIFY(isTold(head().settings().lowLight.shutter));
        m_test->click(kLowLight);
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")),
                 QStringLiteral("Auto Exposure"));
    }

    void lowLightShowsTheWholeSensor() {
        m_test->eval(QStringLiteral("livecontrol.setResolution('5'), 1"));
        m_test->click(kType);
        m_test->click(kLowLight);
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).imageSize(), head().maxResolution());
        m_test->click(kLowLight);
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).imageSize(), head().settings().resolution);
        QVERIFY(head().settings().resolution != head().maxResolution());
        m_test->click(kType); // and again only what will be recorded
        m_test->click(kLowLight);
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).imageSize(), head().settings().resolution);
    }

    void lowLightOfOneCameraLeavesAnotherAlone() {
        m_test->click(kLowLight);
        m_test->selectOnly(QStringLiteral("Plover")); // has none
        QVERIFY(!isShown(QStringLiteral("#livecontrol_lowlight_block")));
        m_test->choose(QStringLiteral("#livecontrol_trigger"), QStringLiteral("Manual Trg"));
        QVERIFY(isShown(QStringLiteral("#livecontrol_trigger_param")));
        m_test->selectOnly(QStringLiteral("Marlin"));
        QVERIFY(isChecked(kLowLight));
    }

    // What the box shows is compared, which for a camera in low light is that of its live image.
    void aCameraInLowLightDiffersByWhatItShows() {
        const auto isMarked = [this] {
            return isTrue(QStringLiteral("$('#livecontrol_shutterspeed').closest('.control').children("
                                         "'.differs').is(':visible')"));
        };
        head("Plover").setShutter(head().settings().shutter).result();
        selectAlso("Plover");
        QVERIFY(!isMarked());
        m_test->click(kLowLight);
        head().setShutter(60).result();
        update();
        QVERIFY(isMarked());
        QCOMPARE(head().settings().shutter, head("Plover").settings().shutter);
    }

    // What a camera records with is not what the slider is about.
    void aLowLightSlideIsForCamerasInLowLight() {
        m_test->click(kLowLight);
        selectAlso("Plover");
        const quint32 before = head("Plover").settings().shutter;
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->drag(kSlider + QStringLiteral(" .ui-slider-handle"), 200, 10);
        QCOMPARE(head().settings().lowLight.shutter, 2U);
        QCOMPARE(head("Plover").settings().shutter, before);
        QVERIFY2(m_test->answeredBox().isEmpty(), qPrintable(m_test->answeredBox()));
    }

    void aSlideEndsWithTheLowLight() {
        m_test->click(kLowLight);
        const auto mouse = [this](const char* type, int dx) {
            m_test->eval(QStringLiteral("var handle = $('%1 .ui-slider-handle'), at = handle.offset();"
                                        "handle.trigger($.Event('%2', {which: 1, pageX: at.left + 6 + %3, "
                                        "pageY: at.top + 5})), 1")
                             .arg(kSlider, QLatin1String(type))
                             .arg(dx));
        };
        mouse("mousedown", 0);
        mouse("mousemove", 10);
        QVERIFY(head().settings().lowLight.shutter != 1000U);
        set("lowLight", false); // at the camera
        QVERIFY(!isChecked(kLowLight));
        const quint32 before = head().settings().shutter;
        mouse("mousemove", -60);
        mouse("mouseup", -60);
        QCOMPARE(head().settings().shutter, before);
    }

    // What changes at the camera meanwhile moves no handle that is in the hand; letting go sends its place.
    void anUpdateLosesNoSlide() {
        m_test->click(kLowLight);
        const QString at = QStringLiteral("$('%1').slider('value')").arg(kSlider);
        m_test->holdMouse(kSlider + QStringLiteral(" .ui-slider-handle"));
        m_test->moveMouse(30);
        const quint32 chosen = head().settings().lowLight.shutter;
        QVERIFY(chosen != 1000U);
        const int held = m_test->eval(at).toInt();
        head().setShutter(1000).result();
        update();
        QCOMPARE(m_test->caption(QStringLiteral("#livecontrol_shutterspeed")), QStringLiteral("1/1000 sec"));
        QCOMPARE(m_test->eval(at).toInt(), held);
        m_test->releaseMouse();
        QCOMPARE(head().settings().lowLight.shutter, chosen);
    }
};

QTEST_MAIN(tst_LowLight)
#include "tst_low_light.moc"
