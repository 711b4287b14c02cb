// The auto exposure of the selected cameras: the setting mode, what the page shows, and what goes to the
// cameras.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/DocumentCast.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/BrightnessSettings.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

#include <algorithm>
#include <cmath>

namespace {

/// Function code of a camera whose target and range share an upper limit.
constexpr int kUpperLimitFunction = 145;
/// Unit of the maximum time list that gives the camera's own values.
constexpr int kRawTimeUnit = 1;

const QString kShowHistogram = QStringLiteral("autoexposure/showhistogram");

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
    host->getAutoExposureMaxTimeList(kRawTimeUnit, raw);
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
            auto& geometry = docAs<DOC_Geometry>(document);
            AutoExposureInfo current;
            AutoExposureLimits limits;
            host()->getAutoExposureInfo(current, limits);
            takeAreaLimits(limits);
            if (m_livePlugin->isSelectAreaNull()) {
                takeArea(brightness::areaOf(current), limits, document);
            }
            const QRect area = selectAreaInUserview(document);
            brightness::Levels levels = brightness::levelsOnPage(current.value, current.range, limits,
                                                                 brightness::pageMaximum(host()));
            if (geometry.isAxisSwapped()) {
                brightness::swapAxes(limits);
            }
            if (hasUpperLimit(host())) {
                levels.valueMax = levels.rangeMax = static_cast<quint32>(upperLimit(host()));
            }
            const QJsonObject maxTime = maxTimeText(host(), document, current.maxTime);
            m_livePlugin->setHistogramBitDepth(brightness::pageBitDepth(host()));
            m_livePlugin->setHistogramVisible(m_showHistogram);
            return json::compact({
                {QStringLiteral("AutoExposureOn"), m_autoExposureOn},
                {QStringLiteral("AutoExposureArea"), brightness::sizeText(area, limits)},
                {QStringLiteral("AutoExposurePos"), brightness::positionText(area, limits)},
                {QStringLiteral("AutoExposureValue"), brightness::valueText(levels)},
                {QStringLiteral("AutoExposureRange"), brightness::rangeText(levels)},
                {QStringLiteral("AutoExposureMaxTime"), maxTime},
                {QStringLiteral("ShowHistgram"), m_showHistogram},
            });
        },
        QString());
}

void JS_Mediator_LiveControl::takeAreaLimits(const AutoExposureLimits& limits) {
    const auto size = [](quint32 width, quint32 height) {
        return QSize(static_cast<int>(width), static_cast<int>(height));
    };
    m_livePlugin->setAreaConstraints(
        QPoint(static_cast<int>(limits.posXStep), static_cast<int>(limits.posYStep)),
        size(limits.widthStep, limits.heightStep), size(limits.widthMax, limits.heightMax),
        size(limits.widthMin, limits.heightMin), false, false);
}

void JS_Mediator_LiveControl::takeArea(const QRect& cameraArea, const AutoExposureLimits& limits,
                                       DOC_Interface* document) {
    if (!cameraArea.isEmpty()) {
        m_livePlugin->setSelectArea(
            brightness::originalArea(cameraArea, limits, docAs<DOC_Geometry>(document)));
    }
}

// The host tells of a camera that has cut the area as of a failure. So the camera is read back behind one
// too, and in a block of its own: the message box of the first lets events run, in which a document may go.
void JS_Mediator_LiveControl::sendArea(const AreaReader& read, const AreaSender& send) {
    DOC_Interface* document = nullptr;
    std::optional<AutoExposureInfo> before;
    bool isSent = false;
    guarded([&] {
        document = host()->currentDocument();
        if (!document) {
            return;
        }
        AutoExposureLimits limits;
        before = read(limits);
        send(document, *before, limits);
        isSent = true;
    });
    guarded([&] {
        if (!before || host()->currentDocument() != document) {
            return;
        }
        AutoExposureLimits limits;
        const AutoExposureInfo now = read(limits);
        if (isSent || !brightness::isSame(now, *before)) {
            takeArea(brightness::areaOf(now), limits, document);
        }
    });
}

void JS_Mediator_LiveControl::beginAreaEdit() {
    resetSelectArea();
    m_livePlugin->setVariableAreaLocked(false); // its page may have gone with its camera, not been left
    m_livePlugin->clearWidget();
}

void JS_Mediator_LiveControl::setAutoExposureSwitch(bool flag) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setAutoExposureSwitch"),
                               traceArgs({{"flag", flag}}));
    m_autoExposureOn = flag;
}

void JS_Mediator_LiveControl::setAutoExposure(const QString& autoExposureJSON) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setAutoExposure"),
                                      traceArgs({{"autoExposureJSON", autoExposureJSON}}));
    const QJsonObject wish = QJsonDocument::fromJson(autoExposureJSON.toUtf8()).object();
    if (wish.isEmpty()) {
        return;
    }
    const auto read = [this](AutoExposureLimits& limits) {
        AutoExposureInfo info;
        host()->getAutoExposureInfo(info, limits);
        return info;
    };
    sendArea(read, [&](DOC_Interface* document, const AutoExposureInfo& atCamera,
                       const AutoExposureLimits& limits) {
        const QRect area = m_livePlugin->getSelectArea();
        const QPoint corner = docAs<DOC_Geometry>(document).mapOriginalToCamera(area.topLeft());
        AutoExposureInfo info;
        brightness::putArea(info, QRect(corner, area.size()));
        info.value = brightness::levelFrom(wish, QStringLiteral("AutoExposureValue"));
        info.range = brightness::levelFrom(wish, QStringLiteral("AutoExposureRange"));
        brightness::scaleToCamera(info, limits, brightness::pageMaximum(host()));
        QList<unsigned long> times;
        host()->getAutoExposureMaxTimeList(kRawTimeUnit, times);
        const int row = wish.value(QStringLiteral("AutoExposureMaxTime")).toInt(-1);
        // A camera without a list keeps its time.
        info.maxTime =
            row >= 0 && row < times.size() ? static_cast<quint32>(times.at(row)) : atCamera.maxTime;
        host()->setAutoExposureOn(wish.value(QStringLiteral("AutoExposureOn")).toBool());
        host()->setAutoExposureInfo(info);
        host()->setPref(kShowHistogram, wish.value(QStringLiteral("ShowHistgram")).toBool());
    });
}

void JS_Mediator_LiveControl::autoExposureStart() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::autoExposureStart"));
    guarded([&] {
        if (host()->isAutoExposureSetting()) {
            return;
        }
        const LiveSuspendGuard guard(host(), false, true);
        host()->setAutoExposureSetting(true);
        host()->setActiveTool(QString());
        holdImageForArea(host());
        m_showHistogram = host()->getPrefBool(kShowHistogram, false);
        m_autoExposureOn = host()->isAutoExposureOn();
        beginAreaEdit();
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
