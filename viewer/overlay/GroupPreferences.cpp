#include "viewer/overlay/GroupPreferences.h"

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

/// A name, "#rrggbb", or "rgb(r, g, b)" as style sheets have it; invalid for anything else.
QColor colorOf(const QString& text) {
    static const QRegularExpression kParts(
        QStringLiteral("^rgba?\\(\\s*(\\d{1,3})\\s*,\\s*(\\d{1,3})\\s*,\\s*(\\d{1,3})\\b"));
    const QRegularExpressionMatch match = kParts.match(text);
    return match.hasMatch()
               ? QColor(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt())
           : text.isEmpty() ? QColor()
                            : QColor(text);
}

} // namespace

QVariant GroupPreferences::value(const char* name) const {
    return m_preferences.value(m_prefix + QLatin1String(name) + m_suffix, QVariant());
}

int GroupPreferences::number(const char* name, int least, int most, int otherwise) const {
    bool ok = false;
    const int number = value(name).toInt(&ok);
    return ok && number >= least && number <= most ? number : otherwise;
}

QColor GroupPreferences::color(const char* name, const QColor& otherwise) const {
    const QColor color = colorOf(text(name));
    return color.isValid() ? color : otherwise;
}

QVector<DisplayEntry> GroupPreferences::entries() const {
    QVector<DisplayEntry> shown;
    QSet<QString> keys;
    for (const DisplayEntry& entry : DisplayEntries::read(text("display"))) {
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

OverlayStyle GroupPreferences::style() const {
    OverlayStyle style;
    style.fontName = text("FontName");
    style.fontSize = number("FontSize", kSmallestFont, kLargestFont, style.fontSize);
    style.bold = flag("Bold");
    style.italic = flag("Italic");
    style.color = color("ForegroundColor", Qt::white);
    constexpr Qt::AlignmentFlag kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    style.alignment = kAlignments[number("Alignment", 0, 2, 0)];
    style.width = number("Width", 1, OverlayStyle::LargestWidth, style.width);
    style.logoHeight = kLogoHeights[number("IconSize", 0, 2, 1)];
    style.blankLine = m_preferences.value(QStringLiteral("info/BlankLine"), false).toBool();
    return style;
}

TimeCodeSetting GroupPreferences::timeCode() const {
    return TimeCodeRecord::fromMap(m_preferences.value(TimeCodeRecord::kPreference, QVariant()).toMap());
}
