// Frame rate, shutter speed and resolution, from the control on the page to the camera and back.

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "tests/support/DialogCloser.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"

#include <QApplication>
#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

const QString kRate = QStringLiteral("#livecontrol_framerate");
const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");
const QString kResolution = QStringLiteral("#livecontrol_resolution");

const QString kPanel = QStringLiteral("#livecontrol_dsshutter_setting");

int updates(const QStringList& calls) { return calls.count(QStringLiteral("HostApplication.updateAll")); }

} // namespace

class tst_Shooting : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QString m_mono;
    QString m_color;

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
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        const QJsonArray cameras = m_test->call("camera.list").toArray();
        m_mono = cameras.at(0).toObject()[QStringLiteral("name")].toString();
        m_color = cameras.at(1).toObject()[QStringLiteral("name")].toString();
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
        QCOMPARE(m_test->head(m_color).settings().rate, rate);
    }

    void marksWhereTheSelectedCamerasDiffer() {
        const auto isMarked = [this](const QString& box) {
            return m_test
                ->eval(QStringLiteral("$('%1').closest('.control').children('.differs').is(':visible')")
                           .arg(box))
                .toBool();
        };
        const QString noted =
            QStringLiteral("$('%1').closest('.SumoSelect').find('li[data-note]').map(function () {"
                           "return $(this).text().trim() + '|' + $(this).attr('data-note'); })"
                           ".get().join(';')")
                .arg(kRate);
        m_test->choose(kRate, m_test->rows(kRate).at(1));
        const QString shown = m_test->caption(kRate);
        const quint32 rate = m_test->head(m_mono).settings().rate;
        m_test->head(m_color).setRate(m_test->head(m_color).rateList().at(3)).result();
        QVERIFY(!isMarked(kRate));
        m_test->eval(QStringLiteral("livecontrol.selectAllDocs(), 1"));
        m_test->settle();
        QVERIFY(isMarked(kRate));
        QVERIFY(isMarked(kResolution)); // the other one has no such size
        QCOMPARE(m_test->caption(kRate), shown);
        const QStringList notes = m_test->text(noted).split(QLatin1Char(';'));
        QVERIFY2(notes.contains(shown + QLatin1Char('|') + m_mono), qPrintable(notes.join(QLatin1Char(';'))));
        QCOMPARE(notes.filter(m_color).size(), 1);
        QVERIFY(m_test
                    ->text(QStringLiteral("$('%1').closest('.control').children('.differs').attr('title')")
                               .arg(kRate))
                    .contains(m_color));
        m_test->choose(kRate, shown); // what the current camera has is a choice for the others
        QCOMPARE(m_test->head(m_color).settings().rate, rate);
        QVERIFY(!isMarked(kRate));
        QCOMPARE(m_test->text(noted), QString());
    }

    void locksTheShutterSpeed() {
        m_test->choose(kShutter, QStringLiteral("Locked Shutter Speed"));
        QVERIFY(m_test->head(m_mono).settings().shutterLock);
        QVERIFY(m_test->eval(QStringLiteral("$('#op_shutterlock').hasClass('palegreen')")).toBool());
        QVERIFY(m_test->caption(kShutter) != QStringLiteral("Locked Shutter Speed"));
        m_test->choose(kShutter, QStringLiteral("Locked Shutter Speed"));
        QVERIFY(!m_test->head(m_mono).settings().shutterLock);

        const QString size = m_test->caption(kResolution);
        for (const bool locked : {true, false}) {
            m_test->choose(kResolution, QStringLiteral("Locked Resolution"));
            QCOMPARE(m_test->head(m_mono).settings().resolutionLock, locked);
            QCOMPARE(m_test->caption(kResolution), size);
        }
    }

    void drivesABoxByKeyboard() {
        const quint32 before = m_test->head(m_mono).settings().rate;
        m_test->eval(QStringLiteral("$('%1')[0].sumo.select.attr('id', 'test_rate'), 1").arg(kRate));
        m_test->key(QStringLiteral("#test_rate"), QStringLiteral("Space"));
        m_test->key(QString(), QStringLiteral("Up"));
        m_test->key(QString(), QStringLiteral("Return"));
        QVERIFY(m_test->head(m_mono).settings().rate != before);

        // Opening one box closes another, also where no click has told that one. (The list covers what is
        // below.)
        for (const QString& select : {kShutter, kRate}) {
            m_test->eval(QStringLiteral("$('#test_rate').removeAttr('id'), "
                                        "$('%1')[0].sumo.select.attr('id', 'test_rate'), 1")
                             .arg(select));
            m_test->key(QStringLiteral("#test_rate"), QStringLiteral("Space"));
            QVERIFY(isTrue(QStringLiteral("$('%1')[0].sumo.is_opened").arg(select)));
            QCOMPARE(m_test->eval(QStringLiteral("$('.SumoSelect.open').length")).toInt(), 1);
        }
    }

    // What can't be read shows nothing, least of all what another camera had.
    void whatCannotBeReadShowsNothing() {
        set("dualSlope", 40);
        m_test->eval(QStringLiteral("livecontrol.setTriggerMode(4, 0, 0, 0, 0, 0), 1"));
        const QStringList blocks{kPanel,
                                 QStringLiteral("#livecontrol_lens_setting"),
                                 QStringLiteral("#livecontrol_trigger_param"),
                                 QStringLiteral("#livecontrol_variable"),
                                 QStringLiteral("#livecontrol_lowlight_block"),
                                 QStringLiteral("#livecontrol_fan_control"),
                                 QStringLiteral("#livecontrol_livespeed_block")};
        for (const QString& block : blocks) {
            QVERIFY2(isShown(block), qPrintable(block));
        }
        const QStringList boxes{kRate, kShutter, kResolution, QStringLiteral("#livecontrol_trigger")};
        const auto failAll = [this](int times) {
            for (const char* const getter :
                 {"getRecordRateList", "getShutterSpeedList", "getResolutionList", "getTriggerModeList",
                  "getDSShutterMax", "getLensControlInfo", "getTriggerParameters", "getVariableChannel",
                  "getLowLightType", "getFanControl", "getLiveImageDataReduceMode"}) {
                m_test->call("host.fail", {{QStringLiteral("operation"),
                                            QStringLiteral("HostCameraControl.") + QLatin1String(getter)},
                                           {QStringLiteral("times"), times}});
            }
        };
        {
            DialogCloser closer;
            failAll(1000);
            m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        }
        for (const QString& box : boxes) {
            QCOMPARE(m_test->eval(QStringLiteral("$('%1 option').length").arg(box)).toInt(), 0);
            QCOMPARE(m_test->caption(box), QString());
        }
        for (const QString& block : blocks) {
            QVERIFY2(!isShown(block), qPrintable(block));
        }
        failAll(0);
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        for (const QString& box : boxes) {
            QVERIFY2(!m_test->caption(box).isEmpty(), qPrintable(box));
        }
        for (const QString& box : {kRate, kShutter}) { // ready again for a value that stands in no row
            QVERIFY2(isTrue(QStringLiteral("$('%1').attr('placeholder') !== ''").arg(box)), qPrintable(box));
        }
        for (const QString& block : blocks) {
            QVERIFY2(isShown(block), qPrintable(block));
        }
    }

    void lacksWhatTheCameraLacks() {
        m_test->selectOnly(m_color);
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
            QStringLiteral("$('#livecontrol_camera_item_list .link-lost:visible').closest('li')"
                           ".find('.device-name').text() === '%1'")
                .arg(m_mono))); // and not the dummy
        const auto* const lost =
            m_test->viewer().mainWindow().findChild<QLabel*>(QStringLiteral("lostLinks"));
        QVERIFY(lost->isVisible());
        QCOMPARE(lost->text(), QStringLiteral("Not connected: %1").arg(m_mono));
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_mono))}});
        m_test->eval(QStringLiteral("livecontrol.updateCameras(), 1"));
        m_test->settle();
        QVERIFY(!lost->isVisible());
    }

    void tellsWhatAChangeTookAlongAndTakesItBack() {
        const HeadSettings before = m_test->head(m_mono).settings();
        const auto* const note =
            m_test->viewer().mainWindow().findChild<QWidget*>(QStringLiteral("changeNote"));
        auto* const undo =
            m_test->viewer().mainWindow().findChild<QPushButton*>(QStringLiteral("changeUndo"));
        QVERIFY(!note->isVisible());
        m_test->choose(kRate, m_test->rows(kRate).last());
        const HeadSettings fast = m_test->head(m_mono).settings();
        QVERIFY(fast.resolution != before.resolution);
        QVERIFY(note->isVisible());
        QVERIFY2(note->toolTip().contains(QStringLiteral("Resolution: 1280 x 1024 \u2192 %1 x %2")
                                              .arg(fast.resolution.width())
                                              .arg(fast.resolution.height())),
                 qPrintable(note->toolTip()));
        QVERIFY(!note->toolTip().contains(QStringLiteral("Frame rate"))); // was asked for
        QTest::mouseClick(undo, Qt::LeftButton);
        QVERIFY(m_test->head(m_mono).settings() == before);
        QVERIFY(!note->isVisible());
        m_test->settle();
        QCOMPARE(m_test->caption(kResolution), QStringLiteral("1280 x 1024"));

        // What was changed since would be taken back as well, unsaid.
        m_test->choose(kRate, m_test->rows(kRate).last());
        QVERIFY(note->isVisible());
        m_test->choose(kShutter, m_test->rows(kShutter).last());
        QVERIFY(!note->isVisible());
    }
};

QTEST_MAIN(tst_Shooting)
#include "tst_shooting.moc"
