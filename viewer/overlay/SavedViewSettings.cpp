#include "viewer/overlay/SavedViewSettings.h"

#include "viewer/overlay/GroupPreferences.h"
#include "viewer/prefs/Preferences.h"

#include <algorithm>

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72; // whatever the screen has
constexpr double kLargestFont = 2000;         // pixels
constexpr int kLogoLines = 4;                 // what a logo is as high as
constexpr int kMostColumns = 10;

SavedGroup groupOf(const Preferences& preferences, int number) {
    const GroupPreferences from(preferences, QStringLiteral("saveinfo/"), QString::number(number));
    SavedGroup group;
    group.texts.isSaved = true;
    group.texts.entries = from.entries();
    group.texts.style = from.style();
    group.texts.timeCode = from.timeCode();
    if (from.flag("UseBackgroundColor")) {
        group.background = from.color("BackgroundColor", Qt::black);
    }
    if (from.flag("ToColumn")) {
        group.columns = from.number("ColumnNum", 2, kMostColumns, 2);
        group.columnSpacing = from.number("ColumnSpacing", 0, OverlayStyle::LargestWidth, 0);
    }
    if (from.flag("FixedFontSizeRatio")) {
        const QSize base = from.value("FixedFontSizeRatioBaseResolution").toSize();
        group.ratioBase = base.isEmpty() ? QSize() : base;
    }
    return group;
}

} // namespace

SavedGroup SavedGroup::at(int pictureWidth) const {
    SavedGroup group = *this;
    OverlayStyle& style = group.texts.style;
    const double points = style.fontSize * kPixelsPerPoint;
    const double factor =
        ratioBase.isValid() ? std::min(double(pictureWidth) / ratioBase.width(), kLargestFont / points) : 1;
    style.fontPixels = std::max(1.0, points * factor);
    style.width = qMax(1, qRound(style.width * factor));
    style.logoHeight = qMax(1, qRound(style.fontPixels * kLogoLines));
    group.columnSpacing = qRound(columnSpacing * factor);
    return group;
}

int SavedGroup::gap() const { return qMax(2, qRound(texts.style.fontPixels / 2)); }

SavedViewSettings SavedViewSettings::read(const Preferences& preferences, const DisplayFormat& format) {
    SavedViewSettings settings;
    for (int i = 0; i < Places; ++i) {
        settings.groups[size_t(i)] = groupOf(preferences, i + 1);
    }
    settings.isWithinImage = preferences.value(QStringLiteral("saveinfo/WithinImage"), false).toBool();
    settings.logoPath = preferences.value(QStringLiteral("saveinfo/LogoPath")).toString();
    settings.language =
        OutputLanguage::chosen(preferences.value(QStringLiteral("display/outputLanguage"), 0).toInt());
    settings.format = format;
    return settings;
}

bool SavedViewSettings::isShown(const char* key) const {
    return std::any_of(groups.begin(), groups.end(),
                       [key](const SavedGroup& group) { return group.texts.isShown(key); });
}
