#pragma once

#include "livecontrol/interface/records.h"
#include "tests/support/TestRig.h"

#include <QFutureWatcher>
#include <QTemporaryDir>

/// A fake host with preferences and two cameras: two heads of one device under the keys 7 and 8, and a device
/// of its own under 9. The key 5 is no camera. A test class of the settings derives from it and calls
/// setUp().
class SettingsTest {
protected:
    SettingsTest() = default;
    ~SettingsTest() = default;

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<FakeCamera> m_other; // 9
    std::unique_ptr<FakeDevice> m_otherDevice;
    QTemporaryDir m_folder;
    QVariantMap m_prefs;
    QString m_failingPref; // can't be read
    QStringList m_saved;
    QStringList m_alerts;
    QStringList m_errors;

    static void setPresets(FakeCamera& camera, int selected, int count) {
        camera.onGetPresetInfo = [=](PresetInfo& info) { info = {selected, count}; };
    }
    QString path(const QString& name) const { return m_folder.path() + QLatin1Char('/') + name; }
    int count(const char* name) { return m_rig->host.calls.count(QLatin1String(name)); }

    void setUp() {
        m_rig = std::make_unique<TestRig>();
        m_other = std::make_unique<FakeCamera>(m_rig->host.calls);
        m_otherDevice = std::make_unique<FakeDevice>(m_rig->host.calls);
        m_prefs.clear();
        m_failingPref.clear();
        m_saved.clear();
        m_alerts.clear();
        m_errors.clear();
        setUpHost(m_rig->host);
        m_rig->camera.onGetCameraName = [](bool) { return QStringLiteral("Marlin"); };
        m_rig->camera.onGetIPAddress = [](bool) { return QStringLiteral("10.0.0.7"); };
        m_rig->camera.onGetDeviceName = [](bool) { return QStringLiteral("<b>M</b>"); };
        m_other->onGetDevice = [this] { return m_otherDevice.get(); };
        m_other->onIsConnected = [] { return true; };
        setPresets(m_rig->camera, 2, 3);
        setPresets(*m_other, 5, 2);
    }
    void tearDown() { m_rig.reset(); }

private:
    void setUpHost(FakeHost& host) {
        host.onGetPref = [this](const QString& name, const QVariant& value) {
            if (name == m_failingPref) {
                throw std::runtime_error("unreadable");
            }
            return m_prefs.value(name, value);
        };
        host.onSetPref = [this](const QString& name, const QVariant& value) { m_prefs[name] = value; };
        host.onListCameraKeys = [](bool, bool) { return QList<DOCKEY>{9, 7, 8, 5}; };
        host.onDocByKey = [this](DOCKEY key, bool) -> DOC_Interface* {
            return key == 9 ? m_other.get() : key == 7 || key == 8 ? &m_rig->camera : nullptr;
        };
        host.onGetSelectedKeys = [](bool) { return QList<DOCKEY>{7}; };
        host.onGetSelectedCameraKeys = [](int) { return QList<DOCKEY>{7}; };
        host.onIsRestartNeeded = [] { return true; };
        host.onSaveCameraSettings = [this](const QString& path, int) { m_saved.append(path); };
        host.onRunWithProgress = [](const QString&, QFutureWatcher<void>& watcher) {
            watcher.waitForFinished();
        };
        host.onAlert = [this](const QString& text, QWidget*) { m_alerts.append(text); };
        host.onHandleError = [this](std::exception& error) {
            m_errors.append(QString::fromUtf8(error.what()));
        };
    }
};
