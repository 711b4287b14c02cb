// The page of the hardware image trigger: its status, its histogram, the recording that a picture starts.

#include "livecontrol/plugin/PLG_Interface.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"

#include <QJsonArray>
#include <QOpenGLWidget>
#include <QtTest>

namespace {

const QString kPrefix = QStringLiteral("#livecontrol_hwimage_trigger_");
const QString kTrigger = QStringLiteral("#livecontrol_trigger");

QString id(const char* name) { return kPrefix + QLatin1String(name); }

/// Evenly lit pictures in place of the scene, 12 bits.
QImage lit(const FrameRequest& request, int level) {
    QImage image(request.size, QImage::Format_Grayscale16);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<quint16*>(image.scanLine(y));
        std::fill_n(line, image.width(), quint16(level));
    }
    return image;
}

} // namespace

class tst_ImageTrigger : public QObject {
    Q_OBJECT

    std::unique_ptr<PanelTest> m_test;
    QString m_camera;
    int m_light = 200; // of 4095

    CameraHead& head() { return m_test->head(m_camera); }
    CameraBody& body() { return *head().body(); }
    ViewerHost& host() { return m_test->viewer().host(); }
    PLG_Interface& plugin() { return *host().plugins().current(); }

    void openPage() {
        m_test->choose(kTrigger, QStringLiteral("H/W Image Trigger..."));
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_hwimage_trigger:visible').length")));
        m_test->settle();
    }
    bool waitForStatus(const char* status) {
        return m_test->waitFor(
            QStringLiteral("$('%1').text() === '%2'").arg(id("status"), QLatin1String(status)));
    }
    bool isChecked(const char* box) {
        return m_test->eval(QStringLiteral("$('%1').prop('checked')").arg(id(box))).toBool();
    }
    void enter(const char* box, const char* number) {
        m_test->key(id(box), QStringLiteral("Ctrl+A"));
        m_test->type(id(box), QLatin1String(number) + QStringLiteral("\t"));
    }
    QOpenGLWidget* graph() { return qobject_cast<QOpenGLWidget*>(plugin().getWidget()); }

private slots:
    void init() {
        m_light = 200;
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/one-camera.json"));
        m_camera = m_test->call("camera.list").toArray().at(0).toObject()[QStringLiteral("name")].toString();
        head().setFrameSource([this](const FrameRequest& request) { return lit(request, m_light); });
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
        m_light = 2048; // the target of a camera that was just switched on
        QVERIFY(waitForStatus("Triggered"));
        m_light = 200;
        QVERIFY(waitForStatus("No Trigger"));
        m_test->click(id("on"));
        QVERIFY(waitForStatus("--"));
        QVERIFY(!head().isImageJudged());
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
        const AreaJudge& judge = head().settings().imageTrigger;
        QVERIFY(judge.on);
        QCOMPARE(judge.value, 400U); // on the camera's scale of 1024
        QCOMPARE(judge.area.left(), 32);
        QCOMPARE(judge.area.width(), 64);
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QVERIFY(!host().modes().isAny());
        body().recordReady();
        QTRY_COMPARE(body().state(), CameraState::Ready);
        QTest::qWait(200);
        QCOMPARE(body().state(), CameraState::Ready);
        m_light = 1600;
        QTRY_VERIFY(body().state() == CameraState::Recording || body().state() == CameraState::Memory);
        body().stopRecording();
    }

    void theHistogramShowsTheArea() {
        QVERIFY(!graph());
        m_test->click(id("histogram_on"));
        QVERIFY(graph());
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
        QVERIFY(!head().isImageJudged());
        QVERIFY(!host().modes().isAny());
    }

    void survivesAnUnpluggedCamera() {
        m_test->click(id("on"));
        m_test->click(id("histogram_on"));
        QVERIFY(waitForStatus("No Trigger"));
        body().unplug();
        QVERIFY(m_test->waitFor(QStringLiteral("$('#livecontrol_page_list:visible').length")));
        QVERIFY(!host().modes().isAny());
        QVERIFY(!head().isImageJudged());
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
        m_test->click(id("apply"));
        QVERIFY2(m_test->answeredBox().contains(QStringLiteral("the judge sleeps")),
                 qPrintable(m_test->answeredBox()));
        QVERIFY(!head().settings().imageTrigger.on);
        QVERIFY(host().modes().isOn(SettingModes::HwTrigger));
    }
};

QTEST_MAIN(tst_ImageTrigger)
#include "tst_image_trigger.moc"
