// The auto exposure of the selected cameras: the setting mode, what the page shows, and what goes to the
// cameras.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/BrightnessSettings.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

#include <algorithm>

namespace {

/// Function code of a camera whose target and range share an upper limit.
constexpr int kUpperLimitFunction = 145;
const brightness::Page kPage{QStringLiteral("AutoExposure"), QStringLiteral("autoexposure/showhistogram")};

/// Whether target and range of the current document together have a limit.
bool hasUpperLimit(HostObject* host) {
    DOC_Interface* const document = host->currentDocument();
    return document && docAs<DOC_Settings>(document).isFunctionSupported(kUpperLimitFunction, true);
}

/// That limit on the page's scale.
int upperLimit(HostObject* host) {
    const int bits = qBound(1, host->getBitDepth(), 30);
    DOC_Interface* const document = host->currentDocument();
    const int limit = document ? docAs<DOC_Settings>(document).getAutoExposureUpperLimit() : 1 << bits;
    return limit >> std::max(0, bits - brightness::pageBitDepth(host));
}

QJsonObject maxTimeText(HostObject* host, DOC_Interface* document, quint32 maxTime) {
    const int unit = host->getPrefInt(QStringLiteral("display/ShutterSpeed"), 1);
    QList<unsigned long> raw;
    QList<unsigned long> shown;
    host->getAutoExposureMaxTimeList(kRawShutterUnit, raw);
    host->getAutoExposureMaxTimeList(unit, shown);
    int selected = -1;
    QJsonArray rows;
    for (int i = 0; i < std::min(raw.size(), shown.size()); ++i) {
        if (raw.at(i) == maxTime) {
            selected = i;
        }
        rows.append(QJsonObject{{QStringLiteral("Value"), json::text(i)},
                                {QStringLiteral("Text"), document->formatShutterSpeed(shown.at(i), 0)}});
    }
    return {{QStringLiteral("SelectValue"), selected}, {QStringLiteral("AutoExposureMaxTimes"), rows}};
}

} // namespace

QString JS_Mediator_LiveControl::getAutoExposureSettings() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            if (!document) {
                return QString();
            }
            AutoExposureInfo current;
            AutoExposureLimits limits;
            host()->getAutoExposureInfo(current, limits);
            std::optional<quint32> upper;
            if (hasUpperLimit(host())) {
                upper = static_cast<quint32>(upperLimit(host()));
            }
            QJsonObject text = brightnessText(kPage, current, limits, document, upper);
            text[QStringLiteral("AutoExposureOn")] = m_autoExposureOn;
            text[QStringLiteral("AutoExposureMaxTime")] = maxTimeText(host(), document, current.maxTime);
            return json::compact(text);
        },
        QString());
}

void JS_Mediator_LiveControl::setAutoExposureSwitch(bool flag) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setAutoExposureSwitch"),
                               traceArgs({{"flag", flag}}));
    m_autoExposureOn = flag;
}

void JS_Mediator_LiveControl::setAutoExposure(const QString& autoExposureJSON) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setAutoExposure"),
                                      traceArgs({{"autoExposureJSON", autoExposureJSON}}));
    const auto read = [this](AutoExposureLimits& limits) {
        AutoExposureInfo info;
        host()->getAutoExposureInfo(info, limits);
        return info;
    };
    const auto send = [this](AutoExposureInfo info, const QJsonObject& wish,
                             const AutoExposureInfo& atCamera) {
        QList<unsigned long> times;
        host()->getAutoExposureMaxTimeList(kRawShutterUnit, times);
        const int row = wish.value(QStringLiteral("AutoExposureMaxTime")).toInt(-1);
        // A camera without a list keeps its time.
        info.maxTime =
            row >= 0 && row < times.size() ? static_cast<quint32>(times.at(row)) : atCamera.maxTime;
        host()->setAutoExposureOn(wish.value(QStringLiteral("AutoExposureOn")).toBool());
        host()->setAutoExposureInfo(info);
    };
    sendBrightness(kPage, autoExposureJSON, read, send);
}

void JS_Mediator_LiveControl::autoExposureStart() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::autoExposureStart"));
    guarded([&] {
        if (host()->isAutoExposureSetting()) {
            return;
        }
        const LiveSuspendGuard guard(host(), false, true);
        host()->setAutoExposureSetting(true);
        enterBrightnessPage(kPage);
        m_autoExposureOn = host()->isAutoExposureOn();
    });
}

void JS_Mediator_LiveControl::autoExposureEnd() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::autoExposureEnd"));
    guarded([&] {
        const LiveSuspendGuard guard(host(), false, true);
        releaseImageOfArea(host());
        host()->setAutoExposureSetting(false);
        m_livePlugin->clearWidget();
    });
}

bool JS_Mediator_LiveControl::hasAutoExposureUpperLimit() {
    return guarded([&] { return hasUpperLimit(host()); }, false);
}

int JS_Mediator_LiveControl::getAutoExposureUpperLimit() {
    return guarded([&] { return upperLimit(host()); }, 0);
}
