#include "viewer/overlay/DisplayEntries.h"

#include "livecontrol/interface/InfoItems.h"

#include <QStringList>

bool DisplayEntry::isSeparator() const { return key == QLatin1String(kInfoSeparator); }

QVector<DisplayEntry> DisplayEntries::read(const QString& text) {
    QVector<DisplayEntry> entries;
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','), Qt::SkipEmptyParts);
    entries.reserve(parts.size());
    for (const QStringRef& part : parts) {
        const int colon = part.indexOf(QLatin1Char(':'));
        DisplayEntry entry{part.left(colon).toString(), part.mid(colon + 1) == QLatin1String("true")};
        if (entry.isSeparator()) {
            entry.shown = false;
        } else if (colon <= 0) {
            continue;
        }
        entries.append(entry);
    }
    return entries;
}

QString DisplayEntries::text(const QVector<DisplayEntry>& entries) {
    QStringList parts;
    parts.reserve(entries.size());
    for (const DisplayEntry& entry : entries) {
        parts.append(entry.isSeparator()
                         ? entry.key
                         : entry.key + (entry.shown ? QLatin1String(":true") : QLatin1String(":false")));
    }
    return parts.join(QLatin1Char(','));
}
