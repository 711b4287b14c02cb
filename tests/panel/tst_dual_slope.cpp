// The dual slope shutter, from its panel to the camera and back.

#include "simulator/device/SimulatedHead.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/host/ViewerHost.h"

#include <QJsonArray>
#include <QtTest>

namespace {

const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");
const QString kPanel = QStringLiteral("#livecontrol_dsshutter_setting");
const QString kSpinner = QStringLiteral("#livecontrol_dsshutter_spinner");
const QString kHandle = QStringLiteral("#livecontrol_dsshutter_slider .ui-slider-handle");

int updates(const QStringList& calls) { return calls.count(QStringLiteral("HostApplication.updateAll")); }

} // namespace

class tst_DualSlope : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    const QString m_mono = QStringLiteral("Marlin");

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
    bool isTrue(const QString& script) { return m_test->eval(script).toBool(); }
    bool isShown(const QString& selector) {
        return isTrue(QStringLiteral("$('%1').is(':visible')").arg(selector));
    }
    void set(const char* name, const QJsonValue& value) {
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))},
                                    {QStringLiteral("name"), QLatin1String(name)},
                                    {QStringLiteral("value"), value}});
        m_test->settle();
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/two-alike.json"));
        m_test->selectOnly(m_mono);
    }

    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
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

    // What the camera took shows after a drag, though the drag causes no update.
    void aDragTakesTheShutterFromAutoExposure() {
        set("autoExposure", true);
        QCOMPARE(m_test->caption(kShutter), QStringLiteral("Auto Exposure"));
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        m_test->calls();
        m_test->holdMouse(kHandle);
        m_test->moveMouse(30);
        // An update leaves the handle in the hand, wherever the camera is set meanwhile.
        const int before = m_test->head(m_mono).settings().dualSlope;
        QVERIFY(before > 5);
        set("dualSlope", 5);
        QCOMPARE(m_test->eval(QStringLiteral("$('#livecontrol_dsshutter_slider').slider('value')")).toInt(),
                 before);
        m_test->calls();
        m_test->moveMouse(10);
        const int rate = m_test->head(m_mono).settings().dualSlope;
        QVERIFY(rate > before);
        m_test->releaseMouse();
        QCOMPARE(updates(m_test->calls()), 0);
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QString::number(rate));
        QVERIFY(m_test->caption(kShutter) != QStringLiteral("Auto Exposure"));
        QVERIFY(isTrue(QStringLiteral("$('#op_auto_exposure').prop('disabled')")));

        // Nor does the box that is filled anew forget what the states of the viewer forbid.
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        m_test->settle();
        const QString forbidden = QStringLiteral("$('#op_auto_exposure').prop('disabled')");
        enterRate(QStringLiteral("0"));
        QVERIFY(isTrue(QStringLiteral("JSON.parse(livecontrol.getControlStatus()).IsMultiWindow")));
        QVERIFY(isTrue(forbidden));
        m_test->selectOnly(m_mono);
        QVERIFY(!isTrue(forbidden));
    }

    void aReleaseAboveZeroLeavesThePanelOpen() {
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        m_test->holdMouse(kHandle);
        m_test->moveMouse(30);
        QVERIFY(m_test->head(m_mono).settings().dualSlope > 0);
        m_test->viewer().host().deterUpdateUI(true); // an update would show what the camera has, and no panel
        m_test->head(m_mono).setDualSlope(0).result();
        m_test->releaseMouse();
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QStringLiteral("0"));
        QVERIFY(isShown(kPanel));
        QVERIFY(isTrue(QStringLiteral("$('%1').is(':focus')").arg(kHandle)));
        m_test->viewer().host().deterUpdateUI(false);
    }

    // An update hides the panel of a rate of 0 while a rate is being typed.
    void aHalfTypedRateGoesWithItsPanel() {
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        m_test->key(kSpinner, QStringLiteral("Ctrl+A"));
        m_test->type(QString(), QStringLiteral("9")); // of 95
        m_test->calls();
        set("rate", 500);
        QVERIFY(!isShown(kPanel));
        QVERIFY(!m_test->calls().contains(QStringLiteral("HostCameraControl.setDSShutterValue")));
        QVERIFY(isTrue(QStringLiteral("$('%1')[0].sumo.select.is(':focus')").arg(kShutter)));
        m_test->choose(kShutter, QStringLiteral("Dual Slope Shutter"));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QStringLiteral("0"));

        // Or dragged: the hand no longer moves what can't be seen.
        m_test->holdMouse(kHandle);
        m_test->moveMouse(1); // not yet a step
        set("rate", 250);
        QVERIFY(!isShown(kPanel));
        m_test->moveMouse(60);
        m_test->releaseMouse();
        QCOMPARE(m_test->head(m_mono).settings().dualSlope, 0);
    }

    void aHalfTypedRateGoesWithTheLink() {
        openDualSlopeAt(40);
        m_test->key(kSpinner, QStringLiteral("Ctrl+A"));
        m_test->type(QString(), QStringLiteral("9"));
        m_test->calls();
        const QJsonObject key{{QStringLiteral("key"), double(m_test->keyOf(m_mono))}};
        m_test->call("camera.unplug", key);
        m_test->settle();
        QVERIFY(!isShown(kPanel));
        m_test->call("camera.plug", key);
        QTRY_VERIFY(isShown(kPanel));
        m_test->settle();
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(kSpinner)), QStringLiteral("40"));
        m_test->key(QString(), QStringLiteral("Tab"));
        QVERIFY(!m_test->calls().contains(QStringLiteral("HostCameraControl.setDSShutterValue")));
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
};

QTEST_MAIN(tst_DualSlope)
#include "tst_dual_slope.moc"
