#include "viewer/overlay/InfoText.h"

#include "livecontrol/interface/InfoItems.h"
#include "livecontrol/live/TriggerNames.h"
#include "viewer/documents/DisplayFormat.h"
#include "viewer/messages/Translated.h"
#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/NoteLines.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/overlay/TimeCodeText.h"

#include <QFileInfo>

namespace {

struct Context {
    const InfoFacts& facts;
    const OverlaySettings& settings;
    const DisplayFormat& format;
};

const QString kMoment = QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz");

QString moment(const QDateTime& time) { return time.isValid() ? time.toString(kMoment) : QString(); }

QString cameraName(const Context& c) {
    return (c.facts.cameraName + QLatin1Char(' ') + c.facts.headName).trimmed();
}

QString deviceName(const Context& c) { return c.facts.deviceName; }

QString fileName(const Context& c) { return QFileInfo(c.facts.path).fileName(); }

QString headNumber(const Context& c) {
    return c.facts.head > 0 ? translated("Head %1").arg(c.facts.head) : QString();
}

QString partition(const Context& c) {
    return c.facts.partition > 0 ? translated("Partition %1").arg(c.facts.partition) : QString();
}

QString date(const Context& c) { return c.facts.saved.toString(QStringLiteral("yyyy-MM-dd")); }

QString time(const Context& c) { return c.facts.saved.toString(QStringLiteral("HH:mm:ss")); }

QString recordingTime(const Context& c) { return moment(c.facts.triggered); }

QString endTime(const Context& c) { return c.facts.isRecorded() ? moment(c.facts.ended) : QString(); }

QString rate(const Context& c) {
    return c.facts.rate == 0 ? QString()
                             : QStringLiteral("%1 %2").arg(c.format.rate(c.facts.rate), translated("fps"));
}

QString shutter(const Context& c) { return translated(c.format.shutter.ofCamera(c.facts.shutter)); }

QString resolution(const Context& c) {
    const QSize& size = c.facts.resolution;
    return size.isEmpty() ? QString() : QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString frameNumber(const Context& c) {
    if (!c.facts.isRecorded()) {
        return QString();
    }
    const int offset = c.facts.position - c.facts.triggerIndex;
    return QStringLiteral("%1 (T%2%3)")
        .arg(c.format.frames(c.facts.position + 1), QChar(offset < 0 ? 0x2212 : '+'),
             c.format.frames(qAbs(offset)));
}

/// Which of the user's marks the frame bears.
QString eventMarker(const Context& c) {
    const int place = c.facts.isRecorded() ? c.facts.marks.indexOf(c.facts.position) : -1;
    return place < 0 ? QString() : QString::number(place + 1);
}

QString maxFrames(const Context& c) {
    return c.facts.frames > 0 ? c.format.frames(c.facts.frames) : QString();
}

QString length(const Context& c) {
    return c.facts.frames > 0 ? c.format.recordingTime(c.facts.frames, c.facts.rate) : QString();
}

// When the frame was taken.
QString irigCode(const Context& c) {
    const InfoFacts& facts = c.facts;
    if (!facts.isRecorded()) {
        return facts.saved.isValid() ? TimeCodeText::irig(facts.saved, 0) : QString();
    }
    if (!facts.triggered.isValid() || facts.rate == 0) {
        return QString();
    }
    const qint64 frames = facts.position - facts.triggerIndex;
    return TimeCodeText::irig(facts.triggered, qint64(double(frames) / facts.rate * 1e9));
}

// Live there is nothing to count from, so the clock shows. The recording's own setting holds unless the
// user's is to take its place.
QString timeCode(const Context& c) {
    const InfoFacts& facts = c.facts;
    if (facts.mode == HOST_MODE_LIVE) {
        return QDateTime::fromSecsSinceEpoch(facts.clock).toString(QStringLiteral("HH:mm:ss"));
    }
    if (!facts.isRecorded() || facts.rate == 0) {
        return QString();
    }
    const TimeCodeSetting& user = c.settings.timeCode;
    const bool isOwn = facts.timeCode && user.usingRchFileInfo && !user.overwrite;
    const TimeCodeSetting& setting = isOwn ? *facts.timeCode : user;
    const qint64 frames = facts.position - facts.triggerIndex;
    const bool isTime = setting.index == 0; // a value in a unit has no time of day
    if (isTime && setting.realTime && facts.triggered.isValid()) {
        return irigCode(c);
    }
    return TimeCodeText::text(setting, frames, facts.rate);
}

QString triggerMode(const Context& c) {
    return c.facts.triggerMode < 0 ? QString() : translated(trigger::nameOf(c.facts.triggerMode));
}

QString lut(const Context& c) {
    return QStringLiteral("LUT: %1").arg(translated(Tones::kLuts.at(size_t(c.facts.tones.lut))));
}

QString saturation(const Context& c) { return QStringLiteral("%1 %").arg(c.facts.tones.saturation); }

QString zoom(const Context& c) { return QStringLiteral("%1 %").arg(c.facts.zoom); }

/// The items whose value is one line.
struct Writer {
    const char* key;
    QString (*value)(const Context& context);
};
constexpr Writer kWriters[] = {
    {"Camera name", &cameraName},
    {"File name", &fileName},
    {"Device", &deviceName},
    {"Head", &headNumber},
    {"PartitionNumber", &partition},
    {"Date", &date},
    {"Time", &time},
    {"RecDateTime", &recordingTime},
    {"FrameRate", &rate},
    {"ShutterSpeed", &shutter},
    {"Resolution", &resolution},
    {"FrameNumber", &frameNumber},
    {"MaxFrames", &maxFrames},
    {"Length", &length},
    {"TimeIrigCode", &timeCode},
    {"TimeCode", &timeCode},
    {"IrigCode", &irigCode},
    {"Trigger", &triggerMode},
    {"EventMarker", &eventMarker},
    {"LUT", &lut},
    {"Saturation", &saturation},
    {"ZoomRate", &zoom},
    {"RecEndTime", &endTime},
};

const InfoItem* itemOf(const QString& key) {
    for (const InfoItem& item : kInfoItems) {
        if (key == QLatin1String(item.key) && *item.key != '\0') {
            return &item;
        }
    }
    return nullptr;
}

bool isOffered(const InfoItem& item, HostMode mode, bool isSaved) {
    return isSaved                    ? item.saved
           : mode == HOST_MODE_LIVE   ? item.live
           : mode == HOST_MODE_MEMORY ? item.memory
                                      : item.file;
}

QString labeled(const InfoItem& item, const QString& value) {
    return value.isEmpty() || *item.shortLabel == '\0'
               ? value
               : QStringLiteral("%1: %2").arg(translated(item.shortLabel), value);
}

QVector<InfoLine> asLines(const QString& key, const NoteLines& notes) {
    QVector<InfoLine> lines;
    for (const QString& line : notes.lines) {
        lines.append({InfoLine::Kind::Text, key, line});
    }
    if (!lines.isEmpty()) {
        lines.last().leftOut = notes.leftOut;
    }
    return lines;
}

QVector<InfoLine> customLines(const InfoFacts& facts) {
    QVector<InfoLine> lines;
    for (const CustomItem& item : facts.items) {
        if (item.display) {
            lines += asLines(QStringLiteral("Custom"), NoteLines::of(item));
        }
    }
    return lines;
}

QVector<InfoLine> linesOf(const InfoItem& item, const Context& context) {
    const QString key = QLatin1String(item.key);
    if (key == QLatin1String("Custom")) {
        return customLines(context.facts);
    }
    if (key == QLatin1String("Logo")) {
        return {{InfoLine::Kind::Logo, key, QString()}};
    }
    QVector<InfoLine> lines =
        key == QLatin1String("Comment")
            ? asLines(key, NoteLines::of(context.facts.comment))
            : asLines(key,
                      NoteLines{{InfoText::value(key, context.facts, context.settings, context.format)}});
    if (!lines.isEmpty()) {
        lines.first().text = labeled(item, lines.first().text);
    }
    return lines;
}

} // namespace

QString InfoText::label(const QString& key) {
    const InfoItem* const item = itemOf(key);
    return translated(item ? item->label : key.toUtf8().constData());
}

QString InfoText::value(const QString& key, const InfoFacts& facts, const OverlaySettings& settings,
                        const DisplayFormat& format) {
    for (const Writer& writer : kWriters) {
        if (key == QLatin1String(writer.key)) {
            return writer.value({facts, settings, format});
        }
    }
    return QString();
}

QVector<InfoLine> InfoText::lines(const InfoFacts& facts, const OverlaySettings& settings,
                                  const DisplayFormat& format) {
    const Context context{facts, settings, format};
    QVector<InfoLine> lines;
    bool isSeparatorDue = false;
    for (const DisplayEntry& entry : settings.entries) {
        const InfoItem* const item = itemOf(entry.key);
        if (entry.isSeparator()) {
            isSeparatorDue = !lines.isEmpty();
        } else if (item && isOffered(*item, facts.mode, settings.isSaved)) {
            QVector<InfoLine> added = linesOf(*item, context);
            if (added.size() == 1 && added.first().kind == InfoLine::Kind::Text &&
                added.first().text.isEmpty()) {
                continue;
            }
            if (isSeparatorDue && !added.isEmpty()) {
                lines.append({InfoLine::Kind::Separator, entry.key, QString()});
                isSeparatorDue = false;
            }
            lines += added;
        }
    }
    return lines;
}
