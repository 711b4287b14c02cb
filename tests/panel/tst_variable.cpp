// Variable channels, from the buttons of the panel to the camera and back.

#include "tests/panel/support/VariablePage.h"

#include <QMessageBox>
#include <QTimer>

class tst_Variable : public QObject, private VariablePage {
    Q_OBJECT

private slots:
    void init() { start(QStringLiteral("one-camera.json"), QStringLiteral("Marlin")); }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void storesAPresetForARate() {
        openPage();
        QVERIFY(host().isVariableSetting());
        QCOMPARE(head().settings().resolution, QSize(1280, 1024));
        QCOMPARE(m_test->rows(kRate).first(), QStringLiteral("50 fps"));
        m_test->choose(kRate, QStringLiteral("10000 fps"));
        // Only sizes that reach the rate are offered, the largest of them first and chosen.
        QCOMPARE(m_test->rows(kPreset).first(), m_test->caption(kPreset));
        for (const QString& row : m_test->rows(kPreset)) {
            const QStringList size = row.split(QLatin1Char('x'));
            QVERIFY(head().model().maxRate({size.at(0).toInt(), size.at(1).toInt()}) >= 10000);
        }
        m_test->choose(kPreset, QStringLiteral("512x256"));
        QCOMPARE(selectArea(), QRect(384, 384, 512, 256));
        enter(kPosX, 130);
        QCOMPARE(number(kPosX), 128); // on the grid
        m_test->click(kOk);
        QVERIFY(m_test->waitFor(kListPage));
        QVERIFY(!host().isVariableSetting());
        QCOMPARE(channel(1).rate, 10000U);
        QCOMPARE(QRect(channel(1).position, channel(1).size), QRect(128, 384, 512, 256));
        QCOMPARE(head().settings().channel, 1);
        QCOMPARE(head().area(), QRect(128, 384, 512, 256));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').text()").arg(kSelect)),
                 QStringLiteral("1: 512 x 256, 10000 fps"));
        QVERIFY(m_test->caption(QStringLiteral("#livecontrol_framerate"))
                    .startsWith(QStringLiteral("Channel 1: ")));
        QCOMPARE(m_test->logged(QStringLiteral("setVariableChannelInfo")).size(), 2);
    }

    void setsTheRightRateWhereOneIsSkipped() {
        openPage();
        m_test->click(QStringLiteral("#variable-resolution"));
        QVERIFY(m_test
                    ->eval(QStringLiteral("$('#livecontrol_variable_blocks').children().first()"
                                          ".is('.varblock-resolution')"))
                    .toBool());
        byHand();
        enter(kWidth, 1280);
        enter(kHeight, 1000); // 16 doesn't divide it: 3000 and 4000 fps are refused, 5000 runs
        QCOMPARE(number(kHeight), 1000);
        const QStringList rates = m_test->rows(kRate);
        QVERIFY(rates.contains(QStringLiteral("5000 fps")) && !rates.contains(QStringLiteral("3000 fps")));
        m_test->choose(kRate, QStringLiteral("5000 fps"));
        m_test->click(kOk);
        QCOMPARE(channel(1).rate, 5000U);
        QCOMPARE(channel(1).size, QSize(1280, 1000));
    }

    void theFastestRateFollowsASize() {
        openPage();
        m_test->click(QStringLiteral("#variable-resolution"));
        m_test->choose(kPreset, QStringLiteral("640x480"));
        const QString fastest = m_test->rows(kRate).first();
        QCOMPARE(m_test->caption(kRate), fastest);
        m_test->choose(kPreset, QStringLiteral("256x64"));
        QVERIFY(m_test->rows(kRate).indexOf(fastest) > 0);
        QCOMPARE(m_test->caption(kRate), m_test->rows(kRate).first());
        QVERIFY(m_test->caption(kRate) != fastest);
    }

    void correctsASizeToOneThatRuns() {
        openPage();
        m_test->choose(kRate, QStringLiteral("3000 fps"));
        byHand();
        enter(kHeight, 488);
        QCOMPARE(number(kHeight), 480); // in blocks of 16 at this rate: a typed value goes down
        m_test->key(kHeight, QStringLiteral("Up"));
        QCOMPARE(number(kHeight), 496); // a spin goes on in its direction
        m_test->key(kHeight, QStringLiteral("Down"));
        QCOMPARE(number(kHeight), 480);
        QCOMPARE(selectArea().height(), 480);

        // The faster the rate, the less the boxes allow, and neither passes the other's limit.
        m_test->click(QStringLiteral("#aspect-preset"));
        m_test->choose(kRate, QStringLiteral("20000 fps"));
        byHand();
        const CameraModel& model = head().model();
        QVERIFY(VariableSize::isValid(model, 20000, area().size()));
        enter(kHeight, 1024);
        QVERIFY(VariableSize::isValid(model, 20000, area().size()));
        enter(kWidth, 1280);
        QVERIFY(VariableSize::isValid(model, 20000, area().size()));
        QVERIFY(limit(kWidth, "max") <= 1280);
        QCOMPARE(selectArea(), area());
    }

    void manualKeepsTheSizeThatWasChosen() {
        openPage();
        m_test->choose(kRate, QStringLiteral("20000 fps"));
        m_test->choose(kPreset, QStringLiteral("512x256"));
        byHand();
        QCOMPARE(area().size(), QSize(512, 256));
        QCOMPARE(selectArea(), area());
        // A drag at such a rate ends where the boxes end, at once.
        const QRect before = selectArea();
        const QTransform& toView = m_test->camera(m_name).view().imageToView;
        mouse("image.press", toView.map(QPointF(before.center())).toPoint());
        for (int i = 1; i <= 4; ++i) {
            mouse("image.move", toView.map(QPointF(before.center()) + QPointF(150, 100) * i).toPoint());
            QCOMPARE(selectArea(), area());
            QCOMPARE(area().size(), before.size());
        }
        mouse("image.release", toView.map(QPointF(before.center()) + QPointF(600, 400)).toPoint());
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QCOMPARE(selectArea(), area());
        QCOMPARE(area().size(), before.size());
    }

    void refusesARateWithoutManualSizes() {
        openPage();
        m_test->eval(QStringLiteral("livecontrol_obj.variableSelectFramerate = 99")); // one that has gone
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(QStringLiteral("#aspect-free"));
        QVERIFY(m_test->answeredBox().contains(QStringLiteral("no manually configurable resolution")));
        QVERIFY(m_test->eval(QStringLiteral("$('#aspect-preset').prop('checked')")).toBool());
        QVERIFY(!m_test->eval(QStringLiteral("$('%1').is(':visible')").arg(kWidth)).toBool());
        QVERIFY(!m_test->viewer().panelView().plugin()->isAreaEditable(m_test->camera(m_name).face()));
        // By hand the rate is refused instead.
        m_test->eval(QStringLiteral("livecontrol_obj.variableSelectFramerate = 0"));
        m_test->clearLogs();
        byHand();
        const QString before = m_test->caption(kRate);
        // A rate that the camera has no more since the list was made.
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->eval(QStringLiteral("$('%1').append($('<option>', {value: 99, text: '1 fps'})).val('99')"
                                    ".trigger('change'), 1")
                         .arg(kRate));
        m_test->settle();
        QVERIFY(m_test->answeredBox().contains(QStringLiteral("no manually configurable resolution")));
        QCOMPARE(m_test->caption(kRate), before);
        QCOMPARE(m_test->eval(QStringLiteral("livecontrol_obj.variableSelectFramerate")).toInt(), 0);
        QVERIFY(m_test->logged(QStringLiteral("no row 99")).size() == 1);
    }

    void staysWhenNothingWasStored() {
        openPage();
        byHand();
        enter(kWidth, 640);
        const QRect wish = area();
        const auto isRefused = [this](const char* why) {
            m_test->answerNextBox(QStringLiteral("OK"));
            m_test->click(kOk);
            return m_test->answeredBox().contains(QLatin1String(why)) &&
                   m_test->eval(kVariablePage).toBool() && host().isVariableSetting();
        };
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_name))},
                                       {QStringLiteral("reason"), QStringLiteral("the store is locked")}});
        QVERIFY2(isRefused("the store is locked"), qPrintable(m_test->answeredBox()));
        QVERIFY(!channel(1).isStored());
        QCOMPARE(area(), wish);
        m_test->click(kOk);
        QVERIFY(m_test->waitFor(kListPage));
        QCOMPARE(channel(1).size, wish.size());
        openPage();
        m_test->eval(QStringLiteral("livecontrol_obj.variableSelectFramerate = 99")); // one that has gone
        QVERIFY2(isRefused("no longer offers this frame rate"), qPrintable(m_test->answeredBox()));
    }

    void storesNothingThatCannotBeRead_data() {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("emptied");
        QTest::newRow("rates") << QStringLiteral("getVariableRateList") << kRate;
        QTest::newRow("sizes") << QStringLiteral("getResolutionList") << kPreset;
        QTest::newRow("limits") << QStringLiteral("getVariableRestriction") << QString();
    }
    void storesNothingThatCannotBeRead() {
        QFETCH(QString, operation);
        QFETCH(QString, emptied);
        openPage();
        QTimer closer; // of all boxes that come
        connect(&closer, &QTimer::timeout, [] {
            if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                box->accept();
            }
        });
        closer.start(5);
        const auto updateFailing = [&](int times) {
            m_test->call("host.fail",
                         {{QStringLiteral("operation"), QStringLiteral("HostCameraControl.") + operation},
                          {QStringLiteral("message"), QStringLiteral("no answer")},
                          {QStringLiteral("times"), times}});
            m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
            m_test->settle();
        };
        const QString isOffered = QStringLiteral("$('%1').is(':enabled')").arg(kOk);
        QVERIFY(m_test->eval(isOffered).toBool());
        updateFailing(100);
        QVERIFY(!m_test->eval(isOffered).toBool());
        QVERIFY(emptied.isEmpty() || (m_test->rows(emptied).isEmpty() && m_test->caption(emptied).isEmpty()));
        updateFailing(0);
        QVERIFY(m_test->eval(isOffered).toBool());
        QVERIFY(!m_test->rows(kRate).isEmpty() && !m_test->rows(kPreset).isEmpty());
    }

    void beginsAnewWhenThePanelOpensAgain() {
        start(QStringLiteral("default.json"), QStringLiteral("Plover"));
        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        m_test->choose(kRate, QStringLiteral("12000 fps"));
        byHand();
        const auto isEditable = [this] {
            return m_test->viewer().panelView().plugin()->isAreaEditable(m_test->camera(m_name).face());
        };
        QVERIFY(isEditable());
        m_test->reopen();
        QVERIFY(m_test->waitFor(kVariablePage));
        m_test->settle();
        QVERIFY(host().isVariableSetting());
        QVERIFY(m_test->eval(QStringLiteral("$('#aspect-preset').prop('checked')")).toBool());
        QVERIFY(!isEditable());
        QCOMPARE(QStringLiteral("%1x%2").arg(selectArea().width()).arg(selectArea().height()),
                 m_test->caption(kPreset));
        QVERIFY(m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(kCentre)).toBool());
        QVERIFY(isCentred());
        byHand();
        QVERIFY(isEditable());
        m_test->click(kCancel);
    }

    void keepsTheOpticalCentre() {
        openPage();
        byHand();
        enter(kPosX, 0);
        enter(kPosY, 0);
        enter(kWidth, 640);
        enter(kHeight, 480);
        QCOMPARE(area(), QRect(0, 0, 640, 480));
        m_test->click(kCentre);
        QCOMPARE(area(), QRect(320, 272, 640, 480));
        QVERIFY(m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(kPosX)).toBool());
        m_test->key(kWidth, QStringLiteral("Up"));
        QCOMPARE(selectArea(), QRect(256, 272, 768, 480));
        m_test->click(kCentre);
        QVERIFY(!m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(kPosX)).toBool());
        QCOMPARE(selectArea(), QRect(256, 272, 768, 480));
        // Without it a size ends where the sensor does.
        QCOMPARE(limit(kWidth, "max"), 1024);
        QCOMPARE(limit(kPosX, "max"), 512);
        // A rate that leaves less than the sensor doesn't move it.
        m_test->choose(kRate, QStringLiteral("20000 fps"));
        m_test->click(kCentre);
        QVERIFY(isCentred());
        QCOMPARE(selectArea(), area());
        // It is this page's: on another an area keeps to where it lies.
        m_test->click(kCancel);
        m_test->choose(QStringLiteral("#livecontrol_shutterspeed"), QStringLiteral("Auto Exposure..."));
        m_test->settle();
        const QString box = QStringLiteral("#livecontrol_auto_exposure_");
        QCOMPARE(limit(box + QStringLiteral("area_w"), "max"), 1280 - number(box + QStringLiteral("pos_x")));
        QVERIFY(number(box + QStringLiteral("pos_x")) > 0);
    }

    void cameraWithOneFixedAxis() {
        start(QStringLiteral("default.json"), QStringLiteral("Gemini Left"));
        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        m_test->choose(kRate, QStringLiteral("8000 fps"));
        byHand();
        const auto isOff = [this](const QString& box) {
            return m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(box)).toBool();
        };
        QVERIFY(isOff(kPosX) && !isOff(kPosY) && !isOff(kCentre));
        enter(kHeight, 96);
        enter(kWidth, 320);
        enter(kPosY, 0);
        QCOMPARE(area(), QRect(160, 0, 320, 96));
        QCOMPARE(selectArea(), area());
        QVERIFY(limit(kWidth, "max") > 480); // wherever it lies
        m_test->click(kCentre);
        QCOMPARE(area(), QRect(160, 192, 320, 96));
        QVERIFY(isOff(kPosY));
    }

    void cameraWithFixedAxes() {
        start(QStringLiteral("default.json"), QStringLiteral("Plover"));
        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        QVERIFY(m_test->waitFor(kVariablePage));
        const QString center = QStringLiteral("$('%1')").arg(kCentre);
        QVERIFY(m_test->eval(center + QStringLiteral(".prop('checked')")).toBool());
        QVERIFY(m_test->eval(center + QStringLiteral(".prop('disabled')")).toBool());
        m_test->choose(kPreset, QStringLiteral("512x256"));
        m_test->click(kOk);
        QCOMPARE(head().area(), QRect(256, 384, 512, 256));

        m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
        m_test->choose(kRate, QStringLiteral("12000 fps"));
        byHand();
        QVERIFY(isCentred());
        QCOMPARE(selectArea(), area());
        m_test->key(kHeight, QStringLiteral("Down"));
        QVERIFY(isCentred());
        QCOMPARE(selectArea(), area());
        const QRect wish = area();
        m_test->click(kOk);
        QCOMPARE(QRect(channel(1).position, channel(1).size), wish);
    }
};

QTEST_MAIN(tst_Variable)
#include "tst_variable.moc"
