// The options of page 0, each from its control to the simulated camera and back.

#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/Rig.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QAction>
#include <QJsonArray>
#include <QtTest>

namespace {

const QString kLowLight = QStringLiteral("#livecontrol_lowlight");
const QString kType = QStringLiteral("#livecontrol_lowlight_type");
const QString kSlider = QStringLiteral("#livecontrol_lowlight_slider");
const QString kFan = QStringLiteral("#livecontrol_fan_state");
const QString kLed = QStringLiteral("#livecontrol_led_control");
const QString kReconfigure = QStringLiteral("#livecontrol_phase_adjust_reconfig");

} // namespace

class tst_CameraOptions : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;

    CameraHead& head(const char* camera = "Marlin") { return m_test->head(QLatin1String(camera)); }
    CameraBody& body(const char* camera = "Marlin") { return *head(camera).body(); }
    bool isTrue(const QString& script) { return m_test->eval(script).toBool(); }
    bool isShown(const QString& selector) {
        return isTrue(QStringLiteral("$('%1').is(':visible')").arg(selector));
    }
    bool isEnabled(const QString& selector) {
        return isTrue(QStringLiteral("!$('%1').prop('disabled')").arg(selector));
    }
    bool isChecked(const QString& selector) {
        return isTrue(QStringLiteral("$('%1').prop('checked')").arg(selector));
    }
    QString textOf(const char* id) {
        return m_test->text(QStringLiteral("$('#%1').text()").arg(QLatin1String(id)));
    }
    void set(const char* name, const QJsonValue& value, const char* camera = "Marlin") {
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(QLatin1String(camera)))},
                                    {QStringLiteral("name"), QLatin1String(name)},
                                    {QStringLiteral("value"), value}});
        m_test->settle();
    }

private slots:
    void init() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_test->clearLogs();
    }
    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

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
        const int sets = m_test->calls(false).count(QStringLiteral("HostCameraControl.setShutterSpeed"));
        QVERIFY(sets > 8); // at each step, and once more at the end
        QCOMPARE(body().commandCount() - commands, quint64(sets));

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

    void lowLightShowsTheWholeSensor() {
        m_test->eval(QStringLiteral("livecontrol.setResolution('5'), 1"));
        m_test->click(kType);
        m_test->click(kLowLight);
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).imageSize(), head().maxResolution());
        m_test->click(kLowLight);
        QCOMPARE(m_test->camera(QStringLiteral("Marlin")).imageSize(), head().settings().resolution);
        QVERIFY(head().settings().resolution != head().maxResolution());
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

    // What a camera records with is not what the slider is about.
    void aLowLightSlideIsForCamerasInLowLight() {
        m_test->click(kLowLight);
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Plover")));
        m_test->settle();
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
        m_test->eval(QStringLiteral("livecontrol_obj.update()"));
        QCOMPARE(body("Plover").commandCount(), commands); // though each update writes the state back
        // With one that has no lamps: what the current camera has shows, and stays as it is.
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Marlin")));
        m_test->settle();
        QVERIFY(isShown(kLed) && !isEnabled(kLed));
        QVERIFY(head("Plover").settings().led);
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
        // Whichever camera is selected: the links are those of all.
        set("outOfPhase", true, "Gemini Left");
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').hasClass('blinking')").arg(kReconfigure)));
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
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        QVERIFY(isTrue(keepsIt));
    }

    void aRecordingLocksThemAll() {
        set("temperature", 65); // there is a note
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QStringLiteral("Plover")));
        body().recordReady();
        body("Plover").recordReady();
        QTRY_COMPARE(body("Plover").state(), CameraState::Ready);
        m_test->settle();
        for (const QString& control : {kLowLight, kType, kFan, QStringLiteral("#livecontrol_shading_calib"),
                                       QStringLiteral("#livecontrol_livespeed"), kLed}) {
            QVERIFY2(!isEnabled(control), qPrintable(control));
        }
        QVERIFY(isTrue(QStringLiteral("$('%1').slider('option', 'disabled')").arg(kSlider)));
        QVERIFY(isTrue(QStringLiteral("$('#livecontrol_fan_caution').hasClass('disabled')")));
        body().stopRecording();
        body("Plover").stopRecording();
        m_test->settle();
        QVERIFY(isEnabled(kLowLight));
        QVERIFY(isTrue(QStringLiteral("!$('#livecontrol_fan_caution').hasClass('disabled')")));
        set("temperature", 40);
        QVERIFY(isEnabled(kFan));
    }
};

QTEST_MAIN(tst_CameraOptions)
#include "tst_camera_options.moc"
