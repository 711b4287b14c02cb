#include "viewer/overlay/DisplayList.h"

#include "livecontrol/interface/InfoItems.h"

#include <QStringList>

bool DisplayEntry::isSeparator() const { return key == QLatin1String(kInfoSeparator); }

QVector<DisplayEntry> DisplayList::read(const QString& text) {
    QVector<DisplayEntry> entries;
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','), Qt::SkipEmptyParts);
    entries.reserve(parts.size());
    for (const QStringRef& part : parts) {
        if (part == QLatin1String(kInfoSeparator)) {
            entries.append({part.toString(), false});
            continue;
        }
        const int colon = part.indexOf(QLatin1Char(':'));
        if (colon > 0) {
            entries.append({part.left(colon).toString(), part.mid(colon + 1) == QLatin1String("true")});
        }
    }
    return entries;
}

QString DisplayList::text(const QVector<DisplayEntry>& entries) {
    QStringList parts;
    parts.reserve(entries.size());
    for (const DisplayEntry& entry : entries) {
        parts.append(entry.isSeparator()
                         ? entry.key
                         : entry.key + (entry.shown ? QLatin1String(":true") : QLatin1String(":false")));
    }
    return parts.join(QLatin1Char(','));
}
