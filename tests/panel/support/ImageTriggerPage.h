#pragma once

#include "livecontrol/interface/PLG_Interface.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/views/DocumentText.h"
#include "viewer/views/ViewClient.h"

#include <QJsonArray>
#include <QOpenGLWidget>
#include <QtTest>

inline const QString kPrefix = QStringLiteral("#livecontrol_hwimage_trigger_");
inline const QString kTrigger = QStringLiteral("#livecontrol_trigger");
inline const QString kExposurePrefix = QStringLiteral("#livecontrol_auto_exposure_");
inline const QString kShutter = QStringLiteral("#livecontrol_shutterspeed");

/// Evenly lit pictures in place of the scene, 12 bits.
inline QImage lit(const FrameRequest& request, int level) {
    QImage image(request.size, QImage::Format_Grayscale16);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<quint16*>(image.scanLine(y));
        std::fill_n(line, image.width(), quint16(level));
    }
    return image;
}

/// The page of the hardware image trigger, or that of the auto exposure, in a whole viewer over one camera. A
/// test class derives from it.
class ImageTriggerPage {
protected:
    std::unique_ptr<PanelTest> m_test;
    QString m_camera;
    QString m_prefix;
    int m_light = 200; // of 4095

    QString id(const char* name) { return m_prefix + QLatin1String(name); }

    SimulatedHead& head() { return m_test->head(m_camera); }
    SimulatedBody& body() { return *head().body(); }
    ViewerHost& host() { return m_test->viewer().host(); }
    PLG_Interface& plugin() { return *host().plugins().current(); }

    /// Opens the page of the auto exposure instead when its controls are under test.
    void openPage() {
        if (m_prefix == kPrefix) {
            m_test->choose(kTrigger, QStringLiteral("H/W Image Trigger..."));
        } else {
            m_test->choose(kShutter, QStringLiteral("Auto Exposure..."));
        }
        QVERIFY(m_test->waitFor(QStringLiteral("$('%1').is(':visible')").arg(id("histogram_on"))));
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
    void failNext(const char* operation, int times) {
        m_test->call("host.fail", {{QStringLiteral("operation"),
                                    QStringLiteral("HostCameraControl.") + QLatin1String(operation)},
                                   {QStringLiteral("message"), QStringLiteral("no answer")},
                                   {QStringLiteral("times"), times}});
    }
    void update() {
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        m_test->settle();
    }
    QOpenGLWidget* graph() { return qobject_cast<QOpenGLWidget*>(plugin().getWidget()); }

    /// Closes the panel as a user does: by its menu entry, or with the mode.
    void closePanel(bool byMode) {
        if (byMode) {
            m_test->viewer().documents().setMode(HOST_MODE_FILE);
        } else {
            host().plugins().closeCurrent();
        }
        QVERIFY(!host().plugins().current());
        m_test->settle();
    }
    void openPanel(bool byMode) {
        if (byMode) {
            m_test->viewer().documents().setMode(HOST_MODE_LIVE);
        } else {
            host().plugins().openPanel(QStringLiteral("livecontrol"));
        }
        QVERIFY(
            m_test->waitFor(QStringLiteral("window.livecontrol_obj && $('#panels section:visible').length")));
        m_test->settle();
    }
    void goToPage(int page) {
        switch (page) {
        case 1:
            m_test->openDevices();
            break;
        case 2:
            m_test->eval(QStringLiteral("livecontrol_obj.callLiveControlPage(2), 1"));
            break;
        case 3:
        case 4:
            m_prefix = page == 3 ? kExposurePrefix : kPrefix;
            openPage();
            break;
        default:
            break;
        }
        m_test->settle();
        QCOMPARE(shownPage(), page);
    }
    int shownPage() {
        return m_test->eval(QStringLiteral("$('#panels section').index($('#panels section:visible'))"))
            .toInt();
    }
    void leavePage(int page) {
        static const char* const kWayOut[] = {
            "", "#livecontrol_devicesetting_closebutton", "#livecontrol_variablesetting_cancelbutton",
            "#livecontrol_auto_exposure_cancel", "#livecontrol_hwimage_trigger_cancel"};
        if (page > 0) {
            m_test->click(QLatin1String(kWayOut[page]));
        }
        QCOMPARE(shownPage(), 0);
    }
    void setLink(bool on) {
        m_test->call(on ? "camera.plug" : "camera.unplug",
                     {{QStringLiteral("key"), double(m_test->keyOf(m_camera))}});
        m_test->settle();
        QCOMPARE(m_test->camera(m_camera).isConnected(), on);
    }
    bool isBinningAllowed() {
        return m_test->viewer().documents().tools().isAllowed(QStringLiteral("binning"));
    }
};
