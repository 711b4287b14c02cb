// How many frames a save leaves out.

#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Numbers.h"
#include "livecontrol/interface/DOC_Playback.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/dialogs/FrameSkip.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include <algorithm>
#include <limits>

namespace {

enum SkipMode { Frames = 0, Milliseconds = 1 };

constexpr char kFrames[] = "skipsaveframe";
constexpr char kMilliseconds[] = "skipsavemsec";
constexpr char kUnit[] = "skipunit";
constexpr uint kNoFrames = std::numeric_limits<uint>::max();

int wholeFrames(double value) {
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, -kMost, kMost));
}

/// The smaller number of frames; none doesn't count.
void takeSmaller(uint& least, uint frames) {
    if (frames != 0) {
        least = std::min(least, frames);
    }
}

} // namespace

QString JS_Mediator_FileDialog::skipKey(const char* name) const {
    const char* const family = m_kind == DialogKind::Report   ? "report/"
                               : m_kind == DialogKind::Layout ? "layout/"
                                                              : "export/";
    return QLatin1String(family) + QLatin1String(name);
}

void JS_Mediator_FileDialog::setSkipMode(int mode) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::setSkipMode"),
                               traceArgs({{"mode", mode}}));
    guarded([&] { storeSkipMode(mode); });
}

int JS_Mediator_FileDialog::getSkipMode() {
    return guarded([&] { return skipMode(); }, 0);
}

void JS_Mediator_FileDialog::setSkipFrames(double val) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::setSkipFrames"),
                               traceArgs({{"val", val}}));
    setSkipValue(val);
}

void JS_Mediator_FileDialog::setSkipValue(double value) {
    guarded([&] { storeSkip(value); });
}

double JS_Mediator_FileDialog::getSkipFrames() {
    return guarded([&] { return skipFrames(); }, 1.0);
}

void JS_Mediator_FileDialog::storeSkipMode(int mode) { host()->setPrefInt(skipKey(kUnit), mode); }

int JS_Mediator_FileDialog::skipMode() { return host()->getPrefInt(skipKey(kUnit), QVariant()); }

double JS_Mediator_FileDialog::skipFrames() {
    const bool isTime = skipMode() == Milliseconds;
    if (isTime && m_skipRate == 0) {
        return host()->getPref(skipKey(kMilliseconds), QVariant()).toDouble();
    }
    const double frames = host()->getPref(skipKey(kFrames), QVariant()).toDouble();
    return isTime ? nearestSkip(millisecondsFromFrames(frames, m_skipRate), m_skipValues) : frames;
}

void JS_Mediator_FileDialog::storeSkip(double value) {
    if (skipMode() != Milliseconds) {
        host()->setPrefInt(skipKey(kFrames), wholeFrames(value));
        return;
    }
    const double milliseconds = nearestSkip(value, m_skipValues);
    host()->setPref(skipKey(kMilliseconds), milliseconds); // a float would lose decimals
    if (m_skipRate != 0) {
        host()->setPrefInt(skipKey(kFrames), wholeFrames(framesFromMilliseconds(milliseconds, m_skipRate)));
    }
}

JS_Mediator_FileDialog::Targets JS_Mediator_FileDialog::targetsOf(const QVariantMap& map) {
    Targets targets;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        DOC_Interface* const found = document(it.key().toUInt());
        if (!found) {
            continue;
        }
        QList<PARTITIONNUMBER> partitions;
        const QVariantList numbers = it.value().toList();
        for (const QVariant& number : numbers) {
            partitions.append(number.toInt());
        }
        targets.append({found, partitions});
    }
    return targets;
}

void JS_Mediator_FileDialog::refreshSkipFrame(const QVariantMap& targets) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::refreshSkipFrame"),
                               traceArgs({{"targets", targets}}));
    guarded([&] {
        const Targets rows = targetsOf(targets);
        if (rows.isEmpty()) {
            return;
        }
        if (skipMode() == Milliseconds && !findMillisecondLimits(rows)) {
            storeSkipMode(Frames); // what has no rate has no milliseconds
        }
        if (skipMode() != Milliseconds) {
            findFrameLimits(rows);
        }
        holdSkip();
    });
}

/// False if none of the rows has a rate.
bool JS_Mediator_FileDialog::findMillisecondLimits(const Targets& targets) {
    const bool isMemory = host()->isMemoryMode();
    uint rate = 0;
    uint least = kNoFrames;
    for (const auto& [document, partitions] : targets) {
        auto& settings = docAs<DOC_Settings>(document);
        const uint shared = isMemory ? 0 : settings.getRecordRate(0);
        rate = greatestCommonDivisor(rate, shared);
        for (const PARTITIONNUMBER partition : partitions) {
            const uint own = isMemory ? settings.getPartitionRecordRate(partition) : shared;
            if (own > 0) {
                rate = greatestCommonDivisor(rate, own);
                takeSmaller(least, docAs<DOC_Playback>(document).getPartitionFrames(partition, 0));
            }
        }
    }
    if (rate == 0) {
        return false;
    }
    if (rate != m_skipRate) {
        m_skipValues.clear();
    }
    m_skipRate = rate;
    const SkipLimits limits = skipLimits(rate, least == kNoFrames ? 0 : least);
    m_skipMinFrames = limits.least;
    m_skipMaxFrames = limits.most;
    if (m_skipValues.isEmpty()) {
        m_skipValues = skipGrid(m_skipMinFrames, m_skipMaxFrames);
    }
    return true;
}

void JS_Mediator_FileDialog::findFrameLimits(const Targets& targets) {
    uint least = kNoFrames;
    for (const auto& [document, partitions] : targets) {
        for (const PARTITIONNUMBER partition : partitions) {
            takeSmaller(least, docAs<DOC_Playback>(document).getPartitionFrames(partition, 0));
        }
    }
    m_skipMinFrames = 1.0;
    m_skipMaxFrames = least;
}

/// Brings the skip within the limits.
void JS_Mediator_FileDialog::holdSkip() {
    const double value = skipFrames();
    const double held = std::max(m_skipMinFrames, std::min(m_skipMaxFrames, value));
    if (held != value) {
        storeSkip(held);
    }
}
