// Frame rate, shutter speed, dual slope shutter and resolution of the selected cameras.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/HostRow.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

namespace {

constexpr unsigned kLastVariableChannel = 20;

/// A row of a list as a page's selection; -1 for none.
int selectValueOf(int row) { return row < 0 ? kNoSelectValue : row; }

bool isChannel(unsigned channel) { return channel >= 1 && channel <= kLastVariableChannel; }

QJsonObject resolutionRow(int value, const ResolutionEntry& entry) {
    return {{QStringLiteral("Value"), json::text(value)},
            {QStringLiteral("Width"), json::text(entry.width)},
            {QStringLiteral("Height"), json::text(entry.height)}};
}

QJsonObject rateRow(int value, const QString& rate) {
    return {{QStringLiteral("Value"), json::text(value)}, {QStringLiteral("Rate"), rate}};
}

} // namespace

QString JS_Mediator_LiveControl::channelLabel(unsigned channel) {
    return translate(QStringLiteral("Channel")) + QStringLiteral(" %1: ").arg(channel);
}

QString JS_Mediator_LiveControl::getResolutionSettings() {
    return guarded(
        [&] {
            QList<ResolutionEntry> list;
            ResolutionEntry current;
            host()->getResolutionList(list);
            host()->getResolution(current.width, current.height);
            const auto isCurrent = [&current](auto width, auto height) {
                return width == current.width && height == current.height;
            };
            int selectValue = kNoSelectValue;
            bool selected = false;
            QString label;
            QJsonArray rows;
            const unsigned channel = host()->getVariableChannel();
            if (isChannel(channel)) {
                VariableChannelInfo info;
                host()->getVariableChannelInfo(channel, info);
                if (isCurrent(info.width, info.height)) {
                    label = channelLabel(channel);
                    selected = true;
                    if (list.isEmpty()) {
                        rows.append(resolutionRow(kNoSelectValue, current));
                    }
                }
            }
            for (int i = 0; i < list.size(); ++i) {
                if (isCurrent(list.at(i).width, list.at(i).height)) {
                    selectValue = i;
                    selected = true;
                }
                rows.append(resolutionRow(i, list.at(i)));
            }
            return json::compact({
                {QStringLiteral("Resolutions"), rows},
                {QStringLiteral("SelectValue"), json::text(selectValue)},
                {QStringLiteral("Selected"), selected},
                {QStringLiteral("VariablePrefix"), label},
                {QStringLiteral("ExistResolutionLockMode"), host()->existResolutionLockMode()},
                {QStringLiteral("ResolutionLockMode"), host()->getResolutionLockMode()},
            });
        },
        QString());
}

QString JS_Mediator_LiveControl::getFrameRateSettings() {
    return guarded(
        [&] {
            QList<unsigned long> list;
            host()->getRecordRateList(list);
            const unsigned long current = host()->getRecordRate();
            const int row = list.lastIndexOf(current);
            QJsonArray rows;
            const unsigned channel = host()->getVariableChannel();
            const QString label = isChannel(channel) ? channelLabel(channel) : QString();
            // The rate of a channel, or the only rate of a camera that lists none, is in no row of the
            // host's.
            if (isChannel(channel) || (list.isEmpty() && current != 0)) {
                rows.append(rateRow(kNoSelectValue, formatRecordRate(current, true)));
            }
            const bool selected = row >= 0 || !rows.isEmpty();
            for (int i = 0; i < list.size(); ++i) {
                rows.append(rateRow(i, formatRecordRate(list.at(i), true)));
            }
            return json::compact({
                {QStringLiteral("Framerates"), rows},
                {QStringLiteral("SelectValue"),
                 json::text(label.isEmpty() ? selectValueOf(row) : kNoSelectValue)},
                {QStringLiteral("Selected"), selected},
                {QStringLiteral("VariablePrefix"), label},
                {QStringLiteral("LowLightMode"), host()->isLowLight()},
            });
        },
        QString());
}

QString JS_Mediator_LiveControl::getShutterSpeedSettings() {
    return guarded(
        [&] {
            const int unit = host()->getPrefInt(QStringLiteral("display/ShutterSpeed"), 1);
            QList<unsigned long> list;
            host()->getShutterSpeedList(unit, list);
            const unsigned long current = host()->getShutterSpeed(unit);
            DOC_Interface* const document = host()->currentDocument();
            const int row = list.lastIndexOf(current);
            QJsonArray rows;
            for (int i = 0; i < list.size(); ++i) {
                const QString speed =
                    document ? document->formatShutterSpeed(list.at(i), 0) : json::text(list.at(i));
                rows.append(QJsonObject{{QStringLiteral("Value"), json::text(i)},
                                        {QStringLiteral("ShutterSpeed"), speed}});
            }
            return json::compact({
                {QStringLiteral("ShutterSpeeds"), rows},
                {QStringLiteral("SelectValue"), json::text(selectValueOf(row))},
                {QStringLiteral("Selected"), row >= 0},
                {QStringLiteral("ExistSupportedShutterLockMode"), host()->existSupportedShutterLockMode()},
                {QStringLiteral("ExistSupportedAutoExposure"), host()->existSupportedAutoExposure()},
                {QStringLiteral("ExistSupportedDSShutter"), host()->existSupportedDSShutter()},
                {QStringLiteral("ExistSupportedDSShutterMode"), host()->existSupportedDSShutterMode()},
                {QStringLiteral("DSShutterMode"), int(host()->getDSShutterMode())},
                {QStringLiteral("ShutterLockMode"), host()->getShutterLockMode()},
                {QStringLiteral("DSShutterValue"), host()->getDSShutterValue()},
                {QStringLiteral("DSShutterAvairable"), host()->isAvailableDSShutter()},
                {QStringLiteral("AutoExposureOn"), host()->isAutoExposureOn()},
                {QStringLiteral("LowLightMode"), host()->isLowLight()},
            });
        },
        QString());
}

QString JS_Mediator_LiveControl::getDSShutterSettings() {
    return guarded(
        [&] {
            return json::compact({
                {QStringLiteral("Value"), host()->getDSShutterValue()},
                {QStringLiteral("Max"), host()->getDSShutterMax()},
                {QStringLiteral("Min"), host()->getDSShutterMin()},
                {QStringLiteral("DSShutterAvairable"), host()->isAvailableDSShutter()},
                {QStringLiteral("ExistSupportedDSShutter"), host()->existSupportedDSShutter()},
                {QStringLiteral("ExistSupportedDSShutterMode"), host()->existSupportedDSShutterMode()},
                {QStringLiteral("DSShutterMode"), int(host()->getDSShutterMode())},
            });
        },
        QString());
}

QString JS_Mediator_LiveControl::getMaxResolution() {
    return guarded(
        [&] {
            ResolutionEntry size;
            host()->getMaxResolution(size.width, size.height);
            DOC_Interface* const document = host()->currentDocument();
            if (document && docAs<DOC_Geometry>(document).isAxisSwapped()) {
                std::swap(size.width, size.height);
            }
            return json::compact({{QStringLiteral("Width"), json::text(size.width)},
                                  {QStringLiteral("Height"), json::text(size.height)}});
        },
        QString());
}

bool JS_Mediator_LiveControl::isAvailableDSShutter() {
    return guarded([&] { return host()->isAvailableDSShutter(); }, false);
}

bool JS_Mediator_LiveControl::isSwapResolution() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            return document && docAs<DOC_Geometry>(document).isAxisSwapped();
        },
        false);
}

void JS_Mediator_LiveControl::setResolution(ulong selectValue) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setResolution"),
                                      traceArgs({{"selectValue", qulonglong(selectValue)}}));
    guarded([&] {
        QList<ResolutionEntry> list;
        host()->getResolutionList(list);
        if (const ResolutionEntry* const row = rowOf(list, selectValue, "setResolution")) {
            host()->setResolution(row->width, row->height);
        }
    });
}

void JS_Mediator_LiveControl::setFrameRate(ulong selectValue) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setFrameRate"),
                                      traceArgs({{"selectValue", qulonglong(selectValue)}}));
    guarded([&] {
        QList<unsigned long> list;
        host()->getRecordRateList(list);
        if (const unsigned long* const rate = rowOf(list, selectValue, "setFrameRate")) {
            host()->setRecordRate(*rate);
        }
    });
}

void JS_Mediator_LiveControl::setShutterSpeed(ulong selectValue) {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::setShutterSpeed"),
                                      traceArgs({{"selectValue", qulonglong(selectValue)}}));
    guarded([&] {
        // The page's index comes from the list in the unit that shows; the rows of both stand in the same
        // order.
        QList<unsigned long> list;
        host()->getShutterSpeedList(kRawShutterUnit, list);
        if (const unsigned long* const speed = rowOf(list, selectValue, "setShutterSpeed")) {
            host()->setShutterSpeed(*speed, true);
        }
    });
}

void JS_Mediator_LiveControl::setDSShutterValue(ulong dsSutterValue) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setDSShutterValue"),
                               traceArgs({{"dsSutterValue", qulonglong(dsSutterValue)}}));
    guarded([&] { host()->setDSShutterValue(static_cast<int>(dsSutterValue)); });
}

void JS_Mediator_LiveControl::toggleResolutionLockMode() {
    const OperationEventHandler scope(this,
                                      QStringLiteral("JS_Mediator_LiveControl::toggleResolutionLockMode"));
    guarded([&] { host()->setResolutionLockMode(!host()->getResolutionLockMode()); });
}

void JS_Mediator_LiveControl::toggleShutterLockMode() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::toggleShutterLockMode"));
    guarded([&] { host()->setShutterLockMode(!host()->getShutterLockMode()); });
}
