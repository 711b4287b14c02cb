// The trigger mode of the selected cameras and its parameters. The arithmetic between frames and percent
// lives on the page; here stands one rule only: a recording count below 1 switches the count off.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"
#include "livecontrol/live/TriggerNames.h"

#include <algorithm>
#include <limits>

namespace {

QString modeName(int mode) { return QString::fromLatin1(trigger::nameOf(mode)); }

/// How pages call a mode: its name in upper case with underscores.
QString modeIdentifier(int mode) {
    return modeName(mode).toUpper().replace(QLatin1Char(' '), QLatin1Char('_'));
}

/// A float as the page sent it: the digits that a double adds are none of its own.
QString shown(float value) {
    return QString::number(double(value), 'g', std::numeric_limits<float>::digits10);
}

} // namespace

QString JS_Mediator_LiveControl::getTriggerModeSettings() {
    return guarded(
        [&] {
            QList<int> modes;
            host()->getTriggerModeList(modes);
            QJsonArray rows;
            for (const int mode : qAsConst(modes)) {
                rows.append(
                    QJsonObject{{QStringLiteral("Value"), mode},
                                {QStringLiteral("Name"), host()->translate(modeName(mode), nullptr, 0)}});
            }
            return json::compact({
                {QStringLiteral("TriggerMode"), rows},
                {QStringLiteral("SelectValue"), host()->getTriggerMode()},
                {QStringLiteral("DifferentTriger"), host()->isTriggerModeDifferent()},
                {QStringLiteral("ExistSupportImageTrigger"), host()->existSupportImageTrigger()},
                {QStringLiteral("HWImageTriggerOn"), host()->isImageTriggerOn()},
            });
        },
        QString());
}

QString JS_Mediator_LiveControl::getTriggerParameterSettings() {
    return guarded(
        [&] {
            int afterFrames = 0;
            int randomFrames = 0;
            int randomTimesMax = 0;
            host()->getTriggerParameters(afterFrames, randomFrames, randomTimesMax);
            const int totalFrames = host()->getTotalFrames();
            const bool grouped =
                host()->getPrefBool(QStringLiteral("display/frameInsertDelimiter"), QVariant());
            QJsonArray identifiers;
            for (int mode = 0; mode < trigger::kModes; ++mode) {
                identifiers.append(QJsonObject{{QStringLiteral("Identifier"), modeIdentifier(mode)}});
            }
            return json::compact({
                {QStringLiteral("TotalFrames"), totalFrames},
                {QStringLiteral("TotalFramesLabel"),
                 formatCount(static_cast<uint>(std::max(0, totalFrames)), QString(), grouped)},
                {QStringLiteral("TrgAfterFrame"), afterFrames},
                {QStringLiteral("RandomFrames"), randomFrames},
                {QStringLiteral("RandomTimesMax"), randomTimesMax},
                {QStringLiteral("RandomFramesOffset"), host()->getRandomFramesOffset()},
                {QStringLiteral("RandomTimesEnable"), host()->isRandomTimesEnable()},
                {QStringLiteral("MaxRandomTrgCount"), host()->getMaxRandomTrgCount()},
                {QStringLiteral("MaxRandomEndlessTrgCount"), host()->getMaxRandomEndlessTrgCount()},
                {QStringLiteral("ExistSupportRandomTrgTimes"), host()->existSupportRandomTrgTimes()},
                {QStringLiteral("LockTriggerParam"), host()->getLockTriggerParam()},
                {QStringLiteral("TriggerMode"), identifiers},
            });
        },
        QString());
}

void JS_Mediator_LiveControl::setTriggerMode(int zelTrigerMode, int beforeFrames, int afterFrames,
                                             float beforePercent, int randomFrames, int randomCount) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setTriggerMode"),
                                      traceArgs({{"zelTrigerMode", zelTrigerMode},
                                                 {"beforeFrames", beforeFrames},
                                                 {"afterFrames", afterFrames},
                                                 {"beforePercent", shown(beforePercent)},
                                                 {"randomFrames", randomFrames},
                                                 {"randomCount", randomCount}}));
    guarded([&] {
        host()->setRandomTimesEnable(randomCount > 0);
        host()->setTriggerModeParameters(zelTrigerMode, beforeFrames, afterFrames, beforePercent,
                                         randomFrames, std::max(1, randomCount));
    });
}

void JS_Mediator_LiveControl::applyTriggerParameter(int lock, int zelTrigerMode, int beforeFrames,
                                                    int afterFrames, float beforePercent, int randomFrames,
                                                    int randomCount) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::applyTriggerParameter"),
                               traceArgs({{"lock", lock},
                                          {"zelTrigerMode", zelTrigerMode},
                                          {"beforeFrames", beforeFrames},
                                          {"afterFrames", afterFrames},
                                          {"beforePercent", shown(beforePercent)},
                                          {"randomFrames", randomFrames},
                                          {"randomCount", randomCount}}));
    guarded([&] {
        if (host()->isLowLight()) {
            return;
        }
        host()->setRandomTimesEnable(randomCount > 0);
        host()->applyTriggerParameter(lock, zelTrigerMode, beforeFrames, afterFrames, beforePercent,
                                      randomFrames, std::max(1, randomCount));
        m_livePlugin->tellTriggerParameterApplied();
    });
}

void JS_Mediator_LiveControl::setLockTriggerParam(int lock) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setLockTriggerParam"));
    guarded([&] { host()->setLockTriggerParam(lock); });
}

int JS_Mediator_LiveControl::getLockTriggerParam() {
    return guarded([&] { return host()->getLockTriggerParam(); }, 0);
}
