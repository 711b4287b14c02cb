#include "viewer/overlay/OverlaySettings.h"

#include "viewer/overlay/GroupPreferences.h"

#include <algorithm>

QFont OverlayStyle::font() const {
    QFont font;
    if (!fontName.isEmpty()) {
        font.setFamily(fontName); // the nearest one stands for one that is not installed
    }
    if (fontPixels > 0) {
        font.setPixelSize(qMax(1, qRound(fontPixels)));
    } else {
        font.setPointSize(fontSize);
    }
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
    const GroupPreferences group(preferences, QStringLiteral("info/"));
    settings.entries = group.entries();
    settings.style = group.style();
    settings.logoPath = group.text("LogoPath");
    settings.timeCode = group.timeCode();
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
