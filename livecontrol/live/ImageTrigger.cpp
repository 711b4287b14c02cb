// The hardware image trigger of the selected cameras: the setting mode, what the page shows, and what goes to
// the cameras.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/BrightnessSettings.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

namespace {

const brightness::Page kPage{QStringLiteral("HWImageTrigger"), QStringLiteral("imagetrigger/showhistogram")};

/// Values of getImageTriggerState().
constexpr int kNotTriggered = 0;
constexpr int kNotJudging = 2;

QString triggerStatus(HostObject* host, bool active) {
    const int state = active ? host->getImageTriggerState() : kNotJudging;
    if (state == kNotJudging) {
        return QStringLiteral("--");
    }
    return state == kNotTriggered ? QStringLiteral("No Trigger") : QStringLiteral("Triggered");
}

} // namespace

QString JS_Mediator_LiveControl::getHWImageTriggerSettings() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            if (!document) {
                return QString();
            }
            ImageTriggerInfo current;
            ImageTriggerLimits limits;
            host()->getImageTriggerInfo(current, limits);
            QJsonObject text = brightnessText(kPage, brightness::exposureOf(current), limits, document, {});
            if (m_imageTriggerOn) {
                host()->startImageTriggerObserver();
            }
            text[QStringLiteral("HWImageTriggerOn")] = m_imageTriggerOn;
            text[QStringLiteral("HWImageTriggerStatus")] = triggerStatus(host(), m_imageTriggerOn);
            return json::compact(text);
        },
        QString());
}

QString JS_Mediator_LiveControl::getHWImageTriggerStatus(bool active) {
    return guarded([&] { return triggerStatus(host(), active); }, QString());
}

void JS_Mediator_LiveControl::setImageTriggerObserver(bool active) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setImageTriggerObserver"),
                               traceArgs({{"active", active}}));
    guarded([&] {
        m_imageTriggerOn = active;
        if (active) {
            host()->startImageTriggerObserver();
        } else {
            host()->stopImageTriggerObserver();
        }
    });
}

void JS_Mediator_LiveControl::setHWImageTrigger(const QString& hwImageTrgJSON) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setHWImageTrigger"),
                                      traceArgs({{"hwImageTrgJSON", hwImageTrgJSON}}));
    const auto read = [this](ImageTriggerLimits& limits) {
        ImageTriggerInfo info;
        host()->getImageTriggerInfo(info, limits);
        return brightness::exposureOf(info);
    };
    const auto send = [this](const AutoExposureInfo& info, const QJsonObject& wish, const AutoExposureInfo&) {
        host()->setImageTriggerOn(wish.value(QStringLiteral("HWImageTriggerOn")).toBool());
        host()->setImageTriggerInfo(brightness::triggerOf(info));
    };
    sendBrightness(kPage, hwImageTrgJSON, read, send);
}

void JS_Mediator_LiveControl::hWImageTriggerStart() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::hWImageTriggerStart"));
    guarded([&] {
        if (host()->isHwTriggerSetting()) {
            return;
        }
        const LiveSuspendGuard guard(host(), false, true);
        host()->setHwTriggerSetting(true);
        enterBrightnessPage(kPage);
        m_imageTriggerOn = host()->isImageTriggerOn();
    });
}

void JS_Mediator_LiveControl::hWImageTriggerEnd() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::hWImageTriggerEnd"));
    guarded([&] {
        if (!host()->isHwTriggerSetting()) {
            return;
        }
        const LiveSuspendGuard guard(host(), false, true);
        host()->setHwTriggerSetting(false);
        releaseImageOfArea(host());
        host()->stopImageTriggerObserver();
        m_livePlugin->clearWidget();
    });
}
