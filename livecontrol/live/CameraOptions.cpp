// The small options of the cameras: live speed, low light, fan, shading, lamps, the phase of the links.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/HostRow.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

#include <QScopeGuard>

namespace {

constexpr int kShadingCalibration = 2;
const QString kCalibrateWithShutter = QStringLiteral("shading/autocalib");

} // namespace

QString JS_Mediator_LiveControl::getLiveImageQualitySettings() {
    return guarded(
        [&] {
            return json::compact({{QStringLiteral("reduceMode"), host()->getLiveImageDataReduceMode()},
                                  {QStringLiteral("supported"), host()->existLiveImageQuality()}});
        },
        QString());
}

void JS_Mediator_LiveControl::setLiveImageDataReduceMode(bool on) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_LiveControl::setLiveImageDataReduceMode"), traceArgs({{"on", on}}));
    guarded([&] { host()->setLiveImageDataReduceMode(on); });
}

QString JS_Mediator_LiveControl::getLowLightSettings() {
    return guarded(
        [&] {
            return json::compact(
                {{QStringLiteral("LowLightMode"), host()->isLowLight()},
                 {QStringLiteral("LowLightType"), host()->getLowLightType()},
                 {QStringLiteral("VariableChannel"), static_cast<int>(host()->getVariableChannel())},
                 {QStringLiteral("SupportedLowlight"), host()->existLowLight()}});
        },
        QString());
}

void JS_Mediator_LiveControl::setLowLightMode(bool mode) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setLowLightMode"),
                                      traceArgs({{"mode", mode}}));
    guarded([&] { host()->setLowLightMode(mode); });
}

void JS_Mediator_LiveControl::setLowLightType(int type) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setLowLightType"),
                                      traceArgs({{"type", type}}));
    guarded([&] { host()->setLowLightType(type); });
}

void JS_Mediator_LiveControl::setLowlightShutterSpeed(ulong selectValue, bool slide) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setLowlightShutterSpeed"),
                               traceArgs({{"selectValue", qulonglong(selectValue)}, {"slide", slide}}));
    guarded([&] {
        // The host is not to calibrate at each step of a slide; the user's wish comes back whatever happens,
        // before a failure is shown.
        const bool calibrates = host()->getPrefBool(kCalibrateWithShutter, QVariant());
        const auto restore =
            qScopeGuard([&] { guarded([&] { host()->setPrefBool(kCalibrateWithShutter, calibrates); }); });
        if (slide) {
            host()->setPrefBool(kCalibrateWithShutter, false);
        }
        QList<unsigned long> list;
        host()->getShutterSpeedList(kRawShutterUnit, list);
        if (const unsigned long* const speed = rowOf(list, selectValue, "setLowlightShutterSpeed")) {
            host()->setShutterSpeed(*speed, !slide);
            host()->applyLowLightShutter();
        }
    });
}

QString JS_Mediator_LiveControl::getFanControlSettings() {
    return guarded(
        [&] {
            int state = 0;
            const bool value = host()->getFanControl(state);
            return json::compact({{QStringLiteral("SupportedFanControl"), host()->existFanControl()},
                                  {QStringLiteral("LowLightMode"), host()->isLowLight()},
                                  {QStringLiteral("Value"), value},
                                  {QStringLiteral("State"), state}});
        },
        QString());
}

void JS_Mediator_LiveControl::setFanControl(bool value) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setFanControl"),
                                      traceArgs({{"value", value}}));
    guarded([&] { host()->setFanControl(value); });
}

void JS_Mediator_LiveControl::setShadingOn() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setShadingOn"));
    guarded([&] {
        QList<DOC_Interface*> documents;
        host()->runCalibration(documents, kShadingCalibration, 0);
    });
}

bool JS_Mediator_LiveControl::isSupportedShadingOn() {
    return guarded(
        [&] {
            bool supported = false;
            host()->isCalibrationSupported(kShadingCalibration, 0, supported);
            return supported;
        },
        false);
}

ulong JS_Mediator_LiveControl::existSupportedLedLaserControl() {
    return guarded([&] { return host()->existHeadLedLaser(); }, 0UL);
}

void JS_Mediator_LiveControl::setHeadLedLaser(bool isLed, ulong status) {
    guarded([&] { host()->setHeadLedLaser(isLed, status); });
}

bool JS_Mediator_LiveControl::getHeadLedLaser(bool isLed) {
    return guarded([&] { return host()->getHeadLedLaser(isLed); }, false);
}

bool JS_Mediator_LiveControl::isSupportedPhaseAdjust() {
    return guarded(
        [&] {
            QList<DOC_Interface*> documents;
            host()->getPhaseAdjustTargets(documents);
            return !documents.isEmpty();
        },
        false);
}

void JS_Mediator_LiveControl::execPhaseAdjust() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::execPhaseAdjust"));
    guarded([&] { host()->execPhaseAdjust(); });
}

void JS_Mediator_LiveControl::editCustom() {
    guarded([&] {
        if (m_livePlugin && m_livePlugin->isCustomInfoWanted() &&
            !host()->listCameraKeys(false, false).isEmpty() && host()->isCustomInfoAvailable()) {
            JS_Mediator_DeviceControl::editCustom();
        }
    });
}
