#pragma once

#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/plugin/PLG_livecontrol.h"
#include "tests/support/TestRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <memory>

inline const QString kHandleError = QStringLiteral("HostApplication.handleError");

inline QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

inline QString operation(const char* name) {
    return QStringLiteral("HostCameraControl.") + QLatin1String(name);
}

inline QStringList column(const QJsonObject& object, const char* list, const char* key) {
    QStringList texts;
    for (const QJsonValue row : object[QLatin1String(list)].toArray()) {
        texts.append(row.toObject()[QLatin1String(key)].toString());
    }
    return texts;
}

/// A sensor of 800 x 600 with steps of 100 and 50, whose rate is 1000000 / (columns + 2 rows).
inline unsigned long maxRate(unsigned width, unsigned height) {
    return width == 0 || height == 0 ? 0 : 1000000UL / (width + 2UL * height);
}

/// Largest value on the grid, from `min` to `max`, that fits; 0 if none does.
template <class Fits>
unsigned largest(unsigned min, unsigned max, unsigned step, Fits fits) {
    for (unsigned value = max; value >= min; value -= step) {
        if (fits(value)) {
            return value;
        }
    }
    return 0;
}

/// Tells the limits of the rectangle that it was given.
struct OpenPlugin : PLG_livecontrol {
    void setAreaConstraints(const QPoint& posStep, const QSize& sizeStep, const QSize& maxSize,
                            const QSize& minSize, bool centerX, bool centerY) override {
        PLG_livecontrol::setAreaConstraints(posStep, sizeStep, maxSize, minSize, centerX, centerY);
        steps = {posStep.x(), posStep.y(), sizeStep.width(), sizeStep.height()};
        sizes = {maxSize, minSize};
        isCenteredX = centerX;
        isCenteredY = centerY;
    }

    QList<int> steps;
    QList<QSize> sizes;
    bool isCenteredX = false;
    bool isCenteredY = false;
};

/// The live mediator over a camera with the sensor above. A test class derives from it and calls its two
/// ends.
class VariableTest {
protected:
    void setUp() {
        m_rig = std::make_unique<TestRig>();
        fillHost();
        m_plugin = std::make_unique<OpenPlugin>();
        m_plugin->init(&m_rig->host);
        m_live = static_cast<JS_Mediator_LiveControl*>(m_plugin->getMediator());
        m_rig->host.calls.clear();
    }
    void tearDown() {
        m_plugin.reset();
        m_rig.reset();
    }

    std::unique_ptr<TestRig> m_rig;
    std::unique_ptr<OpenPlugin> m_plugin;
    JS_Mediator_LiveControl* m_live = nullptr; // the plug-in's
    VariableRestriction m_limits;
    QList<unsigned long> m_rates;
    QSet<unsigned> m_refused; // rates that the camera refuses at every size
    TriggerConfig m_trigger;

    int count(const char* name) { return m_rig->host.calls.count(operation(name)); }
    QStringList calls() {
        QStringList names = m_rig->host.calls.names();
        for (QString& name : names) {
            name = name.section(QLatin1Char('.'), 1);
        }
        return names;
    }

    void fillHost() {
        FakeHost& host = m_rig->host;
        m_limits.widthStep = m_limits.widthMin = 100;
        m_limits.heightStep = m_limits.heightMin = 50;
        m_limits.posXStep = 4;
        m_limits.posYStep = 2;
        m_limits.posXFree = true;
        m_limits.widthMax = m_limits.widthFrameMax = 800;
        m_limits.heightMax = m_limits.heightFrameMax = 600;
        m_rates = {500, 1000, 2000, 4000};
        m_refused.clear();
        m_trigger = TriggerConfig();
        host.onGetVariableRestriction = [this](VariableRestriction& limits) { limits = m_limits; };
        host.onGetVariableRateList = [this](QList<unsigned long>& list) { list = m_rates; };
        host.onGetVariableMaxRate = [](unsigned width, unsigned height) { return maxRate(width, height); };
        host.onGetVariableMaxHeight = [](unsigned long rate, unsigned width) {
            return width % 100 != 0
                       ? 0U
                       : largest(50, 600, 50, [=](unsigned h) { return maxRate(width, h) >= rate; });
        };
        host.onGetVariableMaxWidth = [](unsigned long rate, unsigned height) {
            return largest(100, 800, 100, [=](unsigned w) { return maxRate(w, height) >= rate; });
        };
        host.onGetResolutionList = [](QList<ResolutionEntry>& list) {
            list = {{800, 600}, {400, 300}, {100, 50}};
        };
        host.onGetTriggerConfig = [this](TriggerConfig& config) { config = m_trigger; };
        host.onIsSameTriggerConfig = [](const TriggerConfig& a, const TriggerConfig& b) {
            return a.mode == b.mode && a.afterFrames == b.afterFrames;
        };
        host.onListVariableTargets = [this](QList<DOC_Interface*>& list, bool) { list = {&m_rig->camera}; };
        m_rig->camera.onIsFunctionSupported = [](int code, bool) { return code == 14; };
        m_rig->camera.onIsValidVariableSize = [this](unsigned rate, unsigned width, unsigned height) {
            return !m_refused.contains(rate) && width % 100 == 0 && height % 50 == 0 &&
                   maxRate(width, height) >= rate;
        };
    }

    void enterWithTrigger(int mode, int afterFrames) {
        m_trigger.mode = mode;
        m_trigger.afterFrames = afterFrames;
        m_live->prepareVariableSetting();
        m_rig->host.calls.clear();
    }
};
