// A visit of the page of the variable channels: a drag on the image, the channel that is written, leaving it,
// several cameras, one that goes, a turned view.

#include "tests/panel/support/VariablePage.h"

#include <QMessageBox>
#include <QTimer>

class tst_VariableVisit : public QObject, private VariablePage {
    Q_OBJECT

private slots:
    void init() { start(QStringLiteral("one-camera.json"), QStringLiteral("Marlin")); }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void followsADragOnTheImage() {
        openPage();
        byHand();
        enter(kWidth, 640);
        enter(kHeight, 480);
        enter(kPosX, 64);
        const QRect before = selectArea();
        const QTransform& toView = m_test->camera(m_name).view().imageToView;
        const QPoint from = toView.map(QPointF(before.center())).toPoint();
        mouse("image.press", from);
        for (int i = 1; i <= 4; ++i) {
            mouse("image.move", toView.map(QPointF(before.center()) + QPointF(50, 20) * i).toPoint());
            QCOMPARE(area(), selectArea()); // at each move
        }
        mouse("image.release", toView.map(QPointF(before.center()) + QPointF(200, 80)).toPoint());
        QCOMPARE(area().size(), before.size());
        QVERIFY(area().x() > before.x() && area().x() % 64 == 0);
        QVERIFY(area().y() > before.y() && area().y() % 8 == 0);
        // A preset shows its rectangle, but it can't be moved by hand.
        m_test->click(QStringLiteral("#aspect-preset"));
        QVERIFY(!m_test->viewer().panelView().plugin()->isAreaEditable(m_test->camera(m_name).face()));
    }

    void choosesTheChannelToWriteAndErasesIt() {
        openPage();
        QVERIFY(m_test->eval(QStringLiteral("$('#livecontrol_variable_channel_delete').prop('disabled')"))
                    .toBool());
        pick(kRegist, QStringLiteral("7"));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').text()").arg(kRegist)), QStringLiteral("7: (empty)"));
        m_test->click(kOk);
        QVERIFY(channel(7).isStored());
        QCOMPARE(head().settings().channel, 7);

        openPage();
        pick(kRegist, QStringLiteral("7"));
        m_test->answerNextBox(QStringLiteral("No"));
        m_test->click(QStringLiteral("#livecontrol_variable_channel_delete"));
        QVERIFY(m_test->answeredBox().contains(QStringLiteral("Delete variable channel?")));
        QVERIFY(channel(7).isStored());
        m_test->answerNextBox(QStringLiteral("Yes"));
        m_test->click(QStringLiteral("#livecontrol_variable_channel_delete"));
        QVERIFY(!channel(7).isStored());
        QVERIFY(m_test->eval(QStringLiteral("$('#livecontrol_variable_channel_delete').prop('disabled')"))
                    .toBool());
        m_test->click(kCancel);
    }

    void cancelPutsEverythingBack() {
        head().setTrigger(TriggerManual, 300).result();
        head().setResolution({640, 480}).result();
        head().setRate(3000).result();
        head().setShutter(6000).result();
        m_test->settle();
        const QJsonObject before = head().body()->stateJson();
        openPage();
        QVERIFY(head().body()->stateJson() != before);
        byHand();
        enter(kWidth, 256);
        m_test->click(kCancel);
        QVERIFY(m_test->waitFor(kListPage));
        QCOMPARE(head().body()->stateJson(), before);
        QVERIFY(m_test->viewer().documents().tools().isAllowed(QStringLiteral("binning")));
        QVERIFY(!m_test->camera(m_name).isReductionSuspended());

        // The same with a channel in force.
        head().storeVariableChannel(4, {10000, {256, 256}, {128, 64}}).result();
        head().setVariableChannel(4).result();
        m_test->settle();
        const QJsonObject inChannel = head().body()->stateJson();
        openPage();
        QCOMPARE(head().settings().channel, 0);
        m_test->click(kCancel);
        QCOMPARE(head().body()->stateJson(), inChannel);
    }

    void setsAllCamerasOfAKind() {
        start(QStringLiteral("two-alike.json"), QStringLiteral("Marlin"));
        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        QVERIFY(m_test->waitFor(kVariablePage));
        m_test->click(QStringLiteral("#livecontrol_apply_same_camera"));
        m_test->choose(kRate, QStringLiteral("10000 fps"));
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(kOk);
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("\n\tMarlin\n\tMerlin")),
                 qPrintable(m_test->answeredBox()));
        SimulatedHead& other = m_test->head(QStringLiteral("Merlin"));
        QCOMPARE(other.settings().channel, 1);
        QCOMPARE(other.body()->variableChannel(1).rate, 10000U);
        QCOMPARE(other.settings().rate, head().settings().rate);

        // Without the tick only the camera whose image showed.
        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        m_test->settle();
        m_test->choose(kRate, QStringLiteral("5000 fps"));
        m_test->click(kOk);
        QCOMPARE(head().settings().rate, 5000U);
        QCOMPARE(other.settings().rate, 10000U);
    }

    void aCameraThatGoesEndsTheMode() {
        openPage();
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_name))}});
        QVERIFY(m_test->waitFor(kListPage));
        QVERIFY(!host().isVariableSetting());
        QVERIFY(m_test->viewer().documents().tools().isAllowed(QStringLiteral("warp")));
        QVERIFY(!m_test->camera(m_name).isReductionSuspended());
        // The lock of the preset doesn't outlive it: another setting page can edit its rectangle.
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_name))}});
        head().body()->connectLink().result();
        m_test->settle();
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("Auto Exposure..."));
        QVERIFY(m_test->viewer().panelView().plugin()->isAreaEditable(m_test->camera(m_name).face()));
        m_test->click(QStringLiteral("#livecontrol_auto_exposure_cancel"));
        openPage();
        m_test->click(kCancel);
    }

    // Its place is the camera's in one direction alone. How large the area may be follows from where it
    // stands in the other one, whichever of the user's that is.
    void aPlaceThatIsFixedLimitsNoSize_data() {
        QTest::addColumn<int>("turns");
        QTest::newRow("upright") << 0;
        QTest::newRow("turned") << 1;
    }
    void aPlaceThatIsFixedLimitsNoSize() {
        QFETCH(int, turns);
        start(QStringLiteral("default.json"), QStringLiteral("Gemini Left")); // 640 x 480, x is fixed
        Document& document = m_test->camera(m_name);
        ViewState view = document.view();
        view.quarterTurns = turns;
        document.setView(view);
        openPage();
        byHand();
        const bool isTurned = turns == 1;
        const QString along = isTurned ? kHeight : kWidth; // the fixed direction
        const QString across = isTurned ? kWidth : kHeight;
        const QString place = isTurned ? kPosX : kPosY;
        enter(along, 320);
        enter(across, 240);
        enter(place, 128);
        QCOMPARE(number(place), 128);
        QCOMPARE(limit(across, "max"), 480 - 128);
        QCOMPARE(limit(along, "max"), 640);
        enter(across, 400);
        QCOMPARE(number(across), 480 - 128);
        QCOMPARE(number(place), 128);
        enter(along, 640);
        QCOMPARE(number(along), 640);
        m_test->click(kCancel);
    }

    void aTurnedViewCountsInTheUsersDirections() {
        Document& document = m_test->camera(m_name);
        ViewState view = document.view();
        view.quarterTurns = 1;
        document.setView(view);
        openPage();
        m_test->choose(kRate, QStringLiteral("5000 fps"));
        byHand();
        QCOMPARE(area().size(), QSize(1024, 1280));
        enter(kHeight, 640);
        enter(kWidth, 1000);
        QCOMPARE(area().size(), QSize(1000, 640));
        m_test->click(kOk);
        QCOMPARE(channel(1).size, QSize(640, 1000));
    }
};

QTEST_MAIN(tst_VariableVisit)
#include "tst_variable_visit.moc"
