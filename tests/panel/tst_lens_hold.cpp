// The lens while a control of its block is in the hand: what the lens does meanwhile, a refusal, a link that
// breaks.

#include "tests/panel/support/LensTest.h"

class tst_LensHold : public QObject, private LensTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    // The message takes the release of the button or the key: nothing may go on by itself, nor stay in the
    // hand.
    void aRefusalEndsWhatIsHeld_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("key");
        QTest::newRow("button of a spinner") << in("Focus", ".zel-spinner-up") << QString();
        QTest::newRow("key in a spinner") << in("Focus", ".spinner") << QStringLiteral("Down");
        QTest::newRow("track of a slider") << in("Focus", ".slider") << QString();
        QTest::newRow("key on a slider") << in("Focus", ".ui-slider-handle") << QStringLiteral("Left");
    }
    void aRefusalEndsWhatIsHeld() {
        QFETCH(QString, control);
        QFETCH(QString, key);
        open("Plover");
        SimulatedHead& camera = head("Plover");
        const int before = at(camera, LensAxis::Focus);
        m_test->call("camera.refuse",
                     {{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("Plover")))},
                      {QStringLiteral("reason"), QStringLiteral("the ring is stiff")}});
        const quint64 commands = camera.body()->commandCount();
        m_test->answerNextBox(QStringLiteral("OK"));
        key.isEmpty() ? m_test->click(control) : m_test->key(control, key);
        QTRY_VERIFY(m_test->answeredBox().contains(QStringLiteral("the ring is stiff")));
        m_test->call("page.move", {{QStringLiteral("selector"), in("Focus", ".label-start")}});
        QTest::qWait(600); // a spinner's button repeats after 400 ms
        QCOMPARE(camera.body()->commandCount() - commands, quint64(1));
        QCOMPARE(shown("Focus"), QString::number(before));

        set("Plover", "focus", 440);
        QVERIFY(waitForShown("Focus", QStringLiteral("440")));
        QCOMPARE(m_test->eval(QStringLiteral("$('%1').slider('value')").arg(in("Focus", ".slider"))).toInt(),
                 440);
        m_test->click(in("Focus", ".label-end")); // and the mouse is free
        QTRY_COMPARE(at(camera, LensAxis::Focus), 480);
    }

    // The step that fails is told by a timer, not by the press.
    void aLinkThatBreaksUnderAHeldButtonIsToldOnce() {
        open("Plover");
        SimulatedBody& body = *head("Plover").body();
        m_test->clearLogs();
        m_test->eval(QStringLiteral("$('%1').trigger($.Event('mousedown', {which: 1})), 1")
                         .arg(in("Focus", ".zel-spinner-up")));
        QTRY_VERIFY(head("Plover").lens().axis(LensAxis::Focus).value > 490); // it repeats
        m_test->answerNextBox(QStringLiteral("OK"));
        body.unplug();
        QTRY_VERIFY(!m_test->answeredBox().isEmpty());
        QTest::qWait(500);
        QCOMPARE(m_test->logged(QStringLiteral("The operation failed")).size(), 1);
    }

    // The lens answers while the button is still down.
    void whatComesDuringATurnIsShownAtItsEnd() {
        open("Plover");
        set("Plover", "iris", 40);
        m_test->eval(QStringLiteral("$('%1').trigger($.Event('mousedown', {which: 1})), 1")
                         .arg(in("Iris", ".zel-spinner-down")));
        QTRY_COMPARE(at(head("Plover"), LensAxis::Iris), 39);
        QTest::qWait(100);
        m_test->eval(QStringLiteral("$(document).trigger('mouseup'), 1"));
        QCOMPARE(shown("Iris"), QStringLiteral("3.9"));
        // A typed place that is nearer than half a step is not taken.
        m_test->key(in("Focus", ".spinner"), QStringLiteral("Ctrl+A"));
        m_test->type(in("Focus", ".spinner"), QStringLiteral("481\t"));
        QVERIFY(waitForShown("Focus", QStringLiteral("480")));
    }

    void aLinkThatBreaksInADragIsToldOnce() {
        open("Plover");
        const QJsonObject plover{{QStringLiteral("key"), double(m_test->keyOf(QStringLiteral("Plover")))}};
        QJsonObject cut = plover;
        cut.insert(QStringLiteral("duringNext"), true);
        m_test->call("camera.unplug", cut);
        m_test->clearLogs();
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->drag(in("Focus", ".ui-slider-handle"), -40, 8);
        const QString told = m_test->answeredBox();
        QVERIFY2(told.contains(QStringLiteral("Drive the lens")) &&
                     told.contains(QStringLiteral("Plover: no link to the camera")),
                 qPrintable(told));
        QCOMPARE(m_test->logged(QStringLiteral("The operation failed")).size(), 1);

        m_test->call("camera.plug", plover);
        m_test->settle();
        open("Plover");
        const int before = at(head("Plover"), LensAxis::Focus);
        m_test->click(in("Focus", ".label-end"));
        QTRY_VERIFY(at(head("Plover"), LensAxis::Focus) > before);
    }

    // The lens moves by itself; the handle stays where the hand has it, and the end of the drag sends that
    // place.
    void aLensThatMovesLeavesTheHandleInTheHand() {
        open("Plover");
        const QString at = QStringLiteral("$('%1').slider('value')").arg(in("Focus", ".slider"));
        m_test->holdMouse(in("Focus", ".ui-slider-handle"));
        m_test->moveMouse(-20);
        const int held = m_test->eval(at).toInt();
        QTRY_VERIFY(head("Plover").lens().msToRest() <= 0);
        m_test->calls();
        set("Plover", "focus", 700);
        QVERIFY(count("getLensControlInfo") > 0);
        QCOMPARE(m_test->eval(at).toInt(), held);
        m_test->releaseMouse();
        QTRY_COMPARE(LensTest::at(head("Plover"), LensAxis::Focus), held);
        QTRY_VERIFY(head("Plover").lens().msToRest() <= 0);
        set("Plover", "focus", 700); // let go, it follows the lens
        QCOMPARE(m_test->eval(at).toInt(), 700);
    }
};

QTEST_MAIN(tst_LensHold)
#include "tst_lens_hold.moc"
