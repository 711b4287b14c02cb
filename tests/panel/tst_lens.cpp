// The lens block: what it shows of each kind of lens, and its axes driven with the mouse and the keyboard.

#include "tests/panel/support/LensTest.h"

class tst_Lens : public QObject, private LensTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void showsWhatTheLensHas() {
        struct Row {
            const char* camera;
            const char* lens;
            const char* zoom;
            bool close;
            bool reset;
        };
        for (const Row& row : {Row{"Marlin", "Meadow 50", nullptr, false, false},
                               Row{"Plover", "Meadow 24-70", "24.0", false, true},
                               Row{"Gemini", "Brook 12-50", "12", true, false},
                               Row{"Finch", "Hollow 8-48", "8", false, false}}) {
            open(row.camera);
            QVERIFY2(isShown(kBlock), row.camera);
            QCOMPARE(m_test->text(QStringLiteral("$('#livecontrol_lens_name').text()")),
                     QLatin1String(row.lens));
            QCOMPARE(isShown(kClose), row.close);
            QCOMPARE(isShown(kReset), row.reset);
            QCOMPARE(isEnabled("Zoom"), row.zoom != nullptr);
            if (row.zoom) {
                QCOMPARE(shown("Zoom"), QLatin1String(row.zoom));
            }
            QVERIFY(isShown(QStringLiteral("#livecontrol_lens_autofocus")));
            QVERIFY(!isShown(QStringLiteral("#livecontrol_qmonlock")));
        }
        m_test->selectOnly(QStringLiteral("Wren"));
        m_test->settle();
        QVERIFY(!isShown(kBlock));
    }

    void aDragDrivesTheFocus() {
        open("Plover");
        SimulatedHead& camera = head("Plover");
        const int before = at(camera, LensAxis::Focus);
        QCOMPARE(shown("Focus"), QString::number(before));
        m_test->calls();
        m_test->drag(in("Focus", ".ui-slider-handle"), -40, 4);
        const QStringList calls = m_test->calls();
        QVERIFY(calls.count(QStringLiteral("HostCameraControl.setFocusValue")) >=
                4); // one a move, and the end
        QTRY_VERIFY(camera.lens().msToRest() <= 0);
        const int after = at(camera, LensAxis::Focus);
        QVERIFY(after < before);
        QVERIFY(camera.lens().view().blur > 1);
        // The lens came to rest: the panel shows where.
        QVERIFY(waitForShown("Focus", QString::number(after)));
        QCOMPARE(m_test->eval(QStringLiteral("$('%1').slider('value')").arg(in("Focus", ".slider"))).toInt(),
                 after);
        m_test->key(in("Focus", ".ui-slider-handle"), QStringLiteral("Right"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), after + 4);
    }

    void theButtonsMoveByLargeSteps() {
        open("Plover");
        SimulatedHead& camera = head("Plover");
        m_test->click(in("Iris", ".label-end"));
        QTRY_COMPARE(at(camera, LensAxis::Iris), 38);
        QVERIFY(waitForShown("Iris", QStringLiteral("3.8")));
        m_test->click(in("Iris", ".label-start"));
        QVERIFY(waitForShown("Iris", QStringLiteral("2.8")));
        m_test->click(in("Focus", ".label-start"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), 440);
        m_test->click(in("Focus", ".label-end"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), 480);
        m_test->click(in("Zoom", ".label-end"));
        QVERIFY(waitForShown("Zoom", QStringLiteral("29.0")));
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').prop('disabled')").arg(in("Iris", ".label-start"))));
        m_test->click(in("Zoom", ".label-start"));
        QVERIFY(waitForShown("Zoom", QStringLiteral("24.0")));
    }

    void labelsFitWhenTheBlockUnfolds() {
        open("Plover");
        m_test->click(kTitle);
        const QString label = in("Iris", ".label-end");
        m_test->eval(QStringLiteral("$('%1').text('close it wide'), livecontrol_obj.update(), 1").arg(label));
        m_test->click(kTitle);
        const QString room = QStringLiteral("$('%1')[0].clientWidth - $('%1')[0].scrollWidth").arg(label);
        const QString size = QStringLiteral("parseFloat($('%1').css('font-size'))").arg(label);
        QVERIFY(m_test->eval(room).toInt() >= 0 ||
                m_test->eval(size).toDouble() <= 9); // no smaller than that
        QVERIFY(m_test->eval(size).toDouble() <
                m_test->eval(QStringLiteral("parseFloat($('%1').css('font-size'))").arg(kTitle)).toDouble());
    }

    void aZoomHoldsTheOtherAxesUntilItIsDone() {
        open("Finch");
        m_test->key(in("Zoom", ".ui-slider-handle"), QStringLiteral("End")); // a long way
        QVERIFY(!isEnabled("Iris"));
        QVERIFY(!isEnabled("Focus"));
        QVERIFY(isEnabled("Zoom"));
        QVERIFY(isTrue(QStringLiteral("$('%1').prop('disabled')").arg(kAutofocus)));
        QVERIFY(waitForShown("Zoom", QStringLiteral("48")));
        QVERIFY(isEnabled("Iris") && isEnabled("Focus"));
        QVERIFY(!isTrue(QStringLiteral("$('%1').prop('disabled')").arg(kAutofocus)));
        // The range of the focus went with it.
        QCOMPARE(m_test->eval(QStringLiteral("$('%1').slider('option', 'max')").arg(in("Focus", ".slider")))
                     .toInt(),
                 315);
    }

    void theSpinnersCountSteps() {
        open("Plover");
        SimulatedHead& camera = head("Plover");
        m_test->click(in("Zoom", ".zel-spinner-up"));
        QCOMPARE(count("setZoomIncremental"), 1);
        QVERIFY(waitForShown("Zoom", QStringLiteral("24.5")));
        QTRY_COMPARE(at(camera, LensAxis::Zoom), 245);
        m_test->key(in("Focus", ".spinner"), QStringLiteral("Down"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), 476);
        m_test->key(in("Focus", ".spinner"), QStringLiteral("PgUp"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), 516);
        QVERIFY(waitForShown("Focus", QStringLiteral("516")));
        // A typed place is so many steps away.
        m_test->key(in("Focus", ".spinner"), QStringLiteral("Ctrl+A"));
        m_test->type(in("Focus", ".spinner"), QStringLiteral("416\t"));
        QTRY_COMPARE(at(camera, LensAxis::Focus), 416);
        // The iris goes by its buttons, up and down.
        m_test->click(in("Iris", ".zel-spinner-up"));
        QVERIFY(waitForShown("Iris", QStringLiteral("2.9")));
        m_test->click(in("Iris", ".zel-spinner-down"));
        QVERIFY(waitForShown("Iris", QStringLiteral("2.8")));
        m_test->calls();
        m_test->key(in("Iris", ".spinner"), QStringLiteral("Up"));
        m_test->type(in("Iris", ".spinner"), QStringLiteral("9"));
        QCOMPARE(count("setIrisIncremental"), 0);
        QCOMPARE(shown("Iris"), QStringLiteral("2.8"));
    }

    void whatIsChosenIsTypedOverAfterAnUpdate() {
        open("Plover");
        const QString field = in("Focus", ".spinner");
        const QString chosen =
            QStringLiteral("$('%1')[0].selectionEnd - $('%1')[0].selectionStart").arg(field);
        m_test->key(field, QStringLiteral("Ctrl+A"));
        QCOMPARE(m_test->eval(chosen).toInt(), 3);
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QCOMPARE(m_test->eval(chosen).toInt(), 3);
        set("Plover", "focus", 470);
        QVERIFY(waitForShown("Focus", QStringLiteral("470")));
        m_test->type(field, QStringLiteral("450\t"));
        QTRY_COMPARE(at(head("Plover"), LensAxis::Focus), 450);
        // A cursor that stands in the middle chooses nothing.
        m_test->key(field, QStringLiteral("End"));
        set("Plover", "focus", 480);
        QVERIFY(waitForShown("Focus", QStringLiteral("480")));
        QCOMPARE(m_test->eval(chosen).toInt(), 0);
    }

    void closesAndReadsTheLensAnew() {
        open("Gemini");
        // Until the zoom has moved, which may be over by the next look: so the click itself looks.
        m_test->eval(QStringLiteral(
                         "$('%1').one('click', () => { window.wasClosable = !$('%2').prop('disabled'); }), 1")
                         .arg(in("Zoom", ".label-end"), kClose));
        m_test->click(in("Zoom", ".label-end"));
        QVERIFY(isTrue(QStringLiteral("window.wasClosable === false")));
        QVERIFY(m_test->waitFor(QStringLiteral("!$('%1').prop('disabled')").arg(kClose)));
        set("Gemini", "zoom", 40);
        m_test->click(kClose);
        QTRY_COMPARE(at(head("Gemini"), LensAxis::Zoom), 12);
        QVERIFY(waitForShown("Zoom", QStringLiteral("12")));
        open("Plover");
        set("Plover", "lensContact", false);
        QVERIFY(isShown(kReset));
        QVERIFY(!isEnabled("Iris") && !isEnabled("Focus") && !isEnabled("Zoom"));
        QCOMPARE(m_test->text(QStringLiteral("$('#livecontrol_lens_name').text()")), QString());
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(kReset);
        QTRY_VERIFY2(m_test->answeredBox().contains(QStringLiteral("doesn't answer")),
                     qPrintable(m_test->answeredBox()));
        set("Plover", "lensContact", true);
        m_test->click(kReset);
        QVERIFY(isEnabled("Iris") && isEnabled("Focus") && isEnabled("Zoom"));
    }

    void aRefusalIsToldAndThePanelShowsTheLens() {
        open("Plover");
        m_test->call("camera.refuse",
                     {{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("Plover")))},
                      {QStringLiteral("reason"), QStringLiteral("the ring is stiff")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(in("Zoom", ".zel-spinner-up"));
        QTRY_VERIFY2(m_test->answeredBox().contains(QStringLiteral("the ring is stiff")),
                     qPrintable(m_test->answeredBox()));
        QVERIFY(waitForShown("Zoom", QStringLiteral("24.0")));
        QVERIFY(isEnabled("Iris") && isEnabled("Focus"));
    }

    void camerasWithoutTheAxisAreNotMeant() {
        open("Plover");
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Marlin"))); // no zoom
        m_test->settle();
        m_test->click(in("Zoom", ".label-end"));
        QTRY_COMPARE(at(head("Plover"), LensAxis::Zoom), 290);
    }

    void isLockedWhileTheCameraRecordsOrAnotherToolHoldsIt() {
        open("Plover");
        m_test->eval(QStringLiteral("livecontrol_obj.controls['QMON-LOCK-DEVICE'].func(true), 1"));
        QVERIFY(isShown(QStringLiteral("#livecontrol_qmonlock")));
        QVERIFY(!isEnabled("Iris") && !isEnabled("Focus") && !isEnabled("Zoom"));
        QVERIFY(isTrue(QStringLiteral("$('%1').prop('disabled')").arg(kReset)));
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(!isShown(QStringLiteral("#livecontrol_qmonlock")));
        QVERIFY(isEnabled("Iris") && isEnabled("Focus") && isEnabled("Zoom"));
        SimulatedBody& body = *head("Plover").body();
        body.recordReady().result();
        QTRY_COMPARE(body.state(), CameraState::Ready);
        m_test->settle();
        QVERIFY(!isEnabled("Iris") && !isEnabled("Focus") && !isEnabled("Zoom"));
        m_test->click(kTitle); // the block can still be folded
        QVERIFY(!isShown(QStringLiteral("#livecontrol_lens_body")));
        body.stopRecording().result();
        m_test->settle();
        m_test->click(kTitle);
        QVERIFY(isEnabled("Iris") && isEnabled("Focus") && isEnabled("Zoom"));
    }

    void focusesByItself() {
        const QString viewsAreFree = QStringLiteral("!$('#livecontrol_livespeed').prop('disabled')");
        const auto isFocussing = [this] { return m_test->viewer().host().isAutoFocussing(); };
        open("Marlin");
        set("Marlin", "focus", 40);
        const double before = head("Marlin").lens().view().blur;
        m_test->click(kAutofocus);
        QVERIFY(isFocussing());
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_resolution').prop('disabled')")));
        QTRY_VERIFY_WITH_TIMEOUT(!isFocussing(), 20000);
        const double after = head("Marlin").lens().view().blur;
        QVERIFY2(after < before / 4, qPrintable(QStringLiteral("%1 of %2").arg(after).arg(before)));
        QVERIFY(m_test->waitFor(QStringLiteral("!$('#livecontrol_resolution').prop('disabled')")));

        // A second click begins anew, and what the first one waited for doesn't come between. It works in dim
        // light, where the number in the picture has the sharpest edges.
        set("Marlin", "iris", 56);
        set("Marlin", "focus", 40);
        m_test->click(kAutofocus);
        m_test->click(kAutofocus);
        QTRY_VERIFY_WITH_TIMEOUT(!isFocussing(), 20000);
        set("Marlin", "iris", 18);
        QVERIFY2(head("Marlin").lens().view().blur < before / 4,
                 qPrintable(QString::number(head("Marlin").lens().view().blur)));

        // A hand on the lens ends the search.
        m_test->click(kAutofocus);
        QVERIFY(isFocussing());
        m_test->click(in("Focus", ".label-end"));
        QTRY_VERIFY(!isFocussing());
        QVERIFY(m_test->waitFor(viewsAreFree));

        // What can't start doesn't hold the views.
        m_test->call("camera.refuse",
                     {{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("Marlin")))},
                      {QStringLiteral("reason"), QStringLiteral("stuck")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(kAutofocus);
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("stuck")), qPrintable(m_test->answeredBox()));
        QVERIFY(!isFocussing());
        QVERIFY(m_test->waitFor(viewsAreFree));

        m_test->click(kAutofocus);
        m_test->answerNextBox(QStringLiteral("OK"));
        head("Marlin").body()->unplug();
        QTRY_VERIFY2(m_test->answeredBox().contains(QStringLiteral("Marlin")),
                     qPrintable(m_test->answeredBox()));
    }
};

QTEST_MAIN(tst_Lens)
#include "tst_lens.moc"
