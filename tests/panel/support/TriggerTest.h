#pragma once

#include "simulator/device/SimulatedBody.h"
#include "simulator/device/SimulatedHead.h"
#include "tests/support/PanelTest.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/RecordingControl.h"
#include "viewer/app/Viewer.h"
#include "viewer/documents/CameraDocument.h"

#include <QJsonArray>
#include <QtTest>

inline const QString kTrigger = QStringLiteral("#livecontrol_trigger");
inline const QString kBlock = QStringLiteral("#livecontrol_trigger_param");
inline const QString kHandle = QStringLiteral("#livecontrol_trig_slider .ui-slider-handle");
inline const QString kBeforeFrame = QStringLiteral("#livecontrol_manu_trig_before_frame");
inline const QString kAfterFrame = QStringLiteral("#livecontrol_manu_trig_after_frame");
inline const QString kBeforePer = QStringLiteral("#livecontrol_manu_trig_before_per");
inline const QString kAfterPer = QStringLiteral("#livecontrol_manu_trig_after_per");
inline const QString kFrames = QStringLiteral("#livecontrol_random_frames");
inline const QString kTimesBox = QStringLiteral("#livecontrol_random_times_enable");
inline const QString kTimes = QStringLiteral("#livecontrol_random_times_max");
inline const QString kApply = QStringLiteral("HostCameraControl.applyTriggerParameter");
inline const QString kUpdate = QStringLiteral("HostApplication.updateAll");
constexpr int kTotal = 3276; // of 1280 x 1024

/// A camera in the panel whose trigger is set. A test class of the trigger derives from it and calls its two
/// ends.
class TriggerTest {
protected:
    std::unique_ptr<PanelTest> m_test;
    const QString m_mono = QStringLiteral("Marlin");
    const QString m_color = QStringLiteral("Plover");

    const HeadSettings& now() { return m_test->head(m_mono).settings(); }

    void setMode(int mode) {
        m_test->eval(QStringLiteral("livecontrol.setTriggerMode(%1, 0, 0, 0, 0, 0), 1").arg(mode));
        m_test->settle();
        m_test->clearLogs();
    }

    double field(const QString& selector) {
        return m_test->text(QStringLiteral("$('%1').val()").arg(selector)).toDouble();
    }

    bool isShown(const QString& selector) {
        return m_test->eval(QStringLiteral("$('%1').is(':visible')").arg(selector)).toBool();
    }

    bool isDisabled(const QString& selector) {
        return m_test->eval(QStringLiteral("$('%1').prop('disabled')").arg(selector)).toBool();
    }

    /// Replaces what stands in a field and leaves it.
    void enter(const QString& selector, const QString& text) {
        m_test->key(selector, QStringLiteral("Ctrl+A"));
        m_test->key(QString(), QStringLiteral("Delete"));
        m_test->type(QString(), text);
        m_test->key(QString(), QStringLiteral("Tab"));
    }

    void spin(const QString& selector, const char* direction) {
        m_test->click(
            QStringLiteral(".zel-spinner:has(%1) .zel-spinner-%2").arg(selector, QLatin1String(direction)));
    }

    /// The arguments of the last call that set the parameters; fails unless there was one, without an update.
    QJsonArray applied() {
        const QJsonArray calls = m_test->call("host.calls", {{QStringLiteral("clear"), true}}).toArray();
        QJsonArray args;
        int count = 0;
        int updates = 0;
        for (const QJsonValue call : calls) {
            const QString name = call.toObject()[QStringLiteral("name")].toString();
            if (name == kApply) {
                args = call.toObject()[QStringLiteral("args")].toArray();
                ++count;
            }
            updates += name == kUpdate ? 1 : 0;
        }
        return count == 1 && updates == 0 ? args : QJsonArray{count, updates, QStringLiteral("calls")};
    }

    void setUp() {
        m_test = std::make_unique<PanelTest>(QStringLiteral(RIGS_FOLDER "/default.json"));
        m_test->selectOnly(m_mono);
    }

    void tearDown() {
        const QJsonArray errors = m_test->call("page.errors").toArray();
        m_test.reset();
        QVERIFY2(errors.isEmpty(), qPrintable(errors.at(0).toString()));
    }
};
