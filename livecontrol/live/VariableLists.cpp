// Variable channels: which rates and sizes can be chosen, and the way from a size to one that the camera
// takes.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/HostRow.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

#include <utility>

namespace {

/// How often a search for a valid size turns round before it gives up.
constexpr int kMaxTurns = 3;
constexpr qint64 kMostPixels = 1 << 16; // a side

void swapAxes(VariableRestriction& limits) {
    std::swap(limits.widthStep, limits.heightStep);
    std::swap(limits.widthMin, limits.heightMin);
    std::swap(limits.widthMax, limits.heightMax);
    std::swap(limits.widthFrameMax, limits.heightFrameMax);
    std::swap(limits.posXStep, limits.posYStep);
    std::swap(limits.posXFree, limits.posYFree);
}

QString restrictionText(const VariableRestriction& limits) {
    return json::compact({
        {QStringLiteral("WidthStep"), json::text(limits.widthStep)},
        {QStringLiteral("WidthMin"), json::text(limits.widthMin)},
        {QStringLiteral("WidthMax"), json::text(limits.widthMax)},
        {QStringLiteral("WidthFrameMax"), json::text(limits.widthFrameMax)},
        {QStringLiteral("HeightStep"), json::text(limits.heightStep)},
        {QStringLiteral("HeightMin"), json::text(limits.heightMin)},
        {QStringLiteral("HeightMax"), json::text(limits.heightMax)},
        {QStringLiteral("HeightFrameMax"), json::text(limits.heightFrameMax)},
        {QStringLiteral("PosXStep"), json::text(limits.posXStep)},
        {QStringLiteral("PosYStep"), json::text(limits.posYStep)},
        {QStringLiteral("PosXMin"), QStringLiteral("0")},
        {QStringLiteral("PosYMin"), QStringLiteral("0")},
        {QStringLiteral("PosXFree"), limits.posXFree},
        {QStringLiteral("PosYFree"), limits.posYFree},
    });
}

/// A value that walks along its grid and turns round at the limits.
struct GridWalk {
    qint64 value;
    qint64 step;
    qint64 min;
    qint64 max;
    bool down;
    int turns = 0;

    void move() {
        const qint64 next = down ? value - step : value + step;
        if (down ? next < min : next > max) {
            down = !down;
            ++turns;
        }
        value = qMax<qint64>(0, down ? value - step : value + step);
    }
};

} // namespace

// The numbers of the rows run on where a rate is skipped, so from there on they are not the positions in the
// host's list that the other slots take. The page finds the position by the row's text in the list with frame
// rate priority, which skips nothing (rateIndexOf in variable-math.js).
QString JS_Mediator_LiveControl::getVariableFramerateList(bool priority, ulong width, ulong height) {
    return guarded(
        [&] {
            QList<unsigned long> rates;
            host()->getVariableRateList(rates);
            QSize size(static_cast<int>(width), static_cast<int>(height));
            if (!priority && size.isEmpty()) {
                size = firstPresetSize();
            }
            QJsonArray rows;
            for (const unsigned long rate : qAsConst(rates)) {
                if (!priority) {
                    const auto w = static_cast<unsigned>(size.width());
                    const auto h = static_cast<unsigned>(size.height());
                    if (rate > host()->getVariableMaxRate(w, h)) {
                        break;
                    }
                    if (!isValidVariableSize(rate, w, h)) {
                        continue;
                    }
                }
                rows.append(QJsonObject{
                    {QStringLiteral("Value"), json::text(rows.size())},
                    {QStringLiteral("FrameRate"), formatRecordRate(static_cast<uint>(rate), true)}});
            }
            return json::compact(QJsonObject{{QStringLiteral("VariableFramerateList"), rows}});
        },
        QString());
}

QSize JS_Mediator_LiveControl::firstPresetSize() {
    QList<ResolutionEntry> sizes;
    host()->getResolutionList(sizes);
    return sizes.isEmpty()
               ? QSize(0, 0)
               : QSize(static_cast<int>(sizes.first().width), static_cast<int>(sizes.first().height));
}

bool JS_Mediator_LiveControl::isValidVariableSize(unsigned long rate, unsigned width, unsigned height) {
    DOC_Interface* const document = host()->currentDocument();
    return document &&
           docAs<DOC_Settings>(document).isValidVariableSize(static_cast<unsigned>(rate), width, height);
}

QString JS_Mediator_LiveControl::getVariableResolutionList(bool priority, int framerateIndex) {
    return guarded(
        [&] {
            QList<unsigned long> rates;
            QList<ResolutionEntry> sizes;
            host()->getVariableRateList(rates);
            host()->getResolutionList(sizes);
            const unsigned long* const rate =
                priority ? nullptr : rowOf(rates, framerateIndex, "getVariableResolutionList");
            QJsonArray rows;
            for (int i = 0; (priority || rate) && i < sizes.size(); ++i) {
                const ResolutionEntry& size = sizes.at(i);
                if (rate && host()->getVariableMaxRate(size.width, size.height) < *rate) {
                    continue;
                }
                const QString width = json::text(size.width);
                const QString height = json::text(size.height);
                rows.append(QJsonObject{{QStringLiteral("Value"), json::text(i)},
                                        {QStringLiteral("Resolution"), width + QLatin1Char('x') + height},
                                        {QStringLiteral("Width"), width},
                                        {QStringLiteral("Height"), height}});
            }
            const QJsonObject first = rows.isEmpty() ? QJsonObject() : rows.first().toObject();
            const auto ofFirst = [&first](const char* key) {
                return first.value(QLatin1String(key)).toString(QStringLiteral("0"));
            };
            return json::compact({{QStringLiteral("VariableResolutionList"), rows},
                                  {QStringLiteral("MinValue"), ofFirst("Value")},
                                  {QStringLiteral("MaxPresetWidth"), ofFirst("Width")},
                                  {QStringLiteral("MaxPresetHeight"), ofFirst("Height")}});
        },
        QString());
}

QString JS_Mediator_LiveControl::getVariableRestriction(int framerateIndex, ulong userWidth,
                                                        ulong userHeight) {
    return guarded(
        [&] {
            VariableRestriction limits;
            host()->getVariableRestriction(limits);
            if (framerateIndex >= 0) {
                limitToRate(limits, framerateIndex, static_cast<quint32>(userWidth),
                            static_cast<quint32>(userHeight));
            }
            DOC_Interface* const document = host()->currentDocument();
            if (document && docAs<DOC_Geometry>(document).isAxisSwapped()) {
                swapAxes(limits);
            }
            return restrictionText(limits);
        },
        QString());
}

void JS_Mediator_LiveControl::limitToRate(VariableRestriction& limits, int framerateIndex, quint32 userWidth,
                                          quint32 userHeight) {
    QList<unsigned long> rates;
    host()->getVariableRateList(rates);
    if (rates.isEmpty()) {
        limits.widthMax = userWidth;
        limits.heightMax = userHeight;
        return;
    }
    const unsigned long* const rate = rowOf(rates, framerateIndex, "getVariableRestriction");
    if (!rate) {
        return;
    }
    // The largest width up to the user's that reaches the rate at all.
    quint32 width = userWidth;
    unsigned height = host()->getVariableMaxHeight(*rate, width);
    while (height == 0) {
        if (limits.widthStep == 0 || width < limits.widthStep) {
            return;
        }
        width -= limits.widthStep;
        height = host()->getVariableMaxHeight(*rate, width);
    }
    const unsigned maxWidth = host()->getVariableMaxWidth(*rate, qMin(height, userHeight));
    if (maxWidth != 0) {
        limits.widthMax = maxWidth;
        limits.heightMax = height;
    }
}

ulong JS_Mediator_LiveControl::correctVariableResolution(int framerateIndex, ulong width, ulong height,
                                                         ulong correctMax, bool correctHeight,
                                                         bool correctDown) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::correctVariableResolution"),
                               traceArgs({{"framerateIndex", framerateIndex},
                                          {"width", qulonglong(width)},
                                          {"height", qulonglong(height)},
                                          {"correctMax", qulonglong(correctMax)},
                                          {"correctHeight", correctHeight},
                                          {"correctDown", correctDown}}));
    const ulong asked = correctHeight ? height : width;
    return guarded(
        [&]() -> ulong {
            VariableRestriction limits;
            QList<unsigned long> rates;
            host()->getVariableRestriction(limits);
            host()->getVariableRateList(rates);
            if (rates.isEmpty()) {
                return asked;
            }
            const unsigned long* const rate = rowOf(rates, framerateIndex, "correctVariableResolution");
            // A page can ask for anything; no sensor is larger.
            GridWalk walk{qMin(qint64(asked), kMostPixels),
                          qint64(correctHeight ? limits.heightStep : limits.widthStep),
                          qint64(correctHeight ? limits.heightMin : limits.widthMin),
                          qMin(qint64(correctMax), kMostPixels), correctDown};
            if (!rate || walk.step == 0) { // a walk without a step would never end
                return asked;
            }
            const auto isValid = [&] {
                const auto moving = static_cast<unsigned>(walk.value);
                return isValidVariableSize(*rate, correctHeight ? static_cast<unsigned>(width) : moving,
                                           correctHeight ? moving : static_cast<unsigned>(height));
            };
            while (!isValid() && walk.turns < kMaxTurns) {
                walk.move();
            }
            return static_cast<ulong>(walk.value);
        },
        asked);
}

bool JS_Mediator_LiveControl::validateFrameRateOnManual(int framerateIndex) {
    return guarded(
        [&] {
            QList<unsigned long> rates;
            VariableRestriction limits;
            host()->getVariableRateList(rates);
            const unsigned long* const rate = rowOf(rates, framerateIndex, "validateFrameRateOnManual");
            if (!rate) {
                return false;
            }
            host()->getVariableRestriction(limits);
            return *rate <= host()->getVariableMaxRate(limits.widthMin, limits.heightMin);
        },
        false);
}
