#pragma once

#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/TestRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <memory>

inline const QString kUpdateAll = QStringLiteral("HostApplication.updateAll");
inline const QString kHandleError = QStringLiteral("HostApplication.handleError");

inline QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

/// Plug-in and live mediator over the fake host. A test class of the slots derives from it and calls its two
/// ends.
class LiveSlotsTest {
protected:
    LiveSlotsTest() = default;
    ~LiveSlotsTest() = default;

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<PLG_livecontrol> m_plugin;
    std::unique_ptr<JS_Mediator_LiveControl> m_live;

    int count(const char* operation) { return m_rig->host.calls.count(QLatin1String(operation)); }
    QVariantList lastArgs(const QString& name) { return m_rig->host.calls.lastArgs(name); }
    void setUp() {
        m_rig = std::make_unique<TestRig>();
        m_plugin = std::make_unique<PLG_livecontrol>();
        m_plugin->init(&m_rig->host);
        m_live = std::make_unique<JS_Mediator_LiveControl>(&m_rig->host, m_plugin.get());
        m_rig->host.calls.clear();
    }
    void tearDown() {
        m_live.reset();
        m_plugin.reset();
        m_rig.reset();
    }
};
