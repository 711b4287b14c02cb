#pragma once

#include "simulator/device/Rig.h"
#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"

#include <QAction>
#include <QJsonArray>
#include <QtTest>

inline const QString kLowLight = QStringLiteral("#livecontrol_lowlight");
inline const QString kType = QStringLiteral("#livecontrol_lowlight_type");
inline const QString kSlider = QStringLiteral("#livecontrol_lowlight_slider");
inline const QString kFan = QStringLiteral("#livecontrol_fan_state");
inline const QString kLed = QStringLiteral("#livecontrol_led_control");
inline const QString kLaser = QStringLiteral("#livecontrol_laser_control");
inline const QString kReconfigure = QStringLiteral("#livecontrol_phase_adjust_reconfig");

/// The options of page 0. A test class of them derives from it and calls its two ends.
class OptionsTest {
protected:
    std::unique_ptr<PanelTest> m_test;

    SimulatedHead& head(const char* camera = "Marlin") { return m_test->head(QLatin1String(camera)); }
    SimulatedBody& body(const char* camera = "Marlin") { return *head(camera).body(); }
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

    void selectAlso(const char* camera) {
        m_test->viewer().documents().selectKeepCurrent(&m_test->camera(QLatin1String(camera)));
        m_test->settle();
    }
    void update() {
        m_test->eval(QStringLiteral("livecontrol_obj.update(), 1"));
        m_test->settle();
    }

    void setUp() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_test->clearLogs();
    }

    void tearDown() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }
};
