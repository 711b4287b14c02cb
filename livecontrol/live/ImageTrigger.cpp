// The hardware image trigger of the selected cameras: the setting mode, what the page shows, and what goes to
// the cameras. The histogram of the page is shared with auto exposure.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/DocumentCast.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/BrightnessSettings.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

namespace {

const QString kShowHistogram = QStringLiteral("imagetrigger/showhistogram");

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
            takeAreaLimits(limits);
            if (m_livePlugin->isSelectAreaNull()) {
                takeArea(brightness::areaOf(current), limits, document);
            }
            const QRect area = selectAreaInUserview(document);
            const brightness::Levels levels = brightness::levelsOnPage(current.value, current.range, limits,
                                                                       brightness::pageMaximum(host()));
            if (docAs<DOC_Geometry>(document).isAxisSwapped()) {
                brightness::swapAxes(limits);
            }
            if (m_imageTriggerOn) {
                host()->startImageTriggerObserver();
            }
            m_livePlugin->setHistogramBitDepth(brightness::pageBitDepth(host()));
            m_livePlugin->setHistogramVisible(m_showHistogram);
            return json::compact({
                {QStringLiteral("HWImageTriggerOn"), m_imageTriggerOn},
                {QStringLiteral("HWImageTriggerArea"), brightness::sizeText(area, limits)},
                {QStringLiteral("HWImageTriggerPos"), brightness::positionText(area, limits)},
                {QStringLiteral("HWImageTriggerValue"), brightness::valueText(levels)},
                {QStringLiteral("HWImageTriggerRange"), brightness::rangeText(levels)},
                {QStringLiteral("HWImageTriggerStatus"), triggerStatus(host(), m_imageTriggerOn)},
                {QStringLiteral("ShowHistgram"), m_showHistogram},
            });
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
    const QJsonObject wish = QJsonDocument::fromJson(hwImageTrgJSON.toUtf8()).object();
    if (wish.isEmpty()) {
        return;
    }
    const auto read = [this](ImageTriggerLimits& limits) {
        ImageTriggerInfo info;
        host()->getImageTriggerInfo(info, limits);
        return AutoExposureInfo{info.width, info.height, info.posX, info.posY, info.value, info.range, 0};
    };
    sendArea(read, [&](DOC_Interface* document, const AutoExposureInfo& /*atCamera*/,
                       const ImageTriggerLimits& limits) {
        const QRect area = m_livePlugin->getSelectArea();
        const QPoint corner = docAs<DOC_Geometry>(document).mapOriginalToCamera(area.topLeft());
        ImageTriggerInfo info;
        brightness::putArea(info, QRect(corner, area.size()));
        info.value = brightness::levelFrom(wish, QStringLiteral("HWImageTriggerValue"));
        info.range = brightness::levelFrom(wish, QStringLiteral("HWImageTriggerRange"));
        brightness::scaleToCamera(info, limits, brightness::pageMaximum(host()));
        host()->setImageTriggerOn(wish.value(QStringLiteral("HWImageTriggerOn")).toBool());
        host()->setImageTriggerInfo(info);
        host()->setPref(kShowHistogram, wish.value(QStringLiteral("ShowHistgram")).toBool());
    });
}

void JS_Mediator_LiveControl::hWImageTriggerStart() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::hWImageTriggerStart"));
    guarded([&] {
        if (host()->isHwTriggerSetting()) {
            return;
        }
        const LiveSuspendGuard guard(host(), false, true);
        host()->setHwTriggerSetting(true);
        host()->setActiveTool(QString());
        holdImageForArea(host());
        m_showHistogram = host()->getPrefBool(kShowHistogram, false);
        m_imageTriggerOn = host()->isImageTriggerOn();
        beginAreaEdit();
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

void JS_Mediator_LiveControl::setHistgramVisible(bool isShow) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setHistgramVisible"),
                               traceArgs({{"isShow", isShow}}));
    m_showHistogram = isShow;
    m_livePlugin->setHistogramVisible(isShow);
}
