// Variable channels: entering and leaving their setting, storing and choosing them.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/HostRow.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

namespace {

constexpr int kVariableFunction = 14;
constexpr quint32 kDualSlopeShutter = 18;

/// The modes whose frame counts a user sets himself: "Manual Trg" and "Random Manual Trg".
bool hasOwnFrameCounts(const TriggerConfig& trigger) { return trigger.mode == 4 || trigger.mode == 7; }

bool hasVariableChannels(DOC_Interface* document) {
    return document && docAs<DOC_Settings>(document).isFunctionSupported(kVariableFunction, true);
}

} // namespace

QString JS_Mediator_LiveControl::getCurrentVariableInfo() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            const bool isSupported = hasVariableChannels(document);
            const unsigned channel = isSupported ? host()->getVariableChannel() : 0;
            QString text;
            QString dualSlope;
            if (channel != 0) {
                auto& settings = docAs<DOC_Settings>(document);
                VariableChannelInfo info;
                settings.getVariableChannelText(channel, text, nullptr, 0);
                settings.getVariableChannelInfo(channel, info);
                dualSlope =
                    info.shutterMode == kDualSlopeShutter ? QStringLiteral("true") : QStringLiteral("false");
            }
            return json::compact({{QStringLiteral("Supported"), isSupported},
                                  {QStringLiteral("ChannelInfo"), text},
                                  {QStringLiteral("DSShuterMode"), dualSlope}});
        },
        QString());
}

QString JS_Mediator_LiveControl::getVariableInfo(int channelNo) {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            QString text;
            bool isRegistered = false;
            if (channelNo >= 1 && hasVariableChannels(document)) {
                docAs<DOC_Settings>(document).getVariableChannelText(static_cast<unsigned>(channelNo), text,
                                                                     &isRegistered, 0);
            }
            return json::compact(
                {{QStringLiteral("Registered"), isRegistered}, {QStringLiteral("ChannelInfo"), text}});
        },
        QString());
}

void JS_Mediator_LiveControl::setVariableChannel(ulong channel) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setVariableChannel"));
    guarded([&] { host()->setVariableChannel(static_cast<unsigned>(channel)); });
}

void JS_Mediator_LiveControl::eraseVariableChannel(ulong channel) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::eraseVariableChannel"));
    guarded([&] { host()->eraseVariableChannel(static_cast<unsigned>(channel)); });
}

bool JS_Mediator_LiveControl::prepareVariableSetting() {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_LiveControl::prepareVariableSetting"));
    return guarded(
        [&] {
            const LiveSuspendGuard suspended(host(), false, true);
            m_livePlugin->setSelectArea(QRect());
            host()->setVariableSetting(true);
            holdImageForArea(host());
            m_variableBackup = variableBackup();
            host()->beginVariableSetting();
            m_livePlugin->setVariableAreaLocked(true); // the page starts with a preset size
            return true;
        },
        false);
}

VariableBackup JS_Mediator_LiveControl::variableBackup() {
    VariableBackup backup;
    unsigned width = 0;
    unsigned height = 0;
    backup.channel = host()->getVariableChannel();
    backup.recordRate = static_cast<quint32>(host()->getRecordRate());
    host()->getResolution(width, height);
    backup.width = width;
    backup.height = height;
    backup.shutter = static_cast<quint32>(host()->getShutterSpeed(kRawShutterUnit));
    host()->getTriggerConfig(backup.trigger);
    return backup;
}

std::optional<TriggerConfig> JS_Mediator_LiveControl::changedTrigger() {
    if (!hasOwnFrameCounts(m_variableBackup.trigger)) {
        return std::nullopt;
    }
    TriggerConfig now;
    host()->getTriggerConfig(now);
    const bool isSame = host()->isSameTriggerConfig(m_variableBackup.trigger, now);
    return isSame ? std::nullopt : std::make_optional(now);
}

void JS_Mediator_LiveControl::cancelVariableSetting() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::cancelVariableSetting"));
    guarded([&] {
        const LiveSuspendGuard suspended(host(), false, true);
        host()->restoreVariableSetting(m_variableBackup);
        if (const auto now = changedTrigger()) {
            host()->setTriggerModeSimple(now->mode, now->afterFrames, now->randomFrames, now->randomCount);
        }
    });
}

void JS_Mediator_LiveControl::finalizeVariableSetting() {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_LiveControl::finalizeVariableSetting"));
    guarded([&] {
        const LiveSuspendGuard suspended(host(), false, true);
        host()->setVariableSetting(false);
        releaseImageOfArea(host());
        m_livePlugin->setVariableAreaLocked(false);
        if (const auto now = changedTrigger()) {
            host()->applyTriggerParameter(now->lock, now->mode, now->beforeFrames, now->afterFrames,
                                          now->beforePercent, now->randomFrames, now->randomCount);
        }
    });
}

void JS_Mediator_LiveControl::setVariableChannelInfo(ulong channel, int framerateIndex, ulong width,
                                                     ulong height, ulong posX, ulong posY,
                                                     bool applySameCameras) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setVariableChannelInfo"),
                                      traceArgs({{"channel", qulonglong(channel)},
                                                 {"framerateIndex", framerateIndex},
                                                 {"width", qulonglong(width)},
                                                 {"height", qulonglong(height)},
                                                 {"posX", qulonglong(posX)},
                                                 {"posY", qulonglong(posY)},
                                                 {"applySameCameras", applySameCameras}}));
    m_variableChannelStored = false;
    guarded([&] {
        DOC_Interface* const document = host()->currentDocument();
        QList<unsigned long> rates;
        host()->getVariableRateList(rates);
        const unsigned long* const rate = rowOf(rates, framerateIndex, "setVariableChannelInfo");
        if (!document) {
            return; // the page goes with its camera
        }
        if (!rate) {
            alert(translate(QStringLiteral("The camera no longer offers this frame rate. Choose it again.")));
            return;
        }
        storeVariableChannel(static_cast<unsigned>(channel), channelOfSelectArea(document, *rate),
                             applySameCameras);
    });
}

/// Size and position are those of the rectangle on the image, which the page has kept up to date.
VariableChannelInfo JS_Mediator_LiveControl::channelOfSelectArea(DOC_Interface* document,
                                                                 unsigned long rate) {
    const QRect area = m_livePlugin->getSelectArea();
    const QPoint position = docAs<DOC_Geometry>(document).mapOriginalToCamera(area.topLeft());
    VariableChannelInfo info; // the words that are not the page's stay clear
    info.rate = static_cast<quint32>(rate);
    info.width = static_cast<quint32>(area.width());
    info.height = static_cast<quint32>(area.height());
    info.posX = static_cast<quint32>(position.x());
    info.posY = static_cast<quint32>(position.y());
    return info;
}

void JS_Mediator_LiveControl::storeVariableChannel(unsigned channel, const VariableChannelInfo& content,
                                                   bool applySameCameras) {
    QList<DOC_Interface*> documents;
    host()->listVariableTargets(documents, applySameCameras);
    host()->setVariableChannelInfoOf(documents, channel, content);
    host()->setVariableChannelOf(documents, channel);
    m_variableChannelStored = true;
    if (const auto now = changedTrigger()) {
        host()->applyTriggerParameterOf(documents, now->lock, now->mode, now->beforeFrames, now->afterFrames,
                                        now->beforePercent, now->randomFrames, now->randomCount);
    }
    if (documents.size() < 2) {
        return;
    }
    QStringList lines{
        translate(QStringLiteral("The bulk configuration to the following devices has been completed."))};
    for (DOC_Interface* const document : qAsConst(documents)) {
        lines.append(docAs<DOC_Settings>(document).getCameraName(false));
    }
    info(lines.join(QStringLiteral("\n\t")));
}

void JS_Mediator_LiveControl::changeVariableResolutionInputType(bool isPreset) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_LiveControl::changeVariableResolutionInputType"),
        traceArgs({{"isPreset", isPreset}}));
    guarded([&] {
        if (!isPreset) {
            host()->setActiveTool(QString()); // the mouse is to be free for the rectangle
        }
        m_livePlugin->setVariableAreaLocked(isPreset);
    });
}

void JS_Mediator_LiveControl::updateVariableLimit(bool opticalCenter, const QVariantMap& restriction) {
    guarded([&] {
        const auto size = [&restriction](const char* width, const char* height) {
            return QSize(restriction.value(QLatin1String(width)).toInt(),
                         restriction.value(QLatin1String(height)).toInt());
        };
        const QSize posStep = size("PosXStep", "PosYStep");
        m_livePlugin->setAreaConstraints(
            QPoint(posStep.width(), posStep.height()), size("WidthStep", "HeightStep"),
            size("WidthMax", "HeightMax"), size("WidthMin", "HeightMin"),
            opticalCenter || !restriction.value(QStringLiteral("PosXFree")).toBool(),
            opticalCenter || !restriction.value(QStringLiteral("PosYFree")).toBool());
    });
}
