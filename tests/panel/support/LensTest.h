#pragma once

#include "simulator/device/SimulatedBody.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/host/ViewerHost.h"

#include <QJsonArray>
#include <QtTest>

inline const QString kBlock = QStringLiteral("#livecontrol_lens_setting");
inline const QString kTitle = QStringLiteral("#livecontrol_lens_setting > .switch-expand");
inline const QString kReset = QStringLiteral("#livecontrol_Lens_Reset");
inline const QString kAutofocus = QStringLiteral("#livecontrol_Focus_AutoFocus");
inline const QString kClose = QStringLiteral("#livecontrol_Lens_Close");

inline QString in(const char* axis, const char* part) {
    return QStringLiteral("#livecontrol_%1 %2").arg(QLatin1String(axis), QLatin1String(part));
}

/// The lens block of a camera of each kind. A test class of the lens derives from it and calls its two ends.
class LensTest {
protected:
    std::unique_ptr<PanelTest> m_test;

    SimulatedHead& head(const char* camera) { return m_test->head(QLatin1String(camera)); }
    static int at(SimulatedHead& head, LensAxis axis) { return head.lens().axis(axis).value; }
    bool isTrue(const QString& script) { return m_test->eval(script).toBool(); }
    bool isShown(const QString& selector) {
        return isTrue(QStringLiteral("$('%1').is(':visible')").arg(selector));
    }
    bool isEnabled(const char* axis) {
        return isTrue(QStringLiteral("!$('%1').prop('disabled') && !$('%2').slider('option', 'disabled')")
                          .arg(in(axis, ".label-start"), in(axis, ".slider")));
    }
    QString shown(const char* axis) {
        return m_test->text(QStringLiteral("$('%1').val()").arg(in(axis, ".spinner")));
    }
    bool waitForShown(const char* axis, const QString& text) {
        return m_test->waitFor(QStringLiteral("$('%1').val() === '%2'").arg(in(axis, ".spinner"), text));
    }
    /// The block of a camera, unfolded.
    void open(const char* camera) {
        m_test->selectOnly(QLatin1String(camera));
        m_test->settle();
        if (!isShown(QStringLiteral("#livecontrol_lens_body"))) {
            m_test->click(kTitle);
        }
    }
    void set(const char* camera, const char* name, const QJsonValue& value) {
        m_test->call("camera.set", {{QStringLiteral("key"), double(m_test->keyOf(QLatin1String(camera)))},
                                    {QStringLiteral("name"), QLatin1String(name)},
                                    {QStringLiteral("value"), value}});
        m_test->settle();
    }
    int count(const char* operation) {
        return m_test->calls().count(QStringLiteral("HostCameraControl.") + QLatin1String(operation));
    }

    void setUp() { m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/lenses.json")); }

    void tearDown() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }
};
