#include "livecontrol/overlays/info/DisplayList.h"

#include "livecontrol/interface/InfoItems.h"

namespace {
constexpr QLatin1Char kComma(',');
constexpr QLatin1Char kColon(':');
} // namespace

bool DisplayList::isSeparator(const QString& entry) { return entry == QLatin1String(kInfoSeparator); }

void DisplayList::parse(const QString& text) { m_entries = text.split(kComma, Qt::SkipEmptyParts); }

void DisplayList::setOrder(const QString& keys) {
    m_entries.clear();
    const QStringList names = keys.split(kComma, Qt::SkipEmptyParts);
    for (const QString& name : names) {
        m_entries += name == QLatin1String("HR") ? QString(QLatin1String(kInfoSeparator))
                                                 : name + QLatin1String(":true");
    }
}

QString DisplayList::text(const States& states) const {
    QStringList stored;
    for (const QString& entry : m_entries) {
        const QString key = entry.section(kColon, 0, 0);
        stored += isSeparator(entry) ? entry : key + kColon + states.value(key);
    }
    return stored.join(kComma);
}
