#include "viewer/overlay/OverlaySettings.h"

#include "livecontrol/interface/InfoItems.h"
#include "viewer/prefs/Preferences.h"
#include "viewer/recordings/TimeCodeRecord.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

constexpr int kSmallestFont = 4; // points
constexpr int kLargestFont = 200;
constexpr int kLogoHeights[] = {128, 64, 32}; // large, medium, small

/// A whole number within limits, whether it stands there as a number or as a text.
int number(const Preferences& preferences, const char* key, int least, int most, int otherwise) {
    bool ok = false;
    const int value = preferences.value(QLatin1String(key)).toInt(&ok);
    return ok && value >= least && value <= most ? value : otherwise;
}

bool flag(const Preferences& preferences, const char* key) {
    return preferences.value(QLatin1String(key), false).toBool();
}

/// A name, "#rrggbb", or "rgb(r, g, b)" as style sheets have it.
QColor colorOf(const QString& text) {
    static const QRegularExpression kParts(
        QStringLiteral("^rgba?\\(\\s*(\\d{1,3})\\s*,\\s*(\\d{1,3})\\s*,\\s*(\\d{1,3})\\b"));
    const QRegularExpressionMatch match = kParts.match(text);
    const QColor color = match.hasMatch() ? QColor(match.captured(1).toInt(), match.captured(2).toInt(),
                                                   match.captured(3).toInt())
                         : text.isEmpty() ? QColor()
                                          : QColor(text);
    return color.isValid() ? color : QColor(Qt::white);
}

OverlayStyle styleOf(const Preferences& preferences) {
    OverlayStyle style;
    style.fontName = preferences.value(QStringLiteral("info/FontName")).toString();
    style.fontSize = number(preferences, "info/FontSize", kSmallestFont, kLargestFont, style.fontSize);
    style.bold = flag(preferences, "info/Bold");
    style.italic = flag(preferences, "info/Italic");
    style.color = colorOf(preferences.value(QStringLiteral("info/ForegroundColor")).toString());
    constexpr Qt::AlignmentFlag kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    style.alignment = kAlignments[number(preferences, "info/Alignment", 0, 2, 0)];
    style.width = number(preferences, "info/Width", 1, OverlayStyle::LargestWidth, style.width);
    style.logoHeight = kLogoHeights[number(preferences, "info/IconSize", 0, 2, 1)];
    style.blankLine = flag(preferences, "info/BlankLine");
    return style;
}

/// However long the list is, there are no more than the items and as many separators between them.
QVector<DisplayEntry> shownEntries(const QString& list) {
    QVector<DisplayEntry> shown;
    QSet<QString> keys;
    for (const DisplayEntry& entry : DisplayEntries::read(list)) {
        if (entry.isSeparator()) {
            if (!shown.isEmpty() && !shown.last().isSeparator()) {
                shown.append(entry);
            }
            continue;
        }
        const bool isKnown =
            std::any_of(std::begin(kInfoItems), std::end(kInfoItems),
                        [&](const InfoItem& item) { return entry.key == QLatin1String(item.key); });
        if (entry.shown && isKnown && !keys.contains(entry.key)) {
            keys.insert(entry.key);
            shown.append(entry);
        }
    }
    return shown;
}

} // namespace

QFont OverlayStyle::font() const {
    QFont font;
    if (!fontName.isEmpty()) {
        font.setFamily(fontName); // the nearest one stands for one that is not installed
    }
    font.setPointSize(fontSize);
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

bool OverlaySettings::isShown(const char* key) const {
    return std::any_of(entries.begin(), entries.end(),
                       [key](const DisplayEntry& entry) { return entry.key == QLatin1String(key); });
}

OverlaySettings OverlaySettings::read(const Preferences& preferences) {
    OverlaySettings settings;
    settings.entries = shownEntries(preferences.value(QStringLiteral("info/display")).toString());
    settings.style = styleOf(preferences);
    settings.logoPath = preferences.value(QStringLiteral("info/LogoPath")).toString();
    settings.timeCode =
        TimeCodeRecord::fromMap(preferences.value(TimeCodeRecord::kPreference, QVariant()).toMap());
    return settings;
}

bool OverlayPreferences::noteChange(const QString& key) {
    const bool is = key.startsWith(QLatin1String("info/")) || key.startsWith(QLatin1String("display/"));
    m_isDue = m_isDue || is;
    return is;
}

const OverlaySettings& OverlayPreferences::settings() {
    if (m_isDue) {
        m_settings = OverlaySettings::read(m_preferences);
        m_isDue = false;
        ++m_revision;
    }
    return m_settings;
}
