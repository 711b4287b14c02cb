// Frame rate, shutter speed, resolution and dual slope shutter, from the control on the page to the camera
// and back.

#include "tests/support/PanelTest.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CameraHead.h"
#include "viewer/documents/CameraDocument.h"

#include <QApplication>
#include <QJsonArray>
#include <QtTest>

namespace {

const QString kRate = QStringLiteral("#livecontrol_framerate");
const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");
const QString kSpinner = QStringLiteral("#livecontrol_dsshutter_spinner");
const QString kResolution = QStringLiteral("#livecontrol_resolution");

int updates(const QStringList& calls) { return calls.count(QStringLiteral("HostApplication.updateAll")); }

} // namespace

class tst_Shooting : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QString m_mono;
    QString m_colour;

    void enterRate(const QString& text) {
        m_test->key(kSpinner, QStringLiteral("Ctrl+A"));
        m_test->key(QString(), QStringLiteral("Del"));
        m_test->type(QString(), text);
        m_test->key(QString(), QStringLiteral("Return"));
    }
    void openDualSlopeAt(int rate) {
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        enterRate(QString::number(rate));
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, rate);
        m_test->clearLogs();
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        const QJsonArray cameras = m_test->call("camera.list").toArray();
        m_mono = cameras.at(0).toObject()[QStringLiteral("name")].toString();
        m_colour = cameras.at(1).toObject()[QStringLiteral("name")].toString();
        m_test->selectOnly(m_mono);
    }

    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void setsTheThirdShutterSpeed() {
        const QStringList rows = m_test->rows(kShutter);
        QVERIFY(rows.size() > 3);
        m_test->choose(kShutter, rows.at(2));
        const QStringList calls = m_test->calls();
        QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setShutterSpeed")), 1);
        QCOMPARE(updates(calls), 1);
        QCOMPARE(m_test->head(m_mono).settings().shutter, m_test->head(m_mono).shutterList().at(2));
        QCOMPARE(m_test->caption(kShutter), rows.at(2));

        const QStringList trace = m_test->logged(QStringLiteral("JS_Mediator_LiveControl::setShutterSpeed"));
        QCOMPARE(trace.size(), 2);
        QVERIFY(trace.at(0).startsWith(QStringLiteral("[ENTER]")));
        QVERIFY(trace.at(0).contains(QStringLiteral("[selectValue:2]")));
        QVERIFY(trace.at(1).startsWith(QStringLiteral("[LEAVE]")));
        QCOMPARE(m_test->logged(QStringLiteral("[USER]")).size(), 1);
    }

    void setsRateAndResolution() {
        const QStringList sizes = m_test->rows(kResolution);
        m_test->choose(kResolution, sizes.at(2));
        QCOMPARE(updates(m_test->calls()), 1);
        QCOMPARE(m_test->head(m_mono).settings().resolution, m_test->head(m_mono).resolutionList().at(2));
        QCOMPARE(m_test->caption(kResolution), sizes.at(2));

        const QStringList rates = m_test->rows(kRate);
        m_test->choose(kRate, rates.at(1));
        QCOMPARE(updates(m_test->calls()), 1);
        QCOMPARE(m_test->head(m_mono).settings().rate, m_test->head(m_mono).rateList().at(1));
        QCOMPARE(m_test->caption(kRate), rates.at(1));
    }

    void showsWhatTheCameraReallyTook() {
        // A rate that the resolution can't run takes a smaller one; the boxes follow the camera, not the
        // wish.
        const QSize before = m_test->head(m_mono).settings().resolution;
        const QStringList rates = m_test->rows(kRate);
        m_test->choose(kRate, rates.last());
        const HeadSettings& now = m_test->head(m_mono).settings();
        QVERIFY(now.resolution != before);
        QCOMPARE(m_test->caption(kResolution),
                 QStringLiteral("%1 x %2").arg(now.resolution.width()).arg(now.resolution.height()));
        QVERIFY(now.shutter >= now.rate); // an exposure is never longer than a frame
    }

    void showsAChangeBehindItsBack() {
        m_test->call("camera.set",
                     {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                      {QStringLiteral("name"), QStringLiteral("rate")},
                      {QStringLiteral("value"), double(m_test->head(m_mono).rateList().at(0))}});
        m_test->settle();
        QCOMPARE(m_test->caption(kRate), m_test->rows(kRate).at(0));
    }

    void tellsARefusalAndShowsTheOldValue() {
        const QString before = m_test->caption(kShutter);
        const quint32 shutter = m_test->head(m_mono).settings().shutter;
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                       {QStringLiteral("reason"), QStringLiteral("the shutter is jammed")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        const QStringList rows = m_test->rows(kShutter);
        m_test->choose(kShutter, rows.at(rows.indexOf(before) == 3 ? 4 : 3));
        const QString box = m_test->answeredBox();
        QVERIFY2(box.contains(QStringLiteral("Set the shutter speed")), qPrintable(box));
        QVERIFY2(box.contains(m_mono), qPrintable(box));
        QVERIFY2(box.contains(QStringLiteral("the shutter is jammed")), qPrintable(box));
        QCOMPARE(m_test->head(m_mono).settings().shutter, shutter);
        QCOMPARE(m_test->caption(kShutter), before);
        QCOMPARE(m_test->calls().count(QStringLiteral("HostApplication.handleError")), 1);
    }

    void showsNoWishBehindTheMessageOfARefusal() {
        const QString before = m_test->caption(kShutter);
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))}});
        QString behind;
        bool isListOpen = true;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            if (QApplication::activeModalWidget()) {
                look.stop();
                behind = m_test->caption(kShutter);
                isListOpen = m_test->eval(QStringLiteral("$('.SumoSelect.open').length > 0")).toBool();
                m_test->call("windows.press", {{QStringLiteral("button"), QStringLiteral("OK")}});
            }
        });
        look.start(10);
        m_test->choose(kShutter, m_test->rows(kShutter).last());
        QCOMPARE(behind, before);
        QVERIFY(!isListOpen);
        QCOMPARE(m_test->logged(QStringLiteral("[USER]")).size(), 1); // the choice, not its way back
    }

    void spreadsASettingOverTheSelectedCameras() {
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        m_test->settle();
        const QStringList rates = m_test->rows(kRate);
        m_test->choose(kRate, rates.at(1));
        const quint32 rate = m_test->head(m_mono).settings().rate;
        QCOMPARE(m_test->head(m_colour).settings().rate, rate);
    }

    void locksTheShutterSpeed() {
        m_test->choose(kShutter, QStringLiteral("Locked Shutter Speed"));
        QVERIFY(m_test->head(m_mono).settings().shutterLock);
        QVERIFY(m_test->eval(QStringLiteral("$('#op_shutterlock').hasClass('palegreen')")).toBool());
        QVERIFY(m_test->caption(kShutter) != QStringLiteral("Locked Shutter Speed"));
        m_test->choose(kShutter, QStringLiteral("Locked Shutter Speed"));
        QVERIFY(!m_test->head(m_mono).settings().shutterLock);
    }

    void drivesABoxByKeyboard() {
        const quint32 before = m_test->head(m_mono).settings().rate;
        m_test->eval(QStringLiteral("$('%1')[0].sumo.select.attr('id', 'test_rate'), 1").arg(kRate));
        m_test->key(QStringLiteral("#test_rate"), QStringLiteral("Space"));
        m_test->key(QString(), QStringLiteral("Up"));
        m_test->key(QString(), QStringLiteral("Return"));
        QVERIFY(m_test->head(m_mono).settings().rate != before);
    }

    void opensTheDualSlopePanelAndSetsItsValue() {
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_dsshutter_spinner:visible').length")));
        m_test->calls();
        m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_spinner').val(''), 1"));
        m_test->type(QStringLiteral("#livecontrol_dsshutter_spinner"), QStringLiteral("43"));
        m_test->key(QString(), QStringLiteral("Tab"));
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, 40); // cut down to a step of 5
        QVERIFY(m_test->eval(QStringLiteral("$('#op_dss_shutter').hasClass('palegreen')")).toBool());

        // A drag sets the value at each step, without an update between.
        m_test->calls();
        m_test->drag(QStringLiteral("#livecontrol_dsshutter_slider .ui-slider-handle"), 40, 8);
        const QStringList calls = m_test->calls();
        QVERIFY(calls.count(QStringLiteral("HostCameraControl.setDSShutterValue")) > 1);
        QCOMPARE(updates(calls), 0);
        QVERIFY(m_test->head(m_mono).settings().dualSlope > 40);

        // At 0 the mode is off again.
        m_test->drag(QStringLiteral("#livecontrol_dsshutter_slider .ui-slider-handle"), -300, 10);
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, 0);
        QVERIFY(!m_test->eval(QStringLiteral("$('#op_dss_shutter').hasClass('palegreen')")).toBool());
    }

    void refusesWhatIsNoWholeNumber() {
        openDualSlopeAt(40);
        for (const char* const text : {"4 3", "57.5", "1e9", ""}) {
            enterRate(QLatin1String(text));
            QCOMPARE(m_test->head(m_mono).settings().dualSlope, 40);
            QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QStringLiteral("40"));
            QVERIFY(!m_test->calls().contains(QStringLiteral("HostCameraControl.setDSShutterValue")));
            QCOMPARE(m_test->eval(QStringLiteral("$('.zel-hint:visible').length")).toInt(), 1);
        }
        // A whole number out of the limits is cut to them.
        const int max = m_test->head(m_mono).model().dualSlopeMax;
        enterRate(QStringLiteral("1000"));
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, max);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QString::number(max));
        enterRate(QStringLiteral("-5"));
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, 0);
    }

    void keepsTheKeyboardWhenTheDualSlopePanelGoes() {
        openDualSlopeAt(40);
        enterRate(QStringLiteral("0"));
        QVERIFY(!m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_setting').is(':visible')")).toBool());
        QVERIFY(m_test->eval(QStringLiteral("$('%1')[0].sumo.select.is(':focus')").arg(kShutter)).toBool());

        // Chosen again while it is open at 0, it still leads to the rate.
        for (int i = 0; i < 2; ++i) {
            m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
            QVERIFY(m_test
                        ->eval(QStringLiteral(
                            "$('#livecontrol_dsshutter_slider .ui-slider-handle').is(':focus')"))
                        .toBool());
        }
        m_test->key(QString(), QStringLiteral("Right"));
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, 5);
    }

    void lacksWhatTheCameraLacks() {
        m_test->selectOnly(m_colour);
        QCOMPARE(m_test->eval(QStringLiteral("$('#op_dss_shutter').length")).toInt(), 0);
        QVERIFY(!m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_setting').is(':visible')")).toBool());
    }

    void showsNoValuesOfACameraWithoutLink() {
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))}});
        QVERIFY(m_test->waitFor(
            QStringLiteral("$('#livecontrol_camera_item_list .ui-selected').not('.found').length")));
        for (const QString& box : {kRate, kShutter, kResolution}) {
            QCOMPARE(m_test->caption(box), QStringLiteral("(None)"));
        }
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))}});
        m_test->eval(QStringLiteral("livecontrol.updateCameras(), 1"));
        m_test->settle();
        QVERIFY(m_test->caption(kRate) != QStringLiteral("(None)"));
    }

    void survivesAnUnpluggedCamera() {
        m_test->call("camera.unplug", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                       {QStringLiteral("duringNext"), true}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->choose(kShutter, m_test->rows(kShutter).at(3));
        QVERIFY(!m_test->answeredBox().isEmpty());
        QVERIFY(!m_test->camera(m_mono).isConnected());
        QVERIFY(m_test->waitFor(
            QStringLiteral("$('#livecontrol_camera_item_list li').not('.found').length >= 1")));
    }
};

QTEST_MAIN(tst_Shooting)
#include "tst_shooting.moc"
