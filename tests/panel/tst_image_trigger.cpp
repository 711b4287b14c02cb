// The page of the hardware image trigger: its status, its histogram, the recording that a picture starts. And
// what it shares with that of the auto exposure: the histogram, and the panel that opens on it.

#include "tests/panel/support/ImageTriggerPage.h"
#include "tests/support/ModalSteps.h"

#include <QApplication>

class tst_ImageTrigger : public QObject, private ImageTriggerPage {
    Q_OBJECT

private slots:
    void init() {
        m_light = 200;
        m_prefix = kPrefix;
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        m_camera = m_test->call("camera.list").toArray().at(0).toObject()[QStringLiteral("name")].toString();
        head().setPictureSource([this](const FrameRequest& request) { return lit(request, m_light); });
        openPage();
    }

    void cleanup() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }

    void theStatusFollowsThePicture() {
        QVERIFY(waitForStatus("--"));
        m_test->click(id("on"));
        QVERIFY(!head().settings().imageTrigger.on); // the host watches; the camera hears of it by Apply
        QVERIFY(waitForStatus("No Trigger"));
        enter("value", "100"); // not applied: the picture doesn't take it away
        m_light = 2048;        // the target of a camera that was just switched on
        QVERIFY(waitForStatus("Triggered"));
        m_light = 200;
        QVERIFY(waitForStatus("No Trigger"));
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(id("value"))), QStringLiteral("100"));
        m_test->click(id("on"));
        QVERIFY(waitForStatus("--"));
        QVERIFY(!head().isImageMonitored());
    }

    void aPictureStartsTheRecording() {
        m_test->click(id("on"));
        enter("value", "100");
        enter("range", "8");
        enter("area_w", "64");
        enter("pos_x", "32");
        m_test->calls();
        m_test->click(id("ok"));
        const QStringList calls = m_test->calls();
        QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setImageTriggerOn")), 1);
        QCOMPARE(calls.count(QStringLiteral("HostCameraControl.setImageTriggerInfo")), 1);
        const MeteringArea& judge = head().settings().imageTrigger;
        QVERIFY(judge.on);
        QCOMPARE(judge.value, 400U); // on the camera's scale of 1024
        QCOMPARE(judge.area.left(), 32);
        QCOMPARE(judge.area.width(), 64);
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QVERIFY(!host().modes().isAny());
        body().recordReady().result();
        QTRY_COMPARE(body().state(), CameraState::Ready);
        QTest::qWait(200);
        QCOMPARE(body().state(), CameraState::Ready);
        m_light = 1600;
        QTRY_VERIFY(body().state() == CameraState::Recording || body().state() == CameraState::Memory);
        body().stopRecording().result();
    }

    void theHistogramShowsTheArea_data() {
        QTest::addColumn<QString>("prefix");
        QTest::newRow("image trigger") << kPrefix;
        QTest::newRow("auto exposure") << kExposurePrefix;
    }

    void theHistogramShowsTheArea() {
        QFETCH(QString, prefix);
        if (prefix != m_prefix) {
            m_test->click(id("cancel"));
            m_prefix = prefix;
            openPage();
        }
        auto& window = dynamic_cast<ViewClient&>(*m_test->viewer().window());
        CameraDocument& document = m_test->camera(m_camera);
        QVERIFY(!graph());
        QVERIFY(!window.isFrameRead(document)); // nobody counts, so a view need not get all pixels
        m_test->click(id("histogram_on"));
        QVERIFY(graph());
        QVERIFY(window.isFrameRead(document));
        m_light = 2048;
        const auto columnAt = [this](int bin) {
            const QImage image = graph()->grabFramebuffer();
            const int left = 35;
            const int width = image.width() - left - 12;
            return image.pixelColor(left + width * bin / 257, image.height() / 2).lightness();
        };
        QTRY_VERIFY(columnAt(128) > 120); // the one bin that all pixels are in, as high as the graph
        QVERIFY(columnAt(40) < 60);
        m_light = 656;
        QTRY_VERIFY(columnAt(41) > 120);
        QTRY_VERIFY(columnAt(128) < 60);
        m_test->click(id("histogram_on"));
        QVERIFY(!graph());
        QVERIFY(!window.isFrameRead(document));
        // Kept by Apply alone.
        m_test->click(id("histogram_on"));
        m_test->click(id("cancel"));
        openPage();
        QVERIFY(!isChecked("histogram_on"));
        m_test->click(id("histogram_on"));
        m_test->click(id("ok"));
        openPage();
        QVERIFY(isChecked("histogram_on"));
        QVERIFY(graph());
    }

    void cancelLeavesTheCameraAsItWas() {
        const QJsonObject before = body().stateJson();
        const quint64 commands = body().commandCount();
        m_test->click(id("on"));
        enter("value", "12");
        enter("area_h", "128");
        m_test->click(id("cancel"));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QCOMPARE(body().stateJson(), before);
        QCOMPARE(body().commandCount(), commands);
        QVERIFY(!head().isImageMonitored());
        QVERIFY(!host().modes().isAny());
    }

    void survivesAnUnpluggedCamera() {
        m_test->click(id("on"));
        m_test->click(id("histogram_on"));
        QVERIFY(waitForStatus("No Trigger"));
        body().unplug();
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QVERIFY(!host().modes().isAny());
        QVERIFY(!head().isImageMonitored());
        m_test->call("camera.plug", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        m_test->settle();
        openPage();
        QVERIFY(waitForStatus("--"));
    }

    void tellsARefusalAndKeepsThePage() {
        m_test->call("camera.refuse", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                       {QStringLiteral("reason"), QStringLiteral("the judge sleeps")}});
        m_test->answerNextBox(QStringLiteral("OK"));
        m_test->click(id("on"));
        enter("value", "12");
        m_test->click(id("ok"));
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("the judge sleeps")),
                 qPrintable(m_test->answeredBox()));
        QVERIFY(!head().settings().imageTrigger.on);
        QVERIFY(host().modes().isOn(SettingModes::HwTrigger));
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(m_camera))},
                                    {QStringLiteral("name"), QStringLiteral("shutter")},
                                    {QStringLiteral("value"), 2000}});
        m_test->settle(); // an update later
        QCOMPARE(m_test->text(QStringLiteral("$('%1').val()").arg(id("value"))), QStringLiteral("12"));

        const Document& document = m_test->camera(m_camera);
        const QString note = QStringLiteral("$('#livecontrol_image_trigger_note').is(':visible')");
        QCOMPARE(DocumentText::state(document), QStringLiteral("Live"));
        m_test->click(id("ok"));
        QVERIFY(head().settings().imageTrigger.on);
        QVERIFY(!host().modes().isAny());
        // By now a flicker would start the recording: that is seen without looking for it.
        QVERIFY(m_test->eval(note).toBool());
        QCOMPARE(DocumentText::state(document), QStringLiteral("Live, image trigger on"));
        head().setImageTrigger(false).result();
        m_test->eval(QStringLiteral("livecontrol.updateUI(), 1"));
        QVERIFY(!m_test->eval(note).toBool());
    }

    // The user may leave the box open for long, and the page's timers run behind it.
    void aStatusThatFailsIsToldOnce_data() {
        QTest::addColumn<bool>("isOn"); // the status is read already when it fails
        QTest::newRow("as the box is ticked") << false;
        QTest::newRow("by an update") << true;
    }
    void aStatusThatFailsIsToldOnce() {
        QFETCH(bool, isOn);
        constexpr int kMany = 1000;
        if (isOn) {
            m_test->click(id("on"));
            m_test->click(id("apply"));
            QVERIFY(waitForStatus("No Trigger"));
        }
        m_test->eval(QStringLiteral("window.test_polls = 0,"
                                    "setInterval(function () { test_polls += 1; }, 200)"));
        failNext("getImageTriggerState", kMany);
        failNext("getImageTriggerInfo", isOn ? 1 : 0);
        const auto openBoxes = [] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            return std::count_if(windows.begin(), windows.end(), [](const QWidget* window) {
                return window->isVisible() && window->inherits("QMessageBox");
            });
        };
        int most = 0;
        ModalSteps steps(*m_test);
        steps
            .run([&] {
                return openBoxes() > 0 && m_test->eval(QStringLiteral("test_polls = 0, true")).toBool();
            })
            .run([&] {
                most = int(openBoxes());
                return most > 1 || m_test->eval(QStringLiteral("test_polls > 4")).toBool();
            })
            .press(QStringLiteral("OK"));
        isOn ? update() : m_test->click(id("on"));
        const QString why = steps.finish();
        QCOMPARE(most, 1);
        QVERIFY2(why.isEmpty(), qPrintable(why));
        QVERIFY(steps.boxes().at(0).contains(QStringLiteral("no answer")));
        m_test->eval(QStringLiteral("test_polls = 0, 1"));
        QVERIFY(m_test->waitFor(QStringLiteral("test_polls > 2")));
        QVERIFY(!QApplication::activeModalWidget()); // nobody asks any more
        failNext("getImageTriggerState", 0);
        update();
        QVERIFY(waitForStatus("No Trigger"));
        // Nor is it asked for when the panel has closed.
        m_test->eval(QStringLiteral("livecontrol_obj.close(), 1"));
        m_test->calls();
        m_test->waitFor(QStringLiteral("false"), 500);
        QVERIFY(!m_test->calls().contains(QStringLiteral("HostCameraControl.getImageTriggerState")));
    }

    void sendsNothingThatCannotBeRead_data() { theHistogramShowsTheArea_data(); }
    void sendsNothingThatCannotBeRead() {
        QFETCH(QString, prefix);
        m_test->click(id("cancel"));
        m_prefix = prefix;
        openPage();
        const auto enabled = [this] {
            return m_test
                ->eval(QStringLiteral("$('%1, %2').filter(':enabled').length").arg(id("ok"), id("apply")))
                .toInt();
        };
        const QString times = kExposurePrefix + QStringLiteral("max_time");
        const bool hasTimes = prefix == kExposurePrefix;
        QCOMPARE(m_test->rows(times).size() > 1, hasTimes);
        failNext(hasTimes ? "getAutoExposureInfo" : "getImageTriggerInfo", 1);
        m_test->answerNextBox(QStringLiteral("OK"));
        update();
        QVERIFY(m_test->answeredBox().contains(QStringLiteral("no answer")));
        QCOMPARE(enabled(), 0);
        QVERIFY(m_test->rows(times).isEmpty());
        update();
        QCOMPARE(enabled(), 2);
        QCOMPARE(m_test->rows(times).size() > 1, hasTimes);
    }

    void comesBackOnEachPageOrLeavesItsMode() {
        m_test->click(id("cancel"));
        goToPage(3);
        m_test->click(id("on"));
        m_test->click(id("ok")); // the camera exposes by itself: nothing below may switch it off
        const struct {
            int page;
            bool byMode;
            bool isLost;
        } kRoads[] = {{0, false, true}, {1, true, true},   {2, true, false},
                      {2, false, true}, {3, true, false},  {3, true, true},
                      {3, false, true}, {4, false, false}, {4, true, true}};
        for (const auto& [page, byMode, isLost] : kRoads) {
            const QByteArray what = QStringLiteral("page %1, %2, %3")
                                        .arg(page)
                                        .arg(byMode ? QStringLiteral("file mode") : QStringLiteral("closed"))
                                        .arg(isLost ? QStringLiteral("lost") : QStringLiteral("linked"))
                                        .toUtf8();
            goToPage(page);
            closePanel(byMode);
            QVERIFY2(!host().modes().isOn(SettingModes::AutoExposure), what); // no rectangle without its page
            QVERIFY2(!host().modes().isOn(SettingModes::HwTrigger), what);
            if (isLost) {
                setLink(false);
            }
            openPanel(byMode);
            const int expected = isLost && page > 1 ? 0 : page;
            QVERIFY2(shownPage() == expected, what);
            if (isLost && page == 2) {
                m_test->answerNextBox(QStringLiteral("OK")); // the camera stays as the page had made it
            }
            if (isLost) {
                setLink(true);
            }
            QVERIFY2(shownPage() == expected, what);
            QVERIFY2(host().modes().isOn(SettingModes::Variable) == (expected == 2), what);
            QVERIFY2(host().modes().isOn(SettingModes::AutoExposure) == (expected == 3), what);
            QVERIFY2(host().modes().isOn(SettingModes::HwTrigger) == (expected == 4), what);
            QVERIFY2(isBinningAllowed() == (expected < 2), what);
            if (page == 3) {
                leavePage(expected);
                openPage();
                QVERIFY2(isChecked("on"), what);
                m_test->click(id("ok"));
                QVERIFY2(head().settings().exposure.on, what);
            } else {
                leavePage(expected);
            }
        }
    }
};

QTEST_MAIN(tst_ImageTrigger)
#include "tst_image_trigger.moc"
