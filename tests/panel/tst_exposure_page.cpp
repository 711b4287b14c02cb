// The area on the image and the page of the auto exposure: dragged and typed, undone, applied, cancelled, and
// the camera gone in the middle of it.

#include "simulator/settings/AutoExposure.h"
#include "tests/panel/support/ExposurePage.h"

class tst_ExposurePage : public QObject, private ExposurePage {
    Q_OBJECT

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        m_camera = m_test->call("camera.list").toArray().at(0).toObject()[QStringLiteral("name")].toString();
        openPage();
    }

    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
        QVERIFY(!QApplication::overrideCursor());
    }

    void aDragIsOneStepAndThePageFollowsEachMove() {
        const QRect before = plugin().getArea();
        QCOMPARE(before, head().settings().exposure.area);
        const QPoint from = inView(before.center());
        image("image.press", from); // a click without a move leaves nothing to undo
        image("image.release", from);
        m_test->settle();
        QCOMPARE(plugin().getArea(), before);
        QVERIFY(!action("undo")->isEnabled());
        image("image.press", from);
        QRect last = before;
        int changes = 0;
        for (int i = 1; i <= 200; ++i) {
            image("image.move", from + QPoint(i % 60 - 20, (i * 7) % 50 - 25));
            const QRect now = plugin().getArea();
            changes += now != last;
            last = now;
            QCOMPARE(shown(), held());
            QCOMPARE(now.left() % 16 + now.top() % 16, 0);
            QVERIFY(QRect(QPoint(), document().imageSize()).contains(now));
        }
        QVERIFY(changes > 50);
        image("image.release", from);
        m_test->settle();
        QCOMPARE(host().history().stack().count(), 1);
        trigger("undo");
        QCOMPARE(plugin().getArea(), before);
        QCOMPARE(shown(), held());
        trigger("redo");
        QCOMPARE(plugin().getArea(), last);
        QCOMPARE(shown(), held());
    }

    void aDragLeavesWhatIsTypedElsewhere() {
        enter("value", "77");
        drag(inView(plugin().getArea().center()), inView(plugin().getArea().center()) + QPoint(30, 20), 5);
        trigger("undo");
        QCOMPARE(boxed("value"), 80); // raised to its steps of 4
    }

    void whatIsTypedAndNotEnteredGoesNowhere() {
        enter("pos_x", "64");
        const QRect before = plugin().getArea();
        for (const char* const typed : {"6", ""}) {
            m_test->key(id("area_w"), QStringLiteral("Ctrl+A"));
            m_test->key(id("area_w"), QStringLiteral("Backspace"));
            m_test->type(id("area_w"), QLatin1String(typed));
            m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                        {QStringLiteral("name"), QStringLiteral("rate")},
                                        {QStringLiteral("value"), *typed ? 1000 : 2000}});
            m_test->settle();
            QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(id("area_w"))), QLatin1String(typed));
            QCOMPARE(plugin().getArea(), before);
            m_test->key(id("area_w"), QStringLiteral("Escape"));
            QCOMPARE(shown(), held());
        }
        m_test->click(id("apply"));
        QCOMPARE(head().settings().exposure.area, before);
    }

    void edgesAndKeysFollowTheScreen() {
        for (int turns = 0; turns < 4; ++turns) {
            for (int flips = 0; flips < 4; flips += turns % 2 ? 1 : 3) {
                followTheScreen(turns, flips & 1, flips & 2, 1);
            }
        }
        followTheScreen(0, false, true, 2); // reduced
        followTheScreen(1, true, false, 2);
    }

    void typedNumbersMoveTheArea() {
        enter("pos_x", "100");
        QCOMPARE(boxed("pos_x"), 96); // the nearer of its grid
        QCOMPARE(held(), shown());
        enter("area_w", "5000");
        QCOMPARE(boxed("area_w"), 1280 - 96);
        QCOMPARE(held(), shown());
        m_test->key(id("pos_x"), QStringLiteral("Up"));
        QCOMPARE(boxed("pos_x"), 96); // no room
        m_test->key(id("area_h"), QStringLiteral("Down"));
        QCOMPARE(boxed("area_h"), 496);
        QCOMPARE(held(), shown());
    }

    void applyReachesTheCameraAndTheImageSettles() {
        m_test->click(id("on"));
        enter("value", "60");
        enter("pos_x", "0");
        m_test->calls();
        m_test->click(id("apply"));
        const QStringList calls = m_test->calls();
        QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setAutoExposureOn")), 1);
        QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setAutoExposureInfo")), 1);
        QCOMPARE(calls.count(QStringLiteral("HostApplication.updateAll")), 1);
        const ExposureControl& control = head().settings().exposure;
        QVERIFY(control.on);
        QCOMPARE(control.value, 240U); // 60 of 256 on the camera's scale of 1024
        QCOMPARE(control.area, plugin().getArea());
        QCOMPARE(control.area.left(), 0);
        QCOMPARE(shown(), held());
        const auto level = [this, &control] {
            const Frame frame = head().liveFrame();
            return AutoExposure::meanLevel(frame.image.copy(control.area), frame.bitDepth) * 256;
        };
        QTRY_VERIFY(qAbs(level() - 60) < 20);
        m_test->click(id("ok"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QCOMPARE(m_test->caption(kShutter), QStringLiteral("Auto Exposure"));
        QVERIFY(!host().modes().isAny());
        QVERIFY(m_test->viewer().documents().tools().isAllowed(QStringLiteral("binning")));
        QVERIFY(!document().isReductionSuspended());
        // The next visit begins with what the camera has.
        openPage();
        QCOMPARE(shown(), control.area);
        QCOMPARE(boxed("value"), 60);
        QVERIFY(m_test->eval(QStringLiteral("$('%1').prop('checked')").arg(id("on"))).toBool());
    }

    void cancelLeavesTheCameraAsItWas() {
        const QJsonObject before = cameraState();
        const QVariant histogram =
            m_test->viewer().preferences().value(QStringLiteral("autoexposure/showhistogram"));
        m_test->click(id("on"));
        enter("value", "10");
        enter("range", "40");
        enter("area_w", "320");
        drag(inView(plugin().getArea().center()), inView(QPointF(200, 200)), 10);
        m_test->choose(id("max_time"), m_test->rows(id("max_time")).at(3));
        const quint64 commands = head().body()->commandCount();
        m_test->click(id("cancel"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QCOMPARE(cameraState(), before);
        QCOMPARE(head().body()->commandCount(), commands);
        QCOMPARE(m_test->viewer().preferences().value(QStringLiteral("autoexposure/showhistogram")),
                 histogram);
        QVERIFY(!host().modes().isAny());
        QVERIFY(!action("undo")->isEnabled()); // nothing of the page is left to undo
        openPage();
        QVERIFY(!m_test->eval(QStringLiteral("$('%1').prop('checked')").arg(id("on"))).toBool());
        QCOMPARE(shown(), head().settings().exposure.area);
    }

    void tellsARefusalAndKeepsThePage() {
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                       {QStringLiteral("reason"), QStringLiteral("the meter is dark")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(id("on"));
        enter("pos_x", "64");
        m_test->click(id("apply"));
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("the meter is dark")),
                 qPrintable(m_test->answeredBox()));
        QCOMPARE(boxed("pos_x"), 64); // the camera took nothing: to be sent again
        QVERIFY(!head().settings().exposure.on);
        QVERIFY(host().modes().isOn(SettingModes::AutoExposure));
        QCOMPARE(shown(), held());
    }

    void showsTheAreaThatTheCameraMadeOfOne() {
        m_test->eval(QStringLiteral(
            "livecontrol.sendSelectArea('{\"X\":320,\"Y\":256,\"Width\":2000,\"Height\":512}'), 1"));
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(id("apply"));
        const QRect cut = head().settings().exposure.area;
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("took area %1 x 512").arg(cut.width())),
                 qPrintable(m_test->answeredBox()));
        QVERIFY(QRect(QPoint(), document().imageSize()).contains(cut));
        QCOMPARE(plugin().getArea(), cut);
        QCOMPARE(shown(), held());
    }

    void unpluggingInADragEndsItAll() {
        const QRect before = plugin().getArea();
        image("image.press", inView(before.center()));
        image("image.move", inView(before.center()) + QPoint(30, 0));
        head().body()->unplug();
        QVERIFY(!host().modes().isAny());
        QVERIFY(!plugin().isDragging());
        QVERIFY(m_test->viewer().documents().tools().isAllowed(QStringLiteral("binning")));
        QVERIFY(!document().isReductionSuspended());
        image("image.move", inView(before.center()) + QPoint(60, 0));
        image("image.release", inView(before.center()) + QPoint(60, 0));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QVERIFY(!host().history().stack().canUndo());
        QVERIFY(m_test->viewer().documents().live().isRunning());
        // Back again: nothing was changed at the camera, so nothing is told, and the page can be opened.
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        m_test->settle();
        QVERIFY(m_test->waitForBox(100).isEmpty());
        openPage();
        QCOMPARE(plugin().getArea(), head().settings().exposure.area);
    }

    void tellsWhatStayedChangedWhenTheCameraIsBack() {
        const auto byHand = [this](const char* name, int value) {
            m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                        {QStringLiteral("name"), QLatin1String(name)},
                                        {QStringLiteral("value"), value}});
        };
        const QString before = m_test->text(QStringLiteral("$('%1').val()").arg(id("value")));
        byHand("rate", 500);
        m_test->settle();
        m_test->click(id("on"));
        enter("value", "200");
        m_test->click(id("apply"));
        QVERIFY(quint32(boxed("value")) != head().settings().exposure.value); // the camera counts otherwise
        byHand("rate", 1000); // which makes nothing else a change by hand
        m_test->settle();
        head().body()->unplug();
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        byHand("rate", 250);
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->waitFor(QStringLiteral("false"), 500);
        const QString told = m_test->answeredBox();
        const QString value = QStringLiteral("Auto Exposure, Target Value: %1 \u2192 200\n").arg(before);
        QVERIFY2(told.contains(QStringLiteral("Auto Exposure: off")), qPrintable(told));
        QVERIFY2((told + QLatin1Char('\n')).contains(value), qPrintable(told));
        QVERIFY2(!told.contains(QStringLiteral("Frame rate")), qPrintable(told));
        QVERIFY2(told.contains(m_camera), qPrintable(told));
    }

    void binningRestsMeanwhile() {
        m_test->click(id("cancel"));
        ViewState view = document().view();
        view.binning = 1;
        document().setView(view);
        m_test->settle();
        openPage();
        QCOMPARE(document().view().binning, 0);
        QCOMPARE(shown(), plugin().getArea());
        m_test->click(id("cancel"));
        QCOMPARE(document().view().binning, 1);
        view = document().view();
        view.binning = 0; // the user has turned it off since
        document().setView(view);
        m_test->settle();
        openPage();
        m_test->click(id("cancel"));
        QCOMPARE(document().view().binning, 0);
    }

    void theLineShowsOnAnyImage() {
        auto* const view = dynamic_cast<QOpenGLWidget*>(m_test->viewer().imageView(document().key()));
        QVERIFY(view);
        m_test->viewer().documents().live().beginHold();
        const auto rowOf = [&](const QRect& area) {
            plugin().setArea(document().face(), area, true);
            const QRectF line = document().view().imageToView.mapRect(QRectF(area));
            const QImage picture = view->grabFramebuffer();
            QString row;
            for (int x = int(line.left()) + 1; x < int(line.right()) - 1; ++x) {
                const int grey = qGray(picture.pixel(x, int(line.toRect().top())));
                row.append(QLatin1Char(grey > 200 ? '#' : grey < 30 ? '.' : '?'));
            }
            return row;
        };
        const QString dashed = rowOf(QRect(320, 256, 640, 512));
        // Dashes of four pixels, smoothed at their ends.
        static const QRegularExpression kDashes(QStringLiteral("(#{4,5}\\.{3,4}){20}"));
        QVERIFY2(dashed.contains(kDashes), qPrintable(dashed));
        QVERIFY2(!dashed.contains(QLatin1Char('?')), qPrintable(dashed));
        // One side is enough for dashes.
        const double zoom = document().view().zoom;
        const QString low = rowOf(QRect(320, 256, 640, int(6 / zoom)));
        QVERIFY2(low.contains(kDashes), qPrintable(low));
        // Too small for an outline to be seen: a spot gets a cross.
        const QRect spot(640, 512, int(2 / zoom), int(2 / zoom));
        plugin().setArea(document().face(), spot, true);
        const QImage with = view->grabFramebuffer();
        const QPoint corner = document().view().imageToView.mapRect(QRectF(spot)).toRect().topLeft();
        int bright = 0;
        for (const QPoint& arm : {QPoint(0, 0), QPoint(-1, 0), QPoint(0, -1)}) {
            bright += qGray(with.pixel(corner + arm)) > 200;
        }
        QCOMPARE(bright, 3);
        // Without the page there is no line.
        m_test->viewer().documents().live().endHold();
        m_test->click(id("cancel"));
        QVERIFY2(!rowOf(QRect(320, 256, 640, 512)).contains(kDashes), "still drawn");
    }
};

QTEST_MAIN(tst_ExposurePage)
#include "tst_exposure_page.moc"
